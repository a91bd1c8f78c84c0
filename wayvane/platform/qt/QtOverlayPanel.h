#pragma once

#include <wayvane/platform/MainQueue.h>
#include <wayvane/platform/Panels.h>
#include <wayvane/platform/qt/QtOverlayWidget.h>

#include <optional>

namespace wayvane::qt {

/// The overlay panel. Attached to a window it covers the window's client area, or the part of it that
/// `setFrame` asks for: nothing outside can be drawn on.
class QtOverlayPanel final : public platform::OverlayPanel {
public:
  QtOverlayPanel(const platform::Rect& frame, double cornerRadius, const platform::MainQueue& clock);
  ~QtOverlayPanel() override;

  [[nodiscard]] platform::SurfaceView& contentView() override { return *content_; }

  [[nodiscard]] platform::Rect frame() const override;
  void setFrame(const platform::Rect& frame) override;
  void attachToWindow(const platform::WindowHandle& window) override;
  [[nodiscard]] platform::WindowHandle parentWindow() const override;
  void orderFront() override;
  void orderOut() override;
  [[nodiscard]] bool isVisible() const override;
  [[nodiscard]] platform::WindowHandle window() const override;
  void showAccessibleAlert(const platform::AccessibleAlert& alert) override;
  void hideAccessibleAlert() override;

  /// Null while the panel has never been shown or attached, or its window took it along.
  [[nodiscard]] QtOverlayWidget* widget() const { return widget_; }

  void displayIfNeeded();

private:
  class Handle;

  void makeWidget(QWidget* window);
  void place();
  void fitContent();

  const platform::MainQueue& clock_;
  std::shared_ptr<platform::SurfaceView> content_;
  /// As it was last asked for, or had; used when no widget can tell.
  platform::Rect frame_;
  platform::WindowHandle parent_;
  QPointer<QtOverlayWidget> widget_;
  /// Asked to be on screen, whatever became of the window it was on.
  bool isOrdered_ = false;
  std::optional<platform::AccessibleAlert> alert_;
  std::shared_ptr<Handle> handle_;
};

} // namespace wayvane::qt
