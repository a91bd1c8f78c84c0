#include <wayvane/platform/Color.h>

#include <array>

namespace wayvane::platform {
namespace {

constexpr Rgba grey(double level, double alpha = 1)
{
  return {level, level, level, alpha};
}

constexpr Rgba hex(unsigned rgb)
{
  return {((rgb >> 16) & 0xFF) / 255.0, ((rgb >> 8) & 0xFF) / 255.0, (rgb & 0xFF) / 255.0, 1};
}

struct Row {
  Color::Semantic name;
  Rgba light;
  Rgba dark;
};

/// The values of macOS 11 and later in sRGB. Texts and lines are black or white with transparency, so that
/// they keep their contrast on whatever they lie on.
constexpr std::array<Row, 6> kTable{{
    {Color::Semantic::SystemBlue, hex(0x007AFF), hex(0x0A84FF)},
    {Color::Semantic::SystemRed, hex(0xFF3B30), hex(0xFF453A)},
    {Color::Semantic::ControlBackground, hex(0xFFFFFF), hex(0x1E1E1E)},
    {Color::Semantic::Separator, grey(0, 0.1), grey(1, 0.1)},
    {Color::Semantic::Label, grey(0, 0.85), grey(1, 0.85)},
    {Color::Semantic::SecondaryLabel, grey(0, 0.5), grey(1, 0.55)},
}};

} // namespace

Rgba Color::resolved(Appearance appearance) const
{
  for (const Row& row : kTable)
    if (row.name == semantic_) return appearance == Appearance::Dark ? row.dark : row.light;
  return components_;
}

} // namespace wayvane::platform
