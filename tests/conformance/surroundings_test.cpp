#include <tests/conformance/Conformance.h>

#include <algorithm>
#include <thread>

namespace wayvane::conformance {

namespace {

class Surroundings : public Conformance {
protected:
  /// Log lines that hold `text`.
  [[nodiscard]] std::vector<std::string> linesWith(const std::string& text)
  {
    std::vector<std::string> lines = stage().loggedLines();
    std::erase_if(lines, [&](const std::string& line) { return line.find(text) == std::string::npos; });
    return lines;
  }

  [[nodiscard]] platform::Localization& localization() { return platform().localization; }
};

TEST_F(Surroundings, ThePrimaryScreenStartsAtTheOrigin)
{
  const auto frame = platform().screen.mainScreenFrame();
  ASSERT_TRUE(frame);
  EXPECT_EQ(frame->origin(), Point{});
  EXPECT_GE(frame->width, 800);
  EXPECT_GE(frame->height, 600);
}

TEST_F(Surroundings, TheVisiblePartOfTheScreenIsAPartOfIt)
{
  const auto frame = platform().screen.mainScreenFrame(),
             visible = platform().screen.mainScreenVisibleFrame();
  ASSERT_TRUE(frame && visible);
  EXPECT_TRUE(frame->contains(*visible)) << platform::stringFromRect(*visible);
}

TEST_F(Surroundings, TheProgramHasANameAndAVersion)
{
  EXPECT_THAT(platform().application.bundleIdentifier(), Optional(std::string("org.example.Notes")));
  EXPECT_THAT(platform().application.shortVersion(), Optional(std::string("1.4")));
}

TEST_F(Surroundings, ALineIsLoggedAsItIs)
{
  platform().log.write("[Wayvane] 100 % of \"Höhenweg\" %s");
  EXPECT_THAT(linesWith("Höhenweg"), ElementsAre("[Wayvane] 100 % of \"Höhenweg\" %s"));
}

TEST_F(Surroundings, ALineStaysOneLine)
{
  platform().log.write("tour \"A\nB\"");
  const auto lines = linesWith("tour");
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].find('\n'), std::string::npos);
  EXPECT_THAT(lines[0], testing::AllOf(testing::HasSubstr("A"), testing::HasSubstr("B")));
}

TEST_F(Surroundings, AnotherThreadMayLog)
{
  std::thread([this] { platform().log.write("from elsewhere"); }).join();
  stage().pass(0.02);
  EXPECT_THAT(linesWith("elsewhere"), ElementsAre("from elsewhere"));
}

TEST_F(Surroundings, TheLanguageIsABareCode)
{
  EXPECT_THAT(localization().languageCode(), Optional(std::string("en")));
}

TEST_F(Surroundings, ATextOfTheHostsIsInTheLanguageOfTheProgram)
{
  stage().addHostTable("Tours", "de", {{"plan", "Planen"}});
  EXPECT_FALSE(localization().hostString("Tours", "plan"));
  stage().addHostTable("Tours", "en", {{"plan", "Plan a tour"}});
  EXPECT_THAT(localization().hostString("Tours", "plan"), Optional(std::string("Plan a tour")));
}

TEST_F(Surroundings, ATextOfTheFrameworksIsInItsOwnTable)
{
  stage().addHostTable("Wayvane", "en", {{"WV.bubble.next", "Onwards"}});
  EXPECT_THAT(localization().frameworkString("WV.bubble.next"), Optional(std::string("Onwards")));
  EXPECT_FALSE(localization().frameworkString("WV.bubble.previous"));
}

TEST_F(Surroundings, ATableOfTheHostsIsReadByLanguage)
{
  stage().addHostTable("Tours", "de", {{"plan", "Planen & Gehen"}, {"quote", "„Ja“ \"nein\""}});
  stage().addHostTable("Tours", "fr", {{"plan", "Planifier"}});
  EXPECT_THAT(localization().hostTable("Tours", "de"),
              Optional(platform::StringTable{{"plan", "Planen & Gehen"}, {"quote", "„Ja“ \"nein\""}}));
  EXPECT_THAT(localization().hostTable("Tours", "fr"),
              Optional(platform::StringTable{{"plan", "Planifier"}}));
  EXPECT_THAT(localization().hostLocalizations(), testing::UnorderedElementsAre("de", "fr"));
}

TEST_F(Surroundings, TheBaseTableIsNoLanguage)
{
  stage().addHostTable("Tours", "Base", {{"plan", "Plan"}});
  stage().addHostTable("Tours", "de", {{"plan", "Planen"}});
  EXPECT_THAT(localization().hostTable("Tours", "Base"), Optional(platform::StringTable{{"plan", "Plan"}}));
  EXPECT_THAT(localization().hostLocalizations(), ElementsAre("de"));
}

TEST_F(Surroundings, WhatTheHostDoesNotShipIsNothing)
{
  stage().addHostTable("Tours", "de", {{"plan", "Planen"}});
  EXPECT_FALSE(localization().hostTable("Tours", "it"));
  EXPECT_FALSE(localization().hostTable("Huts", "de"));
  EXPECT_FALSE(localization().hostTable("../Tours", "de"));
  EXPECT_FALSE(localization().hostString("Huts", "plan"));
  EXPECT_FALSE(localization().hostString("Tours", "no such key"));
  EXPECT_FALSE(localization().frameworkString("WV.no such key"));
}

} // namespace

} // namespace wayvane::conformance
