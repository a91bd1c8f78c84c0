#pragma once

#include <wayvane/platform/Events.h>

#include <QPointF>

#include <array>
#include <cstdint>
#include <functional>

class QMouseEvent;

namespace wayvane::qt {

/// Turns the several deliveries of one press (to the window, then to each widget it is passed up to, and once
/// more as a double click) into one question, and holds back what belongs to a swallowed press.
class QtPressGate {
public:
  using Judge = std::function<platform::EventVerdict(const QMouseEvent&)>;

  /// Where the delivery goes: to a window first, from there to widgets.
  enum class Stage : std::uint8_t { Window, Widget };

  /// Whether the delivery is to be held back. `judge` is asked at most once for each press or movement.
  [[nodiscard]] bool holdsBack(const QMouseEvent& event, Stage stage, const Judge& judge);

  [[nodiscard]] bool isSwallowing() const { return isSwallowing_; }

private:
  struct Verdict {
    quint64 timestamp = 0;
    QPointF position;
    bool swallowed = false;
    /// The press before was swallowed, so that a double click made of both belongs to it.
    bool followsSwallowed = false;
    bool isKnown = false;
    /// The button came up again: what now reaches a window, with whatever time, is another press.
    bool isReleased = false;
  };

  [[nodiscard]] bool press(const QMouseEvent& event, Stage stage, const Judge& judge);
  [[nodiscard]] bool move(const QMouseEvent& event, const Judge& judge);
  [[nodiscard]] bool release();
  [[nodiscard]] const Verdict* known(const QMouseEvent& event, Stage stage) const;
  Verdict& remember(const QMouseEvent& event);

  /// Presses may be judged while an earlier one is still being passed up: a handler can run an event loop.
  std::array<Verdict, 8> presses_;
  std::size_t newest_ = 0;
  Verdict move_;
  /// From a swallowed press to its release.
  bool isSwallowing_ = false;
};

} // namespace wayvane::qt
