#include "PlaybackTest.h"

#include <wayvane/overlay/WVBubbleView.h>
#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtOverlayWidget.h>
#include <wayvane/platform/qt/QtPlatform.h>
#include <wayvane/platform/qt/QtWindow.h>

#include <QAbstractButton>
#include <QDialog>
#include <QLabel>
#include <QTimer>
#include <QWindow>

namespace wayvane::qt::test {

namespace {

QPushButton* addButton(QWidget* parent, const char* name, const char* title, const QRect& place)
{
  auto* button = new QPushButton(QString::fromLatin1(title), parent);
  button->setObjectName(QString::fromLatin1(name));
  button->setGeometry(place);
  return button;
}

} // namespace

Host::Host()
{
  main = new QMainWindow;
  main->setObjectName(QStringLiteral("main"));
  main->setWindowTitle(QStringLiteral("Main"));
  main->setGeometry(100, 100, 900, 600);
  save = addButton(main, "save", "Save", {40, 40, 120, 32});
  other = addButton(main, "other", "Other", {40, 500, 120, 32});
  QObject::connect(save, &QPushButton::clicked, main, [this] { ++saves; });
  QObject::connect(other, &QPushButton::clicked, main, [this] { ++others; });

  scroll = new QScrollArea(main);
  scroll->setGeometry(300, 40, 260, 200);
  auto* content = new QWidget;
  content->setFixedSize(240, 1600);
  far = addButton(content, "far", "Far away", {40, 1400, 120, 32});
  scroll->setWidget(content);

  table = new QTableWidget(40, 2, main);
  table->setObjectName(QStringLiteral("table"));
  table->setGeometry(300, 280, 420, 260);
  for (int row = 0; row < 40; ++row)
    table->setItem(row, 0, new QTableWidgetItem(QStringLiteral("Row %1").arg(row)));

  second = new QWidget;
  second->setWindowTitle(QStringLiteral("Second"));
  second->setGeometry(1050, 200, 300, 200);
  addButton(second, "apply", "Apply", {40, 40, 120, 32});

  second->show();
  main->show();
  main->activateWindow();
  EXPECT_TRUE(QTest::qWaitForWindowActive(main));
}

Host::~Host()
{
  delete main;
  delete second;
}

PlaybackTest::PlaybackTest()
{
  EXPECT_TRUE(installPlatform());
  host = std::make_unique<Host>();
  player = std::make_unique<WVPlayer>();
  player->setDelegate(listener);
}

PlaybackTest::~PlaybackTest()
{
  player.reset();
  host.reset();
  QTest::qWait(1);
}

std::shared_ptr<WVGuide> PlaybackTest::guideFor(const std::vector<std::string>& identifiers)
{
  auto guide = std::make_shared<WVGuide>("Tour");
  for (const std::string& identifier : identifiers)
    guide->addStepWithAccessibilityIdentifier(identifier, "Do <b>this</b>");
  return guide;
}

bool PlaybackTest::waitUntil(const std::function<bool()>& condition, int milliseconds)
{
  return QTest::qWaitFor(condition, milliseconds);
}

bool PlaybackTest::waitForStep(std::uint64_t index)
{
  return waitUntil([this, index] {
    return player->isPlaying() && player->currentStepIndex() == index && player->currentBubble();
  });
}

void PlaybackTest::clickTarget()
{
  const platform::WindowHandle parent = player->overlayWindow()->parentWindow();
  ASSERT_TRUE(parent);
  QWidget* const window = widgetOf(*parent);
  const QPointF global = globalFromScreenPoint(player->currentTargetScreenRect().center());
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, window->mapFromGlobal(global.toPoint()));
}

void PlaybackTest::click(QWidget& widget)
{
  QTest::mouseClick(widget.window()->windowHandle(), Qt::LeftButton, {},
                    widget.mapTo(widget.window(), widget.rect().center()));
}

void PlaybackTest::answerNextAlert(const QString& button)
{
  QTimer::singleShot(20, host->main, [this, button] {
    auto* const box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (!box) {
      answerNextAlert(button);
      return;
    }
    for (const QLabel* const label : box->findChildren<QLabel*>())
      alertText += label->text() + QLatin1Char('\n');
    for (QAbstractButton* const candidate : box->findChildren<QAbstractButton*>())
      if (candidate->text().remove(QLatin1Char('&')) == button) {
        click(*candidate);
        return;
      }
    ADD_FAILURE() << "no such button: " << qPrintable(button);
    box->reject();
  });
}

QWidget* PlaybackTest::overlay() const
{
  const platform::WindowHandle parent =
      player->overlayWindow() ? player->overlayWindow()->parentWindow() : nullptr;
  return parent ? widgetOf(*parent)->findChild<QtOverlayWidget*>() : nullptr;
}

} // namespace wayvane::qt::test
