#include <tests/desktop/Desktop.h>
#include <wayvane/recording/WVHitTestEvent.h>

#include <gtest/gtest.h>

namespace wayvane {
namespace {

using platform::MouseEvent;
using platform::Point;

class HitTestEvent : public testing::Test {
protected:
  [[nodiscard]] MouseEvent eventAt(Point location) const
  {
    return {MouseEvent::Type::LeftMouseDown, window, location, false};
  }

  sim::Desktop desktop;
  std::shared_ptr<sim::Window> window = desktop.addWindow("Main", {0, 0, 400, 300});
};

TEST_F(HitTestEvent, FindsTheDeepestViewBelowTheEvent)
{
  sim::View& group = window->content().addView("NSView", {.frame = {50, 50, 200, 200}});
  sim::Button& button = group.addButton({.frame = {10, 10, 80, 24}});
  EXPECT_TRUE(isSameView(WVHitTestEvent(eventAt({70, 70})), button.handle()));
}

TEST_F(HitTestEvent, FindsWhatLiesInTheTitleBar)
{
  sim::Button& share = window->toolbarView().addButton({.frame = {300, 2, 60, 24}});
  EXPECT_TRUE(isSameView(WVHitTestEvent(eventAt({310, 280})), share.handle()));
}

TEST_F(HitTestEvent, GivesNothingWithoutAWindow)
{
  EXPECT_EQ(WVHitTestEvent({MouseEvent::Type::LeftMouseDown, nullptr, {5, 5}, false}), nullptr);
}

TEST_F(HitTestEvent, GivesNothingWithoutAContentView)
{
  window->removeContentView();
  ASSERT_NE(window->frameView(), nullptr);
  EXPECT_EQ(WVHitTestEvent(eventAt({5, 5})), nullptr);
}

TEST_F(HitTestEvent, GivesNothingInAClosedWindow)
{
  window->close();
  EXPECT_EQ(WVHitTestEvent(eventAt({5, 5})), nullptr);
}

} // namespace
} // namespace wayvane
