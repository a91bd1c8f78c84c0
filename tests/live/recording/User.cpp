#include "User.h"

#include <QAction>
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QTest>
#include <QWindow>

namespace wayvane::qt::test {

bool waitUntil(const std::function<bool()>& condition, int milliseconds)
{
  return QTest::qWaitFor(condition, milliseconds);
}

void wait(int milliseconds)
{
  QTest::qWait(milliseconds);
}

namespace {

/// Where a press at a point of the widget goes: its own native window, or the one around it.
QWindow* windowBehind(const QWidget& widget)
{
  const QWidget* const native = widget.windowHandle() ? &widget : widget.nativeParentWidget();
  return native ? native->windowHandle() : nullptr;
}

QPoint inWindow(const QWidget& widget, QPoint at)
{
  return windowBehind(widget)->mapFromGlobal(widget.mapToGlobal(at));
}

/// The button comes up over whatever the press has left there.
void releaseAt(const QPointer<QWindow>& window, QPoint global, Qt::MouseButton button)
{
  QWindow* const under = window ? window.data() : QGuiApplication::topLevelAt(global);
  if (under) QTest::mouseRelease(under, button, {}, under->mapFromGlobal(global));
}

} // namespace

void click(QWidget& widget, QPoint at, Qt::MouseButton button)
{
  const QPointer<QWindow> window = windowBehind(widget);
  if (!window) return;
  const QPoint global = widget.mapToGlobal(at);
  QTest::mousePress(window, button, {}, inWindow(widget, at));
  releaseAt(window, global, button);
}

void click(QWidget& widget)
{
  click(widget, widget.rect().center());
}

void doubleClick(QWidget& widget, QPoint at, int pause)
{
  const QPointer<QWindow> window = windowBehind(widget);
  if (!window) return;
  const QPoint global = widget.mapToGlobal(at);
  click(widget, at);
  if (pause > 0) wait(pause);
  QWindow* const under = window ? window.data() : QGuiApplication::topLevelAt(global);
  if (!under) return;
  // QTest lets time pass after a release, so that no double click comes about by accident.
  QTest::lastMouseTimestamp -= QTest::mouseDoubleClickInterval;
  const QPointer<QWindow> stillThere = under;
  QTest::mousePress(under, Qt::LeftButton, {}, under->mapFromGlobal(global));
  releaseAt(stillThere, global, Qt::LeftButton);
}

void drag(QWidget& widget, QPoint from, QPoint to)
{
  const QPointer<QWindow> window = windowBehind(widget);
  if (!window) return;
  const QPoint start = widget.mapToGlobal(from);
  const QPoint end = widget.mapToGlobal(to);
  QTest::mousePress(window, Qt::LeftButton, {}, window->mapFromGlobal(start));
  constexpr int kSteps = 5;
  for (int step = 1; step <= kSteps && window; ++step)
    QTest::mouseMove(window, window->mapFromGlobal(start + (end - start) * step / kSteps));
  releaseAt(window, end, Qt::LeftButton);
}

void tap(QWidget& widget)
{
  static QPointingDevice* const screen = QTest::createTouchDevice();
  const QPointer<QWindow> window = windowBehind(widget);
  if (!window) return;
  const QPoint global = widget.mapToGlobal(widget.rect().center());
  QTest::touchEvent(window, screen).press(0, window->mapFromGlobal(global), window);
  // A touch belongs to the window where it began.
  if (window) QTest::touchEvent(window, screen).release(0, window->mapFromGlobal(global), window);
}

void hover(QWidget& widget, QPoint at)
{
  if (QWindow* const window = windowBehind(widget)) QTest::mouseMove(window, inWindow(widget, at));
}

void hover(QWidget& widget)
{
  hover(widget, widget.rect().center());
}

void type(QWidget& window, const QString& text)
{
  const QPointer<QWindow> native = window.window()->windowHandle();
  for (const QChar letter : text)
    if (native) QTest::sendKeyEvent(QTest::Click, native, Qt::Key_unknown, letter, Qt::NoModifier);
}

void press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
  const QPointer<QWindow> native = window.window()->windowHandle();
  if (native) QTest::keyPress(native, key, modifiers);
  if (native) QTest::keyRelease(native, key, modifiers);
}

QMenu* openMenu(QWidget& mainWindow, const QString& title)
{
  QMenuBar* const bar = qobject_cast<QMainWindow*>(&mainWindow)->menuBar();
  for (QAction* const action : bar->actions())
    if (action->text() == title && action->menu()) {
      click(*bar, bar->actionGeometry(action).center());
      QMenu* const menu = action->menu();
      return waitUntil([menu] { return menu->isVisible(); }) ? menu : nullptr;
    }
  return nullptr;
}

void choose(QMenu& menu, const QString& title)
{
  for (QAction* const action : menu.actions())
    if (action->text() == title) {
      const QPoint at = menu.actionGeometry(action).center();
      // A menu ignores a release where it was opened, so the pointer moves first.
      hover(menu, at + QPoint(8, 1));
      hover(menu, at);
      click(menu, at);
      return;
    }
}

namespace {

QWidget* visibleWindowNamed(QLatin1String name, const std::function<bool(QWidget&)>& fits)
{
  for (QWidget* const window : QApplication::topLevelWidgets())
    if (window->isVisible() && window->objectName() == name && fits(*window)) return window;
  return nullptr;
}

QPushButton* buttonIn(const QWidget& window, const QString& title)
{
  for (QPushButton* const button : window.findChildren<QPushButton*>())
    if (button->text() == title) return button;
  return nullptr;
}

} // namespace

QWidget* popover()
{
  return visibleWindowNamed(QLatin1String("wv_popover"), [](QWidget&) { return true; });
}

QWidget* panelButton(const QString& title)
{
  QWidget* const panel = visibleWindowNamed(QLatin1String("wv_panel"), [&title](const QWidget& window) {
    return buttonIn(window, title) != nullptr;
  });
  return panel ? buttonIn(*panel, title) : nullptr;
}

} // namespace wayvane::qt::test
