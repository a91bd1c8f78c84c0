#include <tests/conformance/qt/Place.h>
#include <tests/conformance/qt/QtStage.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <QTest>
#include <QTimer>
#include <QWindow>

#include <gtest/gtest.h>

namespace wayvane::conformance {

using platform::Point;
using platform::PopoverButton;
using platform::WindowHandle;

// The mouse

namespace {

bool takesPressAt(const QWindow& window, QPoint global)
{
  return window.isVisible() && window.geometry().contains(global) &&
         !window.flags().testFlag(Qt::WindowTransparentForInput);
}

/// The offscreen screen does not know which of its windows are in front.
QWindow* floatingWindowAt(QPoint global)
{
  QWindow* found = nullptr;
  for (QWindow* window : QGuiApplication::topLevelWindows()) {
    const bool floats = window->type() != Qt::Window && window->type() != Qt::Dialog;
    if (floats && takesPressAt(*window, global)) found = window;
  }
  return found;
}

} // namespace

QWindow* QtStage::windowAt(QPoint global) const
{
  if (QGuiApplication::platformName() != QLatin1String("offscreen"))
    return QGuiApplication::topLevelAt(global);
  if (QWindow* floating = floatingWindowAt(global)) return floating;
  for (auto window = windows_.rbegin(); window != windows_.rend(); ++window)
    if (*window && takesPressAt(*(*window)->windowHandle(), global)) return (*window)->windowHandle();
  return nullptr;
}

void QtStage::press(Point screenPoint)
{
  const QPoint global = globalPoint(screenPoint);
  QWindow* window = windowAt(global);
  if (!window) {
    ADD_FAILURE() << "no window there to press";
    return;
  }
  QTest::mouseClick(window, Qt::LeftButton, {}, window->mapFromGlobal(global));
  pass(0);
}

void QtStage::doublePress(Point screenPoint)
{
  // QTest's own double click gives both presses the same time stamp, which no mouse does.
  press(screenPoint);
  QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
  press(screenPoint);
}

void QtStage::drag(Point from, Point to)
{
  const QPoint start = globalPoint(from);
  QWindow* window = windowAt(start);
  if (!window) return;
  QTest::mousePress(window, Qt::LeftButton, {}, window->mapFromGlobal(start));
  QTest::mouseMove(window, window->mapFromGlobal(globalPoint(to)));
  QTest::mouseRelease(window, Qt::LeftButton, {}, window->mapFromGlobal(globalPoint(to)));
  pass(0);
}

void QtStage::moveMouse(Point screenPoint)
{
  const QPoint global = globalPoint(screenPoint);
  if (QWindow* window = windowAt(global)) QTest::mouseMove(window, window->mapFromGlobal(global));
  pass(0);
}

// Menus

namespace {

QMenu* menuNamed(const QList<QAction*>& actions, const std::string& title)
{
  for (QAction* action : actions)
    if (action->menu() && action->text() == caption(title)) return action->menu();
  return nullptr;
}

} // namespace

QMenuBar* QtStage::menuBarOfProgram() const
{
  for (auto window = windows_.rbegin(); window != windows_.rend(); ++window)
    if (*window) return (*window)->menuBar();
  return nullptr;
}

QMenu* QtStage::menuAt(const MenuPath& path) const
{
  QMenu* menu = nullptr;
  for (const std::string& title : path)
    menu = menuNamed(menu ? menu->actions() : menuBarOfProgram()->actions(), title);
  return menu;
}

void QtStage::addMenuEntry(const WindowHandle& window, const MenuPath& path, const std::string& action)
{
  QMenuBar* bar = qobject_cast<QMainWindow*>(widgetOf(window))->menuBar();
  QMenu* menu = nullptr;
  for (std::size_t level = 0; level + 1 < path.size(); ++level) {
    QMenu* next = menuNamed(menu ? menu->actions() : bar->actions(), path[level]);
    if (!next) next = menu ? menu->addMenu(caption(path[level])) : bar->addMenu(caption(path[level]));
    menu = next;
  }
  if (path.back() == "-") {
    menu->addSeparator();
  } else {
    menu->addAction(caption(path.back()))->setObjectName(QString::fromStdString(action));
  }
  if (path.front() == "Help")
    qApp->setProperty("wv_helpMenu", QVariant::fromValue<QObject*>(menuNamed(bar->actions(), "Help")));
  pass(0);
}

std::vector<std::string> QtStage::openMenu(const MenuPath& path)
{
  QMenu* menu = menuAt(path);
  menu->popup(QPoint(1000, 300));
  if (!QTest::qWaitForWindowExposed(menu)) ADD_FAILURE() << "a menu does not open";
  std::vector<std::string> titles;
  for (QAction* action : menu->actions()) {
    if (menu->actionGeometry(action).isEmpty()) continue;
    titles.push_back(action->isSeparator() ? "-" : action->text().remove(u'&').toStdString());
  }
  return titles;
}

void QtStage::closeMenus()
{
  while (QWidget* popup = QApplication::activePopupWidget())
    if (!popup->close()) break;
  pass(0);
}

void QtStage::chooseMenuEntry(const MenuPath& path)
{
  const MenuPath above(path.begin(), path.end() - 1);
  openMenu(above);
  QMenu* menu = menuAt(above);
  const QString entry = QString::fromStdString(path.back());
  for (QAction* action : menu->actions()) {
    if (action->text().remove(u'&') != entry) continue;
    QTest::mouseClick(menu->windowHandle(), Qt::LeftButton, {}, menu->actionGeometry(action).center());
    break;
  }
  closeMenus();
}

void QtStage::removeMenu(const MenuPath& path)
{
  delete menuAt(path);
}

// Panels of ours

namespace {

QAbstractButton* buttonNamed(const QWidget& window, const std::string& title)
{
  for (auto* button : window.findChildren<QAbstractButton*>())
    if (button->text().remove(u'&').toStdString() == title) return button;
  return nullptr;
}

void click(const QWidget& button)
{
  const QWidget* top = button.window();
  QTest::mouseClick(top->windowHandle(), Qt::LeftButton, {}, button.mapTo(top, button.rect().center()));
}

void typeInto(QWindow* window, const std::string& text)
{
  for (const char character : text)
    QTest::keyClick(window, character);
}

QMessageBox* shownAlert()
{
  auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
  return box && box->isVisible() ? box : nullptr;
}

void answer(QMessageBox& box, const Text& buttonTitle, const Text& fieldText)
{
  if (auto* field = box.findChild<QLineEdit*>(); field && fieldText) {
    if (!QTest::qWaitForWindowActive(&box)) ADD_FAILURE() << "an alert does not become active";
    field->clear();
    typeInto(box.windowHandle(), *fieldText);
  }
  if (!buttonTitle) {
    box.close();
  } else if (const auto* button = buttonNamed(box, *buttonTitle)) {
    click(*button);
  } else {
    ADD_FAILURE() << "the alert has no button " << *buttonTitle;
    box.close();
  }
}

} // namespace

void QtStage::answerNextAlert(const Text& buttonTitle, const Text& fieldText, std::function<void()> meanwhile)
{
  auto* poll = new QTimer(qApp);
  QObject::connect(poll, &QTimer::timeout, poll, [=] {
    if (!shownAlert()) return;
    poll->stop();
    poll->deleteLater();
    if (meanwhile) meanwhile();
    if (QMessageBox* box = shownAlert())
      answer(*box, buttonTitle, fieldText);
    else
      ADD_FAILURE() << "the alert ended before it was answered";
  });
  poll->start(5);
}

void QtStage::typeIntoPopover(platform::Popover& popover, const std::string& field, const std::string& text)
{
  QWidget* shown = widgetOf(popover.window());
  if (!QTest::qWaitForWindowActive(shown)) ADD_FAILURE() << "a popover does not get the keyboard";
  popover.focusField(field);
  pass(0);
  typeInto(QGuiApplication::focusWindow(), text);
  pass(0);
}

void QtStage::clickPopoverButton(platform::Popover& popover, const std::string& title)
{
  if (const auto* button = buttonNamed(*widgetOf(popover.window()), title))
    click(*button);
  else
    ADD_FAILURE() << "the popover has no button " << title;
  pass(0);
}

void QtStage::pressKeyInPopover(platform::Popover& popover, PopoverButton::Key key)
{
  if (!QTest::qWaitForWindowActive(widgetOf(popover.window())))
    ADD_FAILURE() << "a popover does not get the keyboard";
  QTest::keyClick(QGuiApplication::focusWindow(),
                  key == PopoverButton::Key::Return ? Qt::Key_Return : Qt::Key_Escape);
  pass(0);
}

namespace {

QAccessibleInterface* alertBelow(QAccessibleInterface* interface)
{
  if (!interface || interface->role() == QAccessible::AlertMessage) return interface;
  for (int i = 0; i < interface->childCount(); ++i)
    if (QAccessibleInterface* found = alertBelow(interface->child(i))) return found;
  return nullptr;
}

} // namespace

Text QtStage::spokenAlert(platform::OverlayPanel& overlay)
{
  pass(0);
  const auto* alert = alertBelow(QAccessible::queryAccessibleInterface(widgetOf(overlay.parentWindow())));
  if (!alert) return std::nullopt;
  QStringList texts;
  for (const auto kind : {QAccessible::Name, QAccessible::Description, QAccessible::Value})
    texts << alert->text(kind);
  return texts.join(u'\n').toStdString();
}

} // namespace wayvane::conformance
