#include <tests/desktop/Desktop.h>
#include <wayvane/playback/SimulatedHover.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace wayvane {
namespace {

using platform::HoverEvent;
using platform::Point;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// A window at (100, 100), in it a box, in the box a button of 80 x 24 at (40, 30) of the box.
class SimulatedHover : public ::testing::Test {
protected:
  void enter() { simulateMouseEnter(button.handle(), button.screenFrame()); }

  void leave() { simulateMouseExit(button.handle()); }

  static sim::TrackingRecord& addArea(sim::View& view, sim::TrackingAreaOptions options = {})
  {
    if (options.rect.isEmpty()) options.rect = view.bounds();
    return view.addTrackingArea(options);
  }

  sim::Desktop desktop;
  std::shared_ptr<sim::Window> window = desktop.addWindow("Main");
  sim::View& box = window->content().addView("NSView", {.frame = {200, 300, 400, 200}});
  sim::Button& button = box.addButton({.frame = {40, 30, 80, 24}});
};

TEST_F(SimulatedHover, EntersAtTheCentreInWindowCoordinates)
{
  enter();
  ASSERT_THAT(button.hoverEvents(), SizeIs(1));
  EXPECT_EQ(button.hoverEvents()[0].type, HoverEvent::Type::Entered);
  EXPECT_EQ(button.hoverEvents()[0].locationInWindow, (Point{280, 342}));
  EXPECT_EQ(button.hoverEvents()[0].timestamp, desktop.platform().mainQueue.uptime());
}

TEST_F(SimulatedHover, LeavesAtTheZeroPoint)
{
  leave();
  ASSERT_THAT(button.hoverEvents(), SizeIs(1));
  EXPECT_EQ(button.hoverEvents()[0].type, HoverEvent::Type::Exited);
  EXPECT_EQ(button.hoverEvents()[0].locationInWindow, (Point{0, 0}));
  EXPECT_EQ(button.hoverEvents()[0].timestamp, desktop.platform().mainQueue.uptime());
}

TEST_F(SimulatedHover, SparesAViewThatDoesNotListen)
{
  button.setRespondsToHover(false);
  enter();
  leave();
  EXPECT_THAT(button.hoverEvents(), IsEmpty());
}

TEST_F(SimulatedHover, TellsTheOwnersOfTheViewsOwnAreasWhereverThePointLies)
{
  sim::TrackingRecord& area = addArea(button, {.rect = {0, 0, 1, 1}});
  enter();
  leave();
  ASSERT_THAT(area.events, SizeIs(2));
  EXPECT_EQ(area.events[0].type, HoverEvent::Type::Entered);
  EXPECT_EQ(area.events[1].type, HoverEvent::Type::Exited);
}

TEST_F(SimulatedHover, TellsAViewThatOwnsItsAreaOnlyOnce)
{
  sim::TrackingRecord& area = addArea(button, {.ownerIsView = true});
  enter();
  leave();
  EXPECT_THAT(button.hoverEvents(), SizeIs(2));
  EXPECT_THAT(area.events, IsEmpty());
}

TEST_F(SimulatedHover, SparesAreasThatReportOtherThings)
{
  sim::TrackingRecord& own = addArea(button, {.reportsEnteringAndLeaving = false});
  sim::TrackingRecord& above = addArea(box, {.reportsEnteringAndLeaving = false});
  enter();
  leave();
  EXPECT_THAT(own.events, IsEmpty());
  EXPECT_THAT(above.events, IsEmpty());
}

TEST_F(SimulatedHover, SparesOwnersThatDoNotListen)
{
  sim::TrackingRecord& own = addArea(button, {.ownerListens = false});
  sim::TrackingRecord& above = addArea(box, {.ownerListens = false});
  enter();
  leave();
  EXPECT_THAT(own.events, IsEmpty());
  EXPECT_THAT(above.events, IsEmpty());
}

TEST_F(SimulatedHover, EntersTheAreasOfAncestorsThatHoldThePointAndLeavesThemAll)
{
  sim::TrackingRecord& around = addArea(box, {.rect = {70, 40, 20, 10}});
  sim::TrackingRecord& beside = addArea(box, {.rect = {200, 100, 50, 50}});
  sim::TrackingRecord& content = addArea(window->content());
  enter();
  EXPECT_THAT(around.events, SizeIs(1));
  EXPECT_THAT(beside.events, IsEmpty());
  EXPECT_THAT(content.events, SizeIs(1));
  leave();
  EXPECT_THAT(around.events, SizeIs(2));
  EXPECT_THAT(beside.events, SizeIs(1));
  EXPECT_THAT(content.events, SizeIs(2));
}

TEST_F(SimulatedHover, TellsAncestorsThatOwnTheirArea)
{
  sim::TrackingRecord& area = addArea(box, {.ownerIsView = true});
  enter();
  leave();
  EXPECT_EQ(area.events.size() + box.hoverEvents().size(), 2U);
}

TEST_F(SimulatedHover, StopsBeforeTheNextTable)
{
  sim::TableView& table = window->content().addTableView({.frame = {0, 0, 400, 200}});
  sim::View& row = table.addView("NSTableRowView", {.frame = {0, 0, 400, 20}});
  sim::Button& inRow = row.addButton({.frame = {10, 0, 40, 20}});
  sim::TrackingRecord& ofRow = addArea(row);
  sim::TrackingRecord& ofTable = addArea(table);
  sim::TrackingRecord& ofContent = addArea(window->content());
  simulateMouseEnter(inRow.handle(), inRow.screenFrame());
  simulateMouseExit(inRow.handle());
  EXPECT_THAT(ofRow.events, SizeIs(2));
  EXPECT_THAT(ofTable.events, IsEmpty());
  EXPECT_THAT(ofContent.events, IsEmpty());
}

TEST_F(SimulatedHover, ATableThatIsItselfTheTargetHearsOfIt)
{
  sim::TableView& table = window->content().addTableView({.frame = {0, 0, 400, 200}});
  sim::TrackingRecord& ofTable = addArea(table);
  sim::TrackingRecord& ofContent = addArea(window->content());
  simulateMouseEnter(table.handle(), table.screenFrame());
  EXPECT_THAT(ofTable.events, SizeIs(1));
  EXPECT_THAT(ofContent.events, SizeIs(1));
}

TEST_F(SimulatedHover, DoesNothingWithoutAViewOrItsWindow)
{
  button.removeFromSuperview();
  simulateMouseEnter(nullptr, {0, 0, 10, 10});
  simulateMouseExit(nullptr);
  enter();
  leave();
  EXPECT_THAT(button.hoverEvents(), IsEmpty());
}

} // namespace
} // namespace wayvane
