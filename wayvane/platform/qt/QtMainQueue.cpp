#include <wayvane/platform/qt/QtGuard.h>
#include <wayvane/platform/qt/QtMainQueue.h>

#include <QBasicTimer>
#include <QCoreApplication>
#include <QTimerEvent>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <deque>
#include <map>
#include <mutex>

namespace wayvane::qt {

namespace {

using Work = std::function<void()>;

} // namespace

/// Lives on the main thread; only `enqueue` is called from others.
class QtMainQueue::Worker final : public QObject {
public:
  explicit Worker(const QtMainQueue& clock)
    : clock_(clock)
  {}

  void enqueue(Work work)
  {
    const std::lock_guard lock(mutex_);
    waiting_.push_back(std::move(work));
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
  }

  void schedule(double due, Work work)
  {
    timed_.emplace(due, std::move(work));
    arm();
  }

protected:
  // One piece of work a turn: each may run an event loop of its own, in which the rest goes on.
  void customEvent(QEvent*) override
  {
    Work work;
    {
      const std::lock_guard lock(mutex_);
      if (waiting_.empty()) return;
      work = std::move(waiting_.front());
      waiting_.pop_front();
    }
    guarded("main queue", work);
  }

  void timerEvent(QTimerEvent*) override
  {
    timer_.stop();
    Work work;
    if (!timed_.empty() && timed_.begin()->first <= clock_.now())
      work = std::move(timed_.extract(timed_.begin()).mapped());
    arm();
    if (work) guarded("main queue", work);
  }

private:
  void arm()
  {
    if (timed_.empty()) return;
    constexpr double kLongestWait = 24 * 3600;
    const double wait = std::clamp(timed_.begin()->first - clock_.now(), 0.0, kLongestWait);
    timer_.start(static_cast<int>(std::ceil(wait * 1000)), Qt::PreciseTimer, this);
  }

  const QtMainQueue& clock_;
  std::mutex mutex_;
  std::deque<Work> waiting_;
  std::multimap<double, Work> timed_;
  QBasicTimer timer_;
};

QtMainQueue::QtMainQueue()
  : worker_(std::make_unique<Worker>(*this))
{}

QtMainQueue::~QtMainQueue() = default;

double QtMainQueue::now() const
{
  return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
}

void QtMainQueue::async(Work work)
{
  if (work) worker_->enqueue(std::move(work));
}

void QtMainQueue::after(double seconds, Work work)
{
  if (!work) return;
  if (!(seconds > 0)) return async(std::move(work));
  if (!std::isinf(seconds)) worker_->schedule(now() + seconds, std::move(work));
}

} // namespace wayvane::qt
