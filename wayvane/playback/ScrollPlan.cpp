#include <wayvane/playback/ScrollPlan.h>

namespace wayvane {

namespace {

double centered(double origin, double length, double visible, double document)
{
  if (visible > length) origin -= (visible - length) / 2;
  const double upper = document - visible;
  // In this order: what is not a number becomes the upper bound, and an empty range ends at 0.
  if (!(origin < upper)) origin = upper;
  return origin > 0 ? origin : 0;
}

double revealed(double origin, double length, double visibleOrigin, double visible)
{
  if (origin < visibleOrigin || length > visible) return origin;
  if (origin + length > visibleOrigin + visible) return origin + length - visible;
  return visibleOrigin;
}

} // namespace

platform::Point scrollOriginCentering(const platform::Rect& target, platform::Size visible,
                                      platform::Size document)
{
  return {centered(target.x, target.width, visible.width, document.width),
          centered(target.y, target.height, visible.height, document.height)};
}

platform::Point scrollOriginRevealing(const platform::Rect& target, const platform::Rect& visible)
{
  return {revealed(target.x, target.width, visible.x, visible.width),
          revealed(target.y, target.height, visible.y, visible.height)};
}

} // namespace wayvane
