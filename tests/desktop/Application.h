#pragma once

#include <tests/desktop/Classes.h>
#include <tests/desktop/Menu.h>
#include <tests/desktop/Window.h>
#include <wayvane/platform/Application.h>
#include <wayvane/platform/Log.h>
#include <wayvane/platform/Screen.h>

namespace wayvane::sim {

class Application : public platform::Application {
public:
  [[nodiscard]] std::vector<platform::WindowHandle> orderedWindows() const override;
  [[nodiscard]] std::vector<platform::WindowHandle> windows() const override;
  [[nodiscard]] platform::WindowHandle mainWindow() const override;
  [[nodiscard]] platform::WindowHandle keyWindow() const override;
  [[nodiscard]] std::optional<platform::ViewClass> classNamed(std::string_view name) const override;
  [[nodiscard]] bool classIsKind(platform::ViewClass viewClass, platform::ViewKind kind) const override;

  [[nodiscard]] platform::MenuHandle mainMenu() const override { return mainMenuOfHost; }

  [[nodiscard]] platform::MenuHandle helpMenu() const override { return helpMenuOfHost; }

  [[nodiscard]] Text bundleIdentifier() const override { return identifier; }

  [[nodiscard]] Text shortVersion() const override { return versionShown; }

  [[nodiscard]] Text bundleVersion() const override { return version; }

  /// The window in front at a point of the screen; null when there is none. Those that ignore the mouse do
  /// not count.
  [[nodiscard]] std::shared_ptr<Window> windowAt(platform::Point screenPoint) const;
  /// In front of all windows of its level, or right above `below`.
  void bringToFront(const std::shared_ptr<Window>& window);
  void putAbove(const std::shared_ptr<Window>& window, const platform::WindowHandle& below);
  /// Leaves the window out of the lists; another one takes its place as main and key window.
  void forget(const Window& window);

  ClassTable classes;
  /// In the order in which they were made, and front to back.
  std::vector<std::shared_ptr<Window>> made;
  std::vector<std::shared_ptr<Window>> order;
  std::weak_ptr<Window> main;
  std::weak_ptr<Window> key;
  std::shared_ptr<Menu> mainMenuOfHost = std::make_shared<Menu>();
  std::shared_ptr<Menu> helpMenuOfHost;
  Text identifier = "org.example.Notes";
  Text versionShown = "1.4";
  Text version = "140";
};

class Log : public platform::Log {
public:
  /// Control characters are kept as "\u000a" and the like.
  void write(std::string_view line) override;

  std::vector<std::string> lines;
};

class Screen : public platform::Screen {
public:
  [[nodiscard]] std::optional<platform::Rect> mainScreenFrame() const override { return frame; }

  [[nodiscard]] std::optional<platform::Rect> mainScreenVisibleFrame() const override { return visible; }

  std::optional<platform::Rect> frame = platform::Rect{0, 0, 1440, 900};
  std::optional<platform::Rect> visible = platform::Rect{0, 0, 1440, 875};
};

} // namespace wayvane::sim
