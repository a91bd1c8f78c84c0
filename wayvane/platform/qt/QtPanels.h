#pragma once

#include <wayvane/platform/MainQueue.h>
#include <wayvane/platform/Panels.h>

namespace wayvane::qt {

class QtPanels final : public platform::Panels {
public:
  /// The clock that animations run on; it outlives the panels.
  explicit QtPanels(const platform::MainQueue& clock)
    : clock_(clock)
  {}

  [[nodiscard]] std::unique_ptr<platform::OverlayPanel> makeOverlayPanel(const platform::Rect& frame,
                                                                         double cornerRadius) override;
  [[nodiscard]] std::unique_ptr<platform::FloatingPanel>
  makeFloatingPanel(const platform::FloatingPanelSpec& spec) override;
  [[nodiscard]] std::unique_ptr<platform::Popover> makePopover(platform::PopoverSpec spec) override;
  [[nodiscard]] platform::AlertAnswer runAlert(const platform::AlertSpec& spec) override;

private:
  const platform::MainQueue& clock_;
};

} // namespace wayvane::qt
