#include "Clock.h"

#include "Failures.h"

#include <algorithm>
#include <limits>

namespace wayvane::sim {

namespace {

constexpr double kSameMoment = 1e-9;
constexpr int kTooMuchWork = 100000;
constexpr auto kAnyNumber = std::numeric_limits<std::uint64_t>::max();

} // namespace

double Clock::now() const
{
  const std::lock_guard lock(mutex_);
  return now_;
}

void Clock::async(std::function<void()> work)
{
  after(0, std::move(work));
}

void Clock::after(double seconds, std::function<void()> work)
{
  const std::lock_guard lock(mutex_);
  work_.push_back({now_ + std::max(seconds, 0.0), nextNumber_++, std::move(work)});
}

bool Clock::runNextDueBy(double time, std::uint64_t numberBelow)
{
  Work next;
  {
    const std::lock_guard lock(mutex_);
    auto best = work_.end();
    for (auto work = work_.begin(); work != work_.end(); ++work) {
      if (work->due > time + kSameMoment || work->number >= numberBelow) continue;
      // Entries stand in the order of the calls, so that the first of one moment wins.
      if (best == work_.end() || work->due < best->due - kSameMoment) best = work;
    }
    if (best == work_.end()) return false;
    next = std::move(*best);
    work_.erase(best);
    now_ = std::max(now_, std::min(next.due, time));
  }
  if (next.run) next.run();
  return true;
}

void Clock::advance(double seconds)
{
  const double end = now() + seconds;
  for (int done = 0; runNextDueBy(end, kAnyNumber); ++done)
    if (done == kTooMuchWork) return reportFailure("the main queue never comes to rest");
  const std::lock_guard lock(mutex_);
  now_ = end;
}

void Clock::runPending()
{
  const double time = now();
  for (int done = 0; runNextDueBy(time, kAnyNumber); ++done)
    if (done == kTooMuchWork) return reportFailure("the main queue never comes to rest");
}

void Clock::runTurn()
{
  const double time = now();
  std::uint64_t end = 0;
  {
    const std::lock_guard lock(mutex_);
    end = nextNumber_;
  }
  while (runNextDueBy(time, end)) {
  }
}

std::size_t Clock::pendingCount() const
{
  const std::lock_guard lock(mutex_);
  return work_.size();
}

void Clock::clear()
{
  // What the forgotten work owned may itself ask for more when it ends.
  for (int round = 0; round < 10 && pendingCount() > 0; ++round) {
    std::vector<Work> forgotten;
    {
      const std::lock_guard lock(mutex_);
      forgotten.swap(work_);
    }
  }
}

} // namespace wayvane::sim
