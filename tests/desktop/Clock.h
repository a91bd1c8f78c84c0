#pragma once

#include <wayvane/platform/MainQueue.h>

#include <mutex>
#include <vector>

namespace wayvane::sim {

/// The main queue on a virtual clock: time passes only when a test says so.
class Clock : public platform::MainQueue {
public:
  [[nodiscard]] double now() const override;
  void async(std::function<void()> work) override;
  void after(double seconds, std::function<void()> work) override;

  /// Runs what falls due within `seconds`, in order, each at its own moment.
  void advance(double seconds);
  /// Runs what is due now, also what that work puts in the queue for now.
  void runPending();
  /// Runs what is due now and was so when the call began.
  void runTurn();
  [[nodiscard]] std::size_t pendingCount() const;
  /// Forgets what has not run.
  void clear();

private:
  struct Work {
    double due = 0;
    std::uint64_t number = 0;
    std::function<void()> run;
  };

  bool runNextDueBy(double time, std::uint64_t numberBelow);
  mutable std::mutex mutex_;
  double now_ = 1000;
  std::uint64_t nextNumber_ = 0;
  std::vector<Work> work_;
};

} // namespace wayvane::sim
