#include <tests/overlay/Overlay.h>
#include <wayvane/overlay/WVSpotlightView.h>

using namespace wayvane;
using namespace wayvane::platform;

namespace {

/// How grey white becomes below the lightest dimming.
constexpr double kDimmed = 1 - 0.15;
constexpr double kBit = 1.5 / 255;

class SpotlightView : public wayvane::tests::OverlayTest {
protected:
  void SetUp() override
  {
    spotlight->setAutoresizingMask(kWidthSizable | kHeightSizable);
    content().addSubview(spotlight);
  }

  void finish() { desktop.advance(0.5); }

  std::shared_ptr<WVSpotlightView> spotlight = std::make_shared<WVSpotlightView>(Rect{0, 0, 400, 300});
};

} // namespace

TEST_F(SpotlightView, StartsWithTheLightestDimmingAndSmallCorners)
{
  EXPECT_EQ(spotlight->dimAlpha(), 0.15);
  EXPECT_EQ(spotlight->cornerRadius(), 6);
  EXPECT_EQ(spotlight->dimLayer()->backgroundColor(), Color::white(0, 0.15));
}

TEST_F(SpotlightView, LayersFollowItsSize)
{
  EXPECT_EQ(spotlight->dimLayer()->autoresizingMask(), 18U);
  EXPECT_EQ(spotlight->maskLayer()->autoresizingMask(), 18U);
  EXPECT_EQ(spotlight->maskLayer()->fillRule(), FillRule::EvenOdd);
  EXPECT_EQ(spotlight->dimLayer()->mask(), spotlight->maskLayer());
}

TEST_F(SpotlightView, DimsNothingBeforeTheFirstHole)
{
  EXPECT_EQ(spotlight->maskLayer()->path(), std::nullopt);
  EXPECT_EQ(pixel({200, 150}), (Rgba{1, 1, 1, 1}));
}

TEST_F(SpotlightView, LeavesThePixelsInsideTheHoleUndimmed)
{
  spotlight->animateToRect({100, 100, 80, 40});
  finish();
  const Bitmap drawn = picture();
  for (const Point inside :
       {Point{140, 120}, Point{100, 120}, Point{179, 120}, Point{140, 100}, Point{140, 139}})
    EXPECT_EQ(sim::pixelAt(drawn, inside).red, 1) << inside.x << ", " << inside.y;
  for (const Point outside : {Point{99, 120}, Point{180, 120}, Point{140, 99}, Point{140, 140}, Point{0, 0},
                              Point{399, 299}, Point{100, 100}})
    EXPECT_NEAR(sim::pixelAt(drawn, outside).red, kDimmed, kBit) << outside.x << ", " << outside.y;
}

TEST_F(SpotlightView, ShowsTheFirstHoleWithoutMotion)
{
  spotlight->animateToRect({100, 100, 80, 40});
  EXPECT_EQ(pixel({140, 120}).red, 1);
  EXPECT_FALSE(somethingMoves());
  desktop.advance(0.25);
  EXPECT_EQ(pixel({140, 120}).red, 1);
}

TEST_F(SpotlightView, MovesTheHoleInHalfASecond)
{
  spotlight->animateToRect({0, 100, 40, 40});
  finish();
  spotlight->animateToRect({200, 100, 40, 40});
  EXPECT_EQ(pixel({20, 120}).red, 1) << "starts where it was";
  desktop.advance(0.25);
  EXPECT_EQ(pixel({120, 120}).red, 1) << "half way after half of the time";
  EXPECT_TRUE(somethingMoves());
  desktop.advance(0.25);
  EXPECT_EQ(pixel({220, 120}).red, 1);
  EXPECT_NEAR(pixel({120, 120}).red, kDimmed, kBit);
  EXPECT_FALSE(somethingMoves());
}

TEST_F(SpotlightView, EasesInAndOut)
{
  spotlight->animateToRect({0, 100, 40, 40});
  spotlight->animateToRect({200, 100, 40, 40});
  const Animation& move = spotlight->maskLayer()->animationForKey("path")->animation;
  EXPECT_EQ(move.timing, TimingCurve::easeInEaseOut());
  EXPECT_EQ(move.duration, 0.5);
  EXPECT_TRUE(move.fillForwards);
  EXPECT_FALSE(move.removedOnCompletion);
}

TEST_F(SpotlightView, StartsAnInterruptedMoveWhereTheFirstWouldHaveEnded)
{
  spotlight->animateToRect({0, 100, 40, 40});
  finish();
  spotlight->animateToRect({200, 100, 40, 40});
  desktop.advance(0.1);
  spotlight->animateToRect({300, 100, 40, 40});
  EXPECT_EQ(pixel({220, 120}).red, 1);
  EXPECT_EQ(spotlight->maskLayer()->animations().size(), 1U);
}

TEST_F(SpotlightView, UsesANewCornerRadiusFromTheNextMoveOn)
{
  spotlight->animateToRect({100, 100, 80, 40});
  finish();
  spotlight->setCornerRadius(20);
  EXPECT_EQ(pixel({105, 103}).red, 1);
  spotlight->animateToRect({100, 100, 80, 40});
  finish();
  EXPECT_NEAR(pixel({105, 103}).red, kDimmed, kBit);
}

TEST_F(SpotlightView, RecoloursAtOnceAlsoWhileTheHoleMoves)
{
  spotlight->animateToRect({0, 0, 40, 40});
  spotlight->animateToRect({200, 100, 40, 40});
  desktop.advance(0.2);
  spotlight->setDimAlpha(0.4);
  EXPECT_NEAR(pixel({390, 10}).red, 0.6, kBit);
  EXPECT_EQ(spotlight->dimLayer()->backgroundColor(), Color::white(0, 0.4));
}

TEST_F(SpotlightView, CutsTheHoleAtItsEdges)
{
  spotlight->animateToRect({350, 100, 100, 40});
  EXPECT_EQ(pixel({399, 120}).red, 1);
  EXPECT_NEAR(pixel({349, 120}).red, kDimmed, kBit);
}

TEST_F(SpotlightView, DimsEverythingWhenTheHoleLiesOutside)
{
  spotlight->animateToRect({500, 400, 50, 50});
  const Bitmap drawn = picture();
  for (const Point point : {Point{0, 0}, Point{399, 299}, Point{200, 150}})
    EXPECT_NEAR(sim::pixelAt(drawn, point).red, kDimmed, kBit);
}

TEST_F(SpotlightView, KeepsTheHoleInPlaceWhenResized)
{
  spotlight->animateToRect({100, 100, 80, 40});
  finish();
  const std::optional<Path> before = spotlight->maskLayer()->path();
  content().setFrame({0, 0, 500, 350});
  EXPECT_EQ(spotlight->dimLayer()->frame(), (Rect{0, 0, 500, 350}));
  EXPECT_EQ(spotlight->maskLayer()->frame(), (Rect{0, 0, 500, 350}));
  EXPECT_EQ(spotlight->maskLayer()->path(), before);
  EXPECT_EQ(pixel({140, 120}).red, 1);
}
