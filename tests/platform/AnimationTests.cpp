#include <wayvane/platform/Animation.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

using namespace wayvane::platform;

namespace {

constexpr Spring kUnderDamped{1, 200, 12, 5};
constexpr Spring kCritical{2, 50, 20, 3};
constexpr Spring kOverDamped{1, 100, 50, -4};

/// The motion from its equation alone, in steps of the classical Runge-Kutta method.
class IntegratedSpring {
public:
  explicit IntegratedSpring(const Spring& spring)
    : spring_(spring)
    , velocity_(spring.initialVelocity)
  {}

  void advance(double step)
  {
    const auto force = [&](double x, double v) {
      return (-spring_.damping * v - spring_.stiffness * (x - 1)) / spring_.mass;
    };
    const double v1 = velocity_, a1 = force(position_, v1);
    const double v2 = velocity_ + a1 * step / 2, a2 = force(position_ + v1 * step / 2, v2);
    const double v3 = velocity_ + a2 * step / 2, a3 = force(position_ + v2 * step / 2, v3);
    const double v4 = velocity_ + a3 * step, a4 = force(position_ + v3 * step, v4);
    position_ += step / 6 * (v1 + 2 * v2 + 2 * v3 + v4);
    velocity_ += step / 6 * (a1 + 2 * a2 + 2 * a3 + a4);
  }

  [[nodiscard]] double position() const { return position_; }

private:
  Spring spring_;
  double position_ = 0;
  double velocity_;
};

double largestDifferenceFromIntegration(const Spring& spring)
{
  IntegratedSpring integrated(spring);
  constexpr double kStep = 1e-3;
  double largest = 0;
  for (int i = 1; i <= 3000; ++i) {
    integrated.advance(kStep);
    largest = std::max(largest, std::abs(integrated.position() - spring.position(i * kStep)));
  }
  return largest;
}

/// The last moment at which the motion is more than a thousandth from its end.
double lastUnsettledMoment(const Spring& spring)
{
  double last = 0;
  for (int i = 0; i < 200000; ++i)
    if (std::abs(spring.position(i * 1e-4) - 1) > 0.001) last = i * 1e-4;
  return last;
}

} // namespace

TEST(TimingCurve, StartsAtZeroAndEndsAtOne)
{
  for (const TimingCurve& curve :
       {TimingCurve::linear(), TimingCurve::easeOut(), TimingCurve::easeInEaseOut()}) {
    EXPECT_EQ(curve.progress(0), 0);
    EXPECT_EQ(curve.progress(1), 1);
    EXPECT_EQ(curve.progress(-1), 0);
    EXPECT_EQ(curve.progress(2), 1);
  }
}

TEST(TimingCurve, IsTheIdentityWhenLinear)
{
  EXPECT_DOUBLE_EQ(TimingCurve::linear().progress(0.3), 0.3);
}

TEST(TimingCurve, EasesInAndOutSymmetrically)
{
  const TimingCurve curve = TimingCurve::easeInEaseOut();
  EXPECT_NEAR(curve.progress(0.5), 0.5, 1e-6);
  EXPECT_NEAR(curve.progress(0.25) + curve.progress(0.75), 1, 1e-6);
  EXPECT_LT(curve.progress(0.25), 0.25);
}

TEST(TimingCurve, SolvesForTheTimeToAMillionth)
{
  // A point of the curve computed from its parameter, not from the time.
  const TimingCurve curve = TimingCurve::easeOut();
  for (const double s : {0.1, 0.35, 0.8}) {
    const double rest = 1 - s;
    const double x = 3 * rest * rest * s * curve.x1 + 3 * rest * s * s * curve.x2 + s * s * s;
    const double y = 3 * rest * rest * s * curve.y1 + 3 * rest * s * s * curve.y2 + s * s * s;
    EXPECT_NEAR(curve.progress(x), y, 1e-6);
  }
}

TEST(TimingCurve, SolvesACurveThatStandsStillInTheMiddle)
{
  const TimingCurve curve{1, 0, 0, 1};
  EXPECT_NEAR(curve.progress(0.5), 0.5, 1e-4);
  EXPECT_LE(curve.progress(0.49), curve.progress(0.51));
}

TEST(Spring, MovesAsItsEquationSaysWhenUnderDamped)
{
  EXPECT_LT(largestDifferenceFromIntegration(kUnderDamped), 1e-6);
}

TEST(Spring, MovesAsItsEquationSaysWhenCriticallyDamped)
{
  EXPECT_LT(largestDifferenceFromIntegration(kCritical), 1e-6);
}

TEST(Spring, MovesAsItsEquationSaysWhenOverDamped)
{
  EXPECT_LT(largestDifferenceFromIntegration(kOverDamped), 1e-6);
}

TEST(Spring, OvershootsOnlyWhenUnderDamped)
{
  const auto highest = [](const Spring& spring) {
    double result = 0;
    for (double t = 0; t < 3; t += 0.001)
      result = std::max(result, spring.position(t));
    return result;
  };
  EXPECT_GT(highest(kUnderDamped), 1.1);
  EXPECT_LE(highest({1, 100, 50, 0}), 1);
}

TEST(Spring, SettlesInTheTimeThatItsEnvelopeTakes)
{
  // ln(1000 sqrt(1 + (1 / sqrt(164))^2)) / 6
  EXPECT_NEAR(kUnderDamped.settlingDuration(), 1.1518, 0.0005);
}

TEST(Spring, StaysWithinAThousandthOnceSettled)
{
  for (const Spring& spring : {kUnderDamped, kCritical, kOverDamped, Spring{1, 100, 20, 60}}) {
    const double settled = spring.settlingDuration();
    EXPECT_LE(lastUnsettledMoment(spring), settled);
    EXPECT_GT(lastUnsettledMoment(spring), settled * 0.7) << "and does not dawdle";
  }
}

TEST(Spring, NeverSettlesWithoutDamping)
{
  EXPECT_EQ((Spring{1, 100, 0, 0}).settlingDuration(), Animation::kForever);
}

TEST(Spring, IsAtItsEndWhenItIsNoSpring)
{
  for (const Spring& broken : {Spring{0, 100, 10, 0}, Spring{1, 0, 10, 0}, Spring{1, 100, -1, 0}}) {
    EXPECT_EQ(broken.position(0.1), 1);
    EXPECT_EQ(broken.settlingDuration(), 0);
  }
}
