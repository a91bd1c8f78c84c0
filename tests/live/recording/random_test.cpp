#include "RecordingTest.h"

#include <wayvane/recording/WVHoverHUD.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QTabWidget>
#include <QTimer>

#include <iostream>
#include <random>

namespace wayvane::qt::test {
namespace {

constexpr int kRounds = 300;
constexpr int kLongestWait = 60;

/// A user and a program that act at random. The seed decides everything but the exact time.
class Chaos {
public:
  Chaos(unsigned seed, QMainWindow& window)
    : random_(seed)
    , window_(&window)
  {
    rebuild();
    // A context menu runs an event loop until it is left.
    QObject::connect(&leaving_, &QTimer::timeout, [] {
      if (QWidget* const popup = QApplication::activePopupWidget()) popup->close();
    });
    leaving_.start(250);
  }

  void act()
  {
    if (!window_ || QApplication::topLevelWidgets().isEmpty()) return;
    switch (below(16)) {
    case 0:
    case 1:
    case 2:
    case 3:
      return clickSomewhere();
    case 4:
    case 5:
    case 6:
      return answer();
    case 7:
      return destroySomething();
    case 8:
      return rebuild();
    case 9:
      return openSomething();
    case 10:
      return hideOrShow();
    case 11:
      return pressKeys();
    case 12:
      return useMenu();
    case 13:
      if (QWidget* const undo = panelButton(QStringLiteral("Undo"))) click(*undo);
      return;
    case 14:
      return runDialog();
    default:
      if (QWidget* const widget = anyWidget()) hover(*widget, anyPlace(*widget));
    }
  }

  int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }

  [[nodiscard]] int clicks() const { return clicks_; }

private:
  /// A visible widget of the program's, or one of its windows.
  QWidget* anyWidget()
  {
    QList<QWidget*> widgets;
    for (QWidget* const widget : QApplication::allWidgets())
      if (widget->isVisible() && !widget->window()->objectName().startsWith(QLatin1String("wv_")) &&
          widget->window()->windowHandle())
        widgets << widget;
    // The order in which the toolkit tells them is not the same in every run.
    std::sort(widgets.begin(), widgets.end(), [](const QWidget* a, const QWidget* b) {
      return std::pair(a->objectName(), a->width()) < std::pair(b->objectName(), b->width());
    });
    return widgets.isEmpty() ? nullptr : widgets.at(below(static_cast<int>(widgets.size())));
  }

  QPoint anyPlace(const QWidget& widget)
  {
    return {below(std::max(1, widget.width())), below(std::max(1, widget.height()))};
  }

  void clickSomewhere()
  {
    QWidget* const widget = anyWidget();
    if (!widget) return;
    ++clicks_;
    const QPoint at = anyPlace(*widget);
    switch (below(6)) {
    case 0:
      return doubleClick(*widget, at);
    case 1:
      return click(*widget, at, Qt::RightButton);
    case 2:
      return drag(*widget, at, anyPlace(*widget));
    case 3:
      return tap(*widget);
    default:
      return click(*widget, at);
    }
  }

  void answer()
  {
    QWidget* const asking = popover();
    if (!asking) return;
    type(*asking, QString(below(4), QChar(u'a' + below(26))));
    if (!popover()) return;
    if (below(3) == 0) press(*asking, Qt::Key_Tab);
    if (popover()) press(*popover(), below(4) ? Qt::Key_Return : Qt::Key_Escape);
  }

  void destroySomething()
  {
    // The toolkit itself does not survive the end of what has a context menu open.
    if (QApplication::activePopupWidget()) return;
    QWidget* const victim = anyWidget();
    if (!victim || victim == window_ || window_->isAncestorOf(victim) == false) return;
    // What the toolkit built belongs to what it built it for.
    if (victim->objectName().isEmpty() || victim->objectName().startsWith(QLatin1String("qt_"))) return;
    below(2) ? victim->deleteLater() : delete victim;
  }

  void rebuild()
  {
    if (QApplication::activePopupWidget()) return;
    auto* const content = new QWidget;
    content->setObjectName(QStringLiteral("content"));
    addButtons(*content);
    auto* const combo = new QComboBox(content);
    combo->setObjectName(QStringLiteral("combo"));
    combo->addItems({QStringLiteral("one"), QStringLiteral("two"), QStringLiteral("three")});
    combo->setGeometry(300, 20, 140, 30);
    auto* const list = new QListWidget(content);
    list->setObjectName(QStringLiteral("list"));
    for (int i = 0; i < 30; ++i)
      list->addItem(QString::number(i));
    list->setGeometry(300, 70, 160, 180);
    auto* const field = new QLineEdit(content);
    field->setDragEnabled(false);
    field->setGeometry(20, 250, 200, 30);
    auto* const tabs = new QTabWidget(content);
    tabs->setObjectName(QStringLiteral("tabs"));
    tabs->addTab(new QCheckBox(QStringLiteral("Check")), QStringLiteral("First"));
    tabs->addTab(new QWidget, QStringLiteral("Second"));
    tabs->setGeometry(20, 290, 240, 100);
    window_->setCentralWidget(content);
  }

  /// Some of them end what they are in.
  void addButtons(QWidget& content)
  {
    for (int i = 0; i < 6; ++i) {
      auto* const button = new QPushButton(QStringLiteral("Button %1").arg(i), &content);
      button->setObjectName(QStringLiteral("button%1").arg(i));
      button->setGeometry(20 + 130 * (i % 2), 20 + 40 * (i / 2), 120, 32);
      if (i == 1) QObject::connect(button, &QPushButton::pressed, [button] { delete button; });
      if (i == 2) QObject::connect(button, &QPushButton::clicked, &content, &QObject::deleteLater);
      if (i == 3) button->setAttribute(Qt::WA_NativeWindow);
      if (i == 4) QObject::connect(button, &QPushButton::released, window_, [this] { openSomething(); });
    }
  }

  void openSomething()
  {
    if (QApplication::topLevelWidgets().size() > 30) return;
    auto* const other = new QWidget(below(2) ? window_.data() : nullptr, below(4) ? Qt::Window : Qt::Popup);
    other->setAttribute(Qt::WA_DeleteOnClose);
    other->setObjectName(QStringLiteral("other"));
    other->setGeometry(700 + below(400), below(400), 240, 160);
    auto* const close = new QPushButton(QStringLiteral("Close"), other);
    close->setObjectName(QStringLiteral("close"));
    close->setGeometry(20, 20, 120, 40);
    QObject::connect(close, &QPushButton::clicked, other, &QWidget::close);
    QTimer::singleShot(2000, other, &QWidget::close);
    other->show();
  }

  void hideOrShow()
  {
    if (window_->isVisible() && below(2))
      window_->hide();
    else
      window_->show();
  }

  void pressKeys()
  {
    static constexpr Qt::Key kKeys[] = {Qt::Key_Space, Qt::Key_Return, Qt::Key_Escape,
                                        Qt::Key_Tab,   Qt::Key_Down,   Qt::Key_F10};
    if (QWidget* const widget = anyWidget()) press(*widget, kKeys[below(6)]);
  }

  void useMenu()
  {
    if (!window_->isVisible() || QApplication::activeModalWidget() || QApplication::activePopupWidget())
      return;
    if (QMenu* const menu = openMenu(*window_, QStringLiteral("File"))) {
      wait(below(30));
      if (menu->isVisible()) choose(*menu, below(2) ? QStringLiteral("Open") : QStringLiteral("Rebuild"));
    }
  }

  void runDialog()
  {
    if (depth_ >= 2) return;
    ++depth_;
    QDialog dialog(below(2) ? window_.data() : nullptr);
    dialog.setObjectName(QStringLiteral("dialog"));
    QPushButton inside(QStringLiteral("Inside"), &dialog);
    inside.setObjectName(QStringLiteral("inside"));
    QTimer acts;
    QObject::connect(&acts, &QTimer::timeout, &dialog, [this] { act(); });
    acts.start(30);
    QTimer::singleShot(200, &dialog, &QDialog::reject);
    dialog.exec();
    --depth_;
  }

  std::mt19937 random_;
  QTimer leaving_;
  QPointer<QMainWindow> window_;
  int depth_ = 0;
  int clicks_ = 0;
};

/// The count the badge shows is the guide's, and each step says what it is about.
void expectSound(const WVRecorder& recorder, const std::string& counter)
{
  const std::vector<WVStep>& steps = recorder.guide()->steps;
  EXPECT_EQ(counter, std::to_string(steps.size()) + " steps");
  for (const WVStep& step : steps) {
    EXPECT_TRUE(step.target.menuPath || !step.target.className.value_or("").empty());
    EXPECT_TRUE(step.message);
  }
}

using Random = RecordingTest;

TEST_F(Random, ThreeHundredRoundsOfAnythingLeaveAGuideThatReadsBack)
{
  const int given = GTEST_FLAG_GET(random_seed);
  const unsigned seed = given ? static_cast<unsigned>(given) : 20240611U;
  std::cout << "seed " << seed << " (another: --gtest_random_seed=N)" << std::endl;
  QMenu* const file = window->menuBar()->addMenu(QStringLiteral("File"));
  file->addAction(QStringLiteral("Open"));
  delete save;
  Chaos chaos(seed, *window);
  QObject::connect(file->addAction(QStringLiteral("Rebuild")), &QAction::triggered, window,
                   [&] { window->setCentralWidget(new QWidget); });
  for (int round = 0; round < kRounds; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    chaos.act();
    wait(chaos.below(kLongestWait));
    ASSERT_TRUE(recorder->isRecording());
    expectSound(*recorder, counter());
    if (HasFailure()) break;
  }
  while (QWidget* const popup = QApplication::activePopupWidget())
    popup->close();
  EXPECT_GT(chaos.clicks(), 40);
  EXPECT_GT(listener->captured.size(), 10U);
  EXPECT_TRUE(finishes());
  EXPECT_TRUE(waitUntil([] { return !popover() && !WVHoverHUD::shared().isVisible(); }));
  RecordProperty("steps", static_cast<int>(recorder->guide()->steps.size()));
}

} // namespace
} // namespace wayvane::qt::test
