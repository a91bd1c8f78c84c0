#pragma once

#include <wayvane/platform/MainQueue.h>

#include <memory>

namespace wayvane::qt {

/// The main event loop as the framework's queue. Work that waits is dropped when the program's application
/// object goes away. Made on the main thread.
class QtMainQueue final : public platform::MainQueue {
public:
  QtMainQueue();
  ~QtMainQueue() override;

  [[nodiscard]] double now() const override;
  void async(std::function<void()> work) override;
  void after(double seconds, std::function<void()> work) override;

private:
  class Worker;
  std::unique_ptr<Worker> worker_;
};

} // namespace wayvane::qt
