#include <tests/fuzz/Mutator.h>
#include <wayvane/model/WVGuide.h>

#include <gtest/gtest.h>

namespace wayvane {
namespace {

std::string richGuide()
{
  WVTargetDescriptor target;
  target.accessibilityIdentifier = "save";
  target.hierarchyPath = "NSView[0]/NSButton[3]";
  target.titleLocalizations = LocalizationDictionary{{"de", "Größe"}, {"en", "Size"}};
  target.toolTip = "";
  target.tableRow = 3;
  target.tableColumn = 0;
  target.objectIdentifier = "x-coredata://1/p2";
  WVStep step = WVStep::stepWithTarget(target, "Click \"here\"\n");
  step.title = "日本語 🎉";
  step.messageLocalizations = LocalizationDictionary{{"fr", "Ici"}};
  step.position = -4;
  step.delay = 0.25;
  step.optional = true;
  WVGuide guide("First steps");
  guide.nameLocalizations = LocalizationDictionary{};
  guide.appBundleIdentifier = "org.example.Notes";
  guide.appBundleVersion = "1.4";
  guide.steps = {step, WVStep()};
  guide.addStepWithMenuPath("File > Save", "Save");
  return guide.jsonDataWithError().value();
}

fuzz::Mutator guideFiles()
{
  return {
      {
          richGuide(),
          R"({"steps":[{"target":{"title":"a","titleLocalizations":{"de":"b"}},"delay":1e3}],"name":"n"})",
          R"({"identifier":null,"steps":[1,[],{"action":1.5,"optional":1}],"nameLocalizations":{"x":[]}})",
          R"({"steps":[{"message":"\u00e4\ud83c\udf89\"\\\/"}],"unknown":[[{"steps":[]}]]})",
      },
      {"{",
       "}",
       "[",
       "]",
       ",",
       ":",
       "\"",
       "null",
       "true",
       "-1",
       "1e308",
       "1e999",
       "0.1",
       "18446744073709551616",
       "\\u0000",
       "\\ud800",
       "\xFF",
       "\xC3",
       "\"steps\":[",
       "\"target\":{",
       "\"title\":",
       "\"delay\":",
       "\"titleLocalizations\":{",
       "\"tableRow\":",
       "[[[[[[[[",
       "{\"a\":{\"a\":"},
      20240229};
}

/// What has been read can be written, and reads back the same but for what the file does not hold.
void expectToSurvive(const WVGuide& guide, const std::string& input)
{
  const auto bytes = guide.jsonDataWithError();
  ASSERT_TRUE(bytes) << input;
  const auto again = WVGuide::guideWithJSONData(*bytes);
  ASSERT_TRUE(again) << input;
  WVGuide expected = guide;
  if (!expected.version) expected.version = "1";
  for (WVStep& step : expected.steps) {
    if (!(step.delay > 0)) step.delay = 0;
    step.target.tableRow = std::max<std::int64_t>(step.target.tableRow, -1);
    step.target.tableColumn = std::max<std::int64_t>(step.target.tableColumn, -1);
  }
  EXPECT_EQ(*again, expected) << input;
}

void expectArchivesToSurvive(const std::string& input)
{
  const auto guide = WVGuide::unarchived(input);
  if (!guide) return;
  EXPECT_EQ(*WVGuide::unarchived(guide->archivedData()), *guide) << input;
}

TEST(GuideFileFuzz, TwentyThousandDamagedFilesAreReadWholeOrRefused)
{
  fuzz::Mutator files = guideFiles();
  int read = 0, refused = 0;
  for (int i = 0; i < 20'000 && !testing::Test::HasFailure(); ++i) {
    const std::string input = files.next();
    Error error;
    if (const auto guide = WVGuide::guideWithJSONData(input, &error)) {
      ++read;
      expectToSurvive(*guide, input);
      expectArchivesToSurvive(input);
    } else {
      ++refused;
      EXPECT_EQ(error.domain, "json") << input;
      EXPECT_FALSE(error.description.empty()) << input;
    }
  }
  // Otherwise the damages are too light or too heavy to tell anything.
  EXPECT_GT(read, 1000);
  EXPECT_GT(refused, 1000);
}

} // namespace
} // namespace wayvane
