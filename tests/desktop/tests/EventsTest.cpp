#include <tests/desktop/Desktop.h>

#include <gmock/gmock.h>

namespace wayvane::sim {
namespace {

using platform::EventVerdict;
using platform::MouseEvent;
using platform::Point;
using testing::ElementsAre;

constexpr auto kPress = MouseEvent::Type::LeftMouseDown;

class SimEvents : public testing::Test {
protected:
  platform::Registration monitor(const std::string& name, EventVerdict verdict = EventVerdict::PassOn,
                                 MouseEvent::Type type = kPress)
  {
    return desktop.events().addLocalMonitor(type, [this, name, verdict](const MouseEvent& event) {
      asked.push_back(name);
      last = event;
      return verdict;
    });
  }

  Desktop desktop;
  std::shared_ptr<Window> window = desktop.addWindow("Main", {100, 100, 800, 600});
  Button& save = window->content().addButton({.title = "Save", .frame = {20, 20, 80, 24}, .action = "save:"});
  std::vector<std::string> asked;
  MouseEvent last;
};

TEST_F(SimEvents, APressReachesTheViewAndSendsItsAction)
{
  bool worked = false;
  save.setOnClick([&] { worked = true; });
  const ClickResult result = desktop.click({130, 130});
  EXPECT_TRUE(isSameView(result.view, save.handle()));
  EXPECT_EQ(save.clickCount(), 1);
  EXPECT_TRUE(worked);
  EXPECT_THAT(desktop.sentActionNames(), ElementsAre("save:"));
  EXPECT_EQ(desktop.events().mouseLocation(), (Point{130, 130}));
}

TEST_F(SimEvents, TheMonitorsSeeThePressFirstNewestFirst)
{
  const auto older = monitor("older"), newer = monitor("newer");
  desktop.clickView(save);
  EXPECT_THAT(asked, ElementsAre("newer", "older"));
  EXPECT_TRUE(isSameWindow(last.window, window));
  EXPECT_EQ(last.locationInWindow, (Point{60, 32}));
}

TEST_F(SimEvents, ASwallowedPressReachesNobodyElse)
{
  const auto older = monitor("older"), newer = monitor("newer", EventVerdict::Swallow);
  const ClickResult result = desktop.clickView(save);
  EXPECT_THAT(asked, ElementsAre("newer"));
  EXPECT_EQ(result.verdict, EventVerdict::Swallow);
  EXPECT_EQ(save.clickCount(), 0);
}

TEST_F(SimEvents, AMonitorMayEndItselfWhileItRuns)
{
  platform::Registration token;
  token = desktop.events().addLocalMonitor(kPress, [&](const MouseEvent&) {
    token.reset();
    return EventVerdict::PassOn;
  });
  const auto older = monitor("older");
  desktop.clickView(save);
  desktop.clickView(save);
  EXPECT_EQ(desktop.events().monitorCount(kPress), 1u);
  EXPECT_THAT(asked, ElementsAre("older", "older"));
}

TEST_F(SimEvents, AMonitorEndedByANewerOneIsNotAsked)
{
  auto older = monitor("older");
  const auto newer = desktop.events().addLocalMonitor(kPress, [&](const MouseEvent&) {
    older.reset();
    return EventVerdict::PassOn;
  });
  desktop.clickView(save);
  EXPECT_TRUE(asked.empty());
}

TEST_F(SimEvents, ARegistrationMayOutliveTheDesktop)
{
  platform::Registration token;
  {
    Desktop other;
    token = other.events().addLocalMonitor(kPress, [](const MouseEvent&) { return EventVerdict::PassOn; });
  }
  token.reset();
  EXPECT_FALSE(token.isActive());
}

TEST_F(SimEvents, MovementAndPressesHaveMonitorsOfTheirOwn)
{
  const auto moves = monitor("move", EventVerdict::PassOn, MouseEvent::Type::MouseMoved);
  const auto presses = monitor("press");
  desktop.moveMouse({120, 125});
  EXPECT_THAT(asked, ElementsAre("move"));
  EXPECT_EQ(last.locationInWindow, (Point{20, 25}));
}

TEST_F(SimEvents, RightClicksAndKeysReachNoMonitor)
{
  const auto presses = monitor("press");
  desktop.rightClick({130, 130});
  desktop.keyPress("Return");
  EXPECT_TRUE(asked.empty());
}

TEST_F(SimEvents, ThePointerMayBeElsewhereThanTheEvent)
{
  const auto presses = monitor("press");
  desktop.clickAt({130, 130}, {5, 5});
  EXPECT_EQ(last.locationInWindow, (Point{30, 30}));
  EXPECT_EQ(desktop.events().mouseLocation(), (Point{5, 5}));
}

TEST_F(SimEvents, APressBesideAllWindowsHasNone)
{
  const auto presses = monitor("press");
  EXPECT_EQ(desktop.click({5, 5}).view, nullptr);
  EXPECT_EQ(last.window, nullptr);
}

TEST_F(SimEvents, APressInAMenuSaysSo)
{
  const auto presses = monitor("press");
  desktop.pressInMenu({130, 130});
  EXPECT_TRUE(last.inMenu);
  EXPECT_EQ(save.clickCount(), 0);
}

TEST_F(SimEvents, APressOnAWindowBringsItToTheFront)
{
  const auto other = desktop.addWindow("Other", {500, 500, 100, 100});
  desktop.clickView(save);
  EXPECT_EQ(desktop.application().keyWindow(), window);
  EXPECT_EQ(desktop.application().orderedWindows().front(), window);
}

TEST_F(SimEvents, APressOnAWindowWhoseMonitorClosedItHarmsNothing)
{
  const auto closing = desktop.events().addLocalMonitor(kPress, [&](const MouseEvent&) {
    window->close();
    return EventVerdict::PassOn;
  });
  EXPECT_EQ(desktop.clickView(save).view, nullptr);
}

} // namespace
} // namespace wayvane::sim
