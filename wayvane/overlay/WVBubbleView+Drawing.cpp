#include <wayvane/overlay/WVBubbleView.h>

#include <algorithm>

namespace wayvane {

using namespace platform;

namespace {

/// The corner radius, the pointer's depth and half of its base.
constexpr double kRadius = 10;
/// How far the pointer's middle stays from the body's corners.
constexpr double kCornerDistance = 30;

Rect bodyRect(Rect box, std::int64_t direction)
{
  switch (direction) {
  case WVBubblePointerDown:
    box.height -= kRadius;
    break;
  case WVBubblePointerUp:
    box.y += kRadius;
    box.height -= kRadius;
    break;
  case WVBubblePointerRight:
    box.width -= kRadius;
    break;
  case WVBubblePointerLeft:
    box.x += kRadius;
    box.width -= kRadius;
    break;
  default:
    break;
  }
  return box;
}

/// The pointer's middle on its edge. `tip` is in the bubble's coordinates.
Point pointerBase(const Rect& body, std::int64_t direction, const std::optional<Point>& tip)
{
  const Point middle = body.center();
  if (!tip) return middle;
  const auto limited = [](double offset, double length) {
    const double limit = std::max(0.0, length / 2 - kCornerDistance);
    return std::clamp(offset, -limit, limit);
  };
  switch (direction) {
  case WVBubblePointerDown:
  case WVBubblePointerUp:
    return {middle.x + limited(tip->x - middle.x, body.width), middle.y};
  case WVBubblePointerRight:
  case WVBubblePointerLeft:
    // Away from the tip, unlike above: side pointers mirror the offset by design.
    return {middle.x, middle.y - limited(tip->y - middle.y, body.height)};
  default:
    return middle;
  }
}

void addLines(Path& path, std::initializer_list<Point> points)
{
  for (const Point& point : points)
    path.lineTo(point);
}

/// The outline of body and pointer, clockwise from the body's top left, y downward.
Path bubblePath(const Rect& body, std::int64_t direction, Point base)
{
  const double r = kRadius, left = body.x, right = body.maxX(), top = body.y, bottom = body.maxY();
  const double px = base.x, py = base.y;
  Path path;
  path.moveTo({left + r, top});
  if (direction == WVBubblePointerUp) addLines(path, {{px - r, top}, {px, top - r}, {px + r, top}});
  path.lineTo({right - r, top});
  path.arcTo({right, top}, {right, top + r}, r);
  if (direction == WVBubblePointerRight) addLines(path, {{right, py - r}, {right + r, py}, {right, py + r}});
  path.lineTo({right, bottom - r});
  path.arcTo({right, bottom}, {right - r, bottom}, r);
  if (direction == WVBubblePointerDown)
    addLines(path, {{px + r, bottom}, {px, bottom + r}, {px - r, bottom}});
  path.lineTo({left + r, bottom});
  path.arcTo({left, bottom}, {left, bottom - r}, r);
  if (direction == WVBubblePointerLeft) addLines(path, {{left, py + r}, {left - r, py}, {left, py - r}});
  path.lineTo({left, top + r});
  path.arcTo({left, top}, {left + r, top}, r);
  path.close();
  return path;
}

} // namespace

void WVBubbleView::redrawBody()
{
  if (pointerDirection_ < WVBubblePointerDown || pointerDirection_ > WVBubblePointerLeft) {
    Path path;
    path.addRoundedRect(bounds(), kRadius);
    bodyLayer_->setPath(path);
    return;
  }
  std::optional<Point> tip;
  if (pointerTip_.x > 0 || pointerTip_.y > 0) tip = convertPointFromWindow(pointerTip_);
  const Rect body = bodyRect(bounds(), pointerDirection_);
  bodyLayer_->setPath(bubblePath(body, pointerDirection_, pointerBase(body, pointerDirection_, tip)));
}

} // namespace wayvane
