#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>

namespace wayvane::platform {

/// Why an operation failed.
struct Error {
  /// Who speaks: "WVGuideManager", "json", "posix", ...
  std::string domain;
  std::int64_t code = 0;
  /// One sentence for a log or a developer.
  std::string description;
  std::map<std::string, std::string> details;
};

/// Fills an error out-parameter, which may be null.
inline void setError(Error* error, Error value)
{
  if (error) *error = std::move(value);
}

} // namespace wayvane::platform
