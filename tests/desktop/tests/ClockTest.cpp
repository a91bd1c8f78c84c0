#include <tests/desktop/Desktop.h>

#include <gmock/gmock.h>

#include <thread>

namespace wayvane::sim {
namespace {

using testing::ElementsAre;

TEST(SimClock, TimeStandsStillUntilItIsAdvanced)
{
  Desktop desktop;
  const double start = desktop.now();
  desktop.runPending();
  EXPECT_EQ(desktop.now(), start);
  desktop.advance(0.3);
  EXPECT_DOUBLE_EQ(desktop.now(), start + 0.3);
}

TEST(SimClock, WorkRunsAtItsOwnMomentInOrder)
{
  Desktop desktop;
  const double start = desktop.now();
  std::vector<double> moments;
  desktop.clock().after(0.2, [&] { moments.push_back(desktop.now() - start); });
  desktop.clock().after(0.1, [&] {
    moments.push_back(desktop.now() - start);
    desktop.clock().after(0.05, [&] { moments.push_back(desktop.now() - start); });
  });
  desktop.advance(1);
  EXPECT_THAT(moments, ElementsAre(testing::DoubleNear(0.1, 1e-9), testing::DoubleNear(0.15, 1e-9),
                                   testing::DoubleNear(0.2, 1e-9)));
}

TEST(SimClock, WorkDueAtTheSameTimeRunsInTheOrderOfTheCalls)
{
  Desktop desktop;
  std::vector<int> order;
  desktop.clock().after(0.3, [&] { order.push_back(1); });
  desktop.advance(0.1);
  desktop.clock().after(0.2, [&] { order.push_back(2); });
  desktop.clock().after(0.2, [&] { order.push_back(3); });
  desktop.advance(0.2);
  EXPECT_THAT(order, ElementsAre(1, 2, 3));
}

TEST(SimClock, NothingRunsBeforeItsTime)
{
  Desktop desktop;
  bool ran = false;
  desktop.clock().after(0.2, [&] { ran = true; });
  desktop.advance(0.199);
  EXPECT_FALSE(ran);
  desktop.advance(0.001);
  EXPECT_TRUE(ran);
}

TEST(SimClock, ATurnLeavesWhatIsAddedMeanwhileToTheNext)
{
  Desktop desktop;
  std::vector<int> order;
  desktop.clock().async([&] {
    order.push_back(1);
    desktop.clock().async([&] { order.push_back(2); });
  });
  desktop.runTurn();
  EXPECT_THAT(order, ElementsAre(1));
  desktop.runTurn();
  EXPECT_THAT(order, ElementsAre(1, 2));
}

TEST(SimClock, PendingWorkRunsToItsEnd)
{
  Desktop desktop;
  int runs = 0;
  desktop.clock().async([&] {
    ++runs;
    desktop.clock().async([&] { ++runs; });
  });
  desktop.runPending();
  EXPECT_EQ(runs, 2);
}

TEST(SimClock, AnotherThreadMayAskForWork)
{
  Desktop desktop;
  bool ran = false;
  std::thread([&] { desktop.clock().async([&] { ran = true; }); }).join();
  EXPECT_FALSE(ran);
  desktop.runPending();
  EXPECT_TRUE(ran);
}

TEST(SimClock, WhatIsLeftDoesNotRunWhenTheDesktopEnds)
{
  bool ran = false;
  {
    Desktop desktop;
    desktop.clock().after(1, [&] { ran = true; });
  }
  EXPECT_FALSE(ran);
}

} // namespace
} // namespace wayvane::sim
