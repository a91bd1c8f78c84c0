#include <tests/desktop/Desktop.h>
#include <wayvane/playback/ScrollIntoView.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace wayvane {
namespace {

using platform::Point;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class ScrollIntoView : public ::testing::Test {
protected:
  sim::ScrollView& addScrollView(platform::Size documentSize = {300, 2000})
  {
    return window->content().addScrollView({.frame = {50, 50, 300, 200}, .documentSize = documentSize});
  }

  static sim::View& addTarget(sim::ScrollView& scroll, const platform::Rect& frame = {10, 1000, 80, 24})
  {
    return scroll.document().addButton({.frame = frame});
  }

  sim::TableView& addTable(int rows)
  {
    sim::TableView& table =
        addScrollView().addTableDocument({.columns = {{.identifier = "name"}}, .viewBased = false});
    for (int row = 0; row < rows; ++row)
      table.addRow({"row"});
    return table;
  }

  void scrollTo(const platform::ViewHandle& view, Animated animated = Animated::Yes)
  {
    scrollIntoView(view, target, animated, [this] { ++completions; });
  }

  sim::Desktop desktop;
  std::shared_ptr<sim::Window> window = desktop.addWindow("Main");
  WVTargetDescriptor target;
  int completions = 0;
};

TEST_F(ScrollIntoView, CompletesAtOnceWithoutAView)
{
  scrollTo(nullptr);
  EXPECT_EQ(completions, 1);
}

TEST_F(ScrollIntoView, CompletesAtOnceOutsideOfAnyScrollView)
{
  scrollTo(window->content().addButton().handle());
  EXPECT_EQ(completions, 1);
}

TEST_F(ScrollIntoView, CompletesAtOnceWhenTheTargetIsWhollyVisible)
{
  sim::ScrollView& scroll = addScrollView();
  scrollTo(addTarget(scroll, {0, 176, 80, 24}).handle());
  EXPECT_EQ(completions, 1);
  EXPECT_THAT(scroll.requests(), IsEmpty());
}

TEST_F(ScrollIntoView, CompletesAtOnceForAScrollViewWithoutDocument)
{
  sim::ScrollView& scroll = addScrollView();
  const platform::ViewHandle scroller = scroll.addView("NSScroller", {.frame = {285, 0, 15, 200}}).handle();
  scroll.removeDocument();
  scrollTo(scroller);
  EXPECT_EQ(completions, 1);
}

TEST_F(ScrollIntoView, LeavesWhatLiesBesideTheDocumentWhereItIs)
{
  sim::ScrollView& scroll = addScrollView();
  scrollTo(scroll.addView("NSScroller", {.frame = {285, 0, 15, 200}}).handle());
  EXPECT_EQ(completions, 1);
  EXPECT_THAT(scroll.requests(), IsEmpty());
}

TEST_F(ScrollIntoView, ScrollsToTheMiddleWithinOneAndAHalfSeconds)
{
  sim::ScrollView& scroll = addScrollView();
  const sim::View& button = addTarget(scroll);
  scrollTo(button.handle());
  ASSERT_THAT(scroll.requests(), SizeIs(1));
  EXPECT_EQ(scroll.requests()[0].duration, 1.5);
  // 160 x 104 with its padding, from (-30, 960): half of the 140 and 96 points left go to each side.
  EXPECT_EQ(scroll.requests()[0].origin, (Point{0, 912}));
  desktop.advance(1.49);
  EXPECT_EQ(completions, 0);
  desktop.advance(0.02);
  EXPECT_EQ(completions, 1);
  desktop.advance(10);
  EXPECT_EQ(completions, 1);
}

TEST_F(ScrollIntoView, ScrollsToATargetThatIsPartlyVisible)
{
  sim::ScrollView& scroll = addScrollView();
  scrollTo(addTarget(scroll, {0, 177, 80, 24}).handle());
  EXPECT_THAT(scroll.requests(), SizeIs(1));
}

TEST_F(ScrollIntoView, CentresHorizontallyToo)
{
  sim::ScrollView& scroll = addScrollView({3000, 2000});
  scrollTo(addTarget(scroll, {1000, 1000, 80, 24}).handle());
  EXPECT_EQ(scroll.requests().at(0).origin, (Point{890, 912}));
}

TEST_F(ScrollIntoView, ScrollsTheNearestOfNestedScrollViews)
{
  sim::ScrollView& outer = addScrollView();
  sim::ScrollView& inner =
      outer.document().addScrollView({.frame = {0, 0, 200, 100}, .documentSize = {200, 900}});
  scrollTo(addTarget(inner, {0, 500, 80, 24}).handle());
  EXPECT_THAT(outer.requests(), IsEmpty());
  EXPECT_THAT(inner.requests(), SizeIs(1));
}

TEST_F(ScrollIntoView, AScrollViewThatIsItselfTheTargetIsLookedForAboveItself)
{
  sim::ScrollView& outer = addScrollView();
  sim::ScrollView& inner =
      outer.document().addScrollView({.frame = {0, 1000, 200, 100}, .documentSize = {200, 900}});
  scrollTo(inner.handle());
  EXPECT_THAT(outer.requests(), SizeIs(1));
  EXPECT_THAT(inner.requests(), IsEmpty());
}

TEST_F(ScrollIntoView, JumpsTheShortestWayWhenNotAnimated)
{
  sim::ScrollView& scroll = addScrollView();
  scrollTo(addTarget(scroll, {10, 1000, 80, 24}).handle(), Animated::No);
  EXPECT_EQ(completions, 1);
  EXPECT_EQ(scroll.requests().at(0).duration, 0.0);
  EXPECT_EQ(scroll.requests().at(0).origin.y, 1000 + 24 + 40 - 200);
}

TEST_F(ScrollIntoView, CompletesOnceWhenTheScrollViewDiesOnTheWay)
{
  sim::ScrollView& scroll = addScrollView();
  scrollTo(addTarget(scroll).handle());
  desktop.advance(0.5);
  scroll.destroy();
  desktop.advance(10);
  EXPECT_EQ(completions, 1);
}

TEST_F(ScrollIntoView, CompletesOnceWhenTheUserScrollsMeanwhile)
{
  sim::ScrollView& scroll = addScrollView();
  scrollTo(addTarget(scroll).handle());
  desktop.advance(0.5);
  scroll.scrollTo({0, 0});
  desktop.advance(10);
  EXPECT_EQ(completions, 1);
}

TEST_F(ScrollIntoView, DoesWithoutACompletion)
{
  sim::ScrollView& scroll = addScrollView();
  scrollIntoView(addTarget(scroll).handle(), target, Animated::Yes, {});
  desktop.advance(2);
  EXPECT_THAT(scroll.requests(), SizeIs(1));
}

TEST_F(ScrollIntoView, ScrollsATableToItsRowWithinASecondAndAFifth)
{
  sim::TableView& table = addTable(50);
  target.tableRow = 40;
  scrollTo(table.handle());
  EXPECT_THAT(table.scrolledRows(), ElementsAre(40));
  desktop.advance(1.19);
  EXPECT_EQ(completions, 0);
  desktop.advance(0.02);
  EXPECT_EQ(completions, 1);
}

TEST_F(ScrollIntoView, JumpsToARowWhenNotAnimated)
{
  sim::TableView& table = addTable(50);
  target.tableRow = 40;
  scrollTo(table.handle(), Animated::No);
  EXPECT_THAT(table.scrolledRows(), ElementsAre(40));
  EXPECT_EQ(completions, 1);
}

TEST_F(ScrollIntoView, ARowPastTheEndScrollsByTheTablesRectangle)
{
  sim::TableView& table = addTable(50);
  target.tableRow = 50;
  scrollTo(table.handle());
  EXPECT_THAT(table.scrolledRows(), IsEmpty());
  EXPECT_EQ(completions, 0);
  desktop.advance(1.5);
  EXPECT_EQ(completions, 1);
}

TEST_F(ScrollIntoView, ATableWithoutARowScrollsByItsRectangle)
{
  sim::TableView& table = addTable(50);
  scrollTo(table.handle());
  EXPECT_THAT(table.scrolledRows(), IsEmpty());
}

} // namespace
} // namespace wayvane
