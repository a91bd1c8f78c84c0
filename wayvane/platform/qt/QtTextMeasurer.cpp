#include <wayvane/platform/qt/QtTextLayout.h>
#include <wayvane/platform/qt/QtTextMeasurer.h>

#include <cmath>

namespace wayvane::qt {

platform::Size QtTextMeasurer::sizeOfText(const platform::AttributedText& text, double width) const
{
  return QtTextLayout(text, width, std::isfinite(width), platform::Appearance::Light).size();
}

} // namespace wayvane::qt
