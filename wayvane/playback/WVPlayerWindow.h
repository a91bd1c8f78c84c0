#pragma once

#include <wayvane/platform/Platform.h>

#include <memory>

namespace wayvane {

/// The transparent panel that a running guide draws into: it lies exactly over one window of the host's,
/// moves and orders with it and lets every press through. Main thread only.
class WVPlayerWindow {
public:
  /// Covers `targetWindow` and becomes its child; without one, covers the main screen and is nothing's child.
  /// Not shown before `orderFront`.
  WVPlayerWindow(platform::Platform& platform, const platform::WindowHandle& targetWindow);

  /// Never: the host's window keeps the keyboard.
  [[nodiscard]] static bool canBecomeKeyWindow() { return false; }

  /// The current step's target, in screen coordinates, for whoever inspects the overlay.
  [[nodiscard]] const platform::Rect& targetScreenRect() const { return targetScreenRect_; }

  void setTargetScreenRect(const platform::Rect& rect) { targetScreenRect_ = rect; }

  /// Fills the panel; y up, origin at the bottom left.
  [[nodiscard]] platform::SurfaceView& contentView() const { return panel_->contentView(); }

  /// In screen coordinates.
  [[nodiscard]] platform::Rect frame() const { return panel_->frame(); }

  void setFrame(const platform::Rect& frame) { panel_->setFrame(frame); }

  /// A rectangle of the screen in the coordinates of the content view.
  [[nodiscard]] platform::Rect convertRectFromScreen(const platform::Rect& rect) const;

  /// The window it is a child of; null when there is none or that window is gone.
  [[nodiscard]] platform::WindowHandle parentWindow() const { return panel_->parentWindow(); }

  /// Leaves the present parent, takes over the frame of `window` and becomes its child, above it.
  void moveToWindow(const platform::WindowHandle& window);

  /// Nothing's child from now on.
  void detach() { panel_->attachToWindow(nullptr); }

  void orderFront() { panel_->orderFront(); }

  void orderOut() { panel_->orderOut(); }

  [[nodiscard]] bool isVisible() const { return panel_->isVisible(); }

  /// The panel as events and lists of windows name it.
  [[nodiscard]] platform::WindowHandle window() const { return panel_->window(); }

  /// What assistive technology is told while a bubble is shown.
  void showAccessibleAlert(const platform::AccessibleAlert& alert) { panel_->showAccessibleAlert(alert); }

  void hideAccessibleAlert() { panel_->hideAccessibleAlert(); }

private:
  std::unique_ptr<platform::OverlayPanel> panel_;
  platform::Rect targetScreenRect_;
};

} // namespace wayvane
