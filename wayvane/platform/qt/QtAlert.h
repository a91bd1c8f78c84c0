#pragma once

#include <wayvane/platform/Panels.h>

namespace wayvane::qt {

/// Shows the alert over the active window and waits for its answer in an event loop. The alert belongs to no
/// window, so that it outlives them all; it ends without an answer when the program ends.
[[nodiscard]] platform::AlertAnswer runAlert(const platform::AlertSpec& spec);

} // namespace wayvane::qt
