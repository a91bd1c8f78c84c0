#pragma once

#include <QPoint>
#include <QPointer>
#include <QString>

#include <functional>

class QMenu;
class QWidget;
class QWindow;

/// Somebody at the mouse and the keyboard: every act is an event of the windowing system.
namespace wayvane::qt::test {

bool waitUntil(const std::function<bool()>& condition, int milliseconds = 3000);
void wait(int milliseconds);

/// A press and its release; the release goes to what is there by then.
void click(QWidget& widget, QPoint at, Qt::MouseButton button = Qt::LeftButton);
void click(QWidget& widget);
/// `pause` is between the two clicks, in milliseconds.
void doubleClick(QWidget& widget, QPoint at, int pause = 0);
/// Presses at one place, moves in steps, and releases at the other.
void drag(QWidget& widget, QPoint from, QPoint to);
/// A finger on a touch screen, whose touch the toolkit makes a click of.
void tap(QWidget& widget);
void hover(QWidget& widget);
void hover(QWidget& widget, QPoint at);

/// Types into what has the keyboard in the widget's window.
void type(QWidget& window, const QString& text);
void press(QWidget& window, Qt::Key key, Qt::KeyboardModifiers modifiers = {});

/// Opens a menu of the window's menu bar with the mouse; null when there is none.
QMenu* openMenu(QWidget& mainWindow, const QString& title);
/// Clicks an entry of an open menu.
void choose(QMenu& menu, const QString& title);

/// The annotation that is open; null when none is.
QWidget* popover();
/// The button of that title in one of the framework's panels; null when there is none.
QWidget* panelButton(const QString& title);

} // namespace wayvane::qt::test
