#pragma once

#include <wayvane/platform/View.h>

namespace wayvane::platform {

/// An entry of a window's tool bar.
struct ToolbarItem {
  std::optional<std::string> itemIdentifier{};
  std::optional<std::string> label{};
  std::optional<std::string> toolTip{};
  /// Null when the entry has no view of its own, or it is not shown at the moment.
  ViewHandle view{};
};

/// A window of the host or of ours. Like a view handle, a window whose toolkit window is gone answers every
/// question with nothing. The window of a panel of ours leaves the screen with the panel, but may be gone
/// only a turn of the main queue later, because it can be in the middle of an event. Window coordinates:
/// points, y up, origin at the bottom left of the window's frame. Screen coordinates: points, y up, origin at
/// the bottom left of the primary screen. Main thread only.
class Window {
public:
  virtual ~Window() = default;

  [[nodiscard]] virtual bool isAlive() const = 0;
  [[nodiscard]] virtual bool isSame(const Window& other) const = 0;
  [[nodiscard]] virtual std::string className() const = 0;
  [[nodiscard]] virtual std::string title() const = 0;
  /// In screen coordinates: the area that an overlay covers. Bindings whose overlay cannot lie over the
  /// window manager's decorations answer the area inside them.
  [[nodiscard]] virtual Rect frame() const = 0;
  [[nodiscard]] virtual bool isVisible() const = 0;
  /// The view below which searches look; null when the window has none.
  [[nodiscard]] virtual ViewHandle contentView() const = 0;
  /// The topmost view of the window, the one from which a click is hit-tested; the content view where the
  /// toolkit knows nothing above it.
  [[nodiscard]] virtual ViewHandle frameView() const = 0;
  /// In the order shown.
  [[nodiscard]] virtual std::vector<ToolbarItem> toolbarItems() const = 0;
  /// A small floating panel of the utility style, ours or another's.
  [[nodiscard]] virtual bool isUtilityPanel() const = 0;
  /// Draws what waits to be drawn.
  virtual void displayIfNeeded() = 0;

  [[nodiscard]] Rect convertRectToScreen(const Rect& r) const
  {
    const Rect f = frame();
    return r.movedBy(f.x, f.y);
  }

  [[nodiscard]] Rect convertRectFromScreen(const Rect& r) const
  {
    const Rect f = frame();
    return r.movedBy(-f.x, -f.y);
  }

  [[nodiscard]] Point convertPointFromScreen(Point p) const
  {
    const Rect f = frame();
    return {p.x - f.x, p.y - f.y};
  }

  [[nodiscard]] Point convertPointToScreen(Point p) const
  {
    const Rect f = frame();
    return {p.x + f.x, p.y + f.y};
  }
};

/// Whether both handles stand for the same living window.
[[nodiscard]] inline bool isSameWindow(const WindowHandle& a, const WindowHandle& b)
{
  return a && b && a->isSame(*b);
}

} // namespace wayvane::platform
