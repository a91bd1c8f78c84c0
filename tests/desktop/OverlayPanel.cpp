#include "Desktop.h"
#include "Panels.h"

namespace wayvane::sim {

using platform::Rect;

OverlayPanel::OverlayPanel(Desktop& desktop, const Rect& frame, double cornerRadius)
  : panels_(desktop.sharedPanels())
  , window_(desktop, "WVPlayerWindow", frame)
  , content_(std::make_shared<platform::SurfaceView>(Rect{0, 0, frame.width, frame.height}))
  , cornerRadius_(cornerRadius)
{
  window_->setIgnoresMouse(true);
  window_->setLevel(3);
  content_->setIsContentView(true);
  desktop.panels().overlays.push_back(this);
}

OverlayPanel::~OverlayPanel()
{
  if (const auto panels = panels_.lock()) std::erase(panels->overlays, this);
}

Rect OverlayPanel::frame() const
{
  return window_->frame();
}

void OverlayPanel::setFrame(const Rect& frame)
{
  window_->setFrame(frame);
  content_->setFrame({0, 0, frame.width, frame.height});
}

void OverlayPanel::attachToWindow(const platform::WindowHandle& window)
{
  parent_ = window && window->isAlive() ? window : nullptr;
  if (!parent_) return window_->setLevel(3);
  ++attachCount_;
  window_->setLevel(0);
  // A child of a window on the screen comes on the screen with it.
  if (parent_->isVisible()) window_->orderFront();
}

platform::WindowHandle OverlayPanel::parentWindow() const
{
  return parent_ && parent_->isAlive() ? parent_ : nullptr;
}

void OverlayPanel::orderFront()
{
  window_->orderFront();
}

void OverlayPanel::orderOut()
{
  window_->orderOut();
}

bool OverlayPanel::isVisible() const
{
  return window_->isVisible();
}

platform::WindowHandle OverlayPanel::window() const
{
  return window_.handle();
}

void OverlayPanel::showAccessibleAlert(const platform::AccessibleAlert& alert)
{
  alert_ = alert;
  announcements_.push_back(alert);
}

void OverlayPanel::hideAccessibleAlert()
{
  alert_.reset();
}

void OverlayPanel::parentMoved(double dx, double dy)
{
  window_->setFrame(window_->frame().movedBy(dx, dy));
}

void OverlayPanel::parentClosed()
{
  parent_ = nullptr;
  window_->orderOut();
  window_->setLevel(3);
}

} // namespace wayvane::sim
