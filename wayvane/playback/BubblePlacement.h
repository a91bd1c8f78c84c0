#pragma once

#include <wayvane/platform/Geometry.h>

#include <cstdint>

namespace wayvane {

/// Where a bubble goes. The numbers are those of a step's position; any other counts as below.
namespace bubblePosition {
inline constexpr std::int64_t kAutomatic = 0;
inline constexpr std::int64_t kAbove = 1;
inline constexpr std::int64_t kBelow = 2;
inline constexpr std::int64_t kLeft = 3;
inline constexpr std::int64_t kRight = 4;
} // namespace bubblePosition

inline constexpr platform::Size kDefaultBubbleSize{280, 100};

/// The side of `target` that has room for a bubble of that size and the gap to it: below, else above, else
/// right, else left, else below all the same. Overlay coordinates, y up.
[[nodiscard]] std::int64_t automaticBubblePosition(const platform::Rect& target, platform::Size overlay,
                                                   platform::Size bubble);

/// The bubble's frame beside `target`, kept 10 points off the overlay's edges; where that cannot be, off the
/// right and the top one. A side of `bubble` that is not positive counts as the default one.
[[nodiscard]] platform::Rect bubbleFrame(const platform::Rect& target, std::int64_t position,
                                         platform::Size overlay, platform::Size bubble);

} // namespace wayvane
