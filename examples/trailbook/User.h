#pragma once

#include <QImage>
#include <QObject>
#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>

#include <functional>

class QAbstractButton;
class QDialog;
class QLineEdit;
class QMenu;
class QWidget;

namespace trailbook {

/// Somebody at the mouse and the keyboard: every act is a real event to a window, never a call of a widget.
class User : public QObject {
  Q_OBJECT
public:
  /// `window` is the one whose menu bar is used; it must outlive the user.
  explicit User(QWidget& window);

  /// Lets the program run until the condition holds; false when it does not in time.
  static bool waitUntil(const std::function<bool()>& condition, int milliseconds = 5000);
  static void wait(int milliseconds);

  static void click(QWidget& widget);
  static void click(QWidget& widget, QPoint at);
  static void hover(QWidget& widget);
  static void hover(QWidget& widget, QPoint at);
  /// Types into whatever has the keyboard in the widget's window.
  static void type(QWidget& window, const QString& text);
  static void press(QWidget& window, Qt::Key key);

  /// Opens a menu of the menu bar by its title without mnemonic; null when there is none.
  QMenu* openMenu(const QString& title);
  /// Opens the menu and clicks the entry. False, with the menu closed, when there is no such entry.
  bool choose(const QString& menuTitle, const QString& itemTitle);
  /// Clicks the entry of the menu that is open. False, with the menu closed, when there is no such entry.
  bool chooseFromOpenMenu(const QString& itemTitle);

  /// The visible push button of that title in any window; null when there is none.
  static QAbstractButton* button(const QString& title);
  /// The visible field of that object name in any window; null when there is none.
  static QLineEdit* field(const QString& name);
  /// Waits for a modal dialog, once, and hands it over. To be called before the act that brings it up.
  void whenDialogAppears(std::function<void(QDialog&)> handler);

  /// What the screen shows of the program: all its windows where they lie, or the part of them in `area`
  /// (global coordinates).
  [[nodiscard]] QImage picture(QRect area = {}) const;

private:
  QWidget& window_;
};

} // namespace trailbook
