#include "Presses.h"
#include "RoundTrip.h"

#include <wayvane/manager/WVGuideManager.h>
#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtPlatform.h>
#include <wayvane/qt/Wayvane.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QMouseEvent>
#include <QStringList>
#include <QTabBar>
#include <QThread>
#include <QTimer>
#include <QWidget>

#include <cstdio>

/// Loaded into a program before it starts. Once the program's event loop runs and its windows have settled,
/// it follows the commands in WAYVANE_ROUNDTRIP, one a line, and writes what it finds to the file
/// WAYVANE_ROUNDTRIP_REPORT, one JSON object a line. Each walk leaves a guide of its name in the folder
/// WAYVANE_ROUNDTRIP_GUIDES; with WAYVANE_ROUNDTRIP_REPLAY set it only follows the guide that is there.
///
///     install         lets Wayvane into the program, as the program itself would
///     translate NAME  takes the translations of titles from the program's tables of that name
///     press CAPTION   presses the visible button with that caption, or of that name
///     choose CAPTION  chooses the menu command with that caption, or of that name
///     tab CAPTION     shows the visible tab with that caption
///     hover TITLE     moves the pointer to the upper edge of the window with that in its title
///     close TITLE     closes the window of that title
///     walk NAME       tries all elements that can be reached now
///     quit            ends the program
namespace roundtrip {

namespace {

constexpr int kTick = 40;
constexpr int kTicksOfRest = 4;

bool isNamed(const QString& caption, const QObject& object, const QString& name)
{
  return object.objectName() == name || wayvane::qt::withoutMnemonic(caption) == name;
}

QAbstractButton* buttonNamed(const QString& name)
{
  for (QWidget* widget : QApplication::allWidgets()) {
    auto* button = qobject_cast<QAbstractButton*>(widget);
    const bool canBePressed = button && button->isVisible() && button->isEnabled() && takesInput(*button);
    if (canBePressed && isNamed(button->text(), *button, name)) return button;
  }
  return nullptr;
}

QAction* commandNamed(const QString& name)
{
  for (const QWidget* widget : QApplication::allWidgets())
    for (QAction* action : widget->actions())
      if (action->isEnabled() && isNamed(action->text(), *action, name)) return action;
  return nullptr;
}

/// What could have been meant, for whoever reads of a command that failed.
QStringList captions()
{
  QStringList found;
  for (const QWidget* widget : QApplication::allWidgets()) {
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget); button && button->isVisible())
      found << button->text();
    for (const QAction* action : widget->actions())
      found << action->text();
  }
  found.removeDuplicates();
  return found;
}

class Probe : public QObject {
public:
  Probe(const QString& commands, const QString& report)
    : commands_(commands.split(u'\n', Qt::SkipEmptyParts))
    , report_(report)
  {
    if (!report_.open(QIODevice::WriteOnly)) qFatal("the report cannot be written");
    schedule();
  }

private:
  // A command may open a dialog and return only when it is closed, so the next tick is arranged before.
  void schedule()
  {
    QTimer::singleShot(kTick, this, [this] { tick(); });
  }

  void tick()
  {
    schedule();
    if (QThread::currentThread()->loopLevel() == 0 || !isAtRest() || commands_.isEmpty()) return;
    rest_ = 0;
    const QString command = commands_.takeFirst();
    if (!follow(command.section(u' ', 0, 0), command.section(u' ', 1)))
      write({{"failed", command}, {"visible", QJsonArray::fromStringList(captions())}});
  }

  bool isAtRest()
  {
    qsizetype visible = 0;
    for (const QWidget* widget : QApplication::allWidgets())
      visible += widget->isVisible() ? 1 : 0;
    rest_ = visible > 0 && visible == visible_ ? rest_ + 1 : 0;
    visible_ = visible;
    return rest_ >= kTicksOfRest;
  }

  bool follow(const QString& verb, const QString& name)
  {
    if (verb == "install") return wayvane::qt::install();
    if (verb == "translate") return translate(name);
    if (verb == "press") return press(name);
    if (verb == "choose") return choose(name);
    if (verb == "tab") return showTab(name);
    if (verb == "hover") return hover(name);
    if (verb == "close") return close(name);
    if (verb == "walk") return walk(name);
    if (verb != "quit") return false;
    write({{"finished", true}});
    report_.close();
    // Without the questions that a program may ask at its end.
    std::_Exit(0);
  }

  static bool press(const QString& name)
  {
    QAbstractButton* const button = buttonNamed(name);
    if (button) button->click();
    return button != nullptr;
  }

  static bool choose(const QString& name)
  {
    QAction* const action = commandNamed(name);
    if (action) action->trigger();
    return action != nullptr;
  }

  static bool showTab(const QString& name)
  {
    for (QWidget* widget : QApplication::allWidgets()) {
      auto* bar = qobject_cast<QTabBar*>(widget);
      if (!bar || !bar->isVisible() || !takesInput(*bar)) continue;
      for (int i = 0; i < bar->count(); ++i) {
        if (wayvane::qt::withoutMnemonic(bar->tabText(i)) != name) continue;
        bar->setCurrentIndex(i);
        return true;
      }
    }
    return false;
  }

  static bool close(const QString& title)
  {
    for (QWidget* window : QApplication::topLevelWidgets())
      if (window->isVisible() && window->windowTitle() == title) return window->close();
    return false;
  }

  static bool hover(const QString& title)
  {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (!window->isVisible() || !window->windowTitle().contains(title)) continue;
      const QPoint point(window->width() / 2, 1);
      QWidget* const child = window->childAt(point);
      QWidget& below = child ? *child : *window;
      const QPointF local = below.mapFrom(window, QPointF(point));
      QMouseEvent move(QEvent::MouseMove, local, below.mapToGlobal(local), Qt::NoButton, Qt::NoButton,
                       Qt::NoModifier);
      QCoreApplication::sendEvent(&below, &move);
      return true;
    }
    return false;
  }

  static bool translate(const QString& name)
  {
    if (!wayvane::qt::installPlatform()) return false;
    wayvane::WVGuideManager::sharedManager().setStringsFileNames({name.toStdString()});
    return true;
  }

  bool walk(const QString& name)
  {
    if (!wayvane::qt::installPlatform()) return false;
    const QString folder = qEnvironmentVariable("WAYVANE_ROUNDTRIP_GUIDES");
    const std::string guide = (folder + '/' + name + ".wayvane").toStdString();
    const auto reports =
        qEnvironmentVariableIsSet("WAYVANE_ROUNDTRIP_REPLAY") ? replay(guide) : roundTrip(guide);
    for (qsizetype step = 0; step < reports.size(); ++step) {
      QJsonObject report = reports[step];
      report["walk"] = name;
      report["step"] = step;
      write(report);
    }
    return true;
  }

  void write(const QJsonObject& object)
  {
    report_.write(QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n');
    report_.flush();
  }

  QStringList commands_;
  QFile report_;
  qsizetype visible_ = 0;
  int rest_ = 0;
};

void start()
{
  // The programs that this one starts are none of ours.
  qunsetenv("LD_PRELOAD");
  const QString report = qEnvironmentVariable("WAYVANE_ROUNDTRIP_REPORT");
  if (!report.isEmpty()) new Probe(qEnvironmentVariable("WAYVANE_ROUNDTRIP"), report);
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(start)

} // namespace roundtrip
