#pragma once

#include <wayvane/platform/Registration.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wayvane::platform {

class Menu;
class MenuItem;
using MenuHandle = std::shared_ptr<Menu>;
using MenuItemHandle = std::shared_ptr<MenuItem>;

/// The small pictures that our own menu entries carry.
enum class SymbolImage : std::uint8_t { None, Play, Record, Stop };

/// An entry of ours in a menu of the host's.
struct MenuItemSpec {
  bool separator = false;
  std::string title{};
  std::optional<std::string> toolTip{};
  SymbolImage image = SymbolImage::None;
  /// The name other parts know the command by, for instance "_playGuide:".
  std::string action{};
  /// Called on the main thread when the user chooses the entry.
  std::function<void()> onChosen{};
};

/// An entry of a menu. A handle whose entry is gone answers with nothing. Main thread only.
class MenuItem {
public:
  virtual ~MenuItem() = default;
  [[nodiscard]] virtual bool isSame(const MenuItem& other) const = 0;
  /// Without keyboard mnemonics and shortcut.
  [[nodiscard]] virtual std::string title() const = 0;
  [[nodiscard]] virtual bool isSeparator() const = 0;
  [[nodiscard]] virtual std::optional<std::string> action() const = 0;
  [[nodiscard]] virtual std::optional<std::string> toolTip() const = 0;
  [[nodiscard]] virtual SymbolImage image() const = 0;
  /// Null when the entry opens no menu.
  [[nodiscard]] virtual MenuHandle submenu() const = 0;
  /// The menu the entry is in; null when it is in none.
  [[nodiscard]] virtual MenuHandle menu() const = 0;
  /// For our own entries; nothing happens to the host's.
  virtual void setTitle(const std::string& title) = 0;
  virtual void setImage(SymbolImage image) = 0;
};

/// A menu of the host's. A handle whose menu is gone is empty and takes no entries. Main thread only.
class Menu {
public:
  virtual ~Menu() = default;
  [[nodiscard]] virtual bool isSame(const Menu& other) const = 0;
  [[nodiscard]] virtual std::vector<MenuItemHandle> items() const = 0;
  /// The menu in which an entry opens this one; null for a menu bar, a context menu or a pop-up's menu.
  [[nodiscard]] virtual MenuHandle supermenu() const = 0;
  /// Puts an entry of ours at `index`, at the end when the index is out of range. Null when the menu is gone.
  virtual MenuItemHandle insertItem(const MenuItemSpec& spec, int index) = 0;
  /// Only entries of ours are removed.
  virtual void removeItem(const MenuItem& item) = 0;
  /// -1 when it is not in this menu.
  [[nodiscard]] virtual int indexOfItem(const MenuItem& item) const = 0;
  /// Calls back each time the menu is about to open, before it is laid out, so that entries may be changed.
  [[nodiscard]] virtual Registration observeOpening(std::function<void()> handler) = 0;
};

} // namespace wayvane::platform
