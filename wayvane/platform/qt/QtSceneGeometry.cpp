#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtSceneGeometry.h>

#include <cmath>

namespace wayvane::qt {

using platform::Layer;
using platform::Path;
using platform::Point;
using platform::Rect;

namespace {

QTransform flip(double height)
{
  return {1, 0, 0, -1, 0, height};
}

QTransform toQTransform(const platform::Transform& map)
{
  return {map.a, map.b, map.c, map.d, map.tx, map.ty};
}

std::size_t pointsOf(Path::Verb verb)
{
  if (verb == Path::Verb::Cubic) return 3;
  return verb == Path::Verb::Close ? 0 : 1;
}

/// The number of elements of the outline that begins at `first`.
std::size_t outlineLength(const std::vector<Path::Element>& elements, std::size_t first)
{
  std::size_t end = first + 1;
  while (end < elements.size() && elements[end].verb != Path::Verb::Move)
    ++end;
  return end - first;
}

Rect boxOf(const std::vector<Path::Element>& elements, std::size_t first, std::size_t count)
{
  bool any = false;
  Point low, high;
  for (std::size_t i = first; i < first + count; ++i)
    for (std::size_t k = 0; k < pointsOf(elements[i].verb); ++k) {
      const Point p = elements[i].points[k];
      low = any ? Point{std::min(low.x, p.x), std::min(low.y, p.y)} : p;
      high = any ? Point{std::max(high.x, p.x), std::max(high.y, p.y)} : p;
      any = true;
    }
  return {low.x, low.y, high.x - low.x, high.y - low.y};
}

bool near(double a, double b)
{
  return std::abs(a - b) < 0.01;
}

bool isOnBorder(Point p, const Rect& box)
{
  return near(p.x, box.x) || near(p.x, box.maxX()) || near(p.y, box.y) || near(p.y, box.maxY());
}

/// How far inside the box a rectangle has to stay to be clear of a corner.
double cornerDepth(const Path::Element& curve, Point from, const Rect& box)
{
  const auto& [one, two, end] = curve.points;
  const Point middle{(from.x + 3 * one.x + 3 * two.x + end.x) / 8,
                     (from.y + 3 * one.y + 3 * two.y + end.y) / 8};
  const double x = std::min(middle.x - box.x, box.maxX() - middle.x);
  const double y = std::min(middle.y - box.y, box.maxY() - middle.y);
  if (near(x, y)) return x;
  // A lopsided corner at least stays on the far side of the chord between its ends.
  return std::max(std::abs(end.x - from.x), std::abs(end.y - from.y)) / 2;
}

bool isRectangle(const std::vector<Path::Element>& elements, std::size_t first, std::size_t count)
{
  for (std::size_t i = first; i < first + count; ++i)
    if (elements[i].verb == Path::Verb::Cubic) return false;
  const Rect inside = interiorOf(elements, first);
  return !inside.isEmpty() && inside == boxOf(elements, first, count);
}

} // namespace

QTransform toOuter(const Layer& layer, const platform::Transform& transform, double outerHeight,
                   bool outerFlipped)
{
  const Rect& frame = layer.frame();
  const double top = outerFlipped ? frame.y : outerHeight - frame.maxY();
  const QTransform place = QTransform::fromTranslate(frame.x, top);
  if (transform.isIdentity()) return place;
  return flip(frame.height) * toQTransform(transform) * flip(frame.height) * place;
}

QPainterPath toPainterPath(const Path& path, const Layer& layer, std::size_t first)
{
  const double height = layer.frame().height;
  const bool flipped = layer.geometryFlipped();
  const auto at = [&](Point p) { return QPointF(p.x, flipped ? p.y : height - p.y); };
  QPainterPath result;
  for (std::size_t i = first; i < path.elements().size(); ++i) {
    const Path::Element& element = path.elements()[i];
    const auto& points = element.points;
    switch (element.verb) {
    case Path::Verb::Move:
      result.moveTo(at(points[0]));
      break;
    case Path::Verb::Line:
      result.lineTo(at(points[0]));
      break;
    case Path::Verb::Cubic:
      result.cubicTo(at(points[0]), at(points[1]), at(points[2]));
      break;
    case Path::Verb::Close:
      result.closeSubpath();
      break;
    }
  }
  return result;
}

double blurReach(const platform::Shadow& shadow)
{
  return std::ceil(std::max(shadow.blurRadius, 0.0) * 1.5) + 1;
}

QRectF ownBox(const Layer& layer, const platform::PresentedValues& values)
{
  const QRectF bounds(0, 0, layer.frame().width, layer.frame().height);
  QRectF box;
  if (!layer.backgroundColor().isClear()) box = bounds;
  if (layer.kind() == platform::LayerKind::Text && !layer.text().isEmpty()) box |= bounds;
  if (layer.kind() == platform::LayerKind::Shape && values.path && !values.path->isEmpty()) {
    QRectF outline = toQRectF(values.path->bounds());
    if (!layer.geometryFlipped()) outline.moveTop(bounds.height() - outline.bottom());
    const double line = layer.strokeColor().isClear() ? 0 : layer.lineWidth();
    if (line > 0 || !layer.fillColor().isClear()) box |= outline.adjusted(-line, -line, line, line);
  }
  if (layer.shadow() && !box.isEmpty()) {
    const double reach = blurReach(*layer.shadow());
    const platform::Size& offset = layer.shadow()->offset;
    box |= box.translated(offset.width, -offset.height).adjusted(-reach, -reach, reach, reach);
  }
  return box;
}

Rect interiorOf(const std::vector<Path::Element>& elements, std::size_t first)
{
  if (first >= elements.size()) return {};
  const std::size_t count = outlineLength(elements, first);
  const Rect box = boxOf(elements, first, count);
  double corner = 0;
  Point previous;
  for (std::size_t i = first; i < first + count; ++i) {
    const Path::Element& element = elements[i];
    const std::size_t points = pointsOf(element.verb);
    for (std::size_t k = 0; k < points; ++k)
      if (!isOnBorder(element.points[k], box)) return {};
    if (points == 0) continue;
    const Point end = element.points[points - 1];
    const bool straight = near(end.x, previous.x) || near(end.y, previous.y);
    if (element.verb == Path::Verb::Line && !straight) return {};
    if (element.verb == Path::Verb::Cubic) corner = std::max(corner, cornerDepth(element, previous, box));
    previous = end;
  }
  const Rect inside = box.grownBy(-corner);
  return inside.isEmpty() ? Rect{} : inside;
}

double cornerOf(const std::vector<Path::Element>& elements, std::size_t first)
{
  double corner = 0;
  Point previous;
  for (std::size_t i = first; i < elements.size() && (i == first || elements[i].verb != Path::Verb::Move);
       ++i) {
    const std::size_t points = pointsOf(elements[i].verb);
    if (points == 0) continue;
    const Point end = elements[i].points[points - 1];
    if (points == 3) corner = std::max({corner, std::abs(end.x - previous.x), std::abs(end.y - previous.y)});
    previous = end;
  }
  return corner;
}

std::optional<HoleShape> holeShape(const Path& path)
{
  const std::vector<Path::Element>& elements = path.elements();
  if (elements.empty()) return std::nullopt;
  const std::size_t outer = outlineLength(elements, 0);
  if (outer >= elements.size() || !isRectangle(elements, 0, outer)) return std::nullopt;
  HoleShape shape;
  shape.first = outer;
  shape.outer = boxOf(elements, 0, outer);
  shape.box = boxOf(elements, outer, elements.size() - outer);
  if (outer + outlineLength(elements, outer) != elements.size()) return shape;
  shape.interior = interiorOf(elements, outer);
  shape.corner = cornerOf(elements, outer);
  return shape;
}

} // namespace wayvane::qt
