#include <wayvane/playback/WVPlayerWindow.h>

namespace wayvane {

namespace {

constexpr double kContentCornerRadius = 10;

platform::Rect frameOver(const platform::Platform& platform, const platform::WindowHandle& targetWindow)
{
  if (targetWindow) return targetWindow->frame();
  return platform.screen.mainScreenFrame().value_or(platform::Rect{});
}

} // namespace

WVPlayerWindow::WVPlayerWindow(platform::Platform& platform, const platform::WindowHandle& targetWindow)
  : panel_(platform.panels.makeOverlayPanel(frameOver(platform, targetWindow), kContentCornerRadius))
{
  if (targetWindow) panel_->attachToWindow(targetWindow);
}

platform::Rect WVPlayerWindow::convertRectFromScreen(const platform::Rect& rect) const
{
  const platform::Rect own = frame();
  return rect.movedBy(-own.x, -own.y);
}

void WVPlayerWindow::moveToWindow(const platform::WindowHandle& window)
{
  panel_->attachToWindow(nullptr);
  panel_->setFrame(window->frame());
  panel_->attachToWindow(window);
  // A panel whose former parent is gone went away with it.
  if (!panel_->isVisible()) panel_->orderFront();
}

} // namespace wayvane
