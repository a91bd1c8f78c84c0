#include <wayvane/playback/BubblePlacement.h>

namespace wayvane {

namespace {

constexpr double kGap = 16;
constexpr double kEdgeMargin = 10;

platform::Point originBeside(const platform::Rect& target, std::int64_t position, platform::Size bubble)
{
  const platform::Point center = target.center();
  const double centeredX = center.x - bubble.width / 2;
  const double centeredY = center.y - bubble.height / 2;
  switch (position) {
  case bubblePosition::kAbove:
    return {centeredX, target.maxY() + kGap};
  case bubblePosition::kLeft:
    return {target.x - kGap - bubble.width, centeredY};
  case bubblePosition::kRight:
    return {target.maxX() + kGap, centeredY};
  default:
    return {centeredX, target.y - kGap - bubble.height};
  }
}

double keptOffEdges(double origin, double length, double space)
{
  if (origin < kEdgeMargin) origin = kEdgeMargin;
  if (origin + length > space - kEdgeMargin) origin = space - length - kEdgeMargin;
  return origin;
}

} // namespace

std::int64_t automaticBubblePosition(const platform::Rect& target, platform::Size overlay,
                                     platform::Size bubble)
{
  if (target.y >= kGap + bubble.height) return bubblePosition::kBelow;
  if (overlay.height - target.maxY() >= kGap + bubble.height) return bubblePosition::kAbove;
  if (overlay.width - target.maxX() >= kGap + bubble.width) return bubblePosition::kRight;
  if (target.x >= kGap + bubble.width) return bubblePosition::kLeft;
  return bubblePosition::kBelow;
}

platform::Rect bubbleFrame(const platform::Rect& target, std::int64_t position, platform::Size overlay,
                           platform::Size bubble)
{
  const platform::Size size{bubble.width > 0 ? bubble.width : kDefaultBubbleSize.width,
                            bubble.height > 0 ? bubble.height : kDefaultBubbleSize.height};
  if (position == bubblePosition::kAutomatic) position = automaticBubblePosition(target, overlay, size);
  const platform::Point origin = originBeside(target, position, size);
  return {keptOffEdges(origin.x, size.width, overlay.width),
          keptOffEdges(origin.y, size.height, overlay.height), size.width, size.height};
}

} // namespace wayvane
