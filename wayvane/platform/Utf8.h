#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace wayvane::platform {

/// Whether the bytes are well-formed UTF-8: no overlong forms, no surrogates, nothing above U+10FFFF.
[[nodiscard]] bool isValidUtf8(std::string_view bytes);

/// Appends a character; U+FFFD in place of a surrogate or of what lies above U+10FFFF.
void appendUtf8(std::string& text, char32_t character);

/// Nothing when the bytes are not well-formed.
[[nodiscard]] std::optional<std::u16string> utf16FromUtf8(std::string_view bytes);

enum class ByteOrder : bool { LittleEndian, BigEndian };

/// UTF-16 as UTF-8; nothing when a surrogate stands alone or half a unit is left over.
[[nodiscard]] std::optional<std::string> utf8FromUtf16(std::string_view bytes, ByteOrder order);

} // namespace wayvane::platform
