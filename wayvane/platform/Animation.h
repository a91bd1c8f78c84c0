#pragma once

#include <wayvane/platform/Path.h>

#include <cstdint>
#include <limits>
#include <string>
#include <variant>
#include <vector>

namespace wayvane::platform {

/// How time runs within an animation: a cubic curve from (0,0) to (1,1) with two control points, of which the
/// named ones are those of every animation system (for instance ease-in-ease-out: (0.42, 0), (0.58, 1)).
struct TimingCurve {
  double x1 = 0, y1 = 0, x2 = 1, y2 = 1;

  [[nodiscard]] static TimingCurve linear() { return {0, 0, 1, 1}; }

  [[nodiscard]] static TimingCurve easeOut() { return {0, 0, 0.58, 1}; }

  [[nodiscard]] static TimingCurve easeInEaseOut() { return {0.42, 0, 0.58, 1}; }

  /// The progress at the fraction `t` of the time; both 0 to 1, solved to 1e-6.
  [[nodiscard]] double progress(double t) const;
  friend bool operator==(const TimingCurve&, const TimingCurve&) = default;
};

/// The properties of a layer that can be animated.
enum class KeyPath : std::uint8_t { Opacity, Transform, Path, LineDashPhase };

/// A value of an animated property: a number, a map or an outline.
using AnimatedValue = std::variant<double, Transform, Path>;

/// A mass on a damped spring that starts at 0 with `initialVelocity` (in units of the whole distance a
/// second, toward the end) and comes to rest at 1.
struct Spring {
  double mass = 1, stiffness = 100, damping = 10, initialVelocity = 0;
  /// The position after `seconds`: the exact solution of m x'' + c x' + k (x - 1) = 0 with x(0) = 0 and
  /// x'(0) = initialVelocity, in its under-damped, critical and over-damped forms.
  [[nodiscard]] double position(double seconds) const;
  /// The time after which the envelope of the motion stays within a thousandth of the end. The envelope of an
  /// under-damped spring is A e^(-c t / 2m) with A = sqrt(1 + ((v - c/2m) / w)^2), w = sqrt(k/m - (c/2m)^2).
  [[nodiscard]] double settlingDuration() const;
  friend bool operator==(const Spring&, const Spring&) = default;
};

/// An animation of one property (basic or spring) or a group of them. A plain value.
struct Animation {
  enum class Kind : std::uint8_t { Basic, Spring, Group };
  static constexpr double kForever = std::numeric_limits<double>::infinity();

  Kind kind = Kind::Basic;
  KeyPath keyPath = KeyPath::Opacity;
  AnimatedValue from = 0.0;
  AnimatedValue to = 0.0;
  Spring spring;
  std::vector<Animation> members;
  /// Seconds for one pass.
  double duration = 0.25;
  TimingCurve timing = TimingCurve::linear();
  bool autoreverses = false;
  double repeatCount = 1;
  /// Keeps the end value after the end. Only meaningful while the animation is not removed.
  bool fillForwards = false;
  bool removedOnCompletion = true;

  /// The time until the last pass is over; kForever for endless ones.
  [[nodiscard]] double activeDuration() const { return duration * (autoreverses ? 2 : 1) * repeatCount; }

  friend bool operator==(const Animation&, const Animation&) = default;
};

} // namespace wayvane::platform
