#pragma once

#include <string>

namespace wayvane {

/// A random UUID, upper-case hex with dashes.
[[nodiscard]] std::string freshUuid();

} // namespace wayvane
