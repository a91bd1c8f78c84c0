#include <tests/conformance/Conformance.h>

#include <thread>

namespace wayvane::conformance {

namespace {

class MainQueue : public Conformance {
protected:
  [[nodiscard]] platform::MainQueue& queue() { return platform().mainQueue; }

  [[nodiscard]] std::function<void()> noting(std::string name)
  {
    return [this, name = std::move(name)] { order_.push_back(name); };
  }

  /// Lets time pass until that much work ran.
  [[nodiscard]] bool ran(std::size_t count)
  {
    return stage().waitUntil([&] { return order_.size() >= count; });
  }

  [[nodiscard]] const std::vector<std::string>& order() const { return order_; }

private:
  std::vector<std::string> order_;
};

TEST_F(MainQueue, WorkRunsLaterAndInTheOrderOfTheCalls)
{
  for (const char* name : {"first", "second", "third"})
    queue().async(noting(name));
  EXPECT_THAT(order(), IsEmpty()) << "on a later turn";
  ASSERT_TRUE(ran(3));
  EXPECT_THAT(order(), ElementsAre("first", "second", "third"));
}

TEST_F(MainQueue, NoDelayIsTheSameAsNone)
{
  queue().async(noting("first"));
  queue().after(0, noting("second"));
  queue().async(noting("third"));
  queue().after(-1, noting("fourth"));
  EXPECT_THAT(order(), IsEmpty());
  ASSERT_TRUE(ran(4));
  EXPECT_THAT(order(), ElementsAre("first", "second", "third", "fourth"));
}

TEST_F(MainQueue, WorkPutThereByWorkRunsAfterWhatWaits)
{
  queue().async([this] {
    noting("first")();
    queue().async(noting("third"));
  });
  queue().async(noting("second"));
  ASSERT_TRUE(ran(3));
  EXPECT_THAT(order(), ElementsAre("first", "second", "third"));
}

TEST_F(MainQueue, ADelayPassesFirst)
{
  const double start = queue().now();
  double end = 0;
  queue().after(0.05, [&] { end = queue().now(); });
  ASSERT_TRUE(stage().waitUntil([&] { return end > 0; }));
  EXPECT_GE(end - start, 0.049);
  EXPECT_LT(end - start, 1);
}

TEST_F(MainQueue, ShorterDelaysEndEarlier)
{
  queue().after(0.08, noting("late"));
  queue().after(0.03, noting("early"));
  ASSERT_TRUE(ran(2));
  EXPECT_THAT(order(), ElementsAre("early", "late"));
}

TEST_F(MainQueue, EqualDelaysEndInTheOrderOfTheCalls)
{
  for (int i = 0; i < 20; ++i)
    queue().after(0.03, noting(std::to_string(i)));
  ASSERT_TRUE(ran(20));
  for (int i = 0; i < 20; ++i)
    EXPECT_EQ(order()[static_cast<std::size_t>(i)], std::to_string(i));
}

TEST_F(MainQueue, TimeNeverGoesBack)
{
  double last = queue().now();
  for (int i = 0; i < 5; ++i) {
    stage().pass(0.005);
    EXPECT_GT(queue().now(), last);
    last = queue().now();
  }
  EXPECT_GE(queue().uptime(), 0);
}

TEST_F(MainQueue, WorkFromAnotherThreadRunsOnTheMainOne)
{
  const auto main = std::this_thread::get_id();
  std::thread::id ranOn;
  std::thread([&] {
    for (const char* name : {"first", "second"}) {
      queue().async([this, &ranOn, name] {
        ranOn = std::this_thread::get_id();
        noting(name)();
      });
    }
  }).join();
  EXPECT_THAT(order(), IsEmpty());
  ASSERT_TRUE(ran(2));
  EXPECT_EQ(ranOn, main);
  EXPECT_THAT(order(), ElementsAre("first", "second"));
}

TEST_F(MainQueue, WorkMayBeEmpty)
{
  queue().async({});
  queue().after(0.01, {});
  queue().after(0.02, noting("done"));
  ASSERT_TRUE(ran(1));
}

} // namespace

} // namespace wayvane::conformance
