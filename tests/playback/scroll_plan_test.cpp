#include <wayvane/playback/ScrollPlan.h>

#include <gtest/gtest.h>

#include <limits>

namespace wayvane {
namespace {

using platform::Point;
using platform::Rect;
using platform::Size;

constexpr Size kVisible{300, 200};
constexpr Size kDocument{1000, 2000};

TEST(ScrollPlan, BringsTheTargetToTheMiddle)
{
  EXPECT_EQ(scrollOriginCentering({400, 800, 100, 100}, kVisible, kDocument), (Point{300, 750}));
}

TEST(ScrollPlan, StartsAtTheOriginOfATargetThatDoesNotFit)
{
  EXPECT_EQ(scrollOriginCentering({400, 800, 500, 400}, kVisible, kDocument), (Point{400, 800}));
}

TEST(ScrollPlan, StopsAtTheDocumentsEnds)
{
  EXPECT_EQ(scrollOriginCentering({10, 20, 100, 100}, kVisible, kDocument), (Point{0, 0}));
  EXPECT_EQ(scrollOriginCentering({950, 1950, 100, 100}, kVisible, kDocument), (Point{700, 1800}));
}

TEST(ScrollPlan, StaysAtZeroInADocumentThatIsSmallerThanWhatIsVisible)
{
  EXPECT_EQ(scrollOriginCentering({50, 50, 100, 100}, kVisible, {100, 100}), (Point{0, 0}));
}

TEST(ScrollPlan, TakesTheUpperBoundForWhatIsNotANumber)
{
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_EQ(scrollOriginCentering({nan, nan, 100, 100}, kVisible, kDocument), (Point{700, 1800}));
  EXPECT_EQ(scrollOriginCentering({nan, nan, 100, 100}, kVisible, {100, 100}), (Point{0, 0}));
}

TEST(ScrollPlan, RevealsByTheShortestWay)
{
  const Rect visible{100, 100, 300, 200};
  EXPECT_EQ(scrollOriginRevealing({150, 150, 50, 50}, visible), (Point{100, 100}));
  EXPECT_EQ(scrollOriginRevealing({50, 60, 50, 50}, visible), (Point{50, 60}));
  EXPECT_EQ(scrollOriginRevealing({380, 290, 50, 50}, visible), (Point{130, 140}));
  EXPECT_EQ(scrollOriginRevealing({150, 150, 500, 500}, visible), (Point{150, 150}));
}

} // namespace
} // namespace wayvane
