#pragma once

#include <wayvane/platform/Geometry.h>

namespace wayvane {

/// Where a scroll view goes to show a target in the middle of its sight: the origin of the visible rectangle.
/// All in document coordinates; a document that is smaller than what is visible stays at 0.
[[nodiscard]] platform::Point scrollOriginCentering(const platform::Rect& target, platform::Size visible,
                                                    platform::Size document);

/// The nearest origin at which `target`, or as much of it as fits, is visible.
[[nodiscard]] platform::Point scrollOriginRevealing(const platform::Rect& target,
                                                    const platform::Rect& visible);

} // namespace wayvane
