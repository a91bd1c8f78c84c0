#pragma once

#include <wayvane/platform/Format.h>
#include <wayvane/platform/Platform.h>

#include <initializer_list>
#include <string_view>

namespace wayvane {

/// Writes one line of the manager's to the system's log; nothing without a platform.
inline void logManager(std::string_view pattern, std::initializer_list<platform::FormatArgument> arguments)
{
  if (platform::Platform* const platform = platform::Platform::current())
    platform->log.write(platform::format(pattern, arguments));
}

} // namespace wayvane
