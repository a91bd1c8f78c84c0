#include "User.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPainter>
#include <QTest>
#include <QTimer>
#include <QWindow>

namespace trailbook {
namespace {

QString withoutMnemonic(QString title)
{
  return title.remove('&');
}

template <class Widget>
Widget* findVisible(const std::function<bool(const Widget&)>& matches)
{
  for (QWidget* const window : QApplication::topLevelWidgets()) {
    if (!window->isVisible()) continue;
    for (Widget* const widget : window->findChildren<Widget*>())
      if (widget->isVisible() && matches(*widget)) return widget;
  }
  return nullptr;
}

} // namespace

User::User(QWidget& window)
  : window_(window)
{}

bool User::waitUntil(const std::function<bool()>& condition, int milliseconds)
{
  return QTest::qWaitFor(condition, milliseconds);
}

void User::wait(int milliseconds)
{
  QTest::qWait(milliseconds);
}

void User::click(QWidget& widget)
{
  click(widget, widget.rect().center());
}

void User::click(QWidget& widget, QPoint at)
{
  QWidget* const window = widget.window();
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, widget.mapTo(window, at));
}

void User::hover(QWidget& widget)
{
  hover(widget, widget.rect().center());
}

void User::hover(QWidget& widget, QPoint at)
{
  QWidget* const window = widget.window();
  QTest::mouseMove(window->windowHandle(), widget.mapTo(window, at));
}

void User::type(QWidget& window, const QString& text)
{
  for (const QChar letter : text)
    QTest::sendKeyEvent(QTest::Click, window.window()->windowHandle(), Qt::Key_unknown, letter,
                        Qt::NoModifier);
}

void User::press(QWidget& window, Qt::Key key)
{
  QTest::keyClick(window.window()->windowHandle(), key);
}

QMenu* User::openMenu(const QString& title)
{
  auto* const bar = qobject_cast<QMainWindow*>(&window_)->menuBar();
  for (QAction* const action : bar->actions())
    if (withoutMnemonic(action->text()) == title && action->menu()) {
      click(*bar, bar->actionGeometry(action).center());
      QMenu* const menu = action->menu();
      return waitUntil([menu] { return menu->isVisible(); }) ? menu : nullptr;
    }
  return nullptr;
}

bool User::choose(const QString& menuTitle, const QString& itemTitle)
{
  return openMenu(menuTitle) && chooseFromOpenMenu(itemTitle);
}

bool User::chooseFromOpenMenu(const QString& itemTitle)
{
  auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  if (!menu) return false;
  for (QAction* const action : menu->actions())
    if (withoutMnemonic(action->text()) == itemTitle) {
      QTest::mouseMove(menu->windowHandle(), menu->actionGeometry(action).center());
      click(*menu, menu->actionGeometry(action).center());
      return true;
    }
  menu->close();
  return false;
}

QAbstractButton* User::button(const QString& title)
{
  return findVisible<QAbstractButton>(
      [&title](const QAbstractButton& button) { return withoutMnemonic(button.text()) == title; });
}

QLineEdit* User::field(const QString& name)
{
  return findVisible<QLineEdit>([&name](const QLineEdit& field) { return field.objectName() == name; });
}

void User::whenDialogAppears(std::function<void(QDialog&)> handler)
{
  QTimer::singleShot(50, this, [this, handler = std::move(handler)]() mutable {
    auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    if (dialog && dialog->isVisible())
      handler(*dialog);
    else
      whenDialogAppears(std::move(handler));
  });
}

QImage User::picture(QRect area) const
{
  QList<QWidget*> others;
  QRect everything = window_.geometry();
  for (QWidget* const window : QApplication::topLevelWidgets())
    if (window->isVisible() && window != &window_) {
      others << window;
      everything |= window->geometry();
    }
  if (area.isEmpty()) area = everything.adjusted(-8, -8, 8, 8);
  const double ratio = window_.devicePixelRatioF();
  QImage image(area.size() * ratio, QImage::Format_ARGB32_Premultiplied);
  image.setDevicePixelRatio(ratio);
  image.fill(QColor(0x70, 0x78, 0x80));
  QPainter painter(&image);
  painter.drawPixmap(window_.geometry().topLeft() - area.topLeft(), window_.grab());
  for (QWidget* const window : others) {
    QImage layer(window->size() * ratio, QImage::Format_ARGB32_Premultiplied);
    layer.setDevicePixelRatio(ratio);
    layer.fill(Qt::transparent);
    window->render(&layer, QPoint(), QRegion(), QWidget::DrawWindowBackground | QWidget::DrawChildren);
    painter.drawImage(window->geometry().topLeft() - area.topLeft(), layer);
  }
  return image;
}

} // namespace trailbook
