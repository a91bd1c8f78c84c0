#pragma once

#include <wayvane/model/WVTargetDescriptor.h>

#include <string>

namespace wayvane {

/// The lines that the hover display shows: the class, then each clue that is known. Every value is cut after
/// 1,000 characters or 20 lines, whichever comes first, and "…" put in place of the rest.
[[nodiscard]] std::string hoverTextFor(const std::string& className, const WVTargetDescriptor& descriptor);

} // namespace wayvane
