#pragma once

#include <span>
#include <string_view>

namespace wayvane::platform {

/// A strings file that the build put into the library.
struct EmbeddedTable {
  std::string_view language;
  std::string_view contents;
};

[[nodiscard]] std::span<const EmbeddedTable> embeddedTables();

} // namespace wayvane::platform
