#include "View.h"
#include "Window.h"

#include <cmath>

namespace wayvane::sim {

using platform::Point;
using platform::Rect;

namespace {

Rect rectAround(Point a, Point b)
{
  return {std::min(a.x, b.x), std::min(a.y, b.y), std::abs(a.x - b.x), std::abs(a.y - b.y)};
}

} // namespace

Point View::toParent(Point point) const
{
  const Point origin = boundsOrigin();
  const double right = point.x - origin.x;
  const double up = flipped_ ? frame_.height - (point.y - origin.y) : point.y - origin.y;
  const bool parentIsFlipped = parent_ && parent_->flipped_;
  return {frame_.x + right, parentIsFlipped ? frame_.maxY() - up : frame_.y + up};
}

Point View::fromParent(Point point) const
{
  const Point origin = boundsOrigin();
  const bool parentIsFlipped = parent_ && parent_->flipped_;
  const double up = parentIsFlipped ? frame_.maxY() - point.y : point.y - frame_.y;
  return {point.x - frame_.x + origin.x, origin.y + (flipped_ ? frame_.height - up : up)};
}

Rect View::toParent(const Rect& rect) const
{
  return rectAround(toParent(rect.origin()), toParent(Point{rect.maxX(), rect.maxY()}));
}

Rect View::bounds() const
{
  if (!alive_) return {};
  const Point origin = boundsOrigin();
  return {origin.x, origin.y, frame_.width, frame_.height};
}

bool View::isShown() const
{
  if (!alive_ || !window_) return false;
  for (const View* view = this; view; view = view->parent_)
    if (view->hidden_) return false;
  return true;
}

Rect View::convertRectToWindow(const Rect& rect) const
{
  if (!isShown()) return {};
  Rect result = rect;
  for (const View* view = this; view; view = view->parent_)
    result = view->toParent(result);
  return result;
}

Point View::convertPointFromWindow(Point point) const
{
  if (!alive_ || !window_) return {};
  return fromParent(parent_ ? parent_->convertPointFromWindow(point) : point);
}

Rect View::convertRectToAncestor(const Rect& rect, const platform::View& ancestor) const
{
  if (!alive_) return {};
  Rect result = rect;
  for (const View* view = this; view; view = view->parent_) {
    if (view == &ancestor) return result;
    result = view->toParent(result);
  }
  return {};
}

const View* View::hit(Point locationInWindow) const
{
  if (hidden_ || !bounds().contains(convertPointFromWindow(locationInWindow))) return nullptr;
  for (auto child = children_.rbegin(); child != children_.rend(); ++child)
    if (const View* found = (*child)->hit(locationInWindow)) return found;
  return this;
}

platform::ViewHandle View::hitTest(Point locationInWindow) const
{
  const View* found = isShown() ? hit(locationInWindow) : nullptr;
  return found ? found->handle() : nullptr;
}

Rect View::screenFrame() const
{
  return isShown() ? window_->convertRectToScreen(convertRectToWindow(bounds())) : Rect{};
}

Point View::screenCenter() const
{
  return screenFrame().center();
}

Rect View::visibleScreenFrame() const
{
  Rect visible = screenFrame();
  for (const View* view = parent_; view; view = view->parent_)
    visible = visible.intersection(view->screenFrame());
  return visible;
}

} // namespace wayvane::sim
