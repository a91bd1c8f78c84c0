#include "View.h"

#include "Desktop.h"

namespace wayvane::sim {

using platform::Point;
using platform::Rect;
using platform::ViewKind;

View::View(Desktop& desktop, const ClassInfo& info, const Rect& frame, bool flipped)
  : platform::View(platform::Features{})
  , desktop_(&desktop)
  , class_(&info)
  , frame_(frame)
  , flipped_(flipped)
{}

View::~View()
{
  for (const auto& child : children_)
    child->parent_ = nullptr;
}

void View::adoptView(std::shared_ptr<View> child)
{
  addFeature(platform::Feature::Subviews);
  child->parent_ = this;
  child->moveToWindow(window_);
  children_.push_back(std::move(child));
}

void View::moveToWindow(Window* window)
{
  window_ = window;
  for (const auto& child : children_)
    child->moveToWindow(window);
}

void View::detach()
{
  if (!parent_) return;
  desktop_->bury(shared_from_this());
  std::erase_if(parent_->children_, [this](const auto& child) { return child.get() == this; });
  parent_ = nullptr;
}

void View::removeFromSuperview()
{
  if (!alive_) return;
  detach();
  moveToWindow(nullptr);
}

void View::destroy()
{
  if (!alive_) return;
  willDie();
  for (const auto& child : std::vector(children_))
    child->destroy();
  detach();
  window_ = nullptr;
  alive_ = false;
}

platform::ViewHandle View::handle() const
{
  return alive_ ? shared_from_this() : nullptr;
}

bool View::isSame(const platform::View& other) const
{
  return alive_ && &other == this;
}

std::string View::className() const
{
  return alive_ ? class_->name : std::string();
}

bool View::classNameEquals(std::string_view name) const
{
  return alive_ && class_->name == name;
}

bool View::isOfClass(platform::ViewClass viewClass) const
{
  return alive_ && viewClass.identity &&
         class_->isOrInherits(*static_cast<const ClassInfo*>(viewClass.identity));
}

platform::ViewClass View::viewClass() const
{
  return alive_ ? class_->viewClass() : platform::ViewClass{};
}

bool View::isKind(ViewKind kind) const
{
  if (!alive_) return false;
  const bool isWithoutRole =
      kind == ViewKind::TokenField || kind == ViewKind::Text || kind == ViewKind::TableRowView;
  return (isWithoutRole || role(kind)) && desktop_->application().classes.isKind(*class_, kind);
}

bool View::isOfHostClass() const
{
  return alive_ && !class_->name.starts_with("NS") && !class_->name.starts_with("_");
}

platform::ViewHandle View::superview() const
{
  return alive_ && parent_ ? parent_->handle() : nullptr;
}

bool View::visitSubviews(platform::FunctionRef<bool(const platform::View&)> visitor) const
{
  if (!alive_) return true;
  for (const auto& child : children_)
    if (!visitor(*child)) return false;
  return true;
}

platform::WindowHandle View::window() const
{
  return alive_ && window_ ? window_->shared_from_this() : nullptr;
}

const void* View::role(ViewKind) const
{
  return nullptr;
}

void View::pressed() {}

void View::press()
{
  if (!alive_) return;
  const auto self = shared_from_this();
  const auto handler = onClick_;
  ++clickCount_;
  pressed();
  if (handler) handler();
}

} // namespace wayvane::sim
