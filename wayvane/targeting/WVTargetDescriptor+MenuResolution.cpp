#include <wayvane/model/WVTargetDescriptor.h>
#include <wayvane/platform/Platform.h>

#include <algorithm>
#include <vector>

namespace wayvane {

using platform::Menu;
using platform::MenuHandle;
using platform::MenuItemHandle;

namespace {

constexpr std::string_view kPathSeparator = " > ";
constexpr std::string_view kBlanks = " \t";

/// The menus from the menu bar down to one; a menu that opens itself is not entered again.
using MenuChain = std::vector<MenuHandle>;

bool isInChain(const MenuChain& chain, const Menu& menu)
{
  return std::any_of(chain.begin(), chain.end(),
                     [&menu](const MenuHandle& other) { return other->isSame(menu); });
}

// A submenu comes right after its entry, before the next entry.
MenuItemHandle findMenuItemWithAction(const std::string& action, const MenuHandle& menu, MenuChain& chain)
{
  if (!menu || isInChain(chain, *menu)) return nullptr;
  chain.push_back(menu);
  for (const auto& item : menu->items()) {
    if (!item) continue;
    if (item->action() == action) return item;
    if (auto found = findMenuItemWithAction(action, item->submenu(), chain)) return found;
  }
  chain.pop_back();
  return nullptr;
}

std::string_view trimmed(std::string_view text)
{
  const auto start = text.find_first_not_of(kBlanks);
  if (start == std::string_view::npos) return {};
  return text.substr(start, text.find_last_not_of(kBlanks) - start + 1);
}

MenuItemHandle itemWithTitle(const MenuHandle& menu, std::string_view title)
{
  if (!menu) return nullptr;
  for (const auto& item : menu->items()) {
    if (item && item->title() == title) return item;
  }
  return nullptr;
}

MenuItemHandle menuItemAtPath(MenuHandle menu, std::string_view path)
{
  if (path.find(kPathSeparator) == std::string_view::npos) return nullptr;
  for (;;) {
    const auto end = path.find(kPathSeparator);
    auto item = itemWithTitle(menu, trimmed(path.substr(0, end)));
    if (!item || end == std::string_view::npos) return item;
    menu = item->submenu();
    path.remove_prefix(end + kPathSeparator.size());
  }
}

} // namespace

MenuItemHandle WVTargetDescriptor::resolveMenuItem() const
{
  const auto* desktop = platform::Platform::current();
  const auto mainMenu = desktop ? desktop->application.mainMenu() : nullptr;
  MenuChain chain;
  if (menuAction) {
    if (auto item = findMenuItemWithAction(*menuAction, mainMenu, chain)) return item;
  }
  return menuPath ? menuItemAtPath(mainMenu, *menuPath) : nullptr;
}

} // namespace wayvane
