#pragma once

#include <string_view>

namespace wayvane {

/// Whether the bytes are well-formed UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
[[nodiscard]] bool isValidUtf8(std::string_view bytes);

} // namespace wayvane
