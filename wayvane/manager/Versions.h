#pragma once

#include <compare>
#include <string>
#include <string_view>

namespace wayvane {

/// The version in exactly `count` parts: "2.1" is "2.1.0.0" in four, "1.2.3.4.5" is "1.2.3.4". Parts are
/// taken as they stand, numbers or not.
[[nodiscard]] std::string normalizedVersion(std::string_view version, std::size_t count);

/// Runs of digits by their value, however long, everything else byte by byte.
[[nodiscard]] std::strong_ordering compareNumerically(std::string_view a, std::string_view b);

} // namespace wayvane
