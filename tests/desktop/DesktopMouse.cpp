#include "Desktop.h"

namespace wayvane::sim {

using platform::EventVerdict;
using platform::MouseEvent;
using platform::Point;
using platform::PopoverButton;

MouseEvent Desktop::eventAt(MouseEvent::Type type, Point screenPoint) const
{
  MouseEvent event;
  event.type = type;
  event.window = application_.windowAt(screenPoint);
  event.locationInWindow = event.window ? event.window->convertPointFromScreen(screenPoint) : screenPoint;
  return event;
}

ClickResult Desktop::click(Point screenPoint)
{
  return clickAt(screenPoint, screenPoint);
}

ClickResult Desktop::clickAt(Point screenPoint, Point mouseLocation)
{
  events_.setMouseLocation(mouseLocation);
  return press(eventAt(MouseEvent::Type::LeftMouseDown, screenPoint));
}

ClickResult Desktop::clickView(const View& view)
{
  const platform::Rect visible = view.visibleScreenFrame();
  if (visible.isEmpty()) {
    reportFailure("a view that is not in sight cannot be clicked");
    return {};
  }
  MouseEvent event;
  event.window = view.window();
  event.locationInWindow = event.window->convertPointFromScreen(visible.center());
  events_.setMouseLocation(visible.center());
  return press(event);
}

ClickResult Desktop::press(const MouseEvent& event)
{
  ClickResult result;
  result.verdict = events_.send(event);
  if (result.verdict == EventVerdict::Swallow) return result;
  closePopoversOutside(event.window);
  const auto window = std::static_pointer_cast<Window>(event.window);
  const auto frameView = window ? window->frameView() : nullptr;
  if (!frameView) return result;
  if (!window->isUtilityPanel()) {
    application_.main = application_.key = window;
    window->orderFront();
  }
  result.view = frameView->hitTest(event.locationInWindow);
  if (result.view) std::const_pointer_cast<View>(std::static_pointer_cast<const View>(result.view))->press();
  return result;
}

void Desktop::closePopoversOutside(const platform::WindowHandle& pressed)
{
  for (Popover* popover : std::vector(panels_->popovers)) {
    const auto& living = panels_->popovers;
    const bool stillLives = std::find(living.begin(), living.end(), popover) != living.end();
    if (stillLives && popover->window() != pressed) popover->close();
  }
}

EventVerdict Desktop::pressInMenu(Point screenPoint)
{
  events_.setMouseLocation(screenPoint);
  MouseEvent event = eventAt(MouseEvent::Type::LeftMouseDown, screenPoint);
  event.inMenu = true;
  return events_.send(event);
}

EventVerdict Desktop::pressWithoutWindow(Point screenPoint)
{
  events_.setMouseLocation(screenPoint);
  return events_.send({MouseEvent::Type::LeftMouseDown, nullptr, screenPoint, false});
}

void Desktop::rightClick(Point screenPoint)
{
  events_.setMouseLocation(screenPoint);
}

void Desktop::keyPress(const std::string& key)
{
  Popover* front = popover();
  if (!front) return;
  if (key == "Return") front->pressKey(PopoverButton::Key::Return);
  if (key == "Escape") front->pressKey(PopoverButton::Key::Escape);
}

EventVerdict Desktop::moveMouse(Point screenPoint)
{
  events_.setMouseLocation(screenPoint);
  return events_.send(eventAt(MouseEvent::Type::MouseMoved, screenPoint));
}

bool Desktop::clickPanelButton(FloatingPanel& panel, const std::string& title)
{
  PanelButton* button = panel.button(title);
  if (!button || !panel.isVisible()) return false;
  const platform::Rect inPanel = button->frame();
  MouseEvent event;
  event.window = panel.window();
  event.locationInWindow = inPanel.center();
  events_.setMouseLocation(event.window->convertPointToScreen(event.locationInWindow));
  const auto handler = button->spec().onClick;
  if (events_.send(event) == EventVerdict::Swallow) return false;
  closePopoversOutside(event.window);
  if (handler) handler();
  return true;
}

std::vector<std::string> Desktop::sentActionNames() const
{
  std::vector<std::string> names;
  for (const SentAction& sent : sentActions_)
    names.push_back(sent.action);
  return names;
}

void Desktop::recordAction(const std::string& action, platform::ViewHandle sender)
{
  sentActions_.push_back({action, std::move(sender)});
}

} // namespace wayvane::sim
