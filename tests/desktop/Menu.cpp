#include "Menu.h"

#include <algorithm>

namespace wayvane::sim {

using platform::MenuItemSpec;

MenuItem::MenuItem(MenuItemSpec spec, bool ours)
  : spec_(std::move(spec))
  , ours_(ours)
{}

Text MenuItem::action() const
{
  return spec_.action.empty() ? std::nullopt : Text(spec_.action);
}

platform::MenuHandle MenuItem::submenu() const
{
  return submenu_;
}

platform::MenuHandle MenuItem::menu() const
{
  return menu_.lock();
}

void MenuItem::setSubmenu(const std::shared_ptr<Menu>& submenu)
{
  if (submenu_) submenu_->supermenu_.reset();
  submenu_ = submenu;
  if (submenu_) submenu_->supermenu_ = menu_;
}

void MenuItem::setTitle(const std::string& title)
{
  if (ours_ && alive_) spec_.title = title;
}

void MenuItem::setImage(platform::SymbolImage image)
{
  if (ours_ && alive_) spec_.image = image;
}

void MenuItem::choose()
{
  if (!alive_) return;
  ++timesChosen_;
  if (const auto handler = spec_.onChosen) handler();
}

void MenuItem::die()
{
  alive_ = false;
  if (submenu_) submenu_->destroy();
  submenu_.reset();
  menu_.reset();
  spec_ = {};
}

Menu::Menu(std::string title)
  : title_(std::move(title))
{}

MenuItem& Menu::append(MenuItemSpec spec)
{
  auto added = std::make_shared<MenuItem>(std::move(spec), false);
  added->menu_ = weak_from_this();
  items_.push_back(added);
  return *added;
}

Menu& Menu::menu(const std::string& title)
{
  for (const auto& item : items_)
    if (item->title() == title && item->submenu_) return *item->submenu_;
  MenuItemSpec spec;
  spec.title = title;
  const auto submenu = std::make_shared<Menu>(title);
  append(std::move(spec)).setSubmenu(submenu);
  return *submenu;
}

MenuItem& Menu::item(const std::string& title, const std::string& action, std::function<void()> onChosen)
{
  MenuItemSpec spec;
  spec.title = title;
  spec.action = action;
  spec.onChosen = std::move(onChosen);
  return append(std::move(spec));
}

MenuItem& Menu::separator()
{
  MenuItemSpec spec;
  spec.separator = true;
  return append(std::move(spec));
}

MenuItem* Menu::find(const std::string& title)
{
  for (const auto& item : items_) {
    if (item->title() == title) return item.get();
    if (MenuItem* below = item->submenu_ ? item->submenu_->find(title) : nullptr) return below;
  }
  return nullptr;
}

std::vector<std::string> Menu::titles() const
{
  std::vector<std::string> titles;
  for (const auto& item : items_)
    titles.push_back(item->isSeparator() ? "-" : item->title());
  return titles;
}

void Menu::destroy()
{
  alive_ = false;
  supermenu_.reset();
  for (const auto& item : std::exchange(items_, {}))
    item->die();
}

void Menu::removeHostItem(const MenuItem& item)
{
  const int index = indexOfItem(item);
  if (index < 0) return;
  const auto removed = items_[static_cast<std::size_t>(index)];
  items_.erase(items_.begin() + index);
  removed->die();
}

std::vector<platform::MenuItemHandle> Menu::items() const
{
  return {items_.begin(), items_.end()};
}

platform::MenuHandle Menu::supermenu() const
{
  return supermenu_.lock();
}

platform::MenuItemHandle Menu::insertItem(const MenuItemSpec& spec, int index)
{
  if (!alive_) return nullptr;
  auto added = std::make_shared<MenuItem>(spec, true);
  added->menu_ = weak_from_this();
  const bool inRange = index >= 0 && static_cast<std::size_t>(index) < items_.size();
  items_.insert(inRange ? items_.begin() + index : items_.end(), added);
  return added;
}

void Menu::removeItem(const platform::MenuItem& item)
{
  const auto* ours = dynamic_cast<const MenuItem*>(&item);
  if (ours && ours->isOurs()) removeHostItem(*ours);
}

int Menu::indexOfItem(const platform::MenuItem& item) const
{
  for (std::size_t index = 0; index < items_.size(); ++index)
    if (items_[index]->isSame(item)) return static_cast<int>(index);
  return -1;
}

platform::Registration Menu::observeOpening(std::function<void()> handler)
{
  return opening_.add(std::move(handler));
}

} // namespace wayvane::sim
