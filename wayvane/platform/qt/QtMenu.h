#pragma once

#include <wayvane/platform/Menu.h>

#include <QPointer>
#include <QWidget>

class QAction;

namespace wayvane::qt {

/// A QMenu or QMenuBar.
class QtMenu : public platform::Menu {
public:
  explicit QtMenu(QWidget* menu);

  [[nodiscard]] QWidget* widget() const { return menu_; }

  [[nodiscard]] bool isSame(const platform::Menu& other) const override;
  [[nodiscard]] std::vector<platform::MenuItemHandle> items() const override;
  [[nodiscard]] platform::MenuHandle supermenu() const override;
  platform::MenuItemHandle insertItem(const platform::MenuItemSpec& spec, int index) override;
  void removeItem(const platform::MenuItem& item) override;
  [[nodiscard]] int indexOfItem(const platform::MenuItem& item) const override;
  /// A menu bar is always open: it never calls back.
  [[nodiscard]] platform::Registration observeOpening(std::function<void()> handler) override;

private:
  QPointer<QWidget> menu_;
};

/// A handle to a QMenu or QMenuBar; null for anything else.
[[nodiscard]] platform::MenuHandle menuForWidget(QWidget* menu);
/// The QMenu or QMenuBar behind a menu of this binding; null for another's, or when it is gone.
[[nodiscard]] QWidget* widgetOf(const platform::Menu& menu);

} // namespace wayvane::qt
