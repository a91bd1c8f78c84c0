#include <wayvane/platform/Path.h>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace wayvane::platform {
namespace {

int pointCount(Path::Verb verb)
{
  switch (verb) {
  case Path::Verb::Move:
  case Path::Verb::Line:
    return 1;
  case Path::Verb::Cubic:
    return 3;
  case Path::Verb::Close:
    break;
  }
  return 0;
}

Point between(Point a, Point b, double t)
{
  return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
}

double length(Point v)
{
  return std::hypot(v.x, v.y);
}

} // namespace

std::optional<Point> Path::currentPoint() const
{
  if (elements_.empty()) return std::nullopt;
  const Element& last = elements_.back();
  if (last.verb == Verb::Cubic) return last.points[2];
  if (last.verb != Verb::Close) return last.points[0];
  const auto start = std::find_if(elements_.rbegin(), elements_.rend(),
                                  [](const Element& element) { return element.verb == Verb::Move; });
  return start == elements_.rend() ? std::nullopt : std::optional(start->points[0]);
}

void Path::moveTo(Point p)
{
  elements_.push_back({Verb::Move, {p, {}, {}}});
}

void Path::lineTo(Point p)
{
  elements_.push_back({elements_.empty() ? Verb::Move : Verb::Line, {p, {}, {}}});
}

void Path::cubicTo(Point control1, Point control2, Point end)
{
  if (elements_.empty()) moveTo(control1);
  elements_.push_back({Verb::Cubic, {control1, control2, end}});
}

void Path::arcTo(Point corner, Point next, double radius)
{
  const std::optional<Point> current = currentPoint();
  if (!current) {
    moveTo(corner);
    return;
  }
  const Point in{corner.x - current->x, corner.y - current->y}, out{next.x - corner.x, next.y - corner.y};
  const double inLength = length(in), outLength = length(out);
  const double cross = in.x * out.y - in.y * out.x;
  const bool isStraight = std::abs(cross) <= 1e-12 * inLength * outLength;
  if (!(radius > 0) || !(inLength > 0) || !(outLength > 0) || isStraight) {
    lineTo(corner);
    return;
  }
  // The turn between the two directions; the arc spans the same angle.
  const double turn = std::abs(std::atan2(cross, in.x * out.x + in.y * out.y));
  const double reach = radius * std::tan(turn / 2);
  const Point u{in.x / inLength, in.y / inLength}, v{out.x / outLength, out.y / outLength};
  const Point start{corner.x - u.x * reach, corner.y - u.y * reach};
  const Point end{corner.x + v.x * reach, corner.y + v.y * reach};
  const double side = cross > 0 ? 1 : -1;
  const Point center{start.x - u.y * radius * side, start.y + u.x * radius * side};
  lineTo(start);
  const double first = std::atan2(start.y - center.y, start.x - center.x);
  const int pieces = turn > std::numbers::pi / 2 + 1e-9 ? 2 : 1;
  const double step = side * turn / pieces, handle = 4.0 / 3.0 * std::tan(step / 4) * radius;
  for (int i = 0; i < pieces; ++i) {
    const double a = first + step * i, b = a + step;
    const Point p{center.x + radius * std::cos(a), center.y + radius * std::sin(a)};
    const Point q =
        i + 1 == pieces ? end : Point{center.x + radius * std::cos(b), center.y + radius * std::sin(b)};
    cubicTo({p.x - handle * std::sin(a), p.y + handle * std::cos(a)},
            {q.x + handle * std::sin(b), q.y - handle * std::cos(b)}, q);
  }
}

void Path::close()
{
  if (!elements_.empty()) elements_.push_back({Verb::Close, {}});
}

void Path::addRect(const Rect& rect)
{
  moveTo({rect.x, rect.y});
  lineTo({rect.maxX(), rect.y});
  lineTo({rect.maxX(), rect.maxY()});
  lineTo({rect.x, rect.maxY()});
  close();
}

void Path::addRoundedRect(const Rect& rect, double radius)
{
  const double limit = std::max(0.0, std::min(rect.width, rect.height) / 2);
  const double r = std::clamp(std::isnan(radius) ? 0.0 : radius, 0.0, limit);
  // How far the controls of a cubic quarter circle lie from the corner.
  const double k = r * (1 - 0.5522847498307936);
  const double left = rect.x, right = rect.maxX(), low = rect.y, high = rect.maxY();
  moveTo({left + r, low});
  lineTo({right - r, low});
  cubicTo({right - k, low}, {right, low + k}, {right, low + r});
  lineTo({right, high - r});
  cubicTo({right, high - k}, {right - k, high}, {right - r, high});
  lineTo({left + r, high});
  cubicTo({left + k, high}, {left, high - k}, {left, high - r});
  lineTo({left, low + r});
  cubicTo({left, low + k}, {left + k, low}, {left + r, low});
  close();
}

Rect Path::bounds() const
{
  bool any = false;
  Point low, high;
  for (const Element& element : elements_) {
    for (int i = 0; i < pointCount(element.verb); ++i) {
      const Point p = element.points[static_cast<std::size_t>(i)];
      low = any ? Point{std::min(low.x, p.x), std::min(low.y, p.y)} : p;
      high = any ? Point{std::max(high.x, p.x), std::max(high.y, p.y)} : p;
      any = true;
    }
  }
  return {low.x, low.y, high.x - low.x, high.y - low.y};
}

Path Path::transformed(const Transform& map) const
{
  Path result = *this;
  for (Element& element : result.elements_)
    for (int i = 0; i < pointCount(element.verb); ++i) {
      Point& p = element.points[static_cast<std::size_t>(i)];
      p = map.apply(p);
    }
  return result;
}

Path Path::interpolated(const Path& to, double t) const
{
  const bool alike = std::ranges::equal(elements_, to.elements_,
                                        [](const Element& a, const Element& b) { return a.verb == b.verb; });
  if (!alike) return to;
  Path result = *this;
  for (std::size_t e = 0; e < elements_.size(); ++e)
    for (std::size_t i = 0; i < 3; ++i)
      result.elements_[e].points[i] = between(elements_[e].points[i], to.elements_[e].points[i], t);
  return result;
}

} // namespace wayvane::platform
