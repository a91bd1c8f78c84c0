#pragma once

#include <wayvane/platform/Window.h>

#include <QPointer>
#include <QWidget>

namespace wayvane::qt {

/// A top-level widget. Its frame is the client area: the part an overlay can cover.
class QtWindow : public platform::Window {
public:
  explicit QtWindow(QWidget* window);

  [[nodiscard]] QWidget* widget() const { return window_; }

  [[nodiscard]] bool isAlive() const override;
  [[nodiscard]] bool isSame(const platform::Window& other) const override;
  /// The names of our own windows begin with "WV".
  [[nodiscard]] std::string className() const override;
  [[nodiscard]] std::string title() const override;
  [[nodiscard]] platform::Rect frame() const override;
  [[nodiscard]] bool isVisible() const override;
  [[nodiscard]] platform::ViewHandle contentView() const override;
  [[nodiscard]] platform::ViewHandle frameView() const override;
  [[nodiscard]] std::vector<platform::ToolbarItem> toolbarItems() const override;
  [[nodiscard]] bool isUtilityPanel() const override;
  void displayIfNeeded() override;

private:
  QPointer<QWidget> window_;
};

/// A handle to the window that the widget is or is in; null for null.
[[nodiscard]] platform::WindowHandle windowForWidget(QWidget* widget);
/// The top-level widget behind a window of this binding; null for another's, or when it is gone.
[[nodiscard]] QWidget* widgetOf(const platform::Window& window);

} // namespace wayvane::qt
