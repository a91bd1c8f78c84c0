#pragma once

#include <cstdint>

namespace wayvane::qt {

/// A number that changes whenever an object of the main thread gets or loses a child, so that what was found
/// among children can be kept until then. Nothing is known, and 0 is answered, without an application object.
[[nodiscard]] std::uint64_t childGeneration();

} // namespace wayvane::qt
