#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtEvents.h>
#include <wayvane/platform/qt/QtGuard.h>
#include <wayvane/platform/qt/QtWindow.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCursor>
#include <QMenu>
#include <QMenuBar>
#include <QMouseEvent>
#include <QWindow>

namespace wayvane::qt {

using platform::EventVerdict;
using platform::MouseEvent;
using platform::Registration;

namespace {

/// Whether the system's cursor is where the program's events say it is.
bool isCursorReal()
{
  const QString name = QGuiApplication::platformName();
  return name != QLatin1String("offscreen") && name != QLatin1String("minimal");
}

QWidget* widgetShownBy(const QWindow& window)
{
  return window.handle() ? QWidget::find(window.winId()) : nullptr;
}

/// A window without a widget may lie in the container that some widget is to it.
QWidget* topLevelBehind(QObject* receiver)
{
  if (receiver->isWidgetType()) return static_cast<QWidget*>(receiver)->window();
  for (const auto* window = qobject_cast<QWindow*>(receiver); window; window = window->parent())
    if (const QWidget* const widget = widgetShownBy(*window)) return widget->window();
  return nullptr;
}

bool isOnMenuBar(const QWidget* topLevel, QPoint global)
{
  const QWidget* hit = topLevel ? topLevel->childAt(topLevel->mapFromGlobal(global)) : nullptr;
  if (hit && hit->objectName() == QLatin1String("qt_menubar_ext_button")) hit = hit->parentWidget();
  return qobject_cast<const QMenuBar*>(hit) != nullptr;
}

bool isMenuOrList(const QWidget& popup)
{
  return qobject_cast<const QMenu*>(&popup) || qobject_cast<const QAbstractItemView*>(&popup) ||
         popup.inherits("QComboBoxPrivateContainer");
}

/// The open pop-up that gets the press wherever it is; of several, the one under it.
QWidget* popupFor(QPoint global)
{
  QWidget* const active = QApplication::activePopupWidget();
  if (!active || active->geometry().contains(global)) return active;
  for (QWidget* widget : QApplication::topLevelWidgets())
    if (widget->isVisible() && widget->windowType() == Qt::Popup && widget->geometry().contains(global))
      return widget;
  return active;
}

MouseEvent describe(QObject* receiver, const QMouseEvent& event)
{
  const QPointF global = event.globalPosition();
  QWidget* const popup = popupFor(global.toPoint());
  MouseEvent result;
  result.type =
      event.type() == QEvent::MouseMove ? MouseEvent::Type::MouseMoved : MouseEvent::Type::LeftMouseDown;
  result.inMenu = popup && isMenuOrList(*popup);
  QWidget* const topLevel = popup ? popup : topLevelBehind(receiver);
  result.inMenuBar = !popup && isOnMenuBar(topLevel, global.toPoint());
  result.window = windowForWidget(topLevel);
  const platform::Point onScreen = screenPointFromGlobal(global);
  result.locationInWindow = result.window ? result.window->convertPointFromScreen(onScreen) : onScreen;
  return result;
}

} // namespace

QtEvents::QtEvents()
  : menuCommands_([this](const platform::MenuItemHandle& item) { commands_.callAll(item); })
{}

void QtEvents::listen()
{
  if (!qApp) return;
  // The filter that came last is asked first.
  qApp->removeEventFilter(this);
  qApp->installEventFilter(this);
}

void QtEvents::stopWhenUnheard()
{
  const bool isUnheard = presses_.isEmpty() && moves_.isEmpty() && resizes_.isEmpty() && commands_.isEmpty();
  // What belongs to a press that was swallowed is still to be held back.
  if (isUnheard && !gate_.isSwallowing() && qApp) qApp->removeEventFilter(this);
}

Registration QtEvents::addLocalMonitor(MouseEvent::Type type, Monitor monitor)
{
  listen();
  return type == MouseEvent::Type::MouseMoved ? moves_.add(std::move(monitor))
                                              : presses_.add(std::move(monitor));
}

Registration QtEvents::observeWindowResize(std::function<void(const platform::WindowHandle&)> handler)
{
  listen();
  return resizes_.add(std::move(handler));
}

Registration QtEvents::observeMenuCommands(std::function<void(const platform::MenuItemHandle&)> handler)
{
  listen();
  return commands_.add(std::move(handler));
}

platform::Point QtEvents::mouseLocation() const
{
  if (judged_) return screenPointFromGlobal(*judged_);
  if (last_ && !isCursorReal()) return screenPointFromGlobal(*last_);
  return screenPointFromGlobal(QPointF(QCursor::pos()));
}

bool QtEvents::eventFilter(QObject* receiver, QEvent* event)
{
  bool isHeldBack = false;
  switch (event->type()) {
  case QEvent::MouseButtonRelease:
    guarded("menu command", [&] {
      if (!commands_.isEmpty()) menuCommands_.foresee(receiver, event);
    });
    [[fallthrough]];
  case QEvent::MouseButtonPress:
  case QEvent::MouseButtonDblClick:
  case QEvent::MouseMove:
    guarded("mouse event", [&] { isHeldBack = handleMouse(receiver, *static_cast<QMouseEvent*>(event)); });
    break;
  case QEvent::KeyPress:
  case QEvent::Shortcut:
    guarded("menu command", [&] {
      if (!commands_.isEmpty()) menuCommands_.foresee(receiver, event);
    });
    break;
  case QEvent::Resize:
    if (!resizes_.isEmpty() && receiver->isWidgetType() && static_cast<QWidget*>(receiver)->isWindow())
      guarded("window resize", [&] { resizes_.callAll(windowForWidget(static_cast<QWidget*>(receiver))); });
    break;
  default:
    break;
  }
  return isHeldBack;
}

bool QtEvents::handleMouse(QObject* receiver, const QMouseEvent& event)
{
  last_ = event.globalPosition();
  const auto stage = receiver->isWindowType() ? QtPressGate::Stage::Window : QtPressGate::Stage::Widget;
  const bool isHeldBack =
      gate_.holdsBack(event, stage, [&](const QMouseEvent& asked) { return judge(receiver, asked); });
  if (event.type() == QEvent::MouseButtonRelease) stopWhenUnheard();
  return isHeldBack;
}

EventVerdict QtEvents::judge(QObject* receiver, const QMouseEvent& event)
{
  const auto& monitors = event.type() == QEvent::MouseMove ? moves_ : presses_;
  if (monitors.isEmpty()) return EventVerdict::PassOn;
  const MouseEvent described = describe(receiver, event);
  const std::optional<QPointF> outer = std::exchange(judged_, event.globalPosition());
  EventVerdict verdict = EventVerdict::PassOn;
  monitors.visitNewestFirst([&](const Monitor& monitor) {
    guarded("mouse monitor", [&] {
      if (monitor) verdict = monitor(described);
    });
    return verdict == EventVerdict::PassOn;
  });
  judged_ = outer;
  return verdict;
}

} // namespace wayvane::qt
