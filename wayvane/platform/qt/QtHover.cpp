#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtHover.h>

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QEnterEvent>
#include <QHoverEvent>
#include <QPointer>
#include <QWidget>

#include <cmath>

namespace wayvane::qt {

namespace {

constexpr QPointF kOutside(-1, -1);

void setTime(QInputEvent& event, double seconds)
{
  if (std::isfinite(seconds) && seconds > 0) event.setTimestamp(static_cast<quint64>(seconds * 1000));
}

/// The events' handlers are the host's and may delete the widget.
using Receiver = QPointer<QWidget>;

void sendHoverStep(const Receiver& receiver, QEvent::Type type, QPointF to, QPointF from, double timestamp)
{
  if (!receiver) return;
  QHoverEvent event(type, to, receiver->mapToGlobal(to), from);
  setTime(event, timestamp);
  QCoreApplication::sendEvent(receiver, &event);
}

void sendEntered(const Receiver& receiver, QPointF inWindow, const QWidget& window, double timestamp)
{
  const QPointF local = receiver->mapFrom(&window, inWindow);
  QEnterEvent enter(local, inWindow, window.mapToGlobal(inWindow));
  setTime(enter, timestamp);
  QCoreApplication::sendEvent(receiver, &enter);
  sendHoverStep(receiver, QEvent::HoverEnter, local, kOutside, timestamp);
  sendHoverStep(receiver, QEvent::HoverMove, local, local, timestamp);
}

void sendExited(const Receiver& receiver, double timestamp)
{
  QEvent leave(QEvent::Leave);
  QCoreApplication::sendEvent(receiver, &leave);
  sendHoverStep(receiver, QEvent::HoverLeave, kOutside, kOutside, timestamp);
}

} // namespace

void sendHoverTo(QWidget& widget, const platform::HoverEvent& event)
{
  const Receiver window = widget.window();
  const auto* area = qobject_cast<QAbstractScrollArea*>(&widget);
  for (const Receiver& receiver : {Receiver(&widget), Receiver(area ? area->viewport() : nullptr)}) {
    if (!receiver || !window) continue;
    if (event.type == platform::HoverEvent::Type::Exited)
      sendExited(receiver, event.timestamp);
    else
      sendEntered(receiver, widgetPointFromWindow(event.locationInWindow, *window), *window, event.timestamp);
  }
}

} // namespace wayvane::qt
