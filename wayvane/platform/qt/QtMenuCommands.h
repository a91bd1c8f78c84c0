#pragma once

#include <wayvane/platform/Menu.h>

#include <QObject>
#include <QPointer>

#include <functional>

class QAction;
class QMenu;

namespace wayvane::qt {

/// Finds out which menu commands the user chooses. A choice is foreseen from the event that makes it and kept
/// as it then looks, because the command may change, or take down, the very menu; it is reported when the
/// command has run, or as soon as it turns out to run an event loop of its own.
class QtMenuCommands final : public QObject {
public:
  using Report = std::function<void(const platform::MenuItemHandle&)>;

  explicit QtMenuCommands(Report report);

  /// To be called with every event before the program gets it.
  void foresee(QObject* receiver, QEvent* event);

private:
  struct Choice;

  [[nodiscard]] static QAction* actionChosenBy(QMenu& menu, QEvent& event);
  [[nodiscard]] static bool isCommand(const QAction& action);
  void expect(QAction& action, QWidget* menu);
  void settle(const std::shared_ptr<Choice>& choice, bool isChosen);
  void settleLater(const std::shared_ptr<Choice>& choice);

  Report report_;
};

} // namespace wayvane::qt
