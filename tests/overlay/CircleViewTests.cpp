#include <tests/overlay/Overlay.h>
#include <wayvane/overlay/WVCircleView.h>

using namespace wayvane;
using namespace wayvane::platform;

namespace {

class CircleView : public wayvane::tests::OverlayTest {
protected:
  void SetUp() override { content().addSubview(circle); }

  std::shared_ptr<WVCircleView> circle = std::make_shared<WVCircleView>(Rect{});
};

bool isBlue(const Rgba& color)
{
  return color.blue - color.red > 0.5;
}

} // namespace

TEST_F(CircleView, StartsIdleInTheSystemsBlue)
{
  EXPECT_EQ(circle->circleColor(), Color::systemBlue());
  EXPECT_EQ(circle->cornerRadius(), 6);
  EXPECT_FALSE(circle->isAnimating());
  EXPECT_EQ(circle->ringLayer(), nullptr);
  EXPECT_EQ(circle->pulseLayer(), nullptr);
  EXPECT_FALSE(circle->layer()->masksToBounds());
}

TEST_F(CircleView, DrawsARingHalfInsideAndHalfOutsideOfTheRectangle)
{
  circle->showAroundRect({100, 100, 80, 40});
  EXPECT_TRUE(circle->isAnimating());
  EXPECT_EQ(circle->frame(), (Rect{100, 100, 80, 40}));
  const Bitmap drawn = picture();
  for (const Point on : {Point{99, 120}, Point{100, 120}, Point{179, 120}, Point{180, 120}, Point{140, 99},
                         Point{140, 100}, Point{140, 140}})
    EXPECT_TRUE(isBlue(sim::pixelAt(drawn, on))) << on.x << ", " << on.y;
  for (const Point off : {Point{97, 120}, Point{102, 120}, Point{140, 120}, Point{99, 99}, Point{100, 100}})
    EXPECT_FALSE(isBlue(sim::pixelAt(drawn, off))) << off.x << ", " << off.y;
}

TEST_F(CircleView, LaysThePulseOverTheRing)
{
  circle->showAroundRect({100, 100, 80, 40});
  EXPECT_EQ(circle->layer()->sublayers(), (std::vector{circle->ringLayer(), circle->pulseLayer()}));
  for (const LayerHandle& shape : {circle->ringLayer(), circle->pulseLayer()}) {
    EXPECT_TRUE(shape->fillColor().isClear());
    EXPECT_EQ(shape->strokeColor(), Color::systemBlue());
    EXPECT_EQ(shape->lineWidth(), 2);
    EXPECT_EQ(shape->frame(), (Rect{0, 0, 80, 40}));
  }
}

TEST_F(CircleView, PulsesWithoutEnd)
{
  circle->showAroundRect({100, 100, 80, 40});
  EXPECT_EQ(opacityOf(*circle->pulseLayer()), 1);
  desktop.advance(0.9);
  EXPECT_NEAR(opacityOf(*circle->pulseLayer()), 0.2, 1e-6);
  desktop.advance(0.45);
  EXPECT_NEAR(opacityOf(*circle->pulseLayer()), 0.6, 1e-6);
  desktop.advance(0.45);
  EXPECT_NEAR(opacityOf(*circle->pulseLayer()), 1, 1e-6);
  desktop.advance(1800.9);
  EXPECT_NEAR(opacityOf(*circle->pulseLayer()), 0.2, 1e-6);
  EXPECT_EQ(opacityOf(*circle->ringLayer()), 1) << "the ring is steady";
}

TEST_F(CircleView, OnlyMovesForARectangleLessThanAPointWideOrHigh)
{
  for (const Rect& tiny : {Rect{10, 20, 0, 0}, Rect{10, 20, 0.5, 30}, Rect{10, 20, 30, 0.5}}) {
    circle->showAroundRect(tiny);
    EXPECT_EQ(circle->frame(), tiny);
    EXPECT_FALSE(circle->isAnimating());
    EXPECT_EQ(circle->ringLayer(), nullptr);
  }
}

TEST_F(CircleView, KeepsItsOutlineWhenATinyRectangleFollows)
{
  circle->showAroundRect({100, 100, 80, 40});
  circle->showAroundRect({10, 20, 0.5, 30});
  EXPECT_TRUE(circle->isAnimating());
  EXPECT_EQ(circle->ringLayer()->frame(), (Rect{0, 0, 80, 40}));
}

TEST_F(CircleView, KeepsOnePairOfLayersAndItsPulseWhenShownAgain)
{
  circle->showAroundRect({100, 100, 80, 40});
  const LayerHandle ring = circle->ringLayer(), pulse = circle->pulseLayer();
  const double begin = pulse->animationForKey("pulse")->beginTime;
  desktop.advance(0.4);
  circle->showAroundRect({200, 100, 50, 50});
  EXPECT_EQ(circle->ringLayer(), ring);
  EXPECT_EQ(circle->pulseLayer(), pulse);
  EXPECT_EQ(circle->layer()->sublayers().size(), 2U);
  EXPECT_EQ(pulse->animationForKey("pulse")->beginTime, begin);
  EXPECT_EQ(ring->frame(), (Rect{0, 0, 50, 50}));
  EXPECT_EQ(pulse->path()->bounds(), (Rect{0, 0, 50, 50}));
}

TEST_F(CircleView, TakesANewCornerRadiusWhenShownAgain)
{
  circle->showAroundRect({100, 100, 80, 40});
  const std::optional<Path> before = circle->ringLayer()->path();
  circle->setCornerRadius(12);
  EXPECT_EQ(circle->ringLayer()->path(), before);
  circle->showAroundRect({100, 100, 80, 40});
  Path rounder;
  rounder.addRoundedRect({0, 0, 80, 40}, 12);
  EXPECT_EQ(circle->ringLayer()->path(), rounder);
}

TEST_F(CircleView, TakesANewColorOnlyAfterItStopped)
{
  circle->showAroundRect({100, 100, 80, 40});
  circle->setCircleColor(Color::systemRed());
  circle->showAroundRect({100, 100, 80, 40});
  EXPECT_EQ(circle->ringLayer()->strokeColor(), Color::systemBlue());
  circle->stopAnimating();
  circle->showAroundRect({100, 100, 80, 40});
  EXPECT_EQ(circle->ringLayer()->strokeColor(), Color::systemRed());
}

TEST_F(CircleView, TakesItsOutlineAwayWhenStopped)
{
  circle->showAroundRect({100, 100, 80, 40});
  circle->stopAnimating();
  EXPECT_FALSE(circle->isAnimating());
  EXPECT_EQ(circle->ringLayer(), nullptr);
  EXPECT_TRUE(circle->layer()->sublayers().empty());
  EXPECT_EQ(pixel({99, 120}), (Rgba{1, 1, 1, 1}));
}

TEST_F(CircleView, StopsHarmlesslyWhenIdle)
{
  circle->stopAnimating();
  EXPECT_FALSE(circle->isAnimating());
}
