#pragma once

#include <wayvane/platform/Error.h>
#include <wayvane/platform/Localization.h>

#include <cstdint>
#include <optional>
#include <string_view>

namespace wayvane::platform {

/// The largest strings file that is read, in bytes, and the most entries it may have.
inline constexpr std::uint64_t kStringsFileSizeLimit = std::uint64_t{64} << 20;
inline constexpr std::size_t kStringsFileEntryLimit = 500'000;

/// The table in the bytes of a ".strings" file: `"key" = "text";` with comments and escapes, or an XML
/// property list; in UTF-8, or in UTF-16 with a byte-order mark. Of two equal keys the last counts. In a
/// property list, entries that are not texts are left out. Any thread.
///
/// Nothing, and `error` (domain "strings") filled, when the file is malformed anywhere, too large, or a
/// binary property list.
[[nodiscard]] std::optional<StringTable> stringTableFromStringsFile(std::string_view bytes,
                                                                    Error* error = nullptr);

} // namespace wayvane::platform
