#pragma once

#include <wayvane/platform/Accessibility.h>
#include <wayvane/platform/Surface.h>
#include <wayvane/platform/Window.h>

namespace wayvane::platform {

/// The transparent, click-through panel that lies over one window of the host's, moves and orders with it and
/// shows a tree of surface views. Every press passes through it. It never becomes key. A panel dies quietly
/// with the window it is attached to and can then be attached to another one. Main thread only.
class OverlayPanel {
public:
  virtual ~OverlayPanel() = default;
  /// Fills the panel; y up.
  [[nodiscard]] virtual SurfaceView& contentView() = 0;
  /// In screen coordinates.
  [[nodiscard]] virtual Rect frame() const = 0;
  virtual void setFrame(const Rect& frame) = 0;
  /// Makes it a child of `window`, above it, and nothing's child when null. Where that window is on the
  /// screen the panel comes on the screen with it, as if it were ordered front.
  virtual void attachToWindow(const WindowHandle& window) = 0;
  /// Null when it has none, or that window is gone.
  [[nodiscard]] virtual WindowHandle parentWindow() const = 0;
  virtual void orderFront() = 0;
  virtual void orderOut() = 0;
  [[nodiscard]] virtual bool isVisible() const = 0;
  /// The panel as events and window lists name it.
  [[nodiscard]] virtual WindowHandle window() const = 0;
  /// Offers the alert to assistive technology, in place of an earlier one, and announces it.
  virtual void showAccessibleAlert(const AccessibleAlert& alert) = 0;
  virtual void hideAccessibleAlert() = 0;
};

/// A push button in a floating panel, with the toolkit's own look and behaviour.
class PanelButton {
public:
  virtual ~PanelButton() = default;
  [[nodiscard]] virtual std::string title() const = 0;
  /// The size in which the title fits.
  [[nodiscard]] virtual Size fittingSize() const = 0;
  /// In the coordinates of the panel's content view, y up.
  virtual void setFrame(const Rect& frame) = 0;
  [[nodiscard]] virtual Rect frame() const = 0;
};

struct PanelButtonSpec {
  std::string title{};
  /// A quiet, inline look instead of the push button's.
  bool isInline = false;
  std::function<void()> onClick{};
};

struct FloatingPanelSpec {
  /// The content's size; the origin comes with setFrame.
  Size size{};
  /// 3 floats above the program's windows, 25 above other floating panels.
  int level = 3;
  Color background{};
  double cornerRadius = 0;
  bool hasShadow = true;
  bool ignoresMouse = false;
  /// Dragging its background moves it.
  bool movable = false;
  /// For assistive technology.
  std::string accessibilityTitle{};
};

/// A small borderless panel of ours above the program's windows, which never becomes key. Buttons in it work
/// while the program shows a modal dialog, and may release the panel.
class FloatingPanel {
public:
  virtual ~FloatingPanel() = default;
  [[nodiscard]] virtual SurfaceView& contentView() = 0;
  /// The panel owns the button.
  virtual PanelButton& addButton(const PanelButtonSpec& spec) = 0;
  [[nodiscard]] virtual Rect frame() const = 0;
  virtual void setFrame(const Rect& frame) = 0;
  virtual void orderFront() = 0;
  virtual void orderOut() = 0;
  [[nodiscard]] virtual bool isVisible() const = 0;
  [[nodiscard]] virtual WindowHandle window() const = 0;
};

struct PopoverField {
  std::string identifier{};
  Rect frame{};
  std::string placeholder{};
  double fontSize = 12;
};

struct PopoverButton {
  enum class Key : std::uint8_t { None, Return, Escape };
  std::string title{};
  Rect frame{};
  Key key = Key::None;
  /// Called before the popover closes, which every button does.
  std::function<void()> onClick{};
};

/// A form in a popover. Frames in the content's coordinates, y up. Tab goes through the fields in their
/// order.
struct PopoverSpec {
  Size contentSize{};
  std::vector<PopoverField> fields{};
  std::vector<PopoverButton> buttons{};
  /// Called once when the popover closes, however it closes; the fields can still be read.
  std::function<void()> onClose{};
};

/// Semi-transient: a press outside closes it and still reaches the program. Open menus and lists of the
/// program's take presses without closing it, and so does the second half of the double click that brought it
/// up.
///
/// Destroying a shown popover takes it off the screen at once, and onClose is not called any more. It may be
/// destroyed from its own callbacks.
class Popover {
public:
  virtual ~Popover() = default;
  /// Shows it below `anchor` (window coordinates) or where there is room. False when that is impossible; then
  /// onClose is not called.
  virtual bool show(const WindowHandle& window, const Rect& anchor) = 0;
  virtual void close() = 0;
  [[nodiscard]] virtual bool isShown() const = 0;
  [[nodiscard]] virtual std::string text(const std::string& fieldIdentifier) const = 0;
  virtual void focusField(const std::string& fieldIdentifier) = 0;
  [[nodiscard]] virtual WindowHandle window() const = 0;
};

struct AlertField {
  Size size{};
  std::string value{};
  std::string placeholder{};
};

struct AlertSpec {
  enum class Style : std::uint8_t { Warning = 0, Informational = 1 };
  Style style = Style::Warning;
  std::string messageText{};
  std::string informativeText{};
  /// The first is the default one.
  std::vector<std::string> buttons{};
  /// A field below the text, which has the focus.
  std::optional<AlertField> field{};
};

struct AlertAnswer {
  /// The index of the button chosen; -1 when the alert ended in another way (closed, program quits).
  int button = -1;
  std::string fieldText{};
};

/// Makes the framework's own panels. A factory's answer is never null. Main thread only.
class Panels {
public:
  virtual ~Panels() = default;
  [[nodiscard]] virtual std::unique_ptr<OverlayPanel> makeOverlayPanel(const Rect& frame,
                                                                       double cornerRadius) = 0;
  [[nodiscard]] virtual std::unique_ptr<FloatingPanel> makeFloatingPanel(const FloatingPanelSpec& spec) = 0;
  [[nodiscard]] virtual std::unique_ptr<Popover> makePopover(PopoverSpec spec) = 0;
  /// Shows a modal alert and returns when it is answered. Anything may happen meanwhile: the host's windows
  /// may go away, timers run. Markup in the texts is shown as text.
  [[nodiscard]] virtual AlertAnswer runAlert(const AlertSpec& spec) = 0;
};

} // namespace wayvane::platform
