#pragma once

#include <wayvane/platform/Error.h>

#include <exception>
#include <string_view>

namespace wayvane {

// The errors that reading and writing records make themselves, domain "json". Codes below 0 are ours; those
// above are the JSON parser's, passed through.

[[nodiscard]] platform::Error notAnObjectError();
[[nodiscard]] platform::Error nestedTooDeeplyError();
[[nodiscard]] platform::Error invalidUtf8Error(std::string_view field);
[[nodiscard]] platform::Error notFiniteError(std::string_view field);
[[nodiscard]] platform::Error tooManyStepsError();
[[nodiscard]] platform::Error outOfMemoryError(const std::exception& exception);
/// Domain "WVGuide": files were asked for before a binding was installed.
[[nodiscard]] platform::Error noPlatformError();

} // namespace wayvane
