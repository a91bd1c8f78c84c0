#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtAlert.h>
#include <wayvane/platform/qt/QtAlertBox.h>

#include <QApplication>
#include <QPointer>
#include <QWindow>

namespace wayvane::qt {

namespace {

/// The window in the middle of which the alert appears.
QWidget* windowBelow()
{
  if (QWidget* modal = QApplication::activeModalWidget()) return modal;
  return QApplication::activeWindow();
}

void placeOver(QtAlertBox& box, QWidget* below)
{
  if (!below) return;
  box.winId();
  box.windowHandle()->setTransientParent(below->window()->windowHandle());
  box.adjustSize();
  const QPoint middle = below->mapToGlobal(below->rect().center());
  box.move(middle - QPoint(box.width() / 2, box.height() / 2));
}

} // namespace

platform::AlertAnswer runAlert(const platform::AlertSpec& spec)
{
  if (!qApp || QApplication::closingDown()) return {};
  const QPointer<QtAlertBox> box(new QtAlertBox(spec));
  const QPointer<QWidget> below = windowBelow();
  placeOver(*box, below);
  box->exec();
  // Without a window manager nobody else hands the keyboard back.
  if (below && !QApplication::activeWindow()) below->activateWindow();
  if (!box) return {};
  const platform::AlertAnswer answer = box->answer();
  delete box;
  return answer;
}

} // namespace wayvane::qt
