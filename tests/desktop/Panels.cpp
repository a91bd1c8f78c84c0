#include "Panels.h"

#include "Desktop.h"

namespace wayvane::sim {

using platform::Rect;

PanelWindow::PanelWindow(Desktop& desktop, const std::string& className, const Rect& frame)
  : window_(std::make_shared<Window>(desktop, className, std::string(), frame))
{
  desktop.application().made.push_back(window_);
  desktop.application().order.push_back(window_);
}

PanelWindow::~PanelWindow()
{
  window_->close();
}

platform::Size PanelButton::fittingSize() const
{
  const platform::AttributedText text{{{spec_.title, platform::Font::system(11), {}, nullptr, {}}}};
  return {TextMeasurer().sizeOfText(text, 1e9).width + 20, 22};
}

FloatingPanel::FloatingPanel(Desktop& desktop, const platform::FloatingPanelSpec& spec)
  : panels_(desktop.sharedPanels())
  , spec_(spec)
  , window_(desktop, "WVFloatingPanel", {0, 0, spec.size.width, spec.size.height})
  , content_(std::make_shared<platform::SurfaceView>(Rect{0, 0, spec.size.width, spec.size.height}))
{
  window_->setUtilityPanel(true);
  window_->setIgnoresMouse(spec.ignoresMouse);
  window_->setLevel(spec.level);
  content_->setIsContentView(true);
  desktop.panels().floatingPanels.push_back(this);
}

FloatingPanel::~FloatingPanel()
{
  if (const auto panels = panels_.lock()) std::erase(panels->floatingPanels, this);
}

PanelButton* FloatingPanel::button(const std::string& title) const
{
  for (const auto& button : buttons_)
    if (button->title() == title) return button.get();
  return nullptr;
}

platform::PanelButton& FloatingPanel::addButton(const platform::PanelButtonSpec& spec)
{
  buttons_.push_back(std::make_unique<PanelButton>(spec));
  return *buttons_.back();
}

Rect FloatingPanel::frame() const
{
  return window_->frame();
}

void FloatingPanel::setFrame(const Rect& frame)
{
  window_->setFrame(frame);
  content_->setFrame({0, 0, frame.width, frame.height});
}

void FloatingPanel::orderFront()
{
  window_->orderFront();
}

void FloatingPanel::orderOut()
{
  window_->orderOut();
}

bool FloatingPanel::isVisible() const
{
  return window_->isVisible();
}

platform::WindowHandle FloatingPanel::window() const
{
  return window_.handle();
}

std::unique_ptr<platform::OverlayPanel> Panels::makeOverlayPanel(const Rect& frame, double cornerRadius)
{
  return std::make_unique<OverlayPanel>(*desktop_, frame, cornerRadius);
}

std::unique_ptr<platform::FloatingPanel> Panels::makeFloatingPanel(const platform::FloatingPanelSpec& spec)
{
  return std::make_unique<FloatingPanel>(*desktop_, spec);
}

std::unique_ptr<platform::Popover> Panels::makePopover(platform::PopoverSpec spec)
{
  return std::make_unique<Popover>(*desktop_, std::move(spec));
}

platform::AlertAnswer Panels::runAlert(const platform::AlertSpec& spec)
{
  alerts.push_back(spec);
  if (const auto meanwhile = onAlert) meanwhile(spec);
  if (answers.empty()) {
    reportFailure("nobody answers the alert \"" + spec.messageText + "\"");
    return {};
  }
  const QueuedAnswer answer = std::move(answers.front());
  answers.pop_front();
  return {answer.button, answer.fieldText.value_or(spec.field ? spec.field->value : std::string())};
}

} // namespace wayvane::sim
