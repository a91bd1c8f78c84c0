#include <tests/desktop/Desktop.h>
#include <wayvane/model/WVGuide.h>
#include <wayvane/model/WVLocalization.h>

#include <gtest/gtest.h>

namespace wayvane {
namespace {

class LocalizedText : public testing::Test {
protected:
  sim::Desktop desktop_;
  WVStep step_ = WVStep::stepWithTarget({}, "base");
};

TEST_F(LocalizedText, FallsBackToEnglish)
{
  step_.messageLocalizations = LocalizationDictionary{{"en", "Click"}, {"de", "Klicken"}};
  desktop_.setLanguage("fr");
  EXPECT_EQ(step_.localizedMessage(), "Click");
}

TEST_F(LocalizedText, IsInTheCurrentLanguage)
{
  step_.messageLocalizations = LocalizationDictionary{{"en", "Click"}, {"de", "Klicken"}};
  desktop_.setLanguage("de");
  EXPECT_EQ(step_.localizedMessage(), "Klicken");
}

TEST_F(LocalizedText, FallsBackToTheBaseTextWithoutEnglish)
{
  step_.messageLocalizations = LocalizationDictionary{{"de", "Klicken"}};
  desktop_.setLanguage("fr");
  EXPECT_EQ(step_.localizedMessage(), "base");
}

TEST_F(LocalizedText, NeverLooksForBase)
{
  step_.messageLocalizations = LocalizationDictionary{{"Base", "no"}};
  EXPECT_EQ(step_.localizedMessage(), "base");
}

TEST_F(LocalizedText, OfAnEmptyDictionaryIsTheBaseText)
{
  step_.messageLocalizations = LocalizationDictionary{};
  EXPECT_EQ(step_.localizedMessage(), "base");
}

TEST_F(LocalizedText, IsTakenAsFoundAlsoWhenEmpty)
{
  step_.messageLocalizations = LocalizationDictionary{{"de", ""}, {"en", "Click"}};
  desktop_.setLanguage("de");
  EXPECT_EQ(step_.localizedMessage(), "");
}

TEST_F(LocalizedText, IsEnglishWhenTheLanguageIsUnknown)
{
  step_.messageLocalizations = LocalizationDictionary{{"de", "Klicken"}, {"en", "Click"}};
  desktop_.setLanguage(std::nullopt);
  EXPECT_EQ(step_.localizedMessage(), "Click");
}

TEST_F(LocalizedText, OfATitleUsesTheTitlesTranslations)
{
  step_.title = "title";
  EXPECT_EQ(step_.localizedTitle(), "title");
  step_.titleLocalizations = LocalizationDictionary{{"en", "Title"}};
  EXPECT_EQ(step_.localizedTitle(), "Title");
}

TEST_F(LocalizedText, OfNothingIsNothing)
{
  EXPECT_EQ(WVStep().localizedTitle(), std::nullopt);
  EXPECT_EQ(WVStep().localizedMessage(), std::nullopt);
}

TEST_F(LocalizedText, OfAGuideWithoutNameIsEmpty)
{
  EXPECT_EQ(WVGuide().localizedName(), "");
}

TEST_F(LocalizedText, OfAGuideIsItsNameInTheCurrentLanguage)
{
  WVGuide guide("First steps");
  EXPECT_EQ(guide.localizedName(), "First steps");
  guide.nameLocalizations = LocalizationDictionary{{"de", "Erste Schritte"}};
  EXPECT_EQ(guide.localizedName(), "First steps");
  desktop_.setLanguage("de");
  EXPECT_EQ(guide.localizedName(), "Erste Schritte");
}

class FrameworkText : public testing::Test {
protected:
  sim::Desktop desktop_;
};

TEST_F(FrameworkText, ComesFromTheFrameworksTable)
{
  desktop_.setFrameworkTable("en", {{"WV.test", "framework"}});
  desktop_.setHostTable("Wayvane", "en", {{"WV.test", "host"}});
  EXPECT_EQ(wv_localized("WV.test"), "framework");
}

TEST_F(FrameworkText, ComesFromTheHostsTableWhenTheFrameworkHasNone)
{
  desktop_.setHostTable("Wayvane", "en", {{"WV.test", "host"}});
  EXPECT_EQ(wv_localized("WV.test"), "host");
}

TEST_F(FrameworkText, ComesFromTheHostsTableWhenTheFrameworksSaysTheKey)
{
  desktop_.setFrameworkTable("en", {{"WV.test", "WV.test"}});
  desktop_.setHostTable("Wayvane", "en", {{"WV.test", "host"}});
  EXPECT_EQ(wv_localized("WV.test"), "host");
}

TEST_F(FrameworkText, IsTheKeyWhenNoTableHasIt)
{
  EXPECT_EQ(wv_localized("WV.test.unknown"), "WV.test.unknown");
}

TEST_F(FrameworkText, IsTheDefaultWhenNoTableHasIt)
{
  EXPECT_EQ(wv_localizedWithDefault("WV.test.unknown", "Default"), "Default");
}

TEST_F(FrameworkText, IsTheDefaultWhenTheTranslationEqualsTheKey)
{
  desktop_.setHostTable("Wayvane", "en", {{"WV.test", "WV.test"}});
  EXPECT_EQ(wv_localizedWithDefault("WV.test", "Default"), "Default");
}

TEST_F(FrameworkText, PrefersATableToTheDefault)
{
  desktop_.setHostTable("Wayvane", "en", {{"WV.test", "host"}});
  EXPECT_EQ(wv_localizedWithDefault("WV.test", "Default"), "host");
}

TEST(TextsWithoutPlatform, AreEnglishOrTheDefaults)
{
  const LocalizationDictionary texts{{"de", "Klicken"}, {"en", "Click"}};
  EXPECT_EQ(wv_localizedText(texts, "base"), "Click");
  EXPECT_EQ(wv_localizedWithDefault("WV.test", "Default"), "Default");
}

} // namespace
} // namespace wayvane
