#pragma once

#include <string>
#include <string_view>

namespace wayvane {

/// The text in lower case, in any locale: Latin, Greek, Cyrillic and Armenian letters. Everything else, and
/// bytes that are no UTF-8, stay as they are.
[[nodiscard]] std::string lowercased(std::string_view utf8);

} // namespace wayvane
