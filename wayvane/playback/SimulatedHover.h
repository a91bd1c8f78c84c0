#pragma once

#include <wayvane/platform/View.h>

namespace wayvane {

/// Tells a view, the owners of its tracking areas and those of its ancestors below the next table that the
/// pointer came to the centre of `screenRect`: controls that only show on hover wake up. An ancestor's area
/// hears of it when the point lies inside. Nothing for a null view or one without a window.
void simulateMouseEnter(const platform::ViewHandle& view, const platform::Rect& screenRect);

/// Tells the same, and of the ancestors all, that the pointer left.
void simulateMouseExit(const platform::ViewHandle& view);

} // namespace wayvane
