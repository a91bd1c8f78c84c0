#include <wayvane/platform/qt/QtPressGate.h>

#include <QMouseEvent>

namespace wayvane::qt {

using platform::EventVerdict;

bool QtPressGate::holdsBack(const QMouseEvent& event, Stage stage, const Judge& judge)
{
  switch (event.type()) {
  case QEvent::MouseButtonPress:
  case QEvent::MouseButtonDblClick:
    return event.button() == Qt::LeftButton && press(event, stage, judge);
  case QEvent::MouseMove:
    return move(event, judge);
  case QEvent::MouseButtonRelease:
    return event.button() == Qt::LeftButton && release();
  default:
    return false;
  }
}

const QtPressGate::Verdict* QtPressGate::known(const QMouseEvent& event, Stage stage) const
{
  for (const Verdict& verdict : presses_) {
    // A press is passed up among widgets even after its release, when a handler ran an event loop. Events
    // without a time all look the same.
    const bool isOver = verdict.isReleased && (stage == Stage::Window || verdict.timestamp == 0);
    if (verdict.isKnown && !isOver && verdict.timestamp == event.timestamp() &&
        (verdict.position - event.globalPosition()).manhattanLength() < 2)
      return &verdict;
  }
  return nullptr;
}

QtPressGate::Verdict& QtPressGate::remember(const QMouseEvent& event)
{
  const bool followsSwallowed = presses_[newest_].swallowed;
  newest_ = (newest_ + 1) % presses_.size();
  presses_[newest_] = {event.timestamp(), event.globalPosition(), false, followsSwallowed, true, false};
  return presses_[newest_];
}

bool QtPressGate::press(const QMouseEvent& event, Stage stage, const Judge& judge)
{
  const bool isDouble = event.type() == QEvent::MouseButtonDblClick;
  if (const Verdict* verdict = known(event, stage)) {
    const bool completesSwallowed = isDouble && verdict->followsSwallowed;
    // Its release goes with it, although the press that came with it was passed on.
    isSwallowing_ = isSwallowing_ || completesSwallowed;
    return verdict->swallowed || completesSwallowed;
  }
  Verdict& verdict = remember(event);
  const bool followsSwallowed = verdict.followsSwallowed;
  // The judge may run an event loop, in which other presses are judged.
  const bool swallowed = judge(event) == EventVerdict::Swallow;
  if (verdict.timestamp == event.timestamp() && verdict.position == event.globalPosition())
    verdict.swallowed = swallowed;
  isSwallowing_ = swallowed || (isDouble && followsSwallowed);
  return isSwallowing_;
}

bool QtPressGate::move(const QMouseEvent& event, const Judge& judge)
{
  if (event.buttons() != Qt::NoButton) return isSwallowing_ && event.buttons().testFlag(Qt::LeftButton);
  if (move_.isKnown && move_.timestamp == event.timestamp() && move_.position == event.globalPosition())
    return move_.swallowed;
  move_ = {event.timestamp(), event.globalPosition(), false, false, event.timestamp() != 0, false};
  move_.swallowed = judge(event) == EventVerdict::Swallow;
  return move_.swallowed;
}

bool QtPressGate::release()
{
  for (Verdict& verdict : presses_)
    verdict.isReleased = true;
  const bool swallows = isSwallowing_;
  isSwallowing_ = false;
  return swallows;
}

} // namespace wayvane::qt
