#pragma once

#include <string_view>

namespace wayvane::platform {

/// The system's log. Any thread.
class Log {
public:
  virtual ~Log() = default;
  /// One line, without a line break at its end. Line breaks and control characters inside it are the
  /// binding's to escape.
  virtual void write(std::string_view line) = 0;
};

} // namespace wayvane::platform
