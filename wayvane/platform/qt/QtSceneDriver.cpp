#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtGuard.h>
#include <wayvane/platform/qt/QtSceneDriver.h>

#include <QPainter>
#include <QTimerEvent>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace wayvane::qt {

namespace {

constexpr int kFrame = 16;
constexpr double kLongestWait = 3600;

} // namespace

QtSceneDriver::QtSceneDriver(QWidget& canvas, platform::SurfaceView& content,
                             const platform::MainQueue& clock)
  : canvas_(canvas)
  , content_(content)
  , clock_(clock)
  , time_(clock.now())
{
  content_.layer()->setChangeObserver([this] { noteChange(); });
}

QtSceneDriver::~QtSceneDriver()
{
  content_.layer()->setChangeObserver({});
}

void QtSceneDriver::paint(QPainter& painter, const QRegion& damage)
{
  guarded("painting", [&] {
    painter_.paint(painter, *content_.layer(), time_, QSizeF(canvas_.size()), damage, appearanceOf(&canvas_));
  });
}

void QtSceneDriver::setShown(bool shown)
{
  if (isShown_ == shown) return;
  isShown_ = shown;
  if (shown) return update();
  timer_.stop();
  interval_ = 0;
}

void QtSceneDriver::noteChange()
{
  if (isUpdateQueued_) return;
  isUpdateQueued_ = true;
  QMetaObject::invokeMethod(
      this, [this] { update(); }, Qt::QueuedConnection);
}

void QtSceneDriver::update()
{
  guarded("animation", [this] {
    isUpdateQueued_ = false;
    platform::Layer& root = *content_.layer();
    time_ = clock_.now();
    removeFinishedAnimations(root, time_);
    root.takeChange();
    if (!isShown_) return;
    QtSceneSnapshot now(root, time_, QSizeF(canvas_.size()));
    const QRegion damage = now.changesSince(shown_) & canvas_.rect();
    shown_ = std::move(now);
    if (!damage.isEmpty()) canvas_.update(damage);
    arm();
  });
}

void QtSceneDriver::arm()
{
  const double next = nextVisibleChange(*content_.layer(), time_);
  if (std::isinf(next)) {
    timer_.stop();
    interval_ = 0;
    return;
  }
  const double wait = std::clamp(next - time_, 0.0, kLongestWait);
  const int interval = std::max(kFrame, static_cast<int>(std::ceil(wait * 1000)));
  // A running timer keeps its beat.
  if (timer_.isActive() && interval == interval_) return;
  interval_ = interval;
  timer_.start(interval, Qt::PreciseTimer, this);
}

void QtSceneDriver::timerEvent(QTimerEvent*)
{
  update();
}

} // namespace wayvane::qt
