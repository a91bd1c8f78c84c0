#pragma once

#include <wayvane/platform/Menu.h>
#include <wayvane/platform/Registration.h>
#include <wayvane/platform/Window.h>

namespace wayvane::platform {

/// A press or a movement of the mouse over one of the program's windows.
struct MouseEvent {
  enum class Type : std::uint8_t { LeftMouseDown, MouseMoved };
  Type type = Type::LeftMouseDown;
  /// Null when the toolkit does not know it.
  WindowHandle window;
  Point locationInWindow;
  /// Where the press went to an open menu or pop-up list.
  bool inMenu = false;
  /// Where the press is on a menu bar, with no menu open yet.
  bool inMenuBar = false;
};

enum class EventVerdict : std::uint8_t { PassOn, Swallow };

/// Notices about the program's own events. Handlers run on the main thread. Registrations end with their
/// token, also while a handler runs.
class Events {
public:
  virtual ~Events() = default;

  using Monitor = std::function<EventVerdict(const MouseEvent&)>;
  /// Sees every event of that type before the program does, once, however the toolkit distributes it. When
  /// swallowed, the program gets neither the press nor what belongs to it (its movements, its release, the
  /// double click that it starts). With several monitors the newest is asked first, and what one swallows
  /// the others do not see.
  [[nodiscard]] virtual Registration addLocalMonitor(MouseEvent::Type type, Monitor monitor) = 0;
  /// The pointer, in screen coordinates.
  [[nodiscard]] virtual Point mouseLocation() const = 0;
  /// Calls back after any window changed its size.
  [[nodiscard]] virtual Registration
  observeWindowResize(std::function<void(const WindowHandle&)> handler) = 0;
  /// Calls back when the user chose a command of the host's or our menus (by mouse, keyboard or shortcut).
  [[nodiscard]] virtual Registration
  observeMenuCommands(std::function<void(const MenuItemHandle&)> handler) = 0;
};

} // namespace wayvane::platform
