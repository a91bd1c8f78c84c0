#include <wayvane/platform/FrameworkTexts.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>

namespace wayvane::platform {
namespace {

using testing::ElementsAre;

struct Use {
  std::string key;
  /// The English text in the code; empty where the code names the key alone.
  std::string defaultText;
};

std::string contentsOf(const std::filesystem::path& path)
{
  std::ostringstream text;
  text << std::ifstream(path, std::ios::binary).rdbuf();
  return text.str();
}

std::string unescaped(std::string text)
{
  for (auto at = text.find('\\'); at != std::string::npos; at = text.find('\\', at + 1))
    text.erase(at, 1);
  return text;
}

/// Every "WV." key in the framework's sources.
const std::vector<Use>& usesInCode()
{
  static const std::vector<Use> uses = [] {
    std::vector<Use> found;
    const std::regex use(R"#("(WV\.[A-Za-z.]+)"(?:,\s*"((?:[^"\\]|\\.)*)")?)#");
    for (const auto& entry : std::filesystem::recursive_directory_iterator(WAYVANE_TESTS_DIR "/../wayvane")) {
      const auto extension = entry.path().extension();
      if (extension != ".cpp" && extension != ".h") continue;
      const std::string code = std::regex_replace(contentsOf(entry.path()), std::regex("//[^\n]*"), "");
      for (std::sregex_iterator at(code.begin(), code.end(), use), end; at != end; ++at)
        found.push_back({(*at)[1], unescaped((*at)[2])});
    }
    return found;
  }();
  return uses;
}

std::multiset<std::string> placeholdersOf(const std::string& text)
{
  const std::regex placeholder("%(@|lu|ld|d)");
  std::multiset<std::string> found;
  for (std::sregex_iterator at(text.begin(), text.end(), placeholder), end; at != end; ++at)
    found.insert(at->str());
  return found;
}

TEST(FrameworkTexts, ComeInSixLanguages)
{
  EXPECT_THAT(frameworkLanguages(), ElementsAre("de", "en", "es", "fr", "it", "nl"));
}

TEST(FrameworkTexts, AreFoundByLanguageAndKey)
{
  EXPECT_EQ(frameworkText("en", "WV.Menu.RecordGuide"), "Record Guide…");
  EXPECT_EQ(frameworkText("de", "WV.Menu.StopRecording"), "Aufzeichnung stoppen");
}

TEST(FrameworkTexts, OfUnknownLanguagesAndKeysAreNone)
{
  EXPECT_EQ(frameworkText("pl", "WV.Menu.RecordGuide"), std::nullopt);
  EXPECT_EQ(frameworkText("de_AT", "WV.Menu.RecordGuide"), std::nullopt);
  EXPECT_EQ(frameworkText("en", "WV.Unknown"), std::nullopt);
  EXPECT_EQ(frameworkTable("pl"), nullptr);
}

TEST(FrameworkTexts, HoldEveryKeyThatTheCodeUses)
{
  ASSERT_GE(usesInCode().size(), 10U);
  for (const Use& use : usesInCode())
    for (const std::string& language : frameworkLanguages())
      EXPECT_NE(frameworkText(language, use.key), std::nullopt) << use.key << " in " << language;
}

TEST(FrameworkTexts, SayInEnglishWhatTheCodeSays)
{
  for (const Use& use : usesInCode()) {
    if (use.defaultText.empty()) continue;
    EXPECT_EQ(frameworkText("en", use.key), use.defaultText) << use.key;
  }
}

TEST(FrameworkTexts, HaveTheSameKeysInEveryLanguage)
{
  const auto keysOf = [](const std::string& language) {
    std::set<std::string> keys;
    for (const auto& entry : *frameworkTable(language))
      keys.insert(entry.first);
    return keys;
  };
  for (const std::string& language : frameworkLanguages())
    EXPECT_EQ(keysOf(language), keysOf("en")) << language;
}

TEST(FrameworkTexts, KeepTheirPlaceholdersInEveryLanguage)
{
  for (const std::string& language : frameworkLanguages())
    for (const auto& [key, text] : *frameworkTable(language))
      EXPECT_EQ(placeholdersOf(text), placeholdersOf(*frameworkText("en", key))) << key << " in " << language;
}

TEST(FrameworkTexts, AreNeverEmpty)
{
  for (const std::string& language : frameworkLanguages())
    for (const auto& [key, text] : *frameworkTable(language))
      EXPECT_FALSE(text.empty()) << key << " in " << language;
}

} // namespace
} // namespace wayvane::platform
