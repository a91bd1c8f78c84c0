#include <wayvane/platform/qt/QtChosenItem.h>

#include <utility>

namespace wayvane::qt {

using platform::Menu;
using platform::MenuHandle;
using platform::MenuItem;
using platform::MenuItemHandle;

namespace {

class ChosenItem final : public MenuItem {
public:
  ChosenItem(MenuItemHandle original, std::weak_ptr<Menu> menu, std::weak_ptr<Menu> submenu)
    : original_(std::move(original))
    , menu_(std::move(menu))
    , submenu_(std::move(submenu))
    , title_(original_->title())
    , action_(original_->action())
    , toolTip_(original_->toolTip())
    , image_(original_->image())
  {}

  /// The menus hold their entries; only the choice itself holds its menu.
  void keepMenu() { kept_ = menu_.lock(); }

  [[nodiscard]] bool isSame(const MenuItem& other) const override
  {
    return this == &other || original_->isSame(other);
  }

  [[nodiscard]] std::string title() const override { return title_; }

  [[nodiscard]] bool isSeparator() const override { return false; }

  [[nodiscard]] std::optional<std::string> action() const override { return action_; }

  [[nodiscard]] std::optional<std::string> toolTip() const override { return toolTip_; }

  [[nodiscard]] platform::SymbolImage image() const override { return image_; }

  [[nodiscard]] MenuHandle submenu() const override { return submenu_.lock(); }

  [[nodiscard]] MenuHandle menu() const override { return menu_.lock(); }

  void setTitle(const std::string& title) override { original_->setTitle(title); }

  void setImage(platform::SymbolImage image) override { original_->setImage(image); }

private:
  MenuItemHandle original_;
  std::weak_ptr<Menu> menu_;
  std::weak_ptr<Menu> submenu_;
  MenuHandle kept_;
  std::string title_;
  std::optional<std::string> action_;
  std::optional<std::string> toolTip_;
  platform::SymbolImage image_;
};

/// A menu on the way to the choice. Of its entries it shows the one that leads on.
class ChosenMenu final : public Menu {
public:
  ChosenMenu(MenuHandle original, MenuHandle above)
    : original_(std::move(original))
    , above_(std::move(above))
  {}

  void setEntry(MenuItemHandle entry) { entry_ = std::move(entry); }

  [[nodiscard]] bool isSame(const Menu& other) const override
  {
    return this == &other || original_->isSame(other);
  }

  [[nodiscard]] std::vector<MenuItemHandle> items() const override
  {
    return entry_ ? std::vector{entry_} : std::vector<MenuItemHandle>{};
  }

  [[nodiscard]] MenuHandle supermenu() const override { return above_; }

  MenuItemHandle insertItem(const platform::MenuItemSpec&, int) override { return nullptr; }

  void removeItem(const MenuItem&) override {}

  [[nodiscard]] int indexOfItem(const MenuItem& item) const override { return original_->indexOfItem(item); }

  [[nodiscard]] platform::Registration observeOpening(std::function<void()> handler) override
  {
    return original_->observeOpening(std::move(handler));
  }

private:
  MenuHandle original_;
  MenuHandle above_;
  MenuItemHandle entry_;
};

MenuItemHandle entryThatOpens(const Menu& menu, const Menu& above)
{
  for (const MenuItemHandle& entry : above.items()) {
    const MenuHandle submenu = entry->submenu();
    if (submenu && submenu->isSame(menu)) return entry;
  }
  return nullptr;
}

std::shared_ptr<ChosenMenu> chosenMenu(const MenuHandle& menu, int depth)
{
  constexpr int kDeepestMenu = 32;
  const MenuHandle super = depth < kDeepestMenu ? menu->supermenu() : nullptr;
  const MenuItemHandle entry = super ? entryThatOpens(*menu, *super) : nullptr;
  const std::shared_ptr<ChosenMenu> above = super ? chosenMenu(super, depth + 1) : nullptr;
  auto chosen = std::make_shared<ChosenMenu>(menu, above);
  if (entry) above->setEntry(std::make_shared<ChosenItem>(entry, above, chosen));
  return chosen;
}

} // namespace

MenuItemHandle chosenItem(const MenuItemHandle& item)
{
  if (!item) return nullptr;
  const MenuHandle menu = item->menu();
  const std::shared_ptr<ChosenMenu> chosen = menu ? chosenMenu(menu, 0) : nullptr;
  auto result = std::make_shared<ChosenItem>(item, chosen, MenuHandle());
  result->keepMenu();
  if (chosen) chosen->setEntry(std::make_shared<ChosenItem>(item, chosen, MenuHandle()));
  return result;
}

} // namespace wayvane::qt
