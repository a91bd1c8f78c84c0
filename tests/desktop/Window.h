#pragma once

#include <tests/desktop/View.h>
#include <wayvane/platform/Window.h>

namespace wayvane::sim {

/// The height of a title bar, tool bar included.
inline constexpr double kTitleBarHeight = 28;

/// An entry of the tool bar. Its view, if any, is made in `Window::toolbarView()`.
struct ToolbarItemOptions {
  Text identifier{};
  Text label{};
  Text toolTip{};
  View* view = nullptr;
};

/// A window of the simulated program, or one of our panels as windows see it. The content view fills the
/// frame below the title bar; a frame view ("NSThemeFrame") lies around both.
class Window : public platform::Window, public std::enable_shared_from_this<Window> {
public:
  Window(Desktop& desktop, std::string className, std::string title, const platform::Rect& frame);

  /// Builds frame, content and title bar; for windows of the host.
  void buildViews();

  /// The content view to add elements to; must not be asked when there is none.
  [[nodiscard]] View& content();
  [[nodiscard]] View& themeFrame();
  /// The title bar's view, to which views of tool bar items are added.
  [[nodiscard]] View& toolbarView();
  void removeContentView();

  void setTitle(std::string title) { title_ = std::move(title); }

  /// Tells those who observe resizing when the size changes.
  void setFrame(const platform::Rect& frame);
  /// Ends the window with all its views.
  void close();
  void orderFront();
  void orderOut();

  void setUtilityPanel(bool utility) { utility_ = utility; }

  void setIgnoresMouse(bool ignores) { ignoresMouse_ = ignores; }

  /// Windows of a higher level always lie in front of those of a lower one. The program's have 0.
  void setLevel(int level) { level_ = level; }

  [[nodiscard]] int level() const { return level_; }

  [[nodiscard]] bool ignoresMouse() const { return ignoresMouse_; }

  void addToolbarItem(const ToolbarItemOptions& item);

  void removeToolbarItems() { toolbarItems_.clear(); }

  /// How often the window was asked to draw what waits.
  [[nodiscard]] int displayCount() const { return displayCount_; }

  [[nodiscard]] bool isAlive() const override { return alive_; }

  [[nodiscard]] bool isSame(const platform::Window& other) const override;
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
  void layOut();
  Desktop* desktop_;
  std::string className_;
  std::string title_;
  platform::Rect frame_;
  bool alive_ = true;
  bool visible_ = false;
  bool utility_ = false;
  bool ignoresMouse_ = false;
  int level_ = 0;
  std::shared_ptr<View> frameView_;
  View* content_ = nullptr;
  View* toolbar_ = nullptr;
  std::vector<ToolbarItemOptions> toolbarItems_;
  int displayCount_ = 0;
};

} // namespace wayvane::sim
