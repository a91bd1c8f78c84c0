#pragma once

#include <functional>
#include <utility>

namespace wayvane::platform {

/// Owns one registration (a monitor, an observer, a swapped menu): ending its life, or `reset`, undoes it.
/// Movable, not copyable. Safe to end inside the very callback it registered, and after the platform is gone.
class [[nodiscard]] Registration {
public:
  Registration() = default;

  explicit Registration(std::function<void()> undo)
    : undo_(std::move(undo))
  {}

  Registration(Registration&& other) noexcept
    : undo_(std::exchange(other.undo_, nullptr))
  {}

  Registration& operator=(Registration&& other) noexcept
  {
    if (this != &other) {
      reset();
      undo_ = std::exchange(other.undo_, nullptr);
    }
    return *this;
  }

  Registration(const Registration&) = delete;
  Registration& operator=(const Registration&) = delete;

  ~Registration() { reset(); }

  void reset()
  {
    if (auto undo = std::exchange(undo_, nullptr)) undo();
  }

  [[nodiscard]] bool isActive() const { return static_cast<bool>(undo_); }

  explicit operator bool() const { return isActive(); }

private:
  std::function<void()> undo_;
};

} // namespace wayvane::platform
