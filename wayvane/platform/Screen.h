#pragma once

#include <wayvane/platform/Geometry.h>

#include <optional>

namespace wayvane::platform {

class Screen {
public:
  virtual ~Screen() = default;
  /// The primary screen in screen coordinates; nothing when there is none.
  [[nodiscard]] virtual std::optional<Rect> mainScreenFrame() const = 0;
  /// The part of it that menu bars, docks and task bars leave free.
  [[nodiscard]] virtual std::optional<Rect> mainScreenVisibleFrame() const = 0;
};

} // namespace wayvane::platform
