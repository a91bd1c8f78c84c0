#pragma once

#include <wayvane/platform/AttributedText.h>

namespace wayvane::sim {

/// Text of fixed metrics: a character is half its font size wide, a line is as high as its largest font size
/// times 1.2, rounded up; a picture takes its bounds.
class TextMeasurer : public platform::TextMeasurer {
public:
  [[nodiscard]] platform::Size sizeOfText(const platform::AttributedText& text, double width) const override;
};

} // namespace wayvane::sim
