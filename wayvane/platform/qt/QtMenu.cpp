#include <wayvane/platform/qt/QtGuard.h>
#include <wayvane/platform/qt/QtMenu.h>
#include <wayvane/platform/qt/QtMenuItem.h>

#include <QMenu>
#include <QMenuBar>

namespace wayvane::qt {

QtMenu::QtMenu(QWidget* menu)
  : menu_(menu)
{}

bool QtMenu::isSame(const platform::Menu& other) const
{
  return menu_ && menu_ == widgetOf(other);
}

std::vector<platform::MenuItemHandle> QtMenu::items() const
{
  std::vector<platform::MenuItemHandle> items;
  if (!menu_) return items;
  for (QAction* action : menu_->actions())
    items.push_back(menuItemForAction(action, menu_));
  return items;
}

platform::MenuHandle QtMenu::supermenu() const
{
  return menu_ ? menuForWidget(menuAbove(*menu_)) : nullptr;
}

platform::MenuItemHandle QtMenu::insertItem(const platform::MenuItemSpec& spec, int index)
{
  if (!menu_) return nullptr;
  QAction* action = makeOwnAction(spec, menu_);
  const QList<QAction*> present = menu_->actions();
  const bool isInRange = index >= 0 && index < present.size();
  menu_->insertAction(isInRange ? present[index] : nullptr, action);
  return menuItemForAction(action, menu_);
}

void QtMenu::removeItem(const platform::MenuItem& item)
{
  QAction* action = actionOf(item);
  if (!menu_ || !action || !isOwnAction(*action) || !menu_->actions().contains(action)) return;
  menu_->removeAction(action);
  disposeOwnAction(*action);
}

int QtMenu::indexOfItem(const platform::MenuItem& item) const
{
  QAction* action = actionOf(item);
  return menu_ && action ? static_cast<int>(menu_->actions().indexOf(action)) : -1;
}

platform::Registration QtMenu::observeOpening(std::function<void()> handler)
{
  auto* menu = qobject_cast<QMenu*>(menu_);
  if (!menu || !handler) return {};
  const auto connection = QObject::connect(menu, &QMenu::aboutToShow, menu, [handler = std::move(handler)] {
    // A copy outlives the connection, which the handler may end.
    const auto call = handler;
    guarded("menu about to open", call);
  });
  return platform::Registration([connection] { QObject::disconnect(connection); });
}

platform::MenuHandle menuForWidget(QWidget* menu)
{
  const bool isMenu = qobject_cast<QMenu*>(menu) || qobject_cast<QMenuBar*>(menu);
  return isMenu ? std::make_shared<QtMenu>(menu) : nullptr;
}

QWidget* widgetOf(const platform::Menu& menu)
{
  const auto* mine = dynamic_cast<const QtMenu*>(&menu);
  return mine ? mine->widget() : nullptr;
}

} // namespace wayvane::qt
