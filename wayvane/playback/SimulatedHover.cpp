#include <wayvane/platform/Platform.h>
#include <wayvane/playback/SimulatedHover.h>

namespace wayvane {

namespace {

using platform::HoverEvent;
using platform::TrackingArea;
using platform::ViewHandle;

void notify(const TrackingArea& area, const HoverEvent& event)
{
  if (!area.reportsEnteringAndLeaving) return;
  const auto& listener = event.type == HoverEvent::Type::Entered ? area.mouseEntered : area.mouseExited;
  if (listener) listener(event);
}

void notifyView(const platform::View& view, const HoverEvent& event)
{
  if (view.respondsToHover()) view.sendHover(event);
  for (const TrackingArea& area : view.trackingAreas())
    if (!area.ownerIsView) notify(area, event);
}

void notifyAncestors(const platform::View& view, const HoverEvent& event)
{
  for (ViewHandle ancestor = view.superview(); ancestor && !ancestor->isKind(platform::ViewKind::TableView);
       ancestor = ancestor->superview()) {
    const platform::Point point = ancestor->convertPointFromWindow(event.locationInWindow);
    // Leaving is told to everyone: by then the pointer may be anywhere.
    const bool everywhere = event.type == HoverEvent::Type::Exited;
    for (const TrackingArea& area : ancestor->trackingAreas())
      if (everywhere || area.rect.contains(point)) notify(area, event);
  }
}

void simulate(const ViewHandle& view, HoverEvent event)
{
  platform::Platform* const platform = platform::Platform::current();
  if (!platform) return;
  event.timestamp = platform->mainQueue.uptime();
  notifyView(*view, event);
  notifyAncestors(*view, event);
}

} // namespace

void simulateMouseEnter(const ViewHandle& view, const platform::Rect& screenRect)
{
  const platform::WindowHandle window = view ? view->window() : nullptr;
  if (!window) return;
  simulate(view, {HoverEvent::Type::Entered, window->convertPointFromScreen(screenRect.center()), 0});
}

void simulateMouseExit(const ViewHandle& view)
{
  if (!view || !view->window()) return;
  simulate(view, {HoverEvent::Type::Exited, {}, 0});
}

} // namespace wayvane
