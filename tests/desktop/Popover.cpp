#include "Desktop.h"
#include "Panels.h"

namespace wayvane::sim {

using platform::PopoverButton;
using platform::Rect;

namespace {

constexpr double kPointerHeight = 10;
constexpr int kAbovePopUpMenus = 102;

} // namespace

Popover::Popover(Desktop& desktop, platform::PopoverSpec spec)
  : panels_(desktop.sharedPanels())
  , spec_(std::move(spec))
  , window_(desktop, "WVPopoverWindow", {})
{
  window_->setLevel(kAbovePopUpMenus);
  desktop.panels().popovers.push_back(this);
}

Popover::~Popover()
{
  if (const auto panels = panels_.lock()) std::erase(panels->popovers, this);
}

bool Popover::show(const platform::WindowHandle& window, const Rect& anchor)
{
  const auto panels = panels_.lock();
  if (!panels || panels->refusesPopovers || shown_ || !window || !window->isAlive()) return false;
  host_ = window;
  anchor_ = anchor;
  shown_ = true;
  const Rect onScreen = window->convertRectToScreen(anchor);
  const platform::Size size = spec_.contentSize;
  window_->setFrame({onScreen.center().x - size.width / 2, onScreen.y - kPointerHeight - size.height,
                     size.width, size.height});
  window_->orderFront();
  return true;
}

void Popover::close()
{
  if (!shown_) return;
  shown_ = false;
  focused_.clear();
  window_->orderOut();
  // The handler may end this popover.
  if (const auto handler = spec_.onClose) handler();
}

bool Popover::typeText(const std::string& field, const std::string& text)
{
  for (const auto& known : spec_.fields) {
    if (known.identifier != field || !shown_) continue;
    texts_[field] = text;
    return true;
  }
  return false;
}

bool Popover::pressButton(const std::string& title)
{
  for (const PopoverButton& button : spec_.buttons)
    if (button.title == title) return pressButton(button);
  return false;
}

bool Popover::pressKey(PopoverButton::Key key)
{
  for (const PopoverButton& button : spec_.buttons)
    if (button.key == key) return pressButton(button);
  return false;
}

bool Popover::pressButton(const PopoverButton& button)
{
  if (!shown_) return false;
  const std::weak_ptr life = life_;
  if (const auto handler = button.onClick) handler();
  if (!life.expired()) close();
  return true;
}

std::string Popover::text(const std::string& fieldIdentifier) const
{
  const auto found = texts_.find(fieldIdentifier);
  return found == texts_.end() ? std::string() : found->second;
}

void Popover::focusField(const std::string& fieldIdentifier)
{
  if (shown_) focused_ = fieldIdentifier;
}

platform::WindowHandle Popover::window() const
{
  return window_.handle();
}

} // namespace wayvane::sim
