#include <tests/desktop/Desktop.h>

#include <gmock/gmock.h>

namespace wayvane::sim {
namespace {

using testing::ElementsAre;

TEST(SimLocalization, TextsComeInTheLanguageOfTheProgram)
{
  Desktop desktop;
  desktop.setFrameworkTable("de", {{"WV.Done", "Fertig"}});
  desktop.setHostTable("Main", "de", {{"save", "Sichern"}});
  desktop.setHostTable("Main", "Base", {{"save", "Save"}, {"open", "Open"}});
  auto& texts = desktop.platform().localization;
  EXPECT_EQ(texts.frameworkString("WV.Done"), std::nullopt);
  EXPECT_EQ(texts.hostString("Main", "save"), "Save");
  desktop.setLanguage("de");
  EXPECT_EQ(texts.frameworkString("WV.Done"), "Fertig");
  EXPECT_EQ(texts.hostString("Main", "save"), "Sichern");
  EXPECT_EQ(texts.hostString("Main", "open"), "Open");
  EXPECT_EQ(texts.hostString("Other", "open"), std::nullopt);
}

TEST(SimLocalization, TheHostsLanguagesDoNotIncludeBase)
{
  Desktop desktop;
  desktop.setHostTable("Main", "fr", {});
  desktop.setHostTable("Main", "Base", {});
  desktop.setHostTable("Other", "fr", {});
  desktop.setHostTable("Main", "de", {});
  EXPECT_THAT(desktop.platform().localization.hostLocalizations(), ElementsAre("fr", "de"));
}

TEST(SimLocalization, AMissingTableIsNothing)
{
  Desktop desktop;
  EXPECT_EQ(desktop.platform().localization.hostTable("Main", "de"), std::nullopt);
  desktop.setLanguage(std::nullopt);
  EXPECT_EQ(desktop.platform().localization.languageCode(), std::nullopt);
}

} // namespace
} // namespace wayvane::sim
