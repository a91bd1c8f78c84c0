#pragma once

#include <tests/desktop/Observers.h>
#include <wayvane/platform/Events.h>

namespace wayvane::sim {

class Events : public platform::Events {
public:
  [[nodiscard]] platform::Registration addLocalMonitor(platform::MouseEvent::Type type,
                                                       Monitor monitor) override;

  [[nodiscard]] platform::Point mouseLocation() const override { return mouse_; }

  [[nodiscard]] platform::Registration
  observeWindowResize(std::function<void(const platform::WindowHandle&)> handler) override;
  [[nodiscard]] platform::Registration
  observeMenuCommands(std::function<void(const platform::MenuItemHandle&)> handler) override;

  void setMouseLocation(platform::Point point) { mouse_ = point; }

  /// Asks the monitors, newest first.
  platform::EventVerdict send(const platform::MouseEvent& event) const;

  void windowDidResize(const platform::WindowHandle& window) const { resizes_.notify(window); }

  void menuCommandChosen(const platform::MenuItemHandle& item) const { commands_.notify(item); }

  [[nodiscard]] std::size_t monitorCount(platform::MouseEvent::Type type) const;

  [[nodiscard]] std::size_t resizeObserverCount() const { return resizes_.count(); }

  [[nodiscard]] std::size_t menuObserverCount() const { return commands_.count(); }

private:
  using Monitors = Observers<platform::EventVerdict(const platform::MouseEvent&)>;
  Monitors presses_;
  Monitors moves_;
  Observers<void(const platform::WindowHandle&)> resizes_;
  Observers<void(const platform::MenuItemHandle&)> commands_;
  platform::Point mouse_;
};

} // namespace wayvane::sim
