#pragma once

#include <wayvane/platform/StringsFile.h>

#include <string>

namespace wayvane::platform {

// The two forms of a strings file, as valid UTF-8 without a byte-order mark.

[[nodiscard]] std::optional<StringTable> stringTableFromText(std::string_view text, Error* error);
[[nodiscard]] std::optional<StringTable> stringTableFromXml(std::string_view xml, Error* error);

/// "Line 3: " and what is wrong there; `at` counts bytes.
[[nodiscard]] Error stringsError(std::string_view text, std::size_t at, std::string_view what);

/// Whether there is room for the entry, which then is in the table.
[[nodiscard]] bool addEntry(StringTable& table, std::string key, std::string value);

} // namespace wayvane::platform
