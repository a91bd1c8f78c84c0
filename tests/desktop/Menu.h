#pragma once

#include <tests/desktop/Observers.h>
#include <tests/desktop/ViewOptions.h>
#include <wayvane/platform/Menu.h>

namespace wayvane::sim {

class Menu;

class MenuItem : public platform::MenuItem, public std::enable_shared_from_this<MenuItem> {
public:
  explicit MenuItem(platform::MenuItemSpec spec, bool ours);

  /// Called when the user chooses an entry of the host's.
  void setOnChosen(std::function<void()> handler) { spec_.onChosen = std::move(handler); }

  void setAction(std::string action) { spec_.action = std::move(action); }

  void setSubmenu(const std::shared_ptr<Menu>& submenu);

  [[nodiscard]] bool isOurs() const { return ours_; }

  [[nodiscard]] int timesChosen() const { return timesChosen_; }

  /// The entry is chosen; the desktop's `chooseItem` does the rest.
  void choose();

  [[nodiscard]] bool isSame(const platform::MenuItem& other) const override { return this == &other; }

  [[nodiscard]] std::string title() const override { return spec_.title; }

  [[nodiscard]] bool isSeparator() const override { return spec_.separator; }

  [[nodiscard]] Text action() const override;

  [[nodiscard]] Text toolTip() const override { return spec_.toolTip; }

  [[nodiscard]] platform::SymbolImage image() const override { return spec_.image; }

  [[nodiscard]] platform::MenuHandle submenu() const override;
  [[nodiscard]] platform::MenuHandle menu() const override;
  void setTitle(const std::string& title) override;
  void setImage(platform::SymbolImage image) override;

private:
  friend class Menu;
  void die();
  platform::MenuItemSpec spec_;
  bool ours_;
  bool alive_ = true;
  int timesChosen_ = 0;
  std::shared_ptr<Menu> submenu_;
  std::weak_ptr<Menu> menu_;
};

/// A menu, built by chaining: `desktop.mainMenu().menu("File").item("Open…", "openDocument:")`.
class Menu : public platform::Menu, public std::enable_shared_from_this<Menu> {
public:
  explicit Menu(std::string title = {});

  /// The submenu of that title, made at the end when there is none.
  Menu& menu(const std::string& title);
  /// Adds an entry of the host's at the end.
  MenuItem& item(const std::string& title, const std::string& action = {},
                 std::function<void()> onChosen = {});
  MenuItem& separator();
  /// The entry of that title, here or in a submenu; null when there is none.
  MenuItem* find(const std::string& title);
  [[nodiscard]] std::vector<std::string> titles() const;

  [[nodiscard]] const std::string& title() const { return title_; }

  /// Ends the menu: it is empty from now on and takes no entries.
  void destroy();
  void removeHostItem(const MenuItem& item);

  /// Tells those who observe opening.
  void willOpen() const { opening_.notify(); }

  [[nodiscard]] std::shared_ptr<Menu> self() { return shared_from_this(); }

  [[nodiscard]] bool isSame(const platform::Menu& other) const override { return this == &other; }

  [[nodiscard]] std::vector<platform::MenuItemHandle> items() const override;
  [[nodiscard]] platform::MenuHandle supermenu() const override;
  platform::MenuItemHandle insertItem(const platform::MenuItemSpec& spec, int index) override;
  void removeItem(const platform::MenuItem& item) override;
  [[nodiscard]] int indexOfItem(const platform::MenuItem& item) const override;
  [[nodiscard]] platform::Registration observeOpening(std::function<void()> handler) override;

private:
  friend class MenuItem;
  MenuItem& append(platform::MenuItemSpec spec);
  std::string title_;
  bool alive_ = true;
  std::vector<std::shared_ptr<MenuItem>> items_;
  std::weak_ptr<Menu> supermenu_;
  Observers<void()> opening_;
};

} // namespace wayvane::sim
