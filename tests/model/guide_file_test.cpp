#include <wayvane/model/WVGuide.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace wayvane {
namespace {

using testing::HasSubstr;
using testing::Not;

WVGuide guideWithStep(WVStep step)
{
  WVGuide guide("g");
  guide.version = "1";
  guide.steps = {std::move(step)};
  return guide;
}

std::string written(const WVGuide& guide)
{
  return guide.jsonDataWithError().value();
}

WVGuide readBack(const std::string& bytes)
{
  const auto guide = WVGuide::guideWithJSONData(bytes);
  if (!guide) throw std::runtime_error("not read: " + bytes);
  return *guide;
}

WVStep stepReadFrom(const std::string& members)
{
  return readBack(R"({"steps": [{)" + members + "}]}").steps.at(0);
}

WVTargetDescriptor targetReadFrom(const std::string& members)
{
  return stepReadFrom(R"("target": {)" + members + "}").target;
}

TEST(GuideFile, OfANilVersionSaysOne)
{
  const WVGuide guide("g");
  EXPECT_THAT(written(guide), HasSubstr(R"("version": "1")"));
  EXPECT_EQ(readBack(written(guide)).version, "1");
}

TEST(GuideFile, OfANilIdentifierAndNameSaysEmpty)
{
  const std::string bytes = written(WVGuide());
  EXPECT_THAT(bytes, HasSubstr(R"("identifier": "")"));
  EXPECT_THAT(bytes, HasSubstr(R"("name": "")"));
}

TEST(GuideFile, WithoutIdentifierGivesANewOneEachTime)
{
  const auto first = readBack("{}"), second = readBack("{}");
  EXPECT_EQ(first.identifier.value().size(), 36U);
  EXPECT_NE(first.identifier, second.identifier);
}

TEST(GuideFile, WithAnEmptyIdentifierKeepsIt)
{
  EXPECT_EQ(readBack(R"({"identifier": ""})").identifier, "");
}

TEST(GuideFile, WithoutNameGivesAnEmptyOne)
{
  EXPECT_EQ(readBack("{}").name, "");
}

TEST(GuideFile, WithoutVersionGivesNone)
{
  EXPECT_EQ(readBack("{}").version, std::nullopt);
}

TEST(GuideFile, HasNoDelayKeyForZero)
{
  EXPECT_THAT(written(guideWithStep({})), Not(HasSubstr("delay")));
}

TEST(GuideFile, HasNoDelayKeyForANegativeDelayWhichReadsBackAsZero)
{
  WVStep step;
  step.delay = -1.5;
  const std::string bytes = written(guideWithStep(step));
  EXPECT_THAT(bytes, Not(HasSubstr("delay")));
  EXPECT_EQ(readBack(bytes).steps.at(0).delay, 0.0);
}

TEST(GuideFile, KeepsADelayToTheLastBit)
{
  WVStep step;
  step.delay = 0.1 + 0.2;
  EXPECT_EQ(readBack(written(guideWithStep(step))).steps.at(0).delay, 0.1 + 0.2);
}

TEST(GuideFile, HasNoOptionalKeyForNo)
{
  EXPECT_THAT(written(guideWithStep({})), Not(HasSubstr("optional")));
}

TEST(GuideFile, SaysTrueForAnOptionalStep)
{
  WVStep step;
  step.optional = true;
  const std::string bytes = written(guideWithStep(step));
  EXPECT_THAT(bytes, HasSubstr(R"("optional": true)"));
  EXPECT_TRUE(readBack(bytes).steps.at(0).optional);
}

TEST(GuideFile, LeavesOutARowThatIsNone)
{
  WVStep step;
  step.target.tableColumn = 3;
  const std::string bytes = written(guideWithStep(step));
  EXPECT_THAT(bytes, HasSubstr(R"("tableColumn": 3)"));
  EXPECT_THAT(bytes, Not(HasSubstr("tableRow")));
  EXPECT_EQ(readBack(bytes).steps.at(0).target.tableRow, -1);
  EXPECT_EQ(readBack(bytes).steps.at(0).target.tableColumn, 3);
}

TEST(GuideFile, KeepsRowZero)
{
  WVStep step;
  step.target.tableRow = 0;
  EXPECT_EQ(readBack(written(guideWithStep(step))).steps.at(0).target.tableRow, 0);
}

TEST(GuideFile, ForgetsTheHighlightStyle)
{
  WVStep step;
  step.highlightStyle = 2;
  EXPECT_EQ(readBack(written(guideWithStep(step))).steps.at(0).highlightStyle, 0);
  EXPECT_EQ(stepReadFrom(R"("highlightStyle": 2)").highlightStyle, 0);
}

TEST(GuideFile, ForgetsTheMetadata)
{
  WVGuide guide("g");
  guide.metadata = LocalizationDictionary{{"author", "me"}};
  EXPECT_THAT(written(guide), Not(HasSubstr("metadata")));
  EXPECT_EQ(readBack(R"({"metadata": {"author": "me"}})").metadata, std::nullopt);
}

TEST(GuideFile, KeepsAnEmptyTextOfATarget)
{
  WVStep step;
  step.target.toolTip = "";
  const std::string bytes = written(guideWithStep(step));
  EXPECT_THAT(bytes, HasSubstr(R"("toolTip": "")"));
  EXPECT_EQ(readBack(bytes).steps.at(0).target.toolTip, "");
}

TEST(GuideFile, GivesAStepWithoutTargetAnEmptyOne)
{
  EXPECT_EQ(stepReadFrom(R"("message": "m")").target, WVTargetDescriptor());
}

TEST(GuideFile, HasNoMessageKeyForANilMessage)
{
  const std::string bytes = written(guideWithStep({}));
  EXPECT_THAT(bytes, Not(HasSubstr("message")));
  EXPECT_EQ(readBack(bytes).steps.at(0).message, std::nullopt);
}

TEST(GuideFile, KeepsAnEmptyDictionaryApartFromNone)
{
  WVGuide guide("g");
  EXPECT_THAT(written(guide), Not(HasSubstr("nameLocalizations")));
  guide.nameLocalizations = LocalizationDictionary{};
  EXPECT_THAT(written(guide), HasSubstr(R"("nameLocalizations": {})"));
  EXPECT_EQ(readBack(written(guide)).nameLocalizations, LocalizationDictionary{});
}

TEST(GuideFile, KeepsUnknownActionsAndPositions)
{
  const WVStep step = stepReadFrom(R"("action": 41, "position": -9)");
  EXPECT_EQ(step.action, 41);
  EXPECT_EQ(step.position, -9);
}

TEST(GuideFile, IsIndentedWithKeysInTheirOrder)
{
  WVStep step = WVStep::stepWithTarget(WVTargetDescriptor::descriptorForMenuPath("File > Save"), "Save");
  step.title = "First";
  step.titleLocalizations = LocalizationDictionary{{"de", "Zuerst"}};
  step.messageLocalizations = LocalizationDictionary{{"de", "Sichern"}};
  step.delay = 1.5;
  step.optional = true;
  step.target.tableRow = 1;
  step.target.windowTitle = "Main";
  WVGuide guide = guideWithStep(step);
  guide.identifier = "ID";
  guide.nameLocalizations = LocalizationDictionary{{"de", "F"}};
  guide.appBundleIdentifier = "org.example.Notes";
  guide.appBundleVersion = "1.4";
  EXPECT_EQ(written(guide), R"({
  "identifier": "ID",
  "name": "g",
  "version": "1",
  "steps": [
    {
      "target": {
        "menuPath": "File > Save",
        "tableRow": 1,
        "windowTitle": "Main"
      },
      "title": "First",
      "titleLocalizations": {
        "de": "Zuerst"
      },
      "message": "Save",
      "messageLocalizations": {
        "de": "Sichern"
      },
      "action": 0,
      "position": 0,
      "delay": 1.5,
      "optional": true
    }
  ],
  "nameLocalizations": {
    "de": "F"
  },
  "appBundleIdentifier": "org.example.Notes",
  "appBundleVersion": "1.4"
})");
}

TEST(GuideFile, OfAGuideWithoutStepsHasAnEmptyArray)
{
  EXPECT_THAT(written(WVGuide("g")), HasSubstr(R"("steps": [])"));
}

TEST(GuideFile, KeepsEveryTextWhateverIsInIt)
{
  WVStep step;
  std::string text =
      "quote \" backslash \\ slash / tab \t line \n return \r bell \a delete \x7F Größe 日本語 🎉";
  text.push_back('\0');
  text += "after zero %@ <b>";
  step.message = text;
  step.messageLocalizations = LocalizationDictionary{{"\"\n", text}};
  const WVGuide guide = guideWithStep(step);
  EXPECT_EQ(readBack(written(guide)), guide);
}

TEST(GuideFile, KeepsEveryFieldOfATarget)
{
  WVStep step;
  WVTargetDescriptor& target = step.target;
  target.accessibilityIdentifier = "1";
  target.menuPath = "2";
  target.menuAction = "3";
  target.className = "4";
  target.hierarchyPath = "5";
  target.title = "6";
  target.titleLocalizations = LocalizationDictionary{{"de", "7"}};
  target.action = "8";
  target.toolTip = "9";
  target.toolTipLocalizations = LocalizationDictionary{{"de", "10"}};
  target.toolbarItemIdentifier = "11";
  target.bindingInfo = "12";
  target.tableRow = 13;
  target.tableColumn = 14;
  target.tableColumnIdentifier = "15";
  target.tableIdentifier = "16";
  target.cellIdentifier = "17";
  target.objectIdentifier = "18";
  target.windowTitle = "19";
  const WVGuide guide = guideWithStep(step);
  EXPECT_EQ(readBack(written(guide)), guide);
}

TEST(GuideFile, ReadsEachTargetKeyIntoItsOwnField)
{
  const auto target = targetReadFrom(R"("menuAction": "a", "action": "b", "cellIdentifier": "c")");
  WVTargetDescriptor expected;
  expected.menuAction = "a";
  expected.action = "b";
  expected.cellIdentifier = "c";
  EXPECT_EQ(target, expected);
}

TEST(GuideFile, IsReadWhateverTheOrderOfItsKeys)
{
  const auto guide = readBack(R"({"steps": [{"delay": 2, "target": {"title": "t"}}], "name": "n"})");
  EXPECT_EQ(guide.name, "n");
  EXPECT_EQ(guide.steps.at(0).delay, 2.0);
  EXPECT_EQ(guide.steps.at(0).target.title, "t");
}

TEST(GuideFile, KeepsTheOrderOfTheSteps)
{
  const auto guide = readBack(R"({"steps": [{"message": "a"}, {"message": "b"}, {"message": "c"}]})");
  ASSERT_EQ(guide.steps.size(), 3U);
  EXPECT_EQ(guide.steps[0].message, "a");
  EXPECT_EQ(guide.steps[2].message, "c");
}

} // namespace
} // namespace wayvane
