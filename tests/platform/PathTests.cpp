#include <wayvane/platform/Path.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace wayvane::platform;

namespace {

std::vector<Path::Verb> verbs(const Path& path)
{
  std::vector<Path::Verb> result;
  for (const Path::Element& element : path.elements())
    result.push_back(element.verb);
  return result;
}

Path roundedRect(const Rect& rect, double radius)
{
  Path path;
  path.addRoundedRect(rect, radius);
  return path;
}

void expectNear(Point a, Point b)
{
  EXPECT_NEAR(a.x, b.x, 1e-9);
  EXPECT_NEAR(a.y, b.y, 1e-9);
}

} // namespace

TEST(Path, HasNoBoundsWhenEmpty)
{
  EXPECT_EQ(Path().bounds(), Rect{});
}

TEST(Path, FillsItsRectangle)
{
  Path path;
  path.addRect({1, 2, 30, 40});
  EXPECT_EQ(path.bounds(), (Rect{1, 2, 30, 40}));
}

TEST(Path, RoundedRectanglesHaveOneSequenceOfElementsWhateverTheRadius)
{
  const auto expected = verbs(roundedRect({0, 0, 100, 50}, 6));
  for (const double radius : {0.0, -3.0, 1000.0, std::numeric_limits<double>::quiet_NaN()})
    EXPECT_EQ(verbs(roundedRect({0, 0, 100, 50}, radius)), expected);
  EXPECT_EQ(verbs(roundedRect({0, 0, 0, 0}, 6)), expected);
}

TEST(Path, CutsARadiusDownToHalfTheShorterSide)
{
  EXPECT_EQ(roundedRect({0, 0, 100, 50}, 1000), roundedRect({0, 0, 100, 50}, 25));
  EXPECT_EQ(roundedRect({0, 0, 100, 50}, -1), roundedRect({0, 0, 100, 50}, 0));
}

TEST(Path, RoundsCornersAlongACircle)
{
  const Path path = roundedRect({0, 0, 100, 100}, 10);
  const Path::Element& corner = path.elements().at(2);
  const Point start{90, 0}, end = corner.points[2];
  const Point middle{(start.x + 3 * corner.points[0].x + 3 * corner.points[1].x + end.x) / 8,
                     (start.y + 3 * corner.points[0].y + 3 * corner.points[1].y + end.y) / 8};
  EXPECT_NEAR(std::hypot(middle.x - 90, middle.y - 10), 10, 0.01);
}

TEST(Path, ArcTouchesBothLines)
{
  Path path;
  path.moveTo({0, 0});
  path.arcTo({20, 0}, {20, 20}, 5);
  expectNear(path.elements().at(1).points[0], {15, 0});
  expectNear(path.currentPoint().value(), {20, 5});
}

TEST(Path, ArcOfASharpTurnStaysOnItsCircle)
{
  Path path;
  path.moveTo({0, 0});
  path.arcTo({100, 0}, {0, 50}, 5);
  const Point start = path.elements().at(1).points[0];
  // Above the first line, at the radius' distance.
  const Point center{start.x, 5};
  for (std::size_t i = 2; i < path.elements().size(); ++i) {
    const Point end = path.elements()[i].points[2];
    EXPECT_NEAR(std::hypot(end.x - center.x, end.y - center.y), 5, 1e-6);
  }
  const Point end = path.currentPoint().value();
  EXPECT_NEAR((100 - end.x) * 50, (end.y) * 100, 1e-6) << "ends on the second line";
}

TEST(Path, ArcIsALineToTheCornerWhereNoArcFits)
{
  for (const double radius : {0.0, -1.0}) {
    Path path;
    path.moveTo({0, 0});
    path.arcTo({20, 0}, {20, 20}, radius);
    EXPECT_EQ(verbs(path), (std::vector{Path::Verb::Move, Path::Verb::Line}));
  }
  Path straight;
  straight.moveTo({0, 0});
  straight.arcTo({20, 0}, {40, 0}, 5);
  EXPECT_EQ(straight.currentPoint(), (Point{20, 0}));
}

TEST(Path, BeginsWithAnyElement)
{
  Path line;
  line.lineTo({3, 4});
  EXPECT_EQ(line.elements().front().verb, Path::Verb::Move);
  Path arc;
  arc.arcTo({1, 1}, {2, 2}, 3);
  EXPECT_EQ(arc.currentPoint(), (Point{1, 1}));
  Path closed;
  closed.close();
  EXPECT_TRUE(closed.isEmpty());
}

TEST(Path, IsAtItsStartAfterClosing)
{
  Path path;
  path.moveTo({1, 2});
  path.lineTo({5, 6});
  path.close();
  EXPECT_EQ(path.currentPoint(), (Point{1, 2}));
}

TEST(Path, InterpolatesElementByElement)
{
  const Path half = roundedRect({0, 0, 10, 10}, 2).interpolated(roundedRect({100, 0, 30, 20}, 4), 0.5);
  EXPECT_EQ(half.bounds(), (Rect{50, 0, 20, 15}));
}

TEST(Path, HasNothingBetweenDifferentSequences)
{
  Path plain;
  plain.addRect({0, 0, 10, 10});
  EXPECT_EQ(roundedRect({0, 0, 10, 10}, 2).interpolated(plain, 0.1), plain);
}

TEST(Path, MovesWithATransform)
{
  EXPECT_EQ(roundedRect({0, 0, 10, 10}, 2).transformed(Transform::translation(5, 6)),
            roundedRect({5, 6, 10, 10}, 2));
}
