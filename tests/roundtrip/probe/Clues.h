#pragma once

#include <wayvane/model/WVTargetDescriptor.h>

#include <string>

namespace roundtrip {

/// The name of the clue by which a search for the target ends in that window: of the clues that alone lead to
/// any element there, the first in the order of the search.
[[nodiscard]] std::string decidingClue(const wayvane::WVTargetDescriptor& target,
                                       const wayvane::platform::WindowHandle& window);

/// The target as it would be without the names that the program's author gave.
[[nodiscard]] wayvane::WVTargetDescriptor withoutIdentifiers(wayvane::WVTargetDescriptor target);
/// The same, and without the place.
[[nodiscard]] wayvane::WVTargetDescriptor withoutPlace(wayvane::WVTargetDescriptor target);

} // namespace roundtrip
