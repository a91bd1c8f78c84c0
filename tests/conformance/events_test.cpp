#include <tests/conformance/Conformance.h>

namespace wayvane::conformance {

namespace {

using platform::EventVerdict;
using platform::MouseEvent;
using Type = platform::MouseEvent::Type;

class Events : public Conformance {
protected:
  [[nodiscard]] platform::Events& events() { return platform().events; }

  /// A monitor that writes down what it sees and answers `verdict`.
  [[nodiscard]] Registration watch(std::vector<MouseEvent>& seen, EventVerdict verdict,
                                   Type type = Type::LeftMouseDown)
  {
    return events().addLocalMonitor(type, [&seen, verdict](const MouseEvent& event) {
      seen.push_back(event);
      return verdict;
    });
  }
};

TEST_F(Events, APressReachesTheElementUnderThePointer)
{
  const auto button = stage().addButton(window(), {.frame = {40, 60, 120, 30}}, {.title = "Plan"});
  stage().pressView(button);
  EXPECT_EQ(stage().pressesReceived(button), 1);
}

TEST_F(Events, AMonitorSeesAPressWhereItHappened)
{
  stage().addPlain(window(), {.frame = {0, 0, 300, 200}});
  std::vector<MouseEvent> seen;
  const auto monitor = watch(seen, EventVerdict::PassOn);
  stage().press(window()->convertPointToScreen({50, 70}));
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].type, Type::LeftMouseDown);
  EXPECT_THAT(seen[0].window, IsSameWindow(window()));
  EXPECT_EQ(seen[0].locationInWindow, (Point{50, 70}));
  EXPECT_FALSE(seen[0].inMenu);
}

TEST_F(Events, APressIsSeenOnceHoweverDeepItGoes)
{
  auto inside = stage().addPlain(window(), {.frame = {0, 0, 300, 200}});
  for (int depth = 1; depth < 5; ++depth)
    inside = stage().addPlain(window(), {.frame = {depth * 10.0, depth * 10.0, 200, 100}, .inside = inside});
  std::vector<MouseEvent> seen;
  const auto monitor = watch(seen, EventVerdict::PassOn);
  stage().pressView(inside);
  EXPECT_EQ(seen.size(), 1U);
}

TEST_F(Events, APressThatNobodyWantsIsSeenOnce)
{
  const auto box = stage().addGroupBox(window(), {.frame = {0, 0, 300, 200}}, "Weather");
  const auto label = stage().addLabel(window(), {.frame = {50, 50, 100, 30}, .inside = box}, "Sunny");
  std::vector<MouseEvent> seen;
  const auto monitor = watch(seen, EventVerdict::PassOn);
  stage().pressView(label);
  EXPECT_EQ(seen.size(), 1U);
}

TEST_F(Events, TheMonitorIsAskedBeforeTheProgram)
{
  const auto plain = stage().addPlain(window(), {.frame = {0, 0, 300, 200}});
  int receivedBefore = -1;
  const auto monitor = events().addLocalMonitor(Type::LeftMouseDown, [&](const MouseEvent&) {
    receivedBefore = stage().mouseEventsReceived(plain);
    return EventVerdict::PassOn;
  });
  stage().pressView(plain);
  EXPECT_EQ(receivedBefore, 0);
  EXPECT_EQ(stage().pressesReceived(plain), 1);
}

TEST_F(Events, TwoPressesAreSeenTwice)
{
  const auto button = stage().addButton(window(), {.frame = {40, 60, 120, 30}}, {.title = "Plan"});
  std::vector<MouseEvent> seen;
  const auto monitor = watch(seen, EventVerdict::PassOn);
  stage().pressView(button);
  stage().pressView(button);
  EXPECT_EQ(seen.size(), 2U);
  EXPECT_EQ(stage().pressesReceived(button), 2);
}

TEST_F(Events, ASwallowedPressReachesNoElement)
{
  const auto plain = stage().addPlain(window(), {.frame = {0, 0, 300, 200}});
  std::vector<MouseEvent> seen;
  const auto monitor = watch(seen, EventVerdict::Swallow);
  stage().pressView(plain);
  EXPECT_EQ(seen.size(), 1U);
  EXPECT_EQ(stage().mouseEventsReceived(plain), 0) << "neither the press nor its release";
}

TEST_F(Events, ASwallowedPressDoesNotClickAButton)
{
  const auto button = stage().addButton(window(), {.frame = {40, 60, 120, 30}}, {.title = "Plan"});
  std::vector<MouseEvent> seen;
  auto monitor = watch(seen, EventVerdict::Swallow);
  stage().pressView(button);
  EXPECT_EQ(stage().pressesReceived(button), 0);
  monitor.reset();
  stage().pressView(button);
  EXPECT_EQ(stage().pressesReceived(button), 1) << "the next one does";
}

TEST_F(Events, ASwallowedPressTakesItsMovementsAndItsReleaseWithIt)
{
  const auto plain = stage().addPlain(window(), {.frame = {0, 0, 300, 200}});
  std::vector<MouseEvent> seen;
  const auto monitor = watch(seen, EventVerdict::Swallow);
  stage().drag(window()->convertPointToScreen({50, 50}), window()->convertPointToScreen({200, 150}));
  EXPECT_EQ(seen.size(), 1U);
  EXPECT_EQ(stage().mouseEventsReceived(plain), 0);
}

TEST_F(Events, ASwallowedPressTakesTheDoubleClickThatItStartsWithIt)
{
  const auto plain = stage().addPlain(window(), {.frame = {0, 0, 300, 200}});
  int asked = 0;
  const auto monitor = events().addLocalMonitor(Type::LeftMouseDown, [&](const MouseEvent&) {
    return ++asked == 1 ? EventVerdict::Swallow : EventVerdict::PassOn;
  });
  stage().doublePress(window()->convertPointToScreen({50, 50}));
  EXPECT_GE(asked, 1);
  EXPECT_EQ(stage().mouseEventsReceived(plain), 0);
}

TEST_F(Events, ASwallowedPressStaysSwallowedWhenTheMonitorEndsAtOnce)
{
  const auto button = stage().addButton(window(), {.frame = {40, 60, 120, 30}}, {.title = "Plan"});
  Registration monitor = events().addLocalMonitor(Type::LeftMouseDown, [&](const MouseEvent&) {
    monitor.reset();
    return EventVerdict::Swallow;
  });
  stage().pressView(button);
  EXPECT_EQ(stage().pressesReceived(button), 0);
}

TEST_F(Events, ADoublePressThatIsPassedOnReachesTheProgramWhole)
{
  const auto plain = stage().addPlain(window(), {.frame = {0, 0, 300, 200}});
  std::vector<MouseEvent> seen;
  const auto monitor = watch(seen, EventVerdict::PassOn);
  stage().doublePress(window()->convertPointToScreen({50, 50}));
  EXPECT_EQ(stage().pressesReceived(plain), 2);
  EXPECT_EQ(seen.size(), 2U) << "one verdict a press";
}

TEST_F(Events, TheNewestMonitorIsAskedFirst)
{
  std::vector<std::string> order;
  const auto note = [&](const char* name) {
    return events().addLocalMonitor(Type::LeftMouseDown, [&order, name](const MouseEvent&) {
      order.emplace_back(name);
      return EventVerdict::PassOn;
    });
  };
  const auto older = note("older"), newer = note("newer");
  stage().press(window()->convertPointToScreen({50, 50}));
  EXPECT_THAT(order, ElementsAre("newer", "older"));
}

TEST_F(Events, WhatOneMonitorSwallowsTheOthersDoNotSee)
{
  std::vector<MouseEvent> older, newer;
  const auto first = watch(older, EventVerdict::PassOn);
  const auto second = watch(newer, EventVerdict::Swallow);
  stage().press(window()->convertPointToScreen({50, 50}));
  EXPECT_EQ(newer.size(), 1U);
  EXPECT_THAT(older, IsEmpty());
}

TEST_F(Events, AMonitorThatEndedSeesNothing)
{
  std::vector<MouseEvent> seen;
  auto monitor = watch(seen, EventVerdict::Swallow);
  monitor.reset();
  stage().press(window()->convertPointToScreen({50, 50}));
  EXPECT_THAT(seen, IsEmpty());
}

TEST_F(Events, AMonitorMayEndItselfWhileItIsAsked)
{
  int asked = 0;
  Registration monitor = events().addLocalMonitor(Type::LeftMouseDown, [&](const MouseEvent&) {
    ++asked;
    monitor.reset();
    return EventVerdict::PassOn;
  });
  stage().press(window()->convertPointToScreen({50, 50}));
  stage().press(window()->convertPointToScreen({50, 50}));
  EXPECT_EQ(asked, 1);
}

TEST_F(Events, AMonitorMayEndAnotherWhileItIsAsked)
{
  std::vector<MouseEvent> seen;
  Registration older = watch(seen, EventVerdict::PassOn);
  const auto newer = events().addLocalMonitor(Type::LeftMouseDown, [&](const MouseEvent&) {
    older.reset();
    return EventVerdict::PassOn;
  });
  stage().press(window()->convertPointToScreen({50, 50}));
  EXPECT_THAT(seen, IsEmpty());
}

TEST_F(Events, AMonitorAddedWhileOneIsAskedSeesTheNextPress)
{
  std::vector<MouseEvent> seen;
  Registration added;
  const auto monitor = events().addLocalMonitor(Type::LeftMouseDown, [&](const MouseEvent&) {
    if (!added) added = watch(seen, EventVerdict::PassOn);
    return EventVerdict::PassOn;
  });
  stage().press(window()->convertPointToScreen({50, 50}));
  EXPECT_THAT(seen, IsEmpty());
  stage().press(window()->convertPointToScreen({50, 50}));
  EXPECT_EQ(seen.size(), 1U);
}

TEST_F(Events, AWindowMayCloseWhileItsPressIsJudged)
{
  const auto other = stage().makeWindow("Packing list", {300, 150, 300, 300});
  const auto button = stage().addButton(other, {.frame = {40, 60, 120, 30}}, {.title = "Pack"});
  const auto monitor = events().addLocalMonitor(Type::LeftMouseDown, [&](const MouseEvent&) {
    stage().closeWindow(other);
    return EventVerdict::Swallow;
  });
  stage().pressView(button);
  EXPECT_FALSE(other->isAlive());
  EXPECT_TRUE(window()->isAlive());
}

TEST_F(Events, ThePointerIsWhereThePressHappens)
{
  Point seen;
  const auto monitor = events().addLocalMonitor(Type::LeftMouseDown, [&](const MouseEvent&) {
    seen = events().mouseLocation();
    return EventVerdict::PassOn;
  });
  stage().press(window()->convertPointToScreen({50, 70}));
  EXPECT_EQ(seen, (Point{kWindowFrame.x + 50, kWindowFrame.y + 70}));
}

TEST_F(Events, AMonitorSeesTheMouseMove)
{
  stage().addPlain(window(), {.frame = {0, 0, 300, 200}});
  stage().moveMouse(window()->convertPointToScreen({20, 20}));
  std::vector<MouseEvent> seen;
  const auto monitor = watch(seen, EventVerdict::PassOn, Type::MouseMoved);
  stage().moveMouse(window()->convertPointToScreen({60, 80}));
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_EQ(seen[0].type, Type::MouseMoved);
  EXPECT_THAT(seen[0].window, IsSameWindow(window()));
  EXPECT_EQ(seen[0].locationInWindow, (Point{60, 80}));
}

TEST_F(Events, AMovementIsNoPress)
{
  std::vector<MouseEvent> presses, moves;
  const auto first = watch(presses, EventVerdict::PassOn, Type::LeftMouseDown);
  stage().moveMouse(window()->convertPointToScreen({60, 80}));
  stage().moveMouse(window()->convertPointToScreen({65, 85}));
  EXPECT_THAT(presses, IsEmpty());
}

TEST_F(Events, APressTellsTheWindowItHappenedIn)
{
  const auto other = stage().makeWindow("Packing list", {720, 150, 300, 300});
  std::vector<MouseEvent> seen;
  const auto monitor = watch(seen, EventVerdict::PassOn);
  stage().press(window()->convertPointToScreen({20, 20}));
  stage().press(other->convertPointToScreen({250, 20}));
  ASSERT_EQ(seen.size(), 2U);
  EXPECT_THAT(seen[0].window, IsSameWindow(window()));
  EXPECT_THAT(seen[1].window, IsSameWindow(other));
  EXPECT_EQ(seen[1].locationInWindow, (Point{250, 20}));
}

TEST(EventRegistrations, MayOutliveThePlatform)
{
  Registration monitor, resize, commands;
  {
    const auto stage = makeStage();
    monitor = stage->platform().events.addLocalMonitor(
        Type::LeftMouseDown, [](const MouseEvent&) { return EventVerdict::PassOn; });
    resize = stage->platform().events.observeWindowResize([](const WindowHandle&) {});
    commands = stage->platform().events.observeMenuCommands([](const platform::MenuItemHandle&) {});
  }
  monitor.reset();
  resize.reset();
  commands.reset();
  EXPECT_FALSE(monitor);
}

} // namespace

} // namespace wayvane::conformance
