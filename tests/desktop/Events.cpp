#include "Events.h"

namespace wayvane::sim {

using platform::EventVerdict;
using platform::MouseEvent;

platform::Registration Events::addLocalMonitor(MouseEvent::Type type, Monitor monitor)
{
  return (type == MouseEvent::Type::LeftMouseDown ? presses_ : moves_).add(std::move(monitor));
}

platform::Registration Events::observeWindowResize(std::function<void(const platform::WindowHandle&)> handler)
{
  return resizes_.add(std::move(handler));
}

platform::Registration
Events::observeMenuCommands(std::function<void(const platform::MenuItemHandle&)> handler)
{
  return commands_.add(std::move(handler));
}

EventVerdict Events::send(const MouseEvent& event) const
{
  EventVerdict verdict = EventVerdict::PassOn;
  const Monitors& monitors = event.type == MouseEvent::Type::LeftMouseDown ? presses_ : moves_;
  monitors.visitNewestFirst([&](const Monitors::Handler& monitor) {
    verdict = monitor(event);
    return verdict == EventVerdict::PassOn;
  });
  return verdict;
}

std::size_t Events::monitorCount(MouseEvent::Type type) const
{
  return (type == MouseEvent::Type::LeftMouseDown ? presses_ : moves_).count();
}

} // namespace wayvane::sim
