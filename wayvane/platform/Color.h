#pragma once

#include <cstdint>

namespace wayvane::platform {

/// The look the host's window currently has.
enum class Appearance : std::uint8_t { Light, Dark };

/// Straight (not premultiplied) sRGB components, each 0 to 1.
struct Rgba {
  double red = 0, green = 0, blue = 0, alpha = 0;
  friend bool operator==(const Rgba&, const Rgba&) = default;
};

/// A colour: either fixed components or one of the system's semantic colours, which follow light and dark
/// appearance and are resolved only when something is drawn. Default: clear.
class Color {
public:
  enum class Semantic : std::uint8_t {
    None,
    SystemBlue,
    SystemRed,
    ControlBackground,
    Separator,
    Label,
    SecondaryLabel,
  };

  Color() = default;

  [[nodiscard]] static Color rgba(double red, double green, double blue, double alpha = 1)
  {
    return Color(Semantic::None, {red, green, blue, alpha});
  }

  [[nodiscard]] static Color white(double level, double alpha = 1)
  {
    return rgba(level, level, level, alpha);
  }

  [[nodiscard]] static Color clear() { return {}; }

  [[nodiscard]] static Color semantic(Semantic name) { return Color(name, {}); }

  [[nodiscard]] static Color systemBlue() { return semantic(Semantic::SystemBlue); }

  [[nodiscard]] static Color systemRed() { return semantic(Semantic::SystemRed); }

  [[nodiscard]] static Color controlBackground() { return semantic(Semantic::ControlBackground); }

  [[nodiscard]] static Color separator() { return semantic(Semantic::Separator); }

  [[nodiscard]] static Color label() { return semantic(Semantic::Label); }

  [[nodiscard]] static Color secondaryLabel() { return semantic(Semantic::SecondaryLabel); }

  [[nodiscard]] Semantic semanticName() const { return semantic_; }

  /// True for fixed components with alpha 0.
  [[nodiscard]] bool isClear() const { return semantic_ == Semantic::None && components_.alpha <= 0; }

  /// The components to draw with. Semantic colours come from the framework's own fixed table of light and
  /// dark values, so that a tour looks the same on every toolkit.
  [[nodiscard]] Rgba resolved(Appearance appearance) const;
  friend bool operator==(const Color&, const Color&) = default;

private:
  Color(Semantic name, Rgba components)
    : semantic_(name)
    , components_(components)
  {}

  Semantic semantic_ = Semantic::None;
  Rgba components_{};
};

} // namespace wayvane::platform
