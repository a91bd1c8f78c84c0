#include <tests/desktop/Desktop.h>

#include <gmock/gmock.h>

namespace wayvane::sim {
namespace {

using platform::Point;
using platform::Rect;

class SimScroll : public testing::Test {
protected:
  Desktop desktop;
  std::shared_ptr<Window> window = desktop.addWindow("Main", {0, 0, 800, 628});
  ScrollView& scroll =
      window->content().addScrollView({.frame = {0, 0, 200, 100}, .documentSize = {200, 1000}});
  Button& deep = scroll.document().addButton({.frame = {10, 500, 50, 20}});
};

TEST_F(SimScroll, TheDocumentStartsAtItsTop)
{
  EXPECT_EQ(scroll.documentVisibleRect(), (Rect{0, 0, 200, 100}));
  EXPECT_EQ(scroll.documentBounds(), (Rect{0, 0, 200, 1000}));
}

TEST_F(SimScroll, ScrollingMovesWhatIsInTheDocument)
{
  scroll.scrollTo({0, 480});
  EXPECT_EQ(scroll.documentVisibleRect(), (Rect{0, 480, 200, 100}));
  EXPECT_EQ(deep.convertRectToWindow(deep.bounds()), (Rect{10, 60, 50, 20}));
  EXPECT_TRUE(isSameView(window->frameView()->hitTest({20, 70}), deep.handle()));
}

TEST_F(SimScroll, WhatIsScrolledAwayIsNotHit)
{
  EXPECT_TRUE(deep.visibleScreenFrame().isEmpty());
  scroll.scrollTo({0, 510});
  EXPECT_EQ(deep.visibleScreenFrame(), (Rect{10, 90, 50, 10}));
}

TEST_F(SimScroll, AnAnimatedScrollPassesThroughTheMiddle)
{
  bool done = false;
  scroll.scrollToOrigin({0, 400}, {1.5, [&] { done = true; }});
  desktop.advance(0.75);
  EXPECT_NEAR(scroll.documentVisibleRect().y, 200, 1e-3);
  EXPECT_FALSE(done);
  desktop.advance(0.75);
  EXPECT_EQ(scroll.documentVisibleRect().y, 400);
  EXPECT_TRUE(done);
}

TEST_F(SimScroll, AJumpCompletesBeforeItReturns)
{
  bool done = false;
  scroll.scrollToOrigin({0, 400}, {0, [&] { done = true; }});
  EXPECT_TRUE(done);
}

TEST_F(SimScroll, AReplacedScrollCompletesOnce)
{
  int first = 0, second = 0;
  scroll.scrollToOrigin({0, 400}, {1, [&] { ++first; }});
  desktop.advance(0.5);
  scroll.scrollToOrigin({0, 0}, {1, [&] { ++second; }});
  EXPECT_EQ(first, 0);
  desktop.runPending();
  EXPECT_EQ(first, 1);
  desktop.advance(2);
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 1);
}

TEST_F(SimScroll, AScrollWhoseViewDiesCompletesOnce)
{
  int done = 0;
  scroll.scrollToOrigin({0, 400}, {1, [&] { ++done; }});
  scroll.destroy();
  desktop.advance(2);
  EXPECT_EQ(done, 1);
  EXPECT_EQ(scroll.documentVisibleRect(), Rect{});
}

TEST_F(SimScroll, AScrollViewThatIsGoneCompletesALaterScrollInALaterTurn)
{
  int done = 0;
  scroll.destroy();
  scroll.scrollToOrigin({0, 400}, {1, [&] { ++done; }});
  EXPECT_EQ(done, 0);
  desktop.runPending();
  EXPECT_EQ(done, 1);
}

TEST_F(SimScroll, AScrollViewOfADesktopThatIsGoneStillCompletes)
{
  platform::ViewHandle handle;
  {
    Desktop other;
    handle = other.addWindow("Other")->content().addScrollView().handle();
  }
  int done = 0;
  static_cast<const ScrollView&>(*handle).scrollToOrigin({0, 400}, {1, [&] { ++done; }});
  desktop.runPending();
  EXPECT_EQ(done, 1);
}

TEST_F(SimScroll, AScrollViewMayHaveNoDocument)
{
  ScrollView& empty = window->content().addScrollView();
  EXPECT_EQ(empty.documentView(), nullptr);
}

} // namespace
} // namespace wayvane::sim
