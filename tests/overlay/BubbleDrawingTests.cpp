#include <tests/overlay/Bubble.h>

#include <algorithm>

using namespace wayvane;
using namespace wayvane::platform;

namespace {

class BubbleDrawing : public wayvane::tests::BubbleTest {
protected:
  /// Shows the bubble at (100, 100), 280 x 100, aimed at a point of the overlay.
  void show(std::int64_t direction, Point tip)
  {
    bubble->setPointerDirection(direction);
    bubble->setPointerTip(tip);
    content().addSubview(bubble);
    bubble->setFrame({100, 100, 280, 100});
  }

  [[nodiscard]] std::vector<Point> corners() const
  {
    std::vector<Point> points;
    for (const Path::Element& element : bubble->bodyLayer()->path()->elements())
      if (element.verb != Path::Verb::Close)
        points.push_back(element.points[element.verb == Path::Verb::Cubic ? 2 : 0]);
    return points;
  }

  /// Where the pointer ends, in the bubble's coordinates.
  [[nodiscard]] Point apex() const
  {
    const std::vector<Point> points = corners();
    switch (bubble->pointerDirection()) {
    case WVBubblePointerDown:
      return *std::ranges::max_element(points, {}, &Point::y);
    case WVBubblePointerUp:
      return *std::ranges::min_element(points, {}, &Point::y);
    case WVBubblePointerRight:
      return *std::ranges::max_element(points, {}, &Point::x);
    default:
      return *std::ranges::min_element(points, {}, &Point::x);
    }
  }
};

} // namespace

TEST_F(BubbleDrawing, IsARoundedBoxWithoutAPointer)
{
  for (const std::int64_t direction : {0, 7, -1}) {
    show(direction, {});
    Path expected;
    expected.addRoundedRect({0, 0, 280, 100}, 10);
    EXPECT_EQ(bubble->bodyLayer()->path(), expected);
  }
}

TEST_F(BubbleDrawing, CentresThePointerWithoutATip)
{
  show(WVBubblePointerDown, {});
  EXPECT_EQ(apex(), (Point{140, 100}));
  show(WVBubblePointerUp, {});
  EXPECT_EQ(apex(), (Point{140, 0}));
  show(WVBubblePointerRight, {});
  EXPECT_EQ(apex(), (Point{280, 50}));
  show(WVBubblePointerLeft, {});
  EXPECT_EQ(apex(), (Point{0, 50}));
}

TEST_F(BubbleDrawing, AimsTopAndBottomPointersAtTheTip)
{
  show(WVBubblePointerDown, {200, 50});
  EXPECT_EQ(apex(), (Point{100, 100}));
  show(WVBubblePointerUp, {300, 250});
  EXPECT_EQ(apex(), (Point{200, 0}));
}

TEST_F(BubbleDrawing, MirrorsTheOffsetOfSidePointers)
{
  // Twelve points below the body's middle, which lies at 150 in the overlay.
  show(WVBubblePointerRight, {390, 138});
  EXPECT_EQ(apex(), (Point{280, 38}));
  show(WVBubblePointerLeft, {50, 162});
  EXPECT_EQ(apex(), (Point{0, 62}));
}

TEST_F(BubbleDrawing, KeepsThePointerThirtyPointsFromTheBodysCorners)
{
  show(WVBubblePointerDown, {1000, 50});
  EXPECT_EQ(apex(), (Point{250, 100}));
  show(WVBubblePointerUp, {1, 250});
  EXPECT_EQ(apex(), (Point{30, 0}));
  show(WVBubblePointerLeft, {50, 1000});
  EXPECT_EQ(apex(), (Point{0, 70}));
}

TEST_F(BubbleDrawing, CentresThePointerOfABodyTooShortForIt)
{
  show(WVBubblePointerLeft, {50, 1000});
  bubble->setFrame({100, 100, 280, 50});
  EXPECT_EQ(apex(), (Point{0, 25}));
}

TEST_F(BubbleDrawing, HasAPointerTenDeepAndTwentyWide)
{
  show(WVBubblePointerDown, {});
  const std::vector<Point> points = corners();
  for (const Point corner : {Point{150, 90}, Point{140, 100}, Point{130, 90}})
    EXPECT_NE(std::ranges::find(points, corner), points.end()) << corner.x;
}

TEST_F(BubbleDrawing, TakesThePointersStripFromTheBody)
{
  show(WVBubblePointerRight, {});
  std::size_t onEdge = 0;
  for (const Point& point : corners())
    onEdge += point.x > 270 ? 1U : 0U;
  EXPECT_EQ(onEdge, 1U) << "only the pointer's end lies in the strip";
}

TEST_F(BubbleDrawing, TakesATipWithOnlyOneCoordinateForSet)
{
  show(WVBubblePointerDown, {0, 20});
  EXPECT_EQ(apex(), (Point{30, 100}));
}

TEST_F(BubbleDrawing, DoesNotRedrawForANewTipOrDirectionAlone)
{
  show(WVBubblePointerDown, {200, 50});
  const std::optional<Path> before = bubble->bodyLayer()->path();
  bubble->setPointerTip({300, 50});
  bubble->setPointerDirection(WVBubblePointerUp);
  EXPECT_EQ(bubble->bodyLayer()->path(), before);
}

TEST_F(BubbleDrawing, UsesThePlatformsColorsAndASoftShadow)
{
  const Layer& body = *bubble->bodyLayer();
  EXPECT_EQ(body.fillColor(), Color::controlBackground());
  EXPECT_EQ(body.strokeColor(), Color::separator());
  EXPECT_EQ(body.lineWidth(), 0.5);
  EXPECT_EQ(body.shadow(), (Shadow{Color::white(0, 0.3), {0, -2}, 12}));
  EXPECT_TRUE(bubble->layer()->backgroundColor().isClear());
}

TEST_F(BubbleDrawing, FillsBodyAndPointer)
{
  show(WVBubblePointerDown, {200, 50});
  const Bitmap drawn = sim::renderLayer(*content().layer(), desktop.now(), 1, Appearance::Dark, {1, 1, 1, 1});
  const double dark = 30 / 255.0;
  for (const Point inside : {Point{240, 150}, Point{200, 105}, Point{105, 150}, Point{240, 112}})
    EXPECT_NEAR(sim::pixelAt(drawn, inside).red, dark, 0.01) << inside.x << ", " << inside.y;
  // Beside the pointer, in the rounded corner, and outside: only the shadow.
  for (const Point outside : {Point{240, 105}, Point{101, 198}, Point{90, 150}})
    EXPECT_GT(sim::pixelAt(drawn, outside).red, 0.5) << outside.x << ", " << outside.y;
}

TEST_F(BubbleDrawing, CastsItsShadowDownward)
{
  show(WVBubblePointerNone, {});
  const Bitmap drawn = picture();
  EXPECT_LT(sim::pixelAt(drawn, {240, 97}).red, sim::pixelAt(drawn, {240, 202}).red);
}
