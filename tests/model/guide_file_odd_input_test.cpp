#include <wayvane/model/WVGuide.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

namespace wayvane {
namespace {

using testing::HasSubstr;

constexpr auto kLargest = std::numeric_limits<std::int64_t>::max();
constexpr auto kSmallest = std::numeric_limits<std::int64_t>::min();

Error errorOf(std::string_view bytes)
{
  Error error;
  EXPECT_EQ(WVGuide::guideWithJSONData(bytes, &error), nullptr);
  return error;
}

WVGuide read(const std::string& bytes)
{
  const auto guide = WVGuide::guideWithJSONData(bytes);
  if (!guide) throw std::runtime_error("not read: " + bytes);
  return *guide;
}

WVStep step(const std::string& members)
{
  return read(R"({"steps": [{)" + members + "}]}").steps.at(0);
}

std::string repeated(std::string_view part, int times)
{
  std::string all;
  for (int i = 0; i < times; ++i)
    all += part;
  return all;
}

// Refused

TEST(GuideFileRefusal, OfInvalidJsonPassesTheParsersErrorThrough)
{
  const Error error = errorOf("{\"name\": }");
  EXPECT_EQ(error.domain, "json");
  EXPECT_EQ(error.code, 101);
  EXPECT_THAT(error.description, HasSubstr("parse error at line 1, column 10"));
}

TEST(GuideFileRefusal, NeedsNoErrorToFill)
{
  EXPECT_EQ(WVGuide::guideWithJSONData("{"), nullptr);
}

TEST(GuideFileRefusal, OfNothing)
{
  EXPECT_EQ(errorOf("").code, 101);
}

TEST(GuideFileRefusal, OfWhatFollowsTheDocument)
{
  EXPECT_EQ(errorOf("{} {}").code, 101);
}

TEST(GuideFileRefusal, OfADocumentCutShort)
{
  const std::string whole = R"({"name": "n", "steps": [{"target": {"title": "x"}, "delay": 1.5}]})";
  for (std::size_t length = 0; length < whole.size(); ++length)
    EXPECT_EQ(WVGuide::guideWithJSONData(whole.substr(0, length)), nullptr) << length;
}

TEST(GuideFileRefusal, OfADocumentThatIsNoObject)
{
  for (const char* bytes : {"[]", "[{}]", "null", "true", "1", "1.5", "\"text\""}) {
    const Error error = errorOf(bytes);
    EXPECT_EQ(error.code, -1) << bytes;
    EXPECT_EQ(error.description, "The document is not a JSON object") << bytes;
  }
}

TEST(GuideFileRefusal, OfTextsThatAreNotUtf8)
{
  for (const char* text : {"\xFF", "\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\xE0\x80\x80"})
    EXPECT_EQ(errorOf(std::string(R"({"name": ")") + text + "\"}").code, 101);
}

TEST(GuideFileRefusal, OfHalfASurrogatePair)
{
  EXPECT_EQ(errorOf(R"({"name": "\uD83C"})").code, 101);
}

TEST(GuideFileRefusal, OfAnotherEncoding)
{
  using namespace std::string_view_literals;
  EXPECT_EQ(errorOf("\xFF\xFE{\0}\0"sv).code, 101);
}

TEST(GuideFileRefusal, OfANumberNoDoubleCanHold)
{
  EXPECT_EQ(errorOf(R"({"steps": [{"delay": 1e999}]})").code, 406);
}

TEST(GuideFileRefusal, OfWordsForNumbers)
{
  EXPECT_EQ(errorOf(R"({"steps": [{"delay": NaN}]})").code, 101);
  EXPECT_EQ(errorOf(R"({"steps": [{"delay": Infinity}]})").code, 101);
}

TEST(GuideFileRefusal, OfAHundredThousandLevels)
{
  constexpr int levels = 100'000;
  const std::string arrays = R"({"x": )" + repeated("[", levels) + repeated("]", levels) + "}";
  EXPECT_EQ(errorOf(arrays).description, "The document is nested too deeply");
  const std::string objects = repeated(R"({"steps": [{"target": )", levels);
  EXPECT_EQ(errorOf(objects).code, -2);
}

TEST(GuideFileRefusal, OfMoreStepsThanMemoryShouldHold)
{
  const std::string bytes = R"({"steps": [{})" + repeated(",{}", 100'000) + "]}";
  EXPECT_EQ(errorOf(bytes).description, "The guide has too many steps");
}

TEST(GuideFileRefusal, SaysItInAFewWordsWhateverTheDocument)
{
  EXPECT_LE(errorOf("{\"" + std::string(1'000'000, 'x')).description.size(), 500U);
}

// Read all the same

TEST(OddGuideFile, MayNestUpToTheLimitWhereNobodyLooks)
{
  const std::string bytes = R"({"x": )" + repeated("[", 511) + repeated("]", 511) + R"(, "name": "n"})";
  EXPECT_EQ(read(bytes).name, "n");
}

TEST(OddGuideFile, MayBeginWithAByteOrderMark)
{
  EXPECT_EQ(read("\xEF\xBB\xBF{\"name\": \"n\"}").name, "n");
}

TEST(OddGuideFile, MayHoldHugeTexts)
{
  const std::string text(5'000'000, 'x');
  EXPECT_EQ(read(R"({"name": ")" + text + "\"}").name, text);
}

TEST(OddGuideFile, TakesTheLastOfTwoEqualKeys)
{
  EXPECT_EQ(read(R"({"name": "a", "name": "b"})").name, "b");
  EXPECT_EQ(read(R"({"nameLocalizations": {"de": "a", "de": "b"}})").nameLocalizations->at("de"), "b");
}

TEST(OddGuideFile, ForgetsTheFirstOfTwoEqualObjects)
{
  const auto target = step(R"("target": {"title": "a"}, "target": {"action": "b"})").target;
  EXPECT_EQ(target.title, std::nullopt);
  EXPECT_EQ(target.action, "b");
  EXPECT_EQ(read(R"({"steps": [{}, {}], "steps": [{}]})").steps.size(), 1U);
  EXPECT_EQ(read(R"({"nameLocalizations": {"de": "a"}, "nameLocalizations": {}})").nameLocalizations->size(),
            0U);
}

TEST(OddGuideFile, TakesTheLastOfTwoEqualKeysAlsoWhenItIsOfTheWrongType)
{
  EXPECT_EQ(step(R"("title": "a", "title": 7)").title, std::nullopt);
  EXPECT_EQ(step(R"("position": 3, "position": "a")").position, 0);
  EXPECT_EQ(step(R"("target": {"tableRow": 3, "tableRow": []})").target.tableRow, -1);
  EXPECT_EQ(step(R"("target": {"title": "a"}, "target": [])").target, WVTargetDescriptor());
  EXPECT_TRUE(read(R"({"steps": [{}], "steps": "none"})").steps.empty());
  EXPECT_TRUE(read(R"({"nameLocalizations": {"de": "a", "de": {}}})").nameLocalizations->empty());
}

TEST(OddGuideFile, TakesATextOfAnotherTypeAsAbsent)
{
  for (const char* value : {"null", "true", "1", "1.5", "[\"a\"]", "{\"a\": \"b\"}"})
    EXPECT_EQ(step(R"("message": )" + std::string(value)).message, std::nullopt) << value;
}

TEST(OddGuideFile, TakesAnIdentifierOfAnotherTypeAsAbsent)
{
  EXPECT_EQ(read(R"({"identifier": 7})").identifier.value().size(), 36U);
}

TEST(OddGuideFile, TakesADictionaryOfAnotherTypeAsAbsent)
{
  for (const char* value : {"null", "true", "1", "\"de\"", "[\"de\"]"})
    EXPECT_EQ(step(R"("messageLocalizations": )" + std::string(value)).messageLocalizations, std::nullopt)
        << value;
}

TEST(OddGuideFile, LeavesOutTranslationsThatAreNoTexts)
{
  const auto texts = step(R"("titleLocalizations": {"de": 1, "en": "e", "fr": null, "it": ["x"], "es": {}})");
  EXPECT_EQ(texts.titleLocalizations, (LocalizationDictionary{{"en", "e"}}));
}

TEST(OddGuideFile, LeavesOutStepsThatAreNoObjects)
{
  const auto guide = read(R"({"steps": [1, "a", null, [{"message": "in"}], {"message": "b"}, true]})");
  ASSERT_EQ(guide.steps.size(), 1U);
  EXPECT_EQ(guide.steps[0].message, "b");
}

TEST(OddGuideFile, TakesStepsThatAreNoArrayAsNone)
{
  for (const char* value : {"null", "1", "\"a\"", "{\"0\": {\"message\": \"m\"}}"})
    EXPECT_TRUE(read(R"({"steps": )" + std::string(value) + "}").steps.empty()) << value;
}

TEST(OddGuideFile, TakesATargetThatIsNoObjectAsAbsent)
{
  for (const char* value : {"null", "1", "\"a\"", "[{\"title\": \"t\"}]"})
    EXPECT_EQ(step(R"("target": )" + std::string(value)).target, WVTargetDescriptor()) << value;
}

TEST(OddGuideFile, ReadsAnyNumberOrBooleanAsAnInteger)
{
  EXPECT_EQ(step(R"("position": 2.9)").position, 2);
  EXPECT_EQ(step(R"("position": -2.9)").position, -2);
  EXPECT_EQ(step(R"("position": true)").position, 1);
  EXPECT_EQ(step(R"("position": "2")").position, 0);
}

TEST(OddGuideFile, ReadsIntegersOutOfRangeAsTheNearest)
{
  EXPECT_EQ(step(R"("action": 9223372036854775807)").action, kLargest);
  EXPECT_EQ(step(R"("action": 9223372036854775808)").action, kLargest);
  EXPECT_EQ(step(R"("action": 18446744073709551616)").action, kLargest);
  EXPECT_EQ(step(R"("action": 1e300)").action, kLargest);
  EXPECT_EQ(step(R"("action": -9223372036854775808)").action, kSmallest);
  EXPECT_EQ(step(R"("action": -9223372036854775809)").action, kSmallest);
}

TEST(OddGuideFile, ReadsRowsBelowZeroAsTheyStand)
{
  EXPECT_EQ(step(R"("target": {"tableRow": -5})").target.tableRow, -5);
}

TEST(OddGuideFile, ReadsAnyNumberOrBooleanAsADelay)
{
  EXPECT_EQ(step(R"("delay": 3)").delay, 3.0);
  EXPECT_EQ(step(R"("delay": -3)").delay, -3.0);
  EXPECT_EQ(step(R"("delay": true)").delay, 1.0);
  EXPECT_EQ(step(R"("delay": "3")").delay, 0.0);
}

TEST(OddGuideFile, ReadsAnyNumberOrBooleanAsAFlag)
{
  EXPECT_TRUE(step(R"("optional": 1)").optional);
  EXPECT_TRUE(step(R"("optional": 0.5)").optional);
  EXPECT_FALSE(step(R"("optional": 0)").optional);
  EXPECT_FALSE(step(R"("optional": "true")").optional);
}

TEST(OddGuideFile, PassesOverUnknownKeysAndAllThatIsInThem)
{
  const auto guide = read(R"({"x": {"name": "no", "steps": [{"y": []}]}, "name": "n",
                              "steps": [{"z": [{"message": "no"}], "message": "m"}]})");
  EXPECT_EQ(guide.name, "n");
  ASSERT_EQ(guide.steps.size(), 1U);
  EXPECT_EQ(guide.steps[0].message, "m");
}

TEST(OddGuideFile, TakesKeysOnlyWhereTheyBelong)
{
  const auto guide = read(R"({"message": "m", "target": {"title": "t"}, "steps": [{"name": "n"}]})");
  EXPECT_EQ(guide.name, "");
  EXPECT_EQ(guide.steps.at(0), WVStep());
}

// What cannot be written

TEST(GuideFileWriting, RefusesATextThatIsNotUtf8)
{
  WVGuide guide("g");
  guide.addStepWithAccessibilityIdentifier("id", "caf\xE9");
  Error error;
  EXPECT_EQ(guide.jsonDataWithError(&error), std::nullopt);
  EXPECT_EQ(error.domain, "json");
  EXPECT_EQ(error.description, "The text of \"message\" is not valid UTF-8");
}

TEST(GuideFileWriting, RefusesALanguageThatIsNotUtf8)
{
  WVGuide guide("g");
  guide.nameLocalizations = LocalizationDictionary{{"\x80", "x"}};
  EXPECT_EQ(guide.jsonDataWithError(), std::nullopt);
}

TEST(GuideFileWriting, RefusesAnInfiniteDelay)
{
  WVGuide guide("g");
  guide.steps.emplace_back().delay = std::numeric_limits<double>::infinity();
  Error error;
  EXPECT_EQ(guide.jsonDataWithError(&error), std::nullopt);
  EXPECT_EQ(error.description, "The number of \"delay\" is not finite");
}

TEST(GuideFileWriting, LeavesOutADelayThatIsNoNumber)
{
  WVGuide guide("g");
  guide.steps.emplace_back().delay = std::numeric_limits<double>::quiet_NaN();
  EXPECT_THAT(guide.jsonDataWithError().value(), testing::Not(HasSubstr("delay")));
}

} // namespace
} // namespace wayvane
