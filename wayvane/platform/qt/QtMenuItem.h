#pragma once

#include <wayvane/platform/Menu.h>

#include <QAction>
#include <QPointer>

class QWidget;

namespace wayvane::qt {

/// An action as an entry of a menu. An action can be in several menus; the entry remembers the one in which
/// it was found, and otherwise belongs to the first.
class QtMenuItem : public platform::MenuItem {
public:
  explicit QtMenuItem(QAction* action, QWidget* menu = nullptr);

  /// Null when it is gone, or was taken out of its menu by us and is about to go.
  [[nodiscard]] QAction* qAction() const;

  /// Entries are the same when their actions are.
  [[nodiscard]] bool isSame(const platform::MenuItem& other) const override;
  [[nodiscard]] std::string title() const override;
  [[nodiscard]] bool isSeparator() const override;
  /// The property "wv_action", else the action's object name, else the titles that lead to it ("File >
  /// Save"). Nothing for separators and for entries that open a menu.
  [[nodiscard]] std::optional<std::string> action() const override;
  [[nodiscard]] std::optional<std::string> toolTip() const override;
  [[nodiscard]] platform::SymbolImage image() const override;
  [[nodiscard]] platform::MenuHandle submenu() const override;
  [[nodiscard]] platform::MenuHandle menu() const override;
  void setTitle(const std::string& title) override;
  void setImage(platform::SymbolImage image) override;

private:
  [[nodiscard]] QWidget* menuWidget() const;

  QPointer<QAction> action_;
  QPointer<QWidget> menu_;
};

/// A handle to the action as an entry of `menu`, or of the first menu it is in; null for null.
[[nodiscard]] platform::MenuItemHandle menuItemForAction(QAction* action, QWidget* menu = nullptr);
/// The action behind an entry of this binding; null for another's, or when it is gone.
[[nodiscard]] QAction* actionOf(const platform::MenuItem& item);
/// The menu bar or menu that opens `menu` through one of its entries; null when none does.
[[nodiscard]] QWidget* menuAbove(const QWidget& menu);
/// Makes an entry of ours, a child of `parent`.
[[nodiscard]] QAction* makeOwnAction(const platform::MenuItemSpec& spec, QObject* parent);
[[nodiscard]] bool isOwnAction(const QAction& action);
/// Deletes an entry of ours on a later turn, because it may be the very one whose command is being performed;
/// its handles answer nothing from now on.
void disposeOwnAction(QAction& action);

} // namespace wayvane::qt
