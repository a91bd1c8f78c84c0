#include <wayvane/platform/qt/QtView.h>
#include <wayvane/platform/qt/QtWindowOrder.h>

#include <QApplication>
#include <QEvent>
#include <QWindow>

#include <algorithm>

namespace wayvane::qt {

namespace {

using Windows = std::vector<QWidget*>;
using Remembered = std::vector<QPointer<QWidget>>;

bool isWindowForUsers(const QWidget& widget)
{
  switch (widget.windowType()) {
  case Qt::Popup:
  case Qt::ToolTip:
  case Qt::SplashScreen:
  case Qt::Desktop:
    return isOwnWidget(&widget);
  default:
    return true;
  }
}

void forget(Remembered& list, const QWidget* window)
{
  std::erase_if(list, [&](const QPointer<QWidget>& w) { return w.isNull() || w == window; });
}

/// Where the toolkit has its native window; those without one come last.
qsizetype nativePlace(const QList<QWindow*>& natives, const QWidget* widget)
{
  const qsizetype place = widget->windowHandle() ? natives.indexOf(widget->windowHandle()) : -1;
  return place < 0 ? natives.size() : place;
}

/// The program's windows, as far as possible in the order in which they were made.
Windows presentWindows()
{
  Windows windows;
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (isWindowForUsers(*widget)) windows.push_back(widget);
  const QList<QWindow*> natives = QGuiApplication::allWindows();
  std::stable_sort(windows.begin(), windows.end(), [&](const QWidget* a, const QWidget* b) {
    return nativePlace(natives, a) < nativePlace(natives, b);
  });
  return windows;
}

/// The remembered ones first, in that order, then the others.
Windows arranged(const Windows& windows, const Remembered& order)
{
  Windows result;
  for (const QPointer<QWidget>& window : order)
    if (std::find(windows.begin(), windows.end(), window) != windows.end()) result.push_back(window);
  for (QWidget* window : windows)
    if (std::find(result.begin(), result.end(), window) == result.end()) result.push_back(window);
  return result;
}

/// Dialogs and tool windows lie above the window they belong to, whichever is used.
void placeAbove(QWidget* window, const Windows& order, Windows& result)
{
  if (std::find(result.begin(), result.end(), window) != result.end()) return;
  for (QWidget* other : order)
    if (other != window && other->parentWidget() && other->parentWidget()->window() == window)
      placeAbove(other, order, result);
  result.push_back(window);
}

} // namespace

QtWindowOrder::QtWindowOrder()
{
  for (QWidget* window : presentWindows())
    made_.emplace_back(window);
  if (QWidget* active = QApplication::activeWindow()) noteUsed(active);
  if (QCoreApplication* application = QCoreApplication::instance()) application->installEventFilter(this);
}

QtWindowOrder::~QtWindowOrder() = default;

void QtWindowOrder::noteUsed(QWidget* window)
{
  forget(used_, window);
  used_.emplace(used_.begin(), window);
}

void QtWindowOrder::noteMade(QWidget* window)
{
  if (std::find(made_.begin(), made_.end(), window) != made_.end()) return;
  forget(made_, nullptr);
  made_.emplace_back(window);
}

bool QtWindowOrder::eventFilter(QObject* receiver, QEvent* event)
{
  const QEvent::Type type = event->type();
  if ((type == QEvent::Show || type == QEvent::WindowActivate) && receiver->isWidgetType()) {
    auto* widget = static_cast<QWidget*>(receiver);
    if (widget->isWindow() && isWindowForUsers(*widget)) {
      noteMade(widget);
      noteUsed(widget);
    }
  }
  return false;
}

Windows QtWindowOrder::inOrderMade() const
{
  return arranged(presentWindows(), made_);
}

Windows QtWindowOrder::frontToBack() const
{
  Windows visible = arranged(presentWindows(), used_);
  std::erase_if(visible, [](const QWidget* window) { return !window->isVisible(); });
  Windows result;
  for (QWidget* window : visible)
    placeAbove(window, visible, result);
  return result;
}

} // namespace wayvane::qt
