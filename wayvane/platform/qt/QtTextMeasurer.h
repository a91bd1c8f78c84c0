#pragma once

#include <wayvane/platform/AttributedText.h>

namespace wayvane::qt {

class QtTextMeasurer final : public platform::TextMeasurer {
public:
  [[nodiscard]] platform::Size sizeOfText(const platform::AttributedText& text, double width) const override;
};

} // namespace wayvane::qt
