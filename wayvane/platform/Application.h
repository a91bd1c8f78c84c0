#pragma once

#include <wayvane/platform/Menu.h>
#include <wayvane/platform/Window.h>

namespace wayvane::platform {

/// The host program. Main thread only.
class Application {
public:
  virtual ~Application() = default;

  /// The visible windows front to back, panels of ours included.
  [[nodiscard]] virtual std::vector<WindowHandle> orderedWindows() const = 0;
  /// All windows in the order in which they were made.
  [[nodiscard]] virtual std::vector<WindowHandle> windows() const = 0;
  /// The window that holds the user's main work, or null.
  [[nodiscard]] virtual WindowHandle mainWindow() const = 0;
  /// The window that receives the keyboard, or null.
  [[nodiscard]] virtual WindowHandle keyWindow() const = 0;

  /// The class of that name, when the program has one.
  [[nodiscard]] virtual std::optional<ViewClass> classNamed(std::string_view name) const = 0;
  /// Whether elements of the class are of that kind.
  [[nodiscard]] virtual bool classIsKind(ViewClass viewClass, ViewKind kind) const = 0;

  /// The menu bar's menu (of the main window, where each window has its own); null when there is none.
  [[nodiscard]] virtual MenuHandle mainMenu() const = 0;
  /// The menu that the program declares as its Help menu; null when it does not.
  [[nodiscard]] virtual MenuHandle helpMenu() const = 0;

  /// For instance "org.example.Notes"; nothing when the program has no name at all.
  [[nodiscard]] virtual std::optional<std::string> bundleIdentifier() const = 0;
  /// The version shown to users ("1.4"), and the build's; nothing when the program does not tell.
  [[nodiscard]] virtual std::optional<std::string> shortVersion() const = 0;
  [[nodiscard]] virtual std::optional<std::string> bundleVersion() const = 0;
};

} // namespace wayvane::platform
