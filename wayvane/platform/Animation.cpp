#include <wayvane/platform/Animation.h>

#include <algorithm>
#include <cmath>

namespace wayvane::platform {
namespace {

/// One coordinate of the cubic curve from 0 to 1 with controls p1 and p2.
double cubic(double p1, double p2, double s)
{
  const double rest = 1 - s;
  return 3 * rest * rest * s * p1 + 3 * rest * s * s * p2 + s * s * s;
}

/// The three forms of the motion differ in the sign of this: the square of the decay rate less that of the
/// natural frequency.
struct Motion {
  double decay;
  double discriminant;
  double naturalSquared;

  explicit Motion(const Spring& spring)
    : decay(spring.damping / (2 * spring.mass))
    , discriminant(decay * decay - spring.stiffness / spring.mass)
    , naturalSquared(spring.stiffness / spring.mass)
  {}

  [[nodiscard]] bool isCritical() const { return std::abs(discriminant) <= 1e-9 * naturalSquared; }

  [[nodiscard]] bool isUnderDamped() const { return discriminant < 0; }
};

bool isSpring(const Spring& spring)
{
  return spring.mass > 0 && spring.stiffness > 0 && spring.damping >= 0;
}

/// The two decaying parts of the distance to the end of an over-damped motion.
struct OverDamped {
  double slow, fast, slowShare, fastShare;

  OverDamped(const Motion& motion, double velocity)
    : slow(-motion.decay + std::sqrt(motion.discriminant))
    , fast(-motion.decay - std::sqrt(motion.discriminant))
    , slowShare((velocity + fast) / (slow - fast))
    , fastShare(-1 - slowShare)
  {}
};

constexpr double kSettled = 0.001;

/// The moment at which a falling `envelope` passes the settled distance, looked for from `start` on.
template <class Envelope>
double timeOfSettling(double start, const Envelope& envelope)
{
  double low = start, step = 1e-3;
  while (envelope(low + step) > kSettled && step < 1e9) {
    low += step;
    step *= 2;
  }
  double high = low + step;
  for (int i = 0; i < 200; ++i) {
    const double middle = (low + high) / 2;
    (envelope(middle) > kSettled ? low : high) = middle;
  }
  return high;
}

} // namespace

double TimingCurve::progress(double t) const
{
  if (!(t > 0)) return 0;
  if (t >= 1) return 1;
  if (*this == linear()) return t;
  // With controls inside 0...1 the time along the curve only grows, so halving always finds it.
  const double c1 = std::clamp(x1, 0.0, 1.0), c2 = std::clamp(x2, 0.0, 1.0);
  double low = 0, high = 1;
  for (int i = 0; i < 48; ++i) {
    const double middle = (low + high) / 2;
    (cubic(c1, c2, middle) < t ? low : high) = middle;
  }
  return cubic(y1, y2, (low + high) / 2);
}

double Spring::position(double seconds) const
{
  if (!(seconds > 0)) return 0;
  if (!isSpring(*this)) return 1;
  const Motion motion(*this);
  const double fading = std::exp(-motion.decay * seconds);
  if (motion.isCritical()) return 1 - fading * (1 + (motion.decay - initialVelocity) * seconds);
  if (motion.isUnderDamped()) {
    const double w = std::sqrt(-motion.discriminant);
    const double share = (motion.decay - initialVelocity) / w;
    return 1 - fading * (std::cos(w * seconds) + share * std::sin(w * seconds));
  }
  const OverDamped parts(motion, initialVelocity);
  return 1 + parts.slowShare * std::exp(parts.slow * seconds) +
         parts.fastShare * std::exp(parts.fast * seconds);
}

double Spring::settlingDuration() const
{
  if (!isSpring(*this)) return 0;
  if (damping <= 0) return Animation::kForever;
  const Motion motion(*this);
  if (motion.isCritical()) {
    const double slope = std::abs(motion.decay - initialVelocity);
    const double peak = slope > motion.decay ? 1 / motion.decay - 1 / slope : 0;
    return timeOfSettling(peak, [&](double t) { return std::exp(-motion.decay * t) * (1 + slope * t); });
  }
  if (motion.isUnderDamped()) {
    const double w = std::sqrt(-motion.discriminant);
    const double amplitude = std::hypot(1, (initialVelocity - motion.decay) / w);
    return std::log(amplitude / kSettled) / motion.decay;
  }
  const OverDamped parts(motion, initialVelocity);
  return timeOfSettling(0, [&](double t) {
    return std::abs(parts.slowShare) * std::exp(parts.slow * t) +
           std::abs(parts.fastShare) * std::exp(parts.fast * t);
  });
}

} // namespace wayvane::platform
