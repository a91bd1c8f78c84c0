#include "ShellTest.h"

#include <gmock/gmock.h>

#include <limits>
#include <thread>

namespace wayvane::qt::test {
namespace {

using testing::ElementsAre;

class QtMainQueue : public ShellTest {
protected:
  platform::MainQueue& queue = wayvane().mainQueue;
  std::vector<int> order;

  std::function<void()> note(int number)
  {
    return [this, number] { order.push_back(number); };
  }
};

TEST_F(QtMainQueue, AsyncRunsLaterInTheOrderOfTheCalls)
{
  queue.async(note(1));
  queue.async(note(2));
  queue.async(note(3));
  EXPECT_TRUE(order.empty());
  EXPECT_TRUE(waitUntil([&] { return order.size() == 3; }));
  EXPECT_THAT(order, ElementsAre(1, 2, 3));
}

TEST_F(QtMainQueue, AsyncFromAnotherThreadRunsOnTheMainThread)
{
  std::thread::id ranOn;
  std::thread other([&] { queue.async([&] { ranOn = std::this_thread::get_id(); }); });
  other.join();
  EXPECT_TRUE(waitUntil([&] { return ranOn != std::thread::id(); }));
  EXPECT_EQ(ranOn, std::this_thread::get_id());
}

TEST_F(QtMainQueue, AfterRunsTheSoonerFirstAndEqualOnesInTheOrderOfTheCalls)
{
  queue.after(0.06, note(4));
  queue.after(0.02, note(1));
  queue.after(0.02, note(2));
  queue.after(0.02, note(3));
  EXPECT_TRUE(waitUntil([&] { return order.size() == 4; }));
  EXPECT_THAT(order, ElementsAre(1, 2, 3, 4));
}

TEST_F(QtMainQueue, AfterNeverRunsTooSoon)
{
  const double start = queue.now();
  double ran = 0;
  queue.after(0.05, [&] { ran = queue.now(); });
  EXPECT_TRUE(waitUntil([&] { return ran > 0; }));
  EXPECT_GE(ran - start, 0.05);
}

TEST_F(QtMainQueue, AfterZeroNegativeAndNoNumberCountAsAsync)
{
  queue.async(note(1));
  queue.after(0, note(2));
  queue.after(-3, note(3));
  queue.after(std::numeric_limits<double>::quiet_NaN(), note(4));
  EXPECT_TRUE(waitUntil([&] { return order.size() == 4; }));
  EXPECT_THAT(order, ElementsAre(1, 2, 3, 4));
}

TEST_F(QtMainQueue, WorkGoesOnWhileOnePieceRunsAnEventLoop)
{
  bool nestedSawOthers = false;
  queue.async([&] { nestedSawOthers = waitUntil([&] { return order.size() == 2; }); });
  queue.async(note(1));
  queue.after(0.01, note(2));
  EXPECT_TRUE(waitUntil([&] { return nestedSawOthers; }));
}

TEST_F(QtMainQueue, AThrownExceptionEndsInTheLog)
{
  queue.async([] { throw std::runtime_error("broken\nwork"); });
  queue.async(note(1));
  EXPECT_TRUE(waitUntil([&] { return order.size() == 1; }));
  EXPECT_EQ(takeLog(),
            QStringList{QStringLiteral("wayvane:Wayvane: exception in main queue: broken\\u000awork")});
}

TEST_F(QtMainQueue, EmptyWorkIsNoWork)
{
  queue.async(nullptr);
  queue.after(0.001, nullptr);
  spin();
  EXPECT_TRUE(order.empty());
}

} // namespace
} // namespace wayvane::qt::test
