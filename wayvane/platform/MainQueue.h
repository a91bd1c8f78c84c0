#pragma once

#include <functional>

namespace wayvane::platform {

/// The main thread's queue and clock. Nothing in the framework reads another clock or sleeps.
class MainQueue {
public:
  virtual ~MainQueue() = default;
  /// Seconds on a monotonic clock; the time that animations run on.
  [[nodiscard]] virtual double now() const = 0;

  /// Seconds since the system started, for event timestamps.
  [[nodiscard]] virtual double uptime() const { return now(); }

  /// Runs `work` on a later turn of the main loop, in the order of the calls. May be called on any thread.
  virtual void async(std::function<void()> work) = 0;
  /// Runs `work` on the main thread `seconds` from now (0 or less: as `async`). What is due at the same
  /// time runs in the order of the calls. Main thread.
  virtual void after(double seconds, std::function<void()> work) = 0;
};

} // namespace wayvane::platform
