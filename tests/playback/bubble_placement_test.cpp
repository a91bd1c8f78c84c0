#include <wayvane/playback/BubblePlacement.h>

#include <gtest/gtest.h>

namespace wayvane {
namespace {

using platform::Rect;
using platform::Size;

constexpr Size kOverlay{800, 600};
constexpr Size kBubble{280, 100};

TEST(BubblePlacement, StandsSixteenPointsOffTheTargetOnEachSideAndCentred)
{
  const Rect target{400, 300, 80, 24};
  EXPECT_EQ(bubbleFrame(target, 1, kOverlay, kBubble), (Rect{300, 340, 280, 100}));
  EXPECT_EQ(bubbleFrame(target, 2, kOverlay, kBubble), (Rect{300, 184, 280, 100}));
  EXPECT_EQ(bubbleFrame(target, 3, kOverlay, kBubble), (Rect{104, 262, 280, 100}));
  EXPECT_EQ(bubbleFrame(target, 4, kOverlay, kBubble), (Rect{496, 262, 280, 100}));
}

TEST(BubblePlacement, OtherPositionsCountAsBelow)
{
  const Rect target{400, 300, 80, 24};
  const Rect below = bubbleFrame(target, 2, kOverlay, kBubble);
  EXPECT_EQ(bubbleFrame(target, 7, kOverlay, kBubble), below);
  EXPECT_EQ(bubbleFrame(target, -1, kOverlay, kBubble), below);
}

TEST(BubblePlacement, SidesThatAreNotPositiveCountAsTheDefault)
{
  const Rect target{400, 300, 80, 24};
  EXPECT_EQ(bubbleFrame(target, 2, kOverlay, {0, 0}), bubbleFrame(target, 2, kOverlay, kBubble));
  EXPECT_EQ(bubbleFrame(target, 2, kOverlay, {-5, 50}).size(), (Size{280, 50}));
}

TEST(BubblePlacement, AutomaticGoesBelowWhenExactlyEnoughRoomIsThere)
{
  EXPECT_EQ(automaticBubblePosition({400, 116, 80, 24}, kOverlay, kBubble), 2);
}

TEST(BubblePlacement, AutomaticGoesAboveWhenThereIsNoRoomBelow)
{
  EXPECT_EQ(automaticBubblePosition({400, 115, 80, 24}, kOverlay, kBubble), 1);
  EXPECT_EQ(automaticBubblePosition({400, 115, 80, 369}, kOverlay, kBubble), 1);
}

TEST(BubblePlacement, AutomaticGoesRightWhenThereIsNoRoomAboveEither)
{
  EXPECT_EQ(automaticBubblePosition({400, 115, 80, 370}, kOverlay, kBubble), 4);
  EXPECT_EQ(automaticBubblePosition({424, 115, 80, 370}, kOverlay, kBubble), 4);
}

TEST(BubblePlacement, AutomaticGoesLeftWhenThereIsNoRoomOnTheRightEither)
{
  EXPECT_EQ(automaticBubblePosition({425, 115, 80, 370}, kOverlay, kBubble), 3);
  EXPECT_EQ(automaticBubblePosition({296, 115, 209, 370}, kOverlay, kBubble), 3);
}

TEST(BubblePlacement, AutomaticGoesBelowWhenThereIsNoRoomAnywhere)
{
  EXPECT_EQ(automaticBubblePosition({295, 115, 210, 370}, kOverlay, kBubble), 2);
}

TEST(BubblePlacement, AutomaticFrameDecidesByTheBubblesRealSize)
{
  const Rect target{400, 100, 80, 24};
  EXPECT_EQ(bubbleFrame(target, 0, kOverlay, {280, 84}).y, 10);
  EXPECT_EQ(bubbleFrame(target, 0, kOverlay, {280, 85}).y, 124 + 16);
}

TEST(BubblePlacement, IsKeptTenPointsOffTheEdges)
{
  EXPECT_EQ(bubbleFrame({0, 300, 20, 20}, 2, kOverlay, kBubble).x, 10);
  EXPECT_EQ(bubbleFrame({780, 300, 20, 20}, 2, kOverlay, kBubble).x, 800 - 280 - 10);
  EXPECT_EQ(bubbleFrame({400, 20, 20, 20}, 2, kOverlay, kBubble).y, 10);
  EXPECT_EQ(bubbleFrame({400, 570, 20, 20}, 1, kOverlay, kBubble).y, 600 - 100 - 10);
}

TEST(BubblePlacement, EndsTenPointsBeforeTheRightEdgeWhenItIsWiderThanTheOverlay)
{
  EXPECT_EQ(bubbleFrame({100, 300, 20, 20}, 2, {270, 600}, kBubble).x, -20);
  EXPECT_EQ(bubbleFrame({100, 300, 20, 20}, 2, {295, 600}, kBubble).x, 5);
}

TEST(BubblePlacement, EndsTenPointsBeforeTheTopWhenItIsHigherThanTheOverlay)
{
  EXPECT_EQ(bubbleFrame({400, 20, 20, 20}, 2, {800, 90}, kBubble).y, -20);
}

} // namespace
} // namespace wayvane
