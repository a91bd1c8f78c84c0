#include <wayvane/model/WVGuide.h>

#include <gtest/gtest.h>

#include <regex>
#include <set>

namespace wayvane {
namespace {

TEST(Guide, HasTheNameAndNothingElse)
{
  const WVGuide guide("First steps");
  EXPECT_EQ(guide.name, "First steps");
  EXPECT_EQ(guide.nameLocalizations, std::nullopt);
  EXPECT_EQ(guide.version, std::nullopt);
  EXPECT_TRUE(guide.steps.empty());
  EXPECT_EQ(guide.metadata, std::nullopt);
  EXPECT_EQ(guide.appBundleIdentifier, std::nullopt);
  EXPECT_EQ(guide.appBundleVersion, std::nullopt);
}

TEST(Guide, IsIdentifiedByARandomUuidInUpperCase)
{
  const std::regex uuid("[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}");
  EXPECT_TRUE(std::regex_match(WVGuide("x").identifier.value(), uuid));
}

TEST(Guide, IdentifiersNeverRepeat)
{
  std::set<std::string> seen;
  for (int i = 0; i < 1000; ++i)
    seen.insert(WVGuide("x").identifier.value());
  EXPECT_EQ(seen.size(), 1000U);
}

TEST(Guide, AddsAStepByAccessibilityIdentifier)
{
  WVGuide guide("g");
  guide.addStepWithAccessibilityIdentifier("save", "Save it");
  WVTargetDescriptor target;
  target.accessibilityIdentifier = "save";
  ASSERT_EQ(guide.steps.size(), 1U);
  EXPECT_EQ(guide.steps[0], WVStep::stepWithTarget(target, "Save it"));
}

TEST(Guide, AddsAStepByMenuPath)
{
  WVGuide guide("g");
  guide.addStepWithMenuPath("File > Save", "Save it");
  ASSERT_EQ(guide.steps.size(), 1U);
  EXPECT_EQ(guide.steps[0],
            WVStep::stepWithTarget(WVTargetDescriptor::descriptorForMenuPath("File > Save"), "Save it"));
}

TEST(Step, IsAtRestWhenMade)
{
  const WVStep step = WVStep::stepWithTarget({}, "Click");
  EXPECT_EQ(step.message, "Click");
  EXPECT_EQ(step.title, std::nullopt);
  EXPECT_EQ(step.action, 0);
  EXPECT_EQ(step.position, 0);
  EXPECT_EQ(step.highlightStyle, 0);
  EXPECT_EQ(step.delay, 0.0);
  EXPECT_FALSE(step.optional);
}

TEST(Step, CopyKeepsTheHighlightStyleAndIsIndependent)
{
  WVStep step = WVStep::stepWithTarget({}, "Click");
  step.highlightStyle = 2;
  WVStep copy = step;
  EXPECT_EQ(copy.highlightStyle, 2);
  copy.target.title = "Other";
  EXPECT_EQ(step.target.title, std::nullopt);
}

WVStep fullStep()
{
  WVStep step = WVStep::stepWithTarget(WVTargetDescriptor::descriptorForMenuPath("A > B"), "m");
  step.optional = true;
  step.title = "t";
  step.titleLocalizations = LocalizationDictionary{{"de", "T"}};
  step.messageLocalizations = LocalizationDictionary{{"de", "M"}};
  step.action = -7;
  step.position = 99;
  step.highlightStyle = 2;
  step.delay = -0.1;
  return step;
}

TEST(StepArchive, KeepsEveryField)
{
  EXPECT_EQ(WVStep::unarchived(fullStep().archivedData()), fullStep());
}

TEST(StepArchive, WithoutIntegersHasZeros)
{
  const auto step = WVStep::unarchived(R"({"message": "m"})");
  ASSERT_TRUE(step);
  EXPECT_EQ(step->action, 0);
  EXPECT_EQ(step->position, 0);
  EXPECT_EQ(step->highlightStyle, 0);
}

TEST(StepArchive, OfForeignBytesIsNothing)
{
  EXPECT_EQ(WVStep::unarchived("{"), std::nullopt);
}

TEST(GuideArchive, KeepsEveryFieldIncludingMetadataAndHighlightStyle)
{
  WVGuide guide("g");
  guide.nameLocalizations = LocalizationDictionary{{"de", "G"}};
  guide.version = "3";
  guide.metadata = LocalizationDictionary{{"author", "me"}};
  guide.appBundleIdentifier = "org.example.Notes";
  guide.appBundleVersion = "1.4";
  guide.steps = {fullStep(), WVStep()};
  const auto copy = WVGuide::unarchived(guide.archivedData());
  ASSERT_TRUE(copy);
  EXPECT_EQ(*copy, guide);
}

TEST(GuideArchive, KeepsAGuideWithoutAnythingAsItIs)
{
  const auto copy = WVGuide::unarchived(WVGuide().archivedData());
  ASSERT_TRUE(copy);
  EXPECT_EQ(*copy, WVGuide());
}

TEST(GuideArchive, WithoutStepsHasNone)
{
  const auto copy = WVGuide::unarchived(R"({"name": "g"})");
  ASSERT_TRUE(copy);
  EXPECT_TRUE(copy->steps.empty());
}

TEST(GuideArchive, OfForeignBytesIsNothing)
{
  EXPECT_EQ(WVGuide::unarchived("[]"), nullptr);
}

TEST(GuideArchive, OfATextThatIsNotUtf8IsEmpty)
{
  EXPECT_EQ(WVGuide("\xFF").archivedData(), "");
}

} // namespace
} // namespace wayvane
