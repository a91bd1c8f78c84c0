#include "Desktop.h"

namespace wayvane::sim {

using platform::Rect;

std::shared_ptr<Window> Desktop::addWindow(const std::string& title, const Rect& frame)
{
  auto window = std::make_shared<Window>(*this, "NSWindow", title, frame);
  window->buildViews();
  application_.made.push_back(window);
  window->orderFront();
  application_.main = window;
  application_.key = window;
  return window;
}

std::shared_ptr<Window> Desktop::addUtilityPanel(const std::string& title, const Rect& frame)
{
  auto window = std::make_shared<Window>(*this, "NSPanel", title, frame);
  window->buildViews();
  window->setUtilityPanel(true);
  window->setLevel(3);
  application_.made.push_back(window);
  window->orderFront();
  return window;
}

void Desktop::windowMoved(const Window& window, double dx, double dy)
{
  for (OverlayPanel* overlay : panels_->overlays)
    if (const auto parent = overlay->parentWindow(); parent && parent->isSame(window))
      overlay->parentMoved(dx, dy);
}

void Desktop::windowRaised(const Window& window)
{
  for (OverlayPanel* overlay : panels_->overlays) {
    const auto parent = overlay->parentWindow();
    const auto shown = std::static_pointer_cast<Window>(overlay->window());
    if (parent && (parent->isSame(window) || shown->isSame(window))) application_.putAbove(shown, parent);
  }
}

void Desktop::windowClosed(const std::shared_ptr<Window>& window)
{
  application_.forget(*window);
  for (OverlayPanel* overlay : panels_->overlays)
    if (overlay->isChildOf(*window)) overlay->parentClosed();
  for (Popover* popover : std::vector(panels_->popovers)) {
    const auto& living = panels_->popovers;
    const bool stillLives = std::find(living.begin(), living.end(), popover) != living.end();
    if (stillLives && popover->hostWindow() == window) popover->close();
  }
}

} // namespace wayvane::sim
