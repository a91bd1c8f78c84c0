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

QWidget* QtMenuItem::menuWidget() const
{
  if (!action_) return nullptr;
  if (menu_ && menu_->actions().contains(action_)) return menu_;
  return firstMenuOf(*action_);
}

bool QtMenuItem::isSame(const platform::MenuItem& other) const
{
  return action_ && action_ == actionOf(other);
}

std::string QtMenuItem::title() const
{
  return action_ ? toUtf8(shownTitle(*action_)) : std::string();
}

bool QtMenuItem::isSeparator() const
{
  return action_ && action_->isSeparator();
}

std::optional<std::string> QtMenuItem::action() const
{
  if (!action_ || action_->isSeparator() || action_->menu()) return std::nullopt;
  const QString given = givenActionName(*action_);
  return toOptional(given.isEmpty() ? titlePath(*action_, menuWidget()) : given);
}

std::optional<std::string> QtMenuItem::toolTip() const
{
  return action_ ? toOptional(withoutMarkup(givenToolTip(*action_))) : std::nullopt;
}

SymbolImage QtMenuItem::image() const
{
  return action_ ? static_cast<SymbolImage>(action_->property(kSymbolProperty).toInt()) : SymbolImage::None;
}

platform::MenuHandle QtMenuItem::submenu() const
{
  return action_ ? menuForWidget(action_->menu<QMenu*>()) : nullptr;
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
  if (action_ && isOwnAction(*action_)) setShownTitle(*action_, title);
}

void QtMenuItem::setImage(SymbolImage image)
{
  if (action_ && isOwnAction(*action_)) setSymbol(*action_, image);
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

} // namespace wayvane::qt
