#include <tests/manager/ManagerFixture.h>

namespace wayvane {
namespace {

using testing::IsEmpty;

class StringTableLookup : public ManagerTest {
protected:
  using Texts = LocalizationDictionary;
};

TEST_F(StringTableLookup, WithoutTablesGivesTheTextInTheCurrentLanguage)
{
  desktop_.setLanguage("de");
  EXPECT_EQ(manager_->allLocalizationsForString("Open"), (Texts{{"de", "Open"}}));
}

TEST_F(StringTableLookup, WithoutTablesAndLanguageGivesTheTextInEnglish)
{
  desktop_.setLanguage(std::nullopt);
  EXPECT_EQ(manager_->allLocalizationsForString("Open"), (Texts{{"en", "Open"}}));
}

TEST_F(StringTableLookup, OfAnEmptyTextGivesNothing)
{
  EXPECT_EQ(manager_->allLocalizationsForString(""), std::nullopt);
  EXPECT_EQ(manager_->localizationKeyForString(""), std::nullopt);
  EXPECT_EQ(manager_->allLocalizationsForKey(""), std::nullopt);
}

TEST_F(StringTableLookup, WithoutTablesKnowsNoKeys)
{
  EXPECT_EQ(manager_->localizationKeyForString("Open"), std::nullopt);
}

TEST_F(StringTableLookup, LeadsFromATextInAnyLanguageToAllOthers)
{
  desktop_.setHostTable("Menus", "en", {{"open", "Open"}});
  desktop_.setHostTable("Menus", "de", {{"open", "Öffnen"}});
  desktop_.setHostTable("Menus", "Base", {{"open", "Open!"}});
  manager_->setStringsFileNames({"Menus"});
  const Texts all{{"en", "Open"}, {"de", "Öffnen"}, {"Base", "Open!"}};
  EXPECT_EQ(manager_->localizationKeyForString("Öffnen"), "open");
  EXPECT_EQ(manager_->allLocalizationsForKey("open"), all);
  EXPECT_EQ(manager_->allLocalizationsForString("Öffnen"), all);
  EXPECT_EQ(manager_->allLocalizationsForString("Open!"), all);
}

TEST_F(StringTableLookup, TakesTheKeyOfTheLaterLanguageWhenTwoShareAText)
{
  desktop_.setHostTable("Menus", "de", {{"a", "Pause"}});
  desktop_.setHostTable("Menus", "fr", {{"b", "Pause"}});
  manager_->setStringsFileNames({"Menus"});
  EXPECT_EQ(manager_->localizationKeyForString("Pause"), "b");
  desktop_.setHostLocalizations({"fr", "de"});
  manager_->setStringsFileNames({"Menus"});
  EXPECT_EQ(manager_->localizationKeyForString("Pause"), "a");
}

TEST_F(StringTableLookup, LetsTheBaseTableOverrideTheLanguages)
{
  desktop_.setHostTable("Menus", "de", {{"a", "Pause"}});
  desktop_.setHostTable("Menus", "fr", {{"b", "Pause"}});
  desktop_.setHostTable("Menus", "Base", {{"c", "Pause"}});
  manager_->setStringsFileNames({"Menus"});
  EXPECT_EQ(manager_->localizationKeyForString("Pause"), "c");
}

TEST_F(StringTableLookup, LetsLaterTablesOverrideEarlierOnes)
{
  desktop_.setHostTable("One", "en", {{"k", "Text"}});
  desktop_.setHostTable("One", "Base", {{"b", "Text"}});
  desktop_.setHostTable("Two", "en", {{"k", "Other"}, {"t", "Text"}});
  manager_->setStringsFileNames({"One", "Two"});
  EXPECT_EQ(manager_->localizationKeyForString("Text"), "t");
  EXPECT_EQ(manager_->allLocalizationsForKey("k"), (Texts{{"en", "Other"}}));
}

TEST_F(StringTableLookup, ReadsTheCurrentLanguageAlsoWhenTheHostDoesNotListIt)
{
  desktop_.setHostTable("Menus", "nl", {{"open", "Open"}});
  desktop_.setHostLocalizations({"en"});
  desktop_.setLanguage("nl");
  manager_->setStringsFileNames({"Menus"});
  EXPECT_EQ(manager_->allLocalizationsForKey("open"), (Texts{{"nl", "Open"}}));
}

TEST_F(StringTableLookup, SkipsEmptyTexts)
{
  desktop_.setHostTable("Menus", "en", {{"open", "Open"}});
  desktop_.setHostTable("Menus", "de", {{"open", ""}, {"close", ""}});
  manager_->setStringsFileNames({"Menus"});
  EXPECT_EQ(manager_->allLocalizationsForKey("open"), (Texts{{"en", "Open"}}));
  EXPECT_EQ(manager_->allLocalizationsForKey("close"), std::nullopt);
}

TEST_F(StringTableLookup, TakesATextThatNoTableHasAsItsOwnKeyWithoutTranslations)
{
  desktop_.setHostTable("Menus", "en", {{"open", "Open"}});
  manager_->setStringsFileNames({"Menus"});
  EXPECT_EQ(manager_->localizationKeyForString("Close"), "Close");
  EXPECT_EQ(manager_->allLocalizationsForString("Close"), std::nullopt);
}

TEST_F(StringTableLookup, TakesATextAsItsOwnKeyAlsoWhenNoTableCanBeRead)
{
  manager_->setStringsFileNames({"Missing"});
  EXPECT_EQ(manager_->localizationKeyForString("Close"), "Close");
  EXPECT_EQ(manager_->allLocalizationsForString("Close"), std::nullopt);
}

TEST_F(StringTableLookup, GivesTheTextItselfWhenItIsAKeyThatReadsDifferentlyInEveryTable)
{
  desktop_.setHostTable("Menus", "en", {{"open", "Open"}});
  manager_->setStringsFileNames({"Menus"});
  EXPECT_EQ(manager_->localizationKeyForString("open"), std::nullopt);
  EXPECT_EQ(manager_->allLocalizationsForString("open"), (Texts{{"en", "open"}}));
}

TEST_F(StringTableLookup, TakesTheTextAsItsOwnKeyWhenOnlyOneTableLacksIt)
{
  desktop_.setHostTable("One", "en", {{"open", "Open"}});
  manager_->setStringsFileNames({"One", "Two"});
  EXPECT_EQ(manager_->localizationKeyForString("open"), "open");
  EXPECT_EQ(manager_->allLocalizationsForString("open"), (Texts{{"en", "Open"}}));
}

TEST_F(StringTableLookup, AnswersTheSameHoweverOftenItIsAsked)
{
  manager_->setStringsFileNames({"Menus"});
  for (int i = 0; i < 20'000; ++i)
    ASSERT_EQ(manager_->localizationKeyForString(std::to_string(i)), std::to_string(i));
}

TEST_F(StringTableLookup, ForgetsEverythingWithAnEmptyListOfTables)
{
  desktop_.setHostTable("Menus", "en", {{"open", "Open"}});
  manager_->setStringsFileNames({"Menus"});
  manager_->setStringsFileNames({});
  EXPECT_THAT(manager_->stringsFileNames(), IsEmpty());
  EXPECT_EQ(manager_->localizationKeyForString("Open"), std::nullopt);
  EXPECT_EQ(manager_->allLocalizationsForKey("open"), std::nullopt);
}

TEST_F(StringTableLookup, StartsOverWithOtherTables)
{
  desktop_.setHostTable("One", "en", {{"a", "Text"}});
  desktop_.setHostTable("Two", "en", {{"b", "Other"}});
  manager_->setStringsFileNames({"One"});
  manager_->setStringsFileNames({"Two"});
  EXPECT_EQ(manager_->allLocalizationsForKey("a"), std::nullopt);
  EXPECT_EQ(manager_->allLocalizationsForKey("b"), (Texts{{"en", "Other"}}));
}

TEST_F(StringTableLookup, ReadsEachTableOnce)
{
  desktop_.setHostTable("Menus", "en", {{"open", "Open"}});
  desktop_.setHostTable("Menus", "de", {{"open", "Öffnen"}});
  manager_->setStringsFileNames({"Menus"});
  const int reads = desktop_.localization().tableReads();
  for (const char* text : {"Open", "Öffnen", "Close"})
    static_cast<void>(manager_->allLocalizationsForString(text));
  EXPECT_EQ(desktop_.localization().tableReads(), reads);
}

TEST_F(StringTableLookup, IsWhatTargetingAsks)
{
  desktop_.setHostTable("Menus", "en", {{"open", "Open"}});
  manager_->setStringsFileNames({"Menus"});
  EXPECT_EQ(TranslationSource::translationsOf("Open"), (Texts{{"en", "Open"}}));
  manager_.reset();
  EXPECT_EQ(TranslationSource::current(), nullptr);
}

} // namespace
} // namespace wayvane
