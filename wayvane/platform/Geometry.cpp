#include <wayvane/platform/Geometry.h>

#include <cstdio>

namespace wayvane::platform {

Rect Transform::apply(const Rect& r) const
{
  const std::array<Point, 4> corners{apply(Point{r.x, r.y}), apply(Point{r.maxX(), r.y}),
                                     apply(Point{r.maxX(), r.maxY()}), apply(Point{r.x, r.maxY()})};
  Point low = corners[0], high = corners[0];
  for (const Point& corner : corners) {
    low = {std::min(low.x, corner.x), std::min(low.y, corner.y)};
    high = {std::max(high.x, corner.x), std::max(high.y, corner.y)};
  }
  return {low.x, low.y, high.x - low.x, high.y - low.y};
}

std::string stringFromRect(const Rect& rect)
{
  std::array<char, 128> text{};
  std::snprintf(text.data(), text.size(), "{{%g, %g}, {%g, %g}}", rect.x, rect.y, rect.width, rect.height);
  return text.data();
}

} // namespace wayvane::platform
