#include "Window.h"

#include "Desktop.h"

namespace wayvane::sim {

using platform::Rect;

Window::Window(Desktop& desktop, std::string className, std::string title, const Rect& frame)
  : desktop_(&desktop)
  , className_(std::move(className))
  , title_(std::move(title))
  , frame_(frame)
{}

void Window::buildViews()
{
  const auto& classes = desktop_->application().classes;
  frameView_ = std::make_shared<View>(*desktop_, *classes.find("NSThemeFrame"), Rect{});
  frameView_->moveToWindow(this);
  content_ = &frameView_->addView("NSView");
  toolbar_ = &frameView_->addView("NSToolbarView");
  layOut();
}

void Window::layOut()
{
  if (!frameView_) return;
  frameView_->setFrame({0, 0, frame_.width, frame_.height});
  if (content_) content_->setFrame({0, 0, frame_.width, frame_.height - kTitleBarHeight});
  toolbar_->setFrame({0, frame_.height - kTitleBarHeight, frame_.width, kTitleBarHeight});
}

View& Window::content()
{
  if (!content_) reportFailure("the window " + title_ + " has no content view");
  return *content_;
}

View& Window::themeFrame()
{
  return *frameView_;
}

View& Window::toolbarView()
{
  return *toolbar_;
}

void Window::removeContentView()
{
  if (content_) content_->destroy();
  content_ = nullptr;
}

void Window::setFrame(const Rect& frame)
{
  if (!alive_) return;
  const Rect before = std::exchange(frame_, frame);
  layOut();
  if (before.origin() != frame.origin()) desktop_->windowMoved(*this, frame.x - before.x, frame.y - before.y);
  if (before.size() != frame.size()) desktop_->events().windowDidResize(shared_from_this());
}

void Window::close()
{
  if (!alive_) return;
  const auto self = shared_from_this();
  if (frameView_) frameView_->destroy();
  content_ = nullptr;
  toolbarItems_.clear();
  alive_ = visible_ = false;
  desktop_->windowClosed(self);
}

void Window::orderFront()
{
  if (!alive_) return;
  visible_ = true;
  desktop_->application().bringToFront(shared_from_this());
  desktop_->windowRaised(*this);
}

void Window::orderOut()
{
  visible_ = false;
}

void Window::addToolbarItem(const ToolbarItemOptions& item)
{
  toolbarItems_.push_back(item);
}

bool Window::isSame(const platform::Window& other) const
{
  return alive_ && this == &other;
}

std::string Window::className() const
{
  return alive_ ? className_ : std::string();
}

std::string Window::title() const
{
  return alive_ ? title_ : std::string();
}

Rect Window::frame() const
{
  return alive_ ? frame_ : Rect{};
}

bool Window::isVisible() const
{
  return alive_ && visible_;
}

platform::ViewHandle Window::contentView() const
{
  return alive_ && content_ ? content_->handle() : nullptr;
}

platform::ViewHandle Window::frameView() const
{
  return alive_ && frameView_ ? frameView_->handle() : nullptr;
}

std::vector<platform::ToolbarItem> Window::toolbarItems() const
{
  std::vector<platform::ToolbarItem> items;
  for (const ToolbarItemOptions& item : toolbarItems_)
    items.push_back({item.identifier, item.label, item.toolTip, item.view ? item.view->handle() : nullptr});
  return items;
}

bool Window::isUtilityPanel() const
{
  return alive_ && utility_;
}

void Window::displayIfNeeded()
{
  if (alive_) ++displayCount_;
}

} // namespace wayvane::sim
