#pragma once

#include <wayvane/model/WVTargetDescriptor.h>
#include <wayvane/platform/View.h>

#include <functional>

namespace wayvane {

enum class Animated : bool { No, Yes };

/// Brings a view, or the row of a table that `target` names, into the sight of the scroll view around it, and
/// calls `completion` (which may be empty) exactly once: at the end of the animation, or before it returns
/// where there is none or nothing to scroll. A null view has nothing to scroll.
void scrollIntoView(const platform::ViewHandle& view, const WVTargetDescriptor& target, Animated animated,
                    std::function<void()> completion);

} // namespace wayvane
