#pragma once

#include <wayvane/platform/Log.h>

namespace wayvane::qt {

/// Writes to the program's message handler, category "wayvane", as information.
class QtLog final : public platform::Log {
public:
  void write(std::string_view line) override;
};

} // namespace wayvane::qt
