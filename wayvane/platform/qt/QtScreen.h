#pragma once

#include <wayvane/platform/Screen.h>

namespace wayvane::qt {

class QtScreen final : public platform::Screen {
public:
  [[nodiscard]] std::optional<platform::Rect> mainScreenFrame() const override;
  [[nodiscard]] std::optional<platform::Rect> mainScreenVisibleFrame() const override;
};

} // namespace wayvane::qt
