#include <wayvane/platform/qt/QtChosenItem.h>
#include <wayvane/platform/qt/QtGuard.h>
#include <wayvane/platform/qt/QtMenuCommands.h>
#include <wayvane/platform/qt/QtMenuItem.h>

#include <QAction>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QShortcutEvent>
#include <QThread>

#include <memory>

namespace wayvane::qt {

/// A command that is about to be chosen.
struct QtMenuCommands::Choice {
  platform::MenuItemHandle item;
  QPointer<QAction> action;
  QMetaObject::Connection triggered;
  /// How many event loops ran in each other when the choice was made.
  int loopLevel = 0;
  bool isSettled = false;
};

QtMenuCommands::QtMenuCommands(Report report)
  : report_(std::move(report))
{}

bool QtMenuCommands::isCommand(const QAction& action)
{
  return !action.isSeparator() && action.isEnabled() && !action.menu<QMenu*>();
}

QAction* QtMenuCommands::actionChosenBy(QMenu& menu, QEvent& event)
{
  if (event.type() == QEvent::MouseButtonRelease)
    return menu.actionAt(static_cast<QMouseEvent&>(event).position().toPoint());
  const auto& key = static_cast<QKeyEvent&>(event);
  if (key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter || key.key() == Qt::Key_Space)
    return menu.activeAction();
  if (key.text().size() != 1 || !key.text().at(0).isPrint()) return nullptr;
  for (QAction* action : menu.actions()) {
    const QKeySequence mnemonic = QKeySequence::mnemonic(action->text());
    if (isCommand(*action) && !mnemonic.isEmpty() &&
        mnemonic == QKeySequence::mnemonic(u'&' + key.text().toUpper()))
      return action;
  }
  return nullptr;
}

void QtMenuCommands::foresee(QObject* receiver, QEvent* event)
{
  if (event->type() == QEvent::Shortcut) {
    auto* action = qobject_cast<QAction*>(receiver);
    if (action && !static_cast<QShortcutEvent*>(event)->isAmbiguous()) expect(*action, nullptr);
    return;
  }
  if (event->type() != QEvent::MouseButtonRelease && event->type() != QEvent::KeyPress) return;
  auto* menu = qobject_cast<QMenu*>(receiver);
  QAction* action = menu ? actionChosenBy(*menu, *event) : nullptr;
  if (action) expect(*action, menu);
}

void QtMenuCommands::expect(QAction& action, QWidget* menu)
{
  if (!isCommand(action)) return;
  const platform::MenuItemHandle item = menuItemForAction(&action, menu);
  if (!item || !item->menu()) return;
  const auto choice = std::make_shared<Choice>();
  choice->item = chosenItem(item);
  choice->action = &action;
  choice->loopLevel = QThread::currentThread()->loopLevel();
  choice->triggered = connect(&action, &QAction::triggered, this, [this, choice] { settle(choice, true); });
  settleLater(choice);
}

void QtMenuCommands::settleLater(const std::shared_ptr<Choice>& choice)
{
  QMetaObject::invokeMethod(
      this,
      [this, choice] {
        // The command runs a dialog, or took its own action down. Otherwise the event chose nothing.
        const bool runsOn = QThread::currentThread()->loopLevel() > choice->loopLevel;
        settle(choice, runsOn || !choice->action);
      },
      Qt::QueuedConnection);
}

void QtMenuCommands::settle(const std::shared_ptr<Choice>& choice, bool isChosen)
{
  if (std::exchange(choice->isSettled, true)) return;
  disconnect(choice->triggered);
  if (isChosen) guarded("menu command", report_, choice->item);
}

} // namespace wayvane::qt
