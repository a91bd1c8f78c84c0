#pragma once

#include <wayvane/platform/Error.h>

#include <optional>
#include <string>
#include <string_view>

namespace wayvane {

/// The name of the file that a guide of that name is saved in: "/" becomes "-", everything else stays.
/// Nothing, and `error` filled, for a name that some file system would take for a place outside the folder.
[[nodiscard]] std::optional<std::string> guideFileName(std::string_view guideName, platform::Error* error);

} // namespace wayvane
