#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtActions.h>
#include <wayvane/platform/qt/QtGuard.h>
#include <wayvane/platform/qt/QtMenu.h>
#include <wayvane/platform/qt/QtMenuItem.h>
#include <wayvane/platform/qt/QtSymbols.h>

#include <QMenu>
#include <QMenuBar>

namespace wayvane::qt {

using platform::SymbolImage;

namespace {

/// Menus nest a few levels deep; a program that puts one into itself is not followed for ever.
constexpr int kDeepestMenu = 32;

const char* const kSymbolProperty = "wv_symbol";
const char* const kOwnProperty = "wv_own";
const char* const kActionProperty = "wv_action";
const char* const kDisposedProperty = "wv_disposed";

QString shownTitle(const QAction& action)
{
  const QString text = action.text();
  return withoutMnemonic(text.left(text.indexOf(u'\t')));
}

bool isMenuWidget(const QObject* object)
{
  return qobject_cast<const QMenu*>(object) || qobject_cast<const QMenuBar*>(object);
}

/// The first menu that holds the action.
QWidget* firstMenuOf(const QAction& action)
{
  for (QObject* object : action.associatedObjects())
    if (isMenuWidget(object)) return static_cast<QWidget*>(object);
  return nullptr;
}

QString titlePath(const QAction& action, const QWidget* menu)
{
  QStringList titles{shownTitle(action)};
  for (int depth = 0; menu && depth < kDeepestMenu; ++depth) {
    const auto* opened = qobject_cast<const QMenu*>(menu);
    if (!opened) break;
    titles.prepend(shownTitle(*opened->menuAction()));
    menu = menuAbove(*menu);
  }
  titles.removeAll(QString());
  return titles.join(QStringLiteral(" > "));
}

} // namespace

QtMenuItem::QtMenuItem(QAction* action, QWidget* menu)
  : action_(action)
  , menu_(menu)
{}

QAction* QtMenuItem::qAction() const
{
  return action_ && !action_->property(kDisposedProperty).toBool() ? action_.data() : nullptr;
}

QWidget* QtMenuItem::menuWidget() const
{
  const QAction* a = qAction();
  if (!a) return nullptr;
  return menu_ && menu_->actions().contains(a) ? menu_.data() : firstMenuOf(*a);
}

bool QtMenuItem::isSame(const platform::MenuItem& other) const
{
  const QAction* a = qAction();
  return a && a == actionOf(other);
}

std::string QtMenuItem::title() const
{
  const QAction* a = qAction();
  return a ? toUtf8(shownTitle(*a)) : std::string();
}

bool QtMenuItem::isSeparator() const
{
  const QAction* a = qAction();
  return a && a->isSeparator();
}

std::optional<std::string> QtMenuItem::action() const
{
  const QAction* a = qAction();
  if (!a || a->isSeparator() || a->menu<QMenu*>()) return std::nullopt;
  const QString given = givenActionName(*a);
  return toOptional(given.isEmpty() ? titlePath(*a, menuWidget()) : given);
}

std::optional<std::string> QtMenuItem::toolTip() const
{
  const QAction* a = qAction();
  return a ? toOptional(withoutMarkup(givenToolTip(*a))) : std::nullopt;
}

SymbolImage QtMenuItem::image() const
{
  const QAction* a = qAction();
  return a ? static_cast<SymbolImage>(a->property(kSymbolProperty).toInt()) : SymbolImage::None;
}

platform::MenuHandle QtMenuItem::submenu() const
{
  const QAction* a = qAction();
  return a ? menuForWidget(a->menu<QMenu*>()) : nullptr;
}

platform::MenuHandle QtMenuItem::menu() const
{
  return menuForWidget(menuWidget());
}

namespace {

void setShownTitle(QAction& action, const std::string& title)
{
  action.setText(toQString(title).replace(u'&', QStringLiteral("&&")));
}

void setSymbol(QAction& action, SymbolImage symbol)
{
  action.setProperty(kSymbolProperty, static_cast<int>(symbol));
  action.setIcon(symbolIcon(symbol));
  action.setIconVisibleInMenu(true);
}

} // namespace

void QtMenuItem::setTitle(const std::string& title)
{
  QAction* a = qAction();
  if (a && isOwnAction(*a)) setShownTitle(*a, title);
}

void QtMenuItem::setImage(SymbolImage image)
{
  QAction* a = qAction();
  if (a && isOwnAction(*a)) setSymbol(*a, image);
}

platform::MenuItemHandle menuItemForAction(QAction* action, QWidget* menu)
{
  return action ? std::make_shared<QtMenuItem>(action, menu) : nullptr;
}

QAction* actionOf(const platform::MenuItem& item)
{
  const auto* mine = dynamic_cast<const QtMenuItem*>(&item);
  return mine ? mine->qAction() : nullptr;
}

QWidget* menuAbove(const QWidget& menu)
{
  const auto* opened = qobject_cast<const QMenu*>(&menu);
  return opened ? firstMenuOf(*opened->menuAction()) : nullptr;
}

QAction* makeOwnAction(const platform::MenuItemSpec& spec, QObject* parent)
{
  auto* action = new QAction(parent);
  action->setProperty(kOwnProperty, true);
  // Otherwise a Mac moves what it takes for "About" or "Preferences" into the application menu.
  action->setMenuRole(QAction::NoRole);
  action->setSeparator(spec.separator);
  if (spec.separator) return action;
  setShownTitle(*action, spec.title);
  if (spec.toolTip) action->setToolTip(toQString(*spec.toolTip));
  if (spec.image != SymbolImage::None) setSymbol(*action, spec.image);
  action->setProperty(kActionProperty, toQString(spec.action));
  if (spec.onChosen)
    QObject::connect(action, &QAction::triggered, action, [chosen = spec.onChosen] {
      const auto call = chosen;
      guarded("menu command", call);
    });
  return action;
}

bool isOwnAction(const QAction& action)
{
  return action.property(kOwnProperty).toBool();
}

void disposeOwnAction(QAction& action)
{
  action.setProperty(kDisposedProperty, true);
  action.deleteLater();
}

} // namespace wayvane::qt
