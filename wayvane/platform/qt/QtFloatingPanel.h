#pragma once

#include <wayvane/platform/MainQueue.h>
#include <wayvane/platform/Panels.h>

#include <QPointer>

#include <memory>
#include <vector>

namespace wayvane::qt {

class QtPanelWidget;

class QtFloatingPanel final : public platform::FloatingPanel {
public:
  QtFloatingPanel(const platform::FloatingPanelSpec& spec, const platform::MainQueue& clock);
  ~QtFloatingPanel() override;

  [[nodiscard]] platform::SurfaceView& contentView() override { return *content_; }

  platform::PanelButton& addButton(const platform::PanelButtonSpec& spec) override;
  [[nodiscard]] platform::Rect frame() const override;
  void setFrame(const platform::Rect& frame) override;
  void orderFront() override;
  void orderOut() override;
  [[nodiscard]] bool isVisible() const override;
  [[nodiscard]] platform::WindowHandle window() const override;

private:
  class Button;

  std::shared_ptr<platform::SurfaceView> content_;
  QPointer<QtPanelWidget> widget_;
  std::vector<std::unique_ptr<Button>> buttons_;
};

} // namespace wayvane::qt
