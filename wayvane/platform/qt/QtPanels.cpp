#include <wayvane/platform/qt/QtAlert.h>
#include <wayvane/platform/qt/QtFloatingPanel.h>
#include <wayvane/platform/qt/QtOverlayPanel.h>
#include <wayvane/platform/qt/QtPanels.h>
#include <wayvane/platform/qt/QtPopover.h>

namespace wayvane::qt {

std::unique_ptr<platform::OverlayPanel> QtPanels::makeOverlayPanel(const platform::Rect& frame,
                                                                   double cornerRadius)
{
  return std::make_unique<QtOverlayPanel>(frame, cornerRadius, clock_);
}

std::unique_ptr<platform::FloatingPanel> QtPanels::makeFloatingPanel(const platform::FloatingPanelSpec& spec)
{
  return std::make_unique<QtFloatingPanel>(spec, clock_);
}

std::unique_ptr<platform::Popover> QtPanels::makePopover(platform::PopoverSpec spec)
{
  return std::make_unique<QtPopover>(std::move(spec));
}

platform::AlertAnswer QtPanels::runAlert(const platform::AlertSpec& spec)
{
  return qt::runAlert(spec);
}

} // namespace wayvane::qt
