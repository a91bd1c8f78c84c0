#include "ShellTest.h"

#include <wayvane/platform/qt/Conversions.h>

#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPointingDevice>
#include <QSignalSpy>

#include <optional>

namespace wayvane::qt::test {
namespace {

using platform::EventVerdict;
using platform::MouseEvent;
using platform::Registration;

/// Counts what reaches it and passes every press on to its parent.
struct Deaf : QWidget {
  using QWidget::QWidget;
  int presses = 0, doubles = 0, moves = 0, releases = 0;

  void mousePressEvent(QMouseEvent* event) override { ++presses, event->ignore(); }

  void mouseDoubleClickEvent(QMouseEvent* event) override { ++doubles, event->ignore(); }

  void mouseMoveEvent(QMouseEvent* event) override { ++moves, event->ignore(); }

  void mouseReleaseEvent(QMouseEvent* event) override { ++releases, event->ignore(); }
};

class QtEvents : public ShellTest {
protected:
  platform::Events& events = wayvane().events;
  int seen = 0;
  EventVerdict verdict = EventVerdict::PassOn;
  std::optional<MouseEvent> last;

  Registration monitor(MouseEvent::Type type = MouseEvent::Type::LeftMouseDown)
  {
    return events.addLocalMonitor(type, [this](const MouseEvent& event) {
      ++seen;
      last = event;
      return verdict;
    });
  }

  Deaf* nestOfDeafWidgets()
  {
    auto* outer = new Deaf(window.get());
    outer->setGeometry(200, 40, 150, 150);
    auto* middle = new Deaf(outer);
    middle->setGeometry(10, 10, 120, 120);
    auto* inner = new Deaf(middle);
    inner->setGeometry(10, 10, 100, 100);
    outer->show();
    return inner;
  }
};

TEST_F(QtEvents, MonitorSeesAPressOnceHoweverOftenItIsPassedUp)
{
  Deaf* inner = nestOfDeafWidgets();
  const Registration token = monitor();
  click(*inner);
  EXPECT_EQ(seen, 1);
  EXPECT_EQ(inner->presses, 1);
  EXPECT_EQ(static_cast<Deaf*>(inner->parentWidget())->presses, 1);
}

TEST_F(QtEvents, PassedOnPressReachesTheControl)
{
  const Registration token = monitor();
  click(*button);
  EXPECT_EQ(clicks, 1);
}

TEST_F(QtEvents, SwallowedPressTakesMovesAndReleaseWithIt)
{
  Deaf* inner = nestOfDeafWidgets();
  inner->setMouseTracking(true);
  const Registration token = monitor();
  verdict = EventVerdict::Swallow;
  QWindow* native = window->windowHandle();
  const QPoint at = inner->mapTo(window.get(), QPoint(20, 20));
  QTest::mouseMove(native, at);
  spin();
  inner->moves = 0;
  QTest::mousePress(native, Qt::LeftButton, {}, at);
  QTest::mouseMove(native, at + QPoint(10, 10));
  QTest::mouseRelease(native, Qt::LeftButton, {}, at + QPoint(10, 10));
  EXPECT_EQ(inner->presses + inner->moves + inner->releases, 0);
  EXPECT_EQ(seen, 1);
}

TEST_F(QtEvents, ClickAfterASwallowedOneWorks)
{
  const Registration token = monitor();
  verdict = EventVerdict::Swallow;
  click(*button);
  EXPECT_EQ(clicks, 0);
  EXPECT_FALSE(button->isDown());
  verdict = EventVerdict::PassOn;
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  click(*button);
  EXPECT_EQ(clicks, 1);
}

TEST_F(QtEvents, DoubleClickStartedByASwallowedPressIsSwallowed)
{
  Deaf* inner = nestOfDeafWidgets();
  bool first = true;
  const Registration token = events.addLocalMonitor(MouseEvent::Type::LeftMouseDown, [&](const MouseEvent&) {
    ++seen;
    return std::exchange(first, false) ? EventVerdict::Swallow : EventVerdict::PassOn;
  });
  doubleClick(*inner);
  EXPECT_EQ(seen, 2);
  EXPECT_EQ(inner->doubles, 0);
}

TEST_F(QtEvents, PassedOnDoubleClickIsJudgedAsTwoPresses)
{
  Deaf* inner = nestOfDeafWidgets();
  const Registration token = monitor();
  doubleClick(*inner);
  EXPECT_EQ(seen, 2);
  EXPECT_EQ(inner->doubles, 1);
}

TEST_F(QtEvents, SwallowedPressOnAWidgetAloneIsSwallowedToo)
{
  const Registration token = monitor();
  verdict = EventVerdict::Swallow;
  QTest::mouseClick(button, Qt::LeftButton);
  EXPECT_EQ(seen, 1);
  EXPECT_EQ(clicks, 0);
}

TEST_F(QtEvents, PressesWithoutATimeAreStillSeenOneByOne)
{
  const Registration token = monitor();
  for (int i = 0; i < 2; ++i) {
    const QPointF local(5, 5), global = button->mapToGlobal(local);
    QMouseEvent press(QEvent::MouseButtonPress, local, global, Qt::LeftButton, Qt::LeftButton, {});
    QMouseEvent release(QEvent::MouseButtonRelease, local, global, Qt::LeftButton, Qt::NoButton, {});
    QCoreApplication::sendEvent(button, &press);
    QCoreApplication::sendEvent(button, &release);
  }
  EXPECT_EQ(seen, 2);
  EXPECT_EQ(clicks, 2);
}

TEST_F(QtEvents, PressIsNotJudgedAgainAfterAHandlerRanAnEventLoop)
{
  struct Looping : Deaf {
    using Deaf::Deaf;
    std::function<void()> inLoop;

    void mousePressEvent(QMouseEvent* event) override
    {
      if (inLoop) std::exchange(inLoop, nullptr)();
      event->ignore();
    }
  };

  auto* outer = new Deaf(window.get());
  outer->setGeometry(200, 40, 150, 150);
  auto* inner = new Looping(outer);
  inner->setGeometry(0, 0, 100, 100);
  outer->show();
  inner->inLoop = [&] { click(*button); };
  const Registration token = monitor();
  click(*inner);
  EXPECT_EQ(seen, 2);
  EXPECT_EQ(outer->presses, 1);
}

TEST_F(QtEvents, OtherButtonsAreNotWatched)
{
  const Registration token = monitor();
  QTest::mouseClick(window->windowHandle(), Qt::RightButton, {}, QPoint(60, 60));
  EXPECT_EQ(seen, 0);
}

TEST_F(QtEvents, PressTellsWindowAndPlaceWithYUpward)
{
  const Registration token = monitor();
  click(*button, QPoint(10, 5));
  ASSERT_TRUE(last);
  EXPECT_TRUE(platform::isSameWindow(last->window, handle()));
  EXPECT_EQ(last->locationInWindow, (platform::Point{50, 300 - 45}));
  EXPECT_FALSE(last->inMenu);
}

TEST_F(QtEvents, MouseLocationIsThatOfTheJudgedPress)
{
  platform::Point location;
  const Registration token = events.addLocalMonitor(MouseEvent::Type::LeftMouseDown, [&](const MouseEvent&) {
    location = events.mouseLocation();
    return EventVerdict::PassOn;
  });
  click(*button, QPoint(10, 5));
  EXPECT_EQ(location, screenPointFromGlobal(button->mapToGlobal(QPointF(10, 5))));
}

TEST_F(QtEvents, NewestMonitorIsAskedFirstAndWhatItSwallowsOthersDoNotSee)
{
  const Registration older = monitor();
  const Registration newer = events.addLocalMonitor(MouseEvent::Type::LeftMouseDown,
                                                    [](const MouseEvent&) { return EventVerdict::Swallow; });
  click(*button);
  EXPECT_EQ(seen, 0);
  EXPECT_EQ(clicks, 0);
}

TEST_F(QtEvents, MonitorMayEndItselfWhileItRuns)
{
  Registration token;
  token = events.addLocalMonitor(MouseEvent::Type::LeftMouseDown, [&](const MouseEvent&) {
    ++seen;
    token.reset();
    return EventVerdict::PassOn;
  });
  click(*button);
  click(*button);
  EXPECT_EQ(seen, 1);
  EXPECT_EQ(clicks, 2);
}

TEST_F(QtEvents, ReleaseIsSwallowedEvenWhenTheMonitorEndedInBetween)
{
  Deaf* inner = nestOfDeafWidgets();
  Registration token = monitor();
  verdict = EventVerdict::Swallow;
  const QPoint at = inner->mapTo(window.get(), QPoint(20, 20));
  QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, at);
  token.reset();
  QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, at);
  EXPECT_EQ(inner->releases, 0);
}

TEST_F(QtEvents, MonitorMayDeleteThePressedWidget)
{
  const Registration token = events.addLocalMonitor(MouseEvent::Type::LeftMouseDown, [&](const MouseEvent&) {
    delete std::exchange(button, nullptr);
    return EventVerdict::PassOn;
  });
  click(*button);
  EXPECT_EQ(button, nullptr);
}

TEST_F(QtEvents, MonitorMayDeleteTheWindowWhenItSwallows)
{
  const Registration token = events.addLocalMonitor(MouseEvent::Type::LeftMouseDown, [&](const MouseEvent&) {
    window->deleteLater();
    static_cast<void>(window.release());
    return EventVerdict::Swallow;
  });
  click(*button);
  spin();
  EXPECT_EQ(clicks, 0);
}

TEST_F(QtEvents, ThrowingMonitorLetsThePressThrough)
{
  const Registration token = events.addLocalMonitor(
      MouseEvent::Type::LeftMouseDown, [](const MouseEvent&) -> EventVerdict { throw std::bad_alloc(); });
  click(*button);
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(takeLog(),
            QStringList{QStringLiteral("wayvane:Wayvane: exception in mouse monitor: std::bad_alloc")});
}

TEST_F(QtEvents, MoveMonitorSeesMovementOnceAndNoDrags)
{
  Deaf* inner = nestOfDeafWidgets();
  inner->setMouseTracking(true);
  const Registration token = monitor(MouseEvent::Type::MouseMoved);
  QTest::mouseMove(window->windowHandle(), QPoint(240, 90));
  spin();
  EXPECT_EQ(seen, 1);
  QTest::mousePress(window->windowHandle(), Qt::LeftButton, {}, QPoint(240, 90));
  QTest::mouseMove(window->windowHandle(), QPoint(250, 95));
  QTest::mouseRelease(window->windowHandle(), Qt::LeftButton, {}, QPoint(250, 95));
  spin();
  EXPECT_EQ(seen, 1);
}

TEST_F(QtEvents, PressInAnOpenMenuSaysSo)
{
  QMenu menu;
  QAction* action = menu.addAction(QStringLiteral("Open"));
  menu.popup(window->mapToGlobal(QPoint(20, 100)));
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu));
  const Registration token = monitor();
  click(menu, menu.actionGeometry(action).center());
  ASSERT_TRUE(last);
  EXPECT_TRUE(last->inMenu);
}

TEST_F(QtEvents, PressOnTheMenuBarSaysSo)
{
  QMenu* const file = window->menuBar()->addMenu(QStringLiteral("File"));
  file->addAction(QStringLiteral("Open"));
  spin();
  const Registration token = monitor();
  click(*window->menuBar(), window->menuBar()->actionGeometry(file->menuAction()).center());
  file->close();
  ASSERT_TRUE(last);
  EXPECT_TRUE(last->inMenuBar);
  EXPECT_FALSE(last->inMenu);
  click(*button);
  EXPECT_FALSE(last->inMenuBar);
}

TEST_F(QtEvents, PressInAWindowWithinAContainerIsOneInTheWindowAround)
{
  auto* const inner = new QWindow;
  QWidget* const container = QWidget::createWindowContainer(inner, window.get());
  container->setGeometry(40, 120, 200, 100);
  container->show();
  spin();
  const Registration token = monitor();
  QTest::mouseClick(inner, Qt::LeftButton, {}, QPoint(30, 20));
  EXPECT_EQ(seen, 1);
  ASSERT_TRUE(last);
  EXPECT_TRUE(platform::isSameWindow(last->window, handle()));
  EXPECT_EQ(last->locationInWindow, (platform::Point{70, 300 - 140}));
}

TEST_F(QtEvents, PressInAComboBoxListSaysSo)
{
  auto* combo = new QComboBox(window.get());
  combo->addItems({QStringLiteral("one"), QStringLiteral("two")});
  combo->setGeometry(20, 100, 120, 30);
  combo->show();
  combo->showPopup();
  ASSERT_TRUE(waitUntil([] { return QApplication::activePopupWidget() != nullptr; }));
  const Registration token = monitor();
  click(*QApplication::activePopupWidget(), QPoint(20, 15));
  ASSERT_TRUE(last);
  EXPECT_TRUE(last->inMenu);
  combo->hidePopup();
}

TEST_F(QtEvents, PressInAPopUpFormIsAnOrdinaryPress)
{
  QWidget form(window.get(), Qt::Popup);
  QPushButton inside(QStringLiteral("Inside"), &form);
  form.setGeometry(150, 150, 200, 100);
  form.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&form));
  const Registration token = monitor();
  click(inside);
  ASSERT_TRUE(last);
  EXPECT_FALSE(last->inMenu);
  EXPECT_FALSE(platform::isSameWindow(last->window, handle()));
}

TEST_F(QtEvents, WindowResizeIsTold)
{
  platform::WindowHandle resized;
  const Registration token =
      events.observeWindowResize([&](const platform::WindowHandle& which) { resized = which; });
  window->resize(450, 350);
  EXPECT_TRUE(waitUntil([&] { return resized != nullptr; }));
  EXPECT_TRUE(platform::isSameWindow(resized, handle()));
  EXPECT_EQ(resized->frame().size(), (platform::Size{450, 350}));
}

TEST_F(QtEvents, ResizeOfAWidgetInsideAWindowIsNotTold)
{
  int told = 0;
  const Registration token = events.observeWindowResize([&](const platform::WindowHandle&) { ++told; });
  button->resize(200, 80);
  spin();
  EXPECT_EQ(told, 0);
}

TEST_F(QtEvents, TouchThatBecomesAPressIsJudgedAsOne)
{
  const std::unique_ptr<QPointingDevice> screen(QTest::createTouchDevice());
  const auto tap = [&] {
    const QPoint at = button->mapTo(window.get(), button->rect().center());
    QTest::touchEvent(window->windowHandle(), screen.get()).press(0, at, window->windowHandle());
    QTest::touchEvent(window->windowHandle(), screen.get()).release(0, at, window->windowHandle());
    spin();
  };
  const Registration token = monitor();
  tap();
  EXPECT_EQ(seen, 1);
  EXPECT_EQ(clicks, 1);
  verdict = EventVerdict::Swallow;
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  tap();
  EXPECT_EQ(seen, 2);
  EXPECT_EQ(clicks, 1);
}

TEST_F(QtEvents, NothingIsFilteredWhenNobodyListens)
{
  {
    const Registration token = monitor();
    verdict = EventVerdict::Swallow;
  }
  click(*button);
  EXPECT_EQ(seen, 0);
  EXPECT_EQ(clicks, 1);
}

} // namespace
} // namespace wayvane::qt::test
