#include "ShellTest.h"

#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtOverlayPanel.h>
#include <wayvane/platform/qt/QtWindow.h>

#include <QAccessible>
#include <QDialog>
#include <QDockWidget>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QPainter>
#include <QSplitter>
#include <QTextEdit>
#include <QToolBar>
#include <QVBoxLayout>

namespace wayvane::qt::test {
namespace {

using platform::AccessibleAlert;
using platform::Color;
using platform::Rect;

/// What the framework puts over a window: a dimmed area with a hole.
std::shared_ptr<platform::SurfaceView> dimming(const Rect& area, const Rect& hole, double alpha)
{
  auto view = std::make_shared<platform::SurfaceView>(area);
  const platform::LayerHandle dim = platform::Layer::make();
  dim->setFrame(area);
  dim->setBackgroundColor(Color::white(0, alpha));
  const platform::LayerHandle mask = platform::Layer::make(platform::LayerKind::Shape);
  mask->setFrame(area);
  mask->setFillRule(platform::FillRule::EvenOdd);
  platform::Path path;
  path.addRect(area);
  path.addRoundedRect(hole, 6);
  mask->setPath(path);
  dim->setMask(mask);
  view->layer()->addSublayer(dim);
  return view;
}

class QtOverlayPanel : public ShellTest {
protected:
  void cover()
  {
    panel = wayvane().panels.makeOverlayPanel(handle()->frame(), 0);
    panel->attachToWindow(handle());
    panel->orderFront();
  }

  [[nodiscard]] qt::QtOverlayWidget* widget() const
  {
    return static_cast<qt::QtOverlayPanel*>(panel.get())->widget();
  }

  [[nodiscard]] bool isOnTop(const QWidget& of) const
  {
    const QObjectList& children = of.children();
    return !children.isEmpty() && children.last() == widget();
  }

  std::unique_ptr<platform::OverlayPanel> panel;
};

TEST_F(QtOverlayPanel, CoversTheWholeClientAreaInScreenCoordinates)
{
  cover();
  EXPECT_EQ(panel->frame(), handle()->frame());
  EXPECT_EQ(panel->contentView().frame(), (Rect{0, 0, 400, 300}));
  EXPECT_TRUE(panel->isVisible());
  EXPECT_TRUE(platform::isSameWindow(panel->parentWindow(), handle()));
}

TEST_F(QtOverlayPanel, LetsEveryClickThrough)
{
  cover();
  click(*button);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(QApplication::widgetAt(button->mapToGlobal(QPoint(5, 5))), button);
}

TEST_F(QtOverlayPanel, IsNotTheWindowItCovers)
{
  cover();
  EXPECT_FALSE(platform::isSameWindow(panel->window(), handle()));
  EXPECT_FALSE(handle()->isSame(*panel->window()));
  EXPECT_TRUE(platform::isSameWindow(panel->window(), panel->window()));
  EXPECT_EQ(panel->window()->frame(), handle()->frame());
}

TEST_F(QtOverlayPanel, NeverTakesTheFocus)
{
  button->setFocus();
  cover();
  spin();
  EXPECT_EQ(QApplication::focusWidget(), button);
  EXPECT_EQ(QApplication::activeWindow(), window.get());
}

TEST_F(QtOverlayPanel, FollowsTheSizeOfTheWindow)
{
  cover();
  window->resize(500, 420);
  EXPECT_TRUE(waitUntil([&] { return panel->frame().width == 500; }));
  EXPECT_EQ(panel->contentView().frame(), (Rect{0, 0, 500, 420}));
}

TEST_F(QtOverlayPanel, MovesWithTheWindow)
{
  cover();
  window->move(222, 133);
  EXPECT_TRUE(waitUntil([&] { return panel->frame() == handle()->frame(); }));
}

TEST_F(QtOverlayPanel, CoversOnlyThePartOfAFrameThatLiesInTheWindow)
{
  cover();
  const Rect frame = handle()->frame();
  panel->setFrame(frame.grownBy(500));
  EXPECT_EQ(panel->frame(), frame);
  panel->setFrame({frame.x + 50, frame.y + 20, 100, 80});
  EXPECT_EQ(panel->frame(), (Rect{frame.x + 50, frame.y + 20, 100, 80}));
  EXPECT_EQ(panel->contentView().frame(), (Rect{0, 0, 100, 80}));
  panel->setFrame(frame);
  EXPECT_EQ(panel->frame(), frame);
}

TEST_F(QtOverlayPanel, StaysOnTopOfAChildThatComesLater)
{
  cover();
  auto* late = new QLabel(QStringLiteral("late"), window.get());
  late->show();
  EXPECT_TRUE(waitUntil([&] { return isOnTop(*window); }));
}

TEST_F(QtOverlayPanel, StaysOnTopOfAChildThatIsRaised)
{
  cover();
  button->raise();
  EXPECT_FALSE(isOnTop(*window));
  EXPECT_TRUE(waitUntil([&] { return isOnTop(*window); }));
}

TEST_F(QtOverlayPanel, DoesNotFightForeverWithAnotherThatWantsToBeOnTop)
{
  struct Rival : QObject {
    QWidget* own = nullptr;
    int raises = 0;

    bool eventFilter(QObject* watched, QEvent* event) override
    {
      if (event->type() == QEvent::ZOrderChange && watched != own) {
        ++raises;
        QMetaObject::invokeMethod(
            own, [this] { own->raise(); }, Qt::QueuedConnection);
      }
      return false;
    }
  } rival;

  rival.own = button;
  cover();
  qApp->installEventFilter(&rival);
  button->raise();
  spin(500);
  EXPECT_LE(rival.raises, 10);
}

TEST_F(QtOverlayPanel, DiesQuietlyWithItsWindowAndCanBeAttachedToAnother)
{
  cover();
  window.reset();
  EXPECT_EQ(panel->parentWindow(), nullptr);
  EXPECT_FALSE(panel->isVisible());
  EXPECT_EQ(panel->frame().size(), (platform::Size{400, 300}));
  QWidget second;
  second.setGeometry(50, 50, 250, 200);
  second.show();
  panel->attachToWindow(windowForWidget(&second));
  EXPECT_TRUE(panel->isVisible());
  EXPECT_EQ(panel->frame(), windowForWidget(&second)->frame());
}

TEST_F(QtOverlayPanel, MovesToAnotherWindowWithWhatItShows)
{
  cover();
  QDialog dialog(window.get());
  dialog.setGeometry(150, 150, 200, 100);
  dialog.show();
  panel->attachToWindow(windowForWidget(&dialog));
  EXPECT_EQ(widget()->parentWidget(), &dialog);
  EXPECT_TRUE(panel->isVisible());
  EXPECT_EQ(panel->contentView().frame(), (Rect{0, 0, 200, 100}));
  spin();
  EXPECT_EQ(window->findChild<qt::QtOverlayWidget*>(QString(), Qt::FindDirectChildrenOnly), nullptr);
}

TEST_F(QtOverlayPanel, AttachingToTheSameWindowChangesNothing)
{
  cover();
  const QWidget* before = widget();
  panel->attachToWindow(handle());
  EXPECT_EQ(widget(), before);
}

TEST_F(QtOverlayPanel, IsNoPaneOfASplitter)
{
  QSplitter splitter;
  splitter.addWidget(new QTextEdit);
  splitter.addWidget(new QTextEdit);
  splitter.resize(400, 200);
  splitter.show();
  panel = wayvane().panels.makeOverlayPanel({}, 0);
  panel->attachToWindow(windowForWidget(&splitter));
  panel->orderFront();
  spin();
  EXPECT_EQ(splitter.count(), 2);
  EXPECT_EQ(widget()->geometry(), splitter.rect());
  splitter.resize(500, 220);
  spin();
  EXPECT_EQ(splitter.count(), 2);
  EXPECT_EQ(widget()->geometry(), splitter.rect());
  panel.reset();
}

TEST_F(QtOverlayPanel, IsNoPartOfALayout)
{
  QWidget form;
  auto* layout = new QVBoxLayout(&form);
  layout->addWidget(new QLineEdit);
  form.resize(300, 200);
  form.show();
  panel = wayvane().panels.makeOverlayPanel({}, 0);
  panel->attachToWindow(windowForWidget(&form));
  panel->orderFront();
  spin();
  EXPECT_EQ(layout->count(), 1);
  EXPECT_EQ(widget()->geometry(), form.rect());
  panel.reset();
}

TEST_F(QtOverlayPanel, LetsClicksThroughWhenANativeChildMakesItNative)
{
  cover();
  auto* native = new QLabel(QStringLiteral("native"), window.get());
  native->setAttribute(Qt::WA_NativeWindow);
  native->setGeometry(200, 200, 80, 40);
  native->show();
  native->winId();
  spin();
  ASSERT_TRUE(widget()->windowHandle());
  EXPECT_TRUE(widget()->windowHandle()->flags().testFlag(Qt::WindowTransparentForInput));
}

TEST_F(QtOverlayPanel, PaintsNoBackgroundOfAGlobalStyleSheet)
{
  window->setStyleSheet(QStringLiteral("QWidget { background-color: rgb(0, 255, 0); }"));
  cover();
  auto* plain = new QFrame(window.get());
  plain->setStyleSheet(QStringLiteral("background-color: rgb(255, 0, 0);"));
  plain->setGeometry(200, 40, 100, 100);
  plain->show();
  spin();
  const QImage picture = window->grab().toImage();
  EXPECT_EQ(picture.pixelColor(250, 90), QColor(255, 0, 0));
}

TEST_F(QtOverlayPanel, ComesOnTheScreenWithTheWindowItIsAttachedTo)
{
  const auto other = wayvane().panels.makeOverlayPanel(handle()->frame(), 0);
  EXPECT_FALSE(other->isVisible());
  other->attachToWindow(handle());
  EXPECT_TRUE(other->isVisible());
}

TEST_F(QtOverlayPanel, IsHiddenByOrderOutAndShownAgain)
{
  cover();
  panel->orderOut();
  EXPECT_FALSE(panel->isVisible());
  panel->orderFront();
  EXPECT_TRUE(panel->isVisible());
}

TEST_F(QtOverlayPanel, WithoutAWindowItIsOneOfItsOwnThatTakesNoInput)
{
  const Rect screen = *wayvane().screen.mainScreenFrame();
  panel = wayvane().panels.makeOverlayPanel(screen, 0);
  panel->orderFront();
  spin();
  EXPECT_TRUE(panel->isVisible());
  EXPECT_EQ(panel->frame(), screen);
  EXPECT_EQ(panel->parentWindow(), nullptr);
  ASSERT_TRUE(widget()->windowHandle());
  EXPECT_TRUE(widget()->windowHandle()->flags().testFlag(Qt::WindowTransparentForInput));
  EXPECT_EQ(QApplication::activeWindow(), window.get());
}

TEST_F(QtOverlayPanel, CoversMenuBarToolBarAndDock)
{
  window->menuBar()->setNativeMenuBar(false);
  window->menuBar()->addMenu(QStringLiteral("File"));
  window->addToolBar(QStringLiteral("Main"))->addAction(QStringLiteral("Save"));
  auto* dock = new QDockWidget(QStringLiteral("Dock"));
  dock->setWidget(new QTextEdit);
  window->addDockWidget(Qt::LeftDockWidgetArea, dock);
  window->resize(500, 400);
  spin();
  const QImage before = window->grab().toImage();
  cover();
  panel->contentView().addSubview(dimming({0, 0, 500, 400}, {450, 10, 20, 20}, 0.4));
  spin();
  const QImage after = window->grab().toImage();
  for (const QPoint point : {QPoint(5, 5), QPoint(60, 35), dock->geometry().center()}) {
    EXPECT_LT(after.pixelColor(point).lightness(), before.pixelColor(point).lightness() - 40);
  }
}

TEST_F(QtOverlayPanel, OffersTheMessageAsAnAlertInTheWindow)
{
  cover();
  panel->showAccessibleAlert({"Save", "Click Save to keep the note", "1 of 3", {20, 30, 280, 100}});
  QAccessibleInterface* overlay = QAccessible::queryAccessibleInterface(widget());
  ASSERT_TRUE(overlay);
  ASSERT_EQ(overlay->childCount(), 1);
  QAccessibleInterface* alert = overlay->child(0);
  EXPECT_EQ(alert->role(), QAccessible::AlertMessage);
  EXPECT_EQ(alert->text(QAccessible::Name), QStringLiteral("Save"));
  EXPECT_EQ(alert->text(QAccessible::Description), QStringLiteral("Click Save to keep the note"));
  EXPECT_EQ(alert->text(QAccessible::Value), QStringLiteral("1 of 3"));
  EXPECT_EQ(alert->rect(), QRect(window->mapToGlobal(QPoint(20, 170)), QSize(280, 100)));
}

TEST_F(QtOverlayPanel, ReplacesAndWithdrawsTheAlert)
{
  cover();
  panel->showAccessibleAlert({"One", "first", "", {0, 0, 10, 10}});
  panel->showAccessibleAlert({"Two", "second", "", {0, 0, 10, 10}});
  spin();
  QAccessibleInterface* overlay = QAccessible::queryAccessibleInterface(widget());
  ASSERT_EQ(overlay->childCount(), 1);
  EXPECT_EQ(overlay->child(0)->text(QAccessible::Name), QStringLiteral("Two"));
  panel->hideAccessibleAlert();
  spin();
  EXPECT_EQ(overlay->childCount(), 0);
}

TEST_F(QtOverlayPanel, TakesTheAlertAlongToAnotherWindow)
{
  cover();
  panel->showAccessibleAlert({"One", "first", "", {0, 0, 10, 10}});
  QWidget second;
  second.show();
  panel->attachToWindow(windowForWidget(&second));
  EXPECT_EQ(QAccessible::queryAccessibleInterface(widget())->childCount(), 1);
  panel.reset();
}

TEST_F(QtOverlayPanel, HandleOfAPanelThatIsGoneAnswersNothing)
{
  cover();
  const platform::WindowHandle own = panel->window();
  panel.reset();
  EXPECT_FALSE(own->isAlive());
  EXPECT_EQ(own->frame(), Rect{});
  EXPECT_FALSE(own->isSame(*own));
}

TEST_F(QtOverlayPanel, PanelMayGoWhileItsContentLives)
{
  cover();
  const std::shared_ptr<platform::SurfaceView> view = dimming({0, 0, 400, 300}, {10, 10, 50, 50}, 0.2);
  panel->contentView().addSubview(view);
  panel.reset();
  view->setHidden(true);
  spin();
  EXPECT_FALSE(view->isInWindow());
}

} // namespace
} // namespace wayvane::qt::test
