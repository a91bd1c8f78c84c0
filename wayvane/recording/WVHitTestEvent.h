#pragma once

#include <wayvane/platform/Events.h>

namespace wayvane {

/// The deepest view below the event, those of title bar and tool bar included; null when the event has no
/// window, its window has no content view, or nothing is there. Main thread.
[[nodiscard]] platform::ViewHandle WVHitTestEvent(const platform::MouseEvent& event);

} // namespace wayvane
