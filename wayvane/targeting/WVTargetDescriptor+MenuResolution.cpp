#include <wayvane/model/WVTargetDescriptor.h>
#include <wayvane/platform/Platform.h>

#include <algorithm>
#include <array>
#include <vector>

namespace wayvane {

using platform::Menu;
using platform::MenuHandle;
using platform::MenuItemHandle;

namespace {

constexpr std::string_view kPathSeparator = " > ";

/// The menus that were looked through. None is twice, however many entries open it, and be it one of its own.
using SearchedMenus = std::vector<MenuHandle>;

bool isIn(const SearchedMenus& searched, const Menu& menu)
{
  return std::any_of(searched.begin(), searched.end(),
                     [&menu](const MenuHandle& other) { return other->isSame(menu); });
}

// A submenu comes right after its entry, before the next entry.
MenuItemHandle findMenuItemWithAction(const std::string& action, const MenuHandle& menu,
                                      SearchedMenus& searched)
{
  if (!menu || isIn(searched, *menu)) return nullptr;
  searched.push_back(menu);
  for (const auto& item : menu->items()) {
    if (!item) continue;
    if (item->action() == action) return item;
    if (auto found = findMenuItemWithAction(action, item->submenu(), searched)) return found;
  }
  return nullptr;
}

/// The length of the blank that the text begins with; 0 when it begins with none.
std::size_t leadingBlank(std::string_view text)
{
  constexpr std::array<std::string_view, 19> kBlanks{
      " ",      "\t",     "\u00A0", "\u1680", "\u2000", "\u2001", "\u2002", "\u2003", "\u2004", "\u2005",
      "\u2006", "\u2007", "\u2008", "\u2009", "\u200A", "\u200B", "\u202F", "\u205F", "\u3000"};
  for (const std::string_view blank : kBlanks)
    if (text.starts_with(blank)) return blank.size();
  return 0;
}

std::string_view trimmed(std::string_view text)
{
  while (const std::size_t length = leadingBlank(text))
    text.remove_prefix(length);
  std::size_t end = 0;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t length = leadingBlank(text.substr(at));
    at += std::max<std::size_t>(length, 1);
    if (length == 0) end = at;
  }
  return text.substr(0, end);
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
  SearchedMenus searched;
  if (menuAction) {
    if (auto item = findMenuItemWithAction(*menuAction, mainMenu, searched)) return item;
  }
  return menuPath ? menuItemAtPath(mainMenu, *menuPath) : nullptr;
}

} // namespace wayvane
