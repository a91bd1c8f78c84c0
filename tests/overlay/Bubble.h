#pragma once

#include <tests/overlay/Overlay.h>
#include <wayvane/overlay/WVBubbleView.h>

namespace wayvane::tests {

/// A bubble of the usual size, not yet in the overlay. Text in it is measured as the simulated desktop does:
/// a line of the message is 15 points high and holds 42 characters, a line of the title is 16 high.
class BubbleTest : public OverlayTest {
protected:
  [[nodiscard]] static WVStep step(std::optional<std::string> message, std::optional<std::string> title = {})
  {
    WVStep result;
    result.message = std::move(message);
    result.title = std::move(title);
    return result;
  }

  /// A step whose target is the view with the identifier "target".
  [[nodiscard]] static WVStep stepAtTarget(std::optional<std::string> message = {})
  {
    WVStep result = step(std::move(message));
    result.target.accessibilityIdentifier = "target";
    return result;
  }

  void configure(const WVStep& step) { bubble->configureWithStep(step, 0, 5); }

  std::shared_ptr<WVBubbleView> bubble = std::make_shared<WVBubbleView>(platform::Rect{0, 0, 280, 100});
};

} // namespace wayvane::tests
