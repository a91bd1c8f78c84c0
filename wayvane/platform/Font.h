#pragma once

#include <cstdint>

namespace wayvane::platform {

/// A font by role, never by file: the binding picks the system's face for the role.
struct Font {
  enum class Face : std::uint8_t { System, MonospacedDigits, Monospaced };
  enum class Weight : std::uint8_t { Regular, Medium, Bold };

  Face face = Face::System;
  Weight weight = Weight::Regular;
  /// In points, where a point is one unit of the window coordinates (a device-independent pixel).
  double size = 12;

  [[nodiscard]] static Font system(double size) { return {Face::System, Weight::Regular, size}; }

  [[nodiscard]] static Font boldSystem(double size) { return {Face::System, Weight::Bold, size}; }

  friend bool operator==(const Font&, const Font&) = default;
};

/// The size of the text in small controls.
inline constexpr double kSmallSystemFontSize = 11;

} // namespace wayvane::platform
