#include <tests/desktop/Desktop.h>
#include <wayvane/model/WVGuide.h>

#include <gtest/gtest.h>

namespace wayvane {
namespace {

class GuideOnDisk : public testing::Test {
protected:
  const std::string path_ = "/home/user/Guides/First.wayvane";
  sim::Desktop desktop_;
  sim::Files& files_ = desktop_.files();
  Error error_;

  void SetUp() override { files_.makeFolder("/home/user/Guides"); }
};

TEST_F(GuideOnDisk, IsReadAsItWasWritten)
{
  WVGuide guide("First");
  guide.version = "2";
  guide.addStepWithMenuPath("File > Save", "Save it");
  ASSERT_TRUE(guide.writeToURL(path_, &error_)) << error_.description;
  const auto copy = WVGuide::guideWithContentsOfURL(path_, &error_);
  ASSERT_TRUE(copy) << error_.description;
  EXPECT_EQ(*copy, guide);
}

TEST_F(GuideOnDisk, ThatCannotBeReadGivesTheReadersError)
{
  EXPECT_EQ(WVGuide::guideWithContentsOfURL(path_, &error_), nullptr);
  EXPECT_FALSE(error_.description.empty());
  EXPECT_NE(error_.domain, "json");
}

TEST_F(GuideOnDisk, ThatIsNoRegularFileIsNotRead)
{
  files_.putSpecial(path_);
  EXPECT_EQ(WVGuide::guideWithContentsOfURL(path_, &error_), nullptr);
}

TEST_F(GuideOnDisk, ThatIsTooLargeIsNotRead)
{
  files_.put(path_, "{}" + std::string(WVGuide::kFileSizeLimit, ' '));
  EXPECT_EQ(WVGuide::guideWithContentsOfURL(path_, &error_), nullptr);
  EXPECT_FALSE(error_.description.empty());
}

TEST_F(GuideOnDisk, ThatIsNoJsonGivesTheParsersError)
{
  files_.put(path_, "hello");
  EXPECT_EQ(WVGuide::guideWithContentsOfURL(path_, &error_), nullptr);
  EXPECT_EQ(error_.domain, "json");
  EXPECT_EQ(error_.code, 101);
}

TEST_F(GuideOnDisk, ThatCannotBeSerialisedLeavesTheOldFile)
{
  files_.put(path_, "old");
  EXPECT_FALSE(WVGuide("\xFF").writeToURL(path_, &error_));
  EXPECT_EQ(error_.domain, "json");
  EXPECT_EQ(files_.get(path_), "old");
  EXPECT_EQ(files_.writeCount(), 0);
}

TEST_F(GuideOnDisk, ThatCannotBeWrittenLeavesTheOldFile)
{
  files_.put(path_, "old");
  files_.setDiskFull(true);
  EXPECT_FALSE(WVGuide("g").writeToURL(path_, &error_));
  EXPECT_FALSE(error_.description.empty());
  EXPECT_EQ(files_.get(path_), "old");
}

TEST_F(GuideOnDisk, NeedsNoErrorToFill)
{
  files_.setDiskFull(true);
  EXPECT_FALSE(WVGuide("g").writeToURL(path_));
  EXPECT_EQ(WVGuide::guideWithContentsOfURL(path_), nullptr);
}

TEST(GuideWithoutPlatform, IsNeitherReadNorWritten)
{
  Error error;
  EXPECT_FALSE(WVGuide("g").writeToURL("/nowhere/x", &error));
  EXPECT_EQ(error.description, "No platform is installed");
  EXPECT_EQ(WVGuide::guideWithContentsOfURL("/nowhere/x", &error), nullptr);
}

} // namespace
} // namespace wayvane
