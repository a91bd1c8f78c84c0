#pragma once

#include <tests/desktop/Window.h>
#include <wayvane/platform/Panels.h>

#include <deque>

namespace wayvane::sim {

class Panels;

/// The window behind a panel of ours; it ends with the panel or with the desktop.
class PanelWindow {
public:
  PanelWindow(Desktop& desktop, const std::string& className, const platform::Rect& frame);
  ~PanelWindow();
  PanelWindow(const PanelWindow&) = delete;
  PanelWindow& operator=(const PanelWindow&) = delete;

  Window* operator->() const { return window_.get(); }

  [[nodiscard]] const std::shared_ptr<Window>& handle() const { return window_; }

private:
  std::shared_ptr<Window> window_;
};

class OverlayPanel : public platform::OverlayPanel {
public:
  OverlayPanel(Desktop& desktop, const platform::Rect& frame, double cornerRadius);
  ~OverlayPanel() override;

  [[nodiscard]] double cornerRadius() const { return cornerRadius_; }

  /// How often it was made a child of a window.
  [[nodiscard]] int attachCount() const { return attachCount_; }

  [[nodiscard]] const std::optional<platform::AccessibleAlert>& accessibleAlert() const { return alert_; }

  /// Every alert that was announced.
  [[nodiscard]] const std::vector<platform::AccessibleAlert>& announcements() const { return announcements_; }

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

  /// What befalls the window it is attached to.
  [[nodiscard]] bool isChildOf(const Window& window) const { return parent_.get() == &window; }

  void parentMoved(double dx, double dy);
  void parentClosed();

private:
  std::weak_ptr<Panels> panels_;
  PanelWindow window_;
  platform::WindowHandle parent_;
  std::shared_ptr<platform::SurfaceView> content_;
  double cornerRadius_;
  int attachCount_ = 0;
  std::optional<platform::AccessibleAlert> alert_;
  std::vector<platform::AccessibleAlert> announcements_;
};

/// As wide as its title measures plus 20, 22 high.
class PanelButton : public platform::PanelButton {
public:
  explicit PanelButton(platform::PanelButtonSpec spec)
    : spec_(std::move(spec))
  {}

  [[nodiscard]] const platform::PanelButtonSpec& spec() const { return spec_; }

  [[nodiscard]] std::string title() const override { return spec_.title; }

  [[nodiscard]] platform::Size fittingSize() const override;

  void setFrame(const platform::Rect& frame) override { frame_ = frame; }

  [[nodiscard]] platform::Rect frame() const override { return frame_; }

private:
  platform::PanelButtonSpec spec_;
  platform::Rect frame_;
};

class FloatingPanel : public platform::FloatingPanel {
public:
  FloatingPanel(Desktop& desktop, const platform::FloatingPanelSpec& spec);
  ~FloatingPanel() override;

  [[nodiscard]] const platform::FloatingPanelSpec& spec() const { return spec_; }

  [[nodiscard]] const std::vector<std::unique_ptr<PanelButton>>& buttons() const { return buttons_; }

  [[nodiscard]] PanelButton* button(const std::string& title) const;

  [[nodiscard]] platform::SurfaceView& contentView() override { return *content_; }

  platform::PanelButton& addButton(const platform::PanelButtonSpec& spec) override;
  [[nodiscard]] platform::Rect frame() const override;
  void setFrame(const platform::Rect& frame) override;
  void orderFront() override;
  void orderOut() override;
  [[nodiscard]] bool isVisible() const override;
  [[nodiscard]] platform::WindowHandle window() const override;

private:
  std::weak_ptr<Panels> panels_;
  platform::FloatingPanelSpec spec_;
  PanelWindow window_;
  std::shared_ptr<platform::SurfaceView> content_;
  std::vector<std::unique_ptr<PanelButton>> buttons_;
};

class Popover : public platform::Popover {
public:
  Popover(Desktop& desktop, platform::PopoverSpec spec);
  ~Popover() override;

  [[nodiscard]] const platform::PopoverSpec& spec() const { return spec_; }

  /// In the coordinates of the window that it was shown for.
  [[nodiscard]] platform::Rect anchor() const { return anchor_; }

  [[nodiscard]] platform::WindowHandle hostWindow() const { return host_; }

  [[nodiscard]] const std::string& focusedField() const { return focused_; }

  /// What the user does. Both answer false when it is impossible.
  bool typeText(const std::string& field, const std::string& text);
  bool pressButton(const std::string& title);
  bool pressKey(platform::PopoverButton::Key key);

  bool show(const platform::WindowHandle& window, const platform::Rect& anchor) override;
  void close() override;

  [[nodiscard]] bool isShown() const override { return shown_; }

  [[nodiscard]] std::string text(const std::string& fieldIdentifier) const override;
  void focusField(const std::string& fieldIdentifier) override;
  [[nodiscard]] platform::WindowHandle window() const override;

private:
  bool pressButton(const platform::PopoverButton& button);
  std::weak_ptr<Panels> panels_;
  platform::PopoverSpec spec_;
  PanelWindow window_;
  platform::WindowHandle host_;
  platform::Rect anchor_;
  bool shown_ = false;
  std::string focused_;
  std::map<std::string, std::string> texts_;
  std::shared_ptr<const bool> life_ = std::make_shared<const bool>(true);
};

/// An answer to come; without a text the alert's field keeps its value.
struct QueuedAnswer {
  int button = -1;
  Text fieldText;
};

/// Makes the panels and knows those that live, in the order in which they were made.
class Panels : public platform::Panels, public std::enable_shared_from_this<Panels> {
public:
  explicit Panels(Desktop& desktop)
    : desktop_(&desktop)
  {}

  [[nodiscard]] std::unique_ptr<platform::OverlayPanel> makeOverlayPanel(const platform::Rect& frame,
                                                                         double cornerRadius) override;
  [[nodiscard]] std::unique_ptr<platform::FloatingPanel>
  makeFloatingPanel(const platform::FloatingPanelSpec& spec) override;
  [[nodiscard]] std::unique_ptr<platform::Popover> makePopover(platform::PopoverSpec spec) override;
  [[nodiscard]] platform::AlertAnswer runAlert(const platform::AlertSpec& spec) override;

  std::vector<OverlayPanel*> overlays;
  std::vector<FloatingPanel*> floatingPanels;
  std::vector<Popover*> popovers;
  /// Popovers cannot be shown.
  bool refusesPopovers = false;
  std::deque<QueuedAnswer> answers;
  std::vector<platform::AlertSpec> alerts;
  /// Runs while the alert is up. May queue its answer.
  std::function<void(const platform::AlertSpec&)> onAlert;

private:
  Desktop* desktop_;
};

} // namespace wayvane::sim
