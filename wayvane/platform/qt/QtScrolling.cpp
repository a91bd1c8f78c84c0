#include <wayvane/platform/Animation.h>
#include <wayvane/platform/qt/QtGuard.h>
#include <wayvane/platform/qt/QtScrolling.h>

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QHash>
#include <QScrollBar>
#include <QVariantAnimation>

#include <algorithm>
#include <cmath>

namespace wayvane::qt {

namespace {

constexpr double kLongestSeconds = 3600;

void callCompletion(const std::function<void()>& completion)
{
  if (completion) guarded("scroll completion", completion);
}

void callLater(std::function<void()> completion)
{
  QCoreApplication* application = QCoreApplication::instance();
  if (!completion || !application) return callCompletion(completion);
  QMetaObject::invokeMethod(
      application, [completion = std::move(completion)] { callCompletion(completion); },
      Qt::QueuedConnection);
}

/// One animated change of scroll position. It belongs to the scroll area and ends with it; however it ends,
/// its completion is called once.
class ScrollRun : public QVariantAnimation {
public:
  ScrollRun(QAbstractScrollArea& area, QPoint end, platform::ScrollAnimation animation)
    : QVariantAnimation(&area)
    , area_(area)
    , start_(scrollBarValues(area))
    , end_(end)
    , completion_(std::move(animation.completion))
  {
    giveUp(area);
    running().insert(&area, this);
    setStartValue(0.0);
    setEndValue(1.0);
    setDuration(static_cast<int>(std::lround(std::min(animation.duration, kLongestSeconds) * 1000)));
    QObject::connect(this, &QAbstractAnimation::finished, this, [this] { reachEnd(); });
  }

  ~ScrollRun() override
  {
    if (running().value(&area_) == this) running().remove(&area_);
    callLater(std::exchange(completion_, nullptr));
  }

  /// Ends the one that runs on the area, where it is.
  static void giveUp(const QAbstractScrollArea& area) { delete running().take(&area); }

protected:
  void updateCurrentValue(const QVariant& value) override
  {
    const QPointF way = end_ - start_;
    const double progress = curve_.progress(value.toDouble());
    setScrollBarValues(area_, start_ + (way * progress).toPoint());
  }

private:
  static QHash<const QAbstractScrollArea*, ScrollRun*>& running()
  {
    static QHash<const QAbstractScrollArea*, ScrollRun*> runs;
    return runs;
  }

  void reachEnd()
  {
    const auto completion = std::exchange(completion_, nullptr);
    deleteLater();
    running().remove(&area_);
    callCompletion(completion);
  }

  QAbstractScrollArea& area_;
  QPoint start_;
  QPoint end_;
  std::function<void()> completion_;
  platform::TimingCurve curve_ = platform::TimingCurve::easeInEaseOut();
};

QPoint withinRange(const QAbstractScrollArea& area, QPoint values)
{
  const auto bounded = [](const QScrollBar* bar, int value) {
    return std::clamp(value, bar->minimum(), std::max(bar->minimum(), bar->maximum()));
  };
  return {bounded(area.horizontalScrollBar(), values.x()), bounded(area.verticalScrollBar(), values.y())};
}

} // namespace

QPoint scrollBarValues(const QAbstractScrollArea& area)
{
  return {area.horizontalScrollBar()->value(), area.verticalScrollBar()->value()};
}

void setScrollBarValues(QAbstractScrollArea& area, QPoint values)
{
  area.horizontalScrollBar()->setValue(values.x());
  area.verticalScrollBar()->setValue(values.y());
}

void finishScroll(const platform::ScrollAnimation& animation)
{
  if (animation.duration > 0)
    callLater(animation.completion);
  else
    callCompletion(animation.completion);
}

void scrollBarsTo(QAbstractScrollArea& area, QPoint values, platform::ScrollAnimation animation)
{
  const QPoint end = withinRange(area, values);
  if (animation.duration > 0) {
    auto* run = new ScrollRun(area, end, std::move(animation));
    run->start();
    return;
  }
  ScrollRun::giveUp(area);
  setScrollBarValues(area, end);
  callCompletion(animation.completion);
}

} // namespace wayvane::qt
