#pragma once

#include <wayvane/platform/Format.h>
#include <wayvane/platform/Platform.h>

#include <exception>
#include <string_view>
#include <utility>

namespace wayvane::platform {

/// Calls code of the host's on behalf of `who`, the name that begins its log lines. What that code throws
/// ends here, in the log, so that what the framework has begun comes to its end all the same. Main thread.
template <class Call>
void callHost(std::string_view who, Call&& call)
{
  const auto log = [who](std::string_view what) {
    if (Platform* const platform = Platform::current())
      platform->log.write(format("%@: the host threw: %@", {who, what}));
  };
  try {
    std::forward<Call>(call)();
  } catch (const std::exception& exception) {
    log(exception.what());
  } catch (...) {
    log("unknown");
  }
}

} // namespace wayvane::platform
