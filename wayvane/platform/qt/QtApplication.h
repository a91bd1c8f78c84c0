#pragma once

#include <wayvane/platform/Application.h>

#include <memory>

namespace wayvane::qt {

class QtWindowOrder;

/// The QApplication of the program. Made after it; answers with nothing once it is gone.
class QtApplication : public platform::Application {
public:
  QtApplication();
  ~QtApplication() override;

  [[nodiscard]] std::vector<platform::WindowHandle> orderedWindows() const override;
  [[nodiscard]] std::vector<platform::WindowHandle> windows() const override;
  [[nodiscard]] platform::WindowHandle mainWindow() const override;
  [[nodiscard]] platform::WindowHandle keyWindow() const override;
  [[nodiscard]] std::optional<platform::ViewClass> classNamed(std::string_view name) const override;
  [[nodiscard]] bool classIsKind(platform::ViewClass viewClass, platform::ViewKind kind) const override;
  [[nodiscard]] platform::MenuHandle mainMenu() const override;
  [[nodiscard]] platform::MenuHandle helpMenu() const override;
  [[nodiscard]] std::optional<std::string> bundleIdentifier() const override;
  [[nodiscard]] std::optional<std::string> shortVersion() const override;
  [[nodiscard]] std::optional<std::string> bundleVersion() const override;

private:
  std::unique_ptr<QtWindowOrder> order_;
};

} // namespace wayvane::qt
