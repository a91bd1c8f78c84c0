#include <tests/manager/ManagerFixture.h>

namespace wayvane {
namespace {

using platform::SymbolImage;
using testing::ElementsAre;
using testing::IsEmpty;

class HelpMenu : public ManagerTest {
protected:
  [[nodiscard]] platform::MenuItem& entry(const std::string& title)
  {
    sim::MenuItem* item = help_.find(title);
    if (!item) throw std::runtime_error("no entry " + title);
    return *item;
  }
};

TEST_F(HelpMenu, EndsWithTheGuidesAndTheRecordItemOnceInstalled)
{
  putGuide("First");
  putGuide("Second");
  manager_->install();
  EXPECT_THAT(help_.titles(), ElementsAre("Notes Help", "-", "Second", "First", "-", "Record Guide…"));
}

TEST_F(HelpMenu, HasNoSecondSeparatorWithoutGuides)
{
  manager_->install();
  EXPECT_THAT(help_.titles(), ElementsAre("Notes Help", "-", "Record Guide…"));
}

TEST_F(HelpMenu, GetsTheGuidesFolderMade)
{
  manager_->install();
  EXPECT_TRUE(files_.isFolder(folder_));
}

TEST_F(HelpMenu, IsInstalledAlsoWhenTheFolderCannotBeMade)
{
  files_.setDiskFull(true);
  manager_->install();
  EXPECT_THAT(help_.titles(), ElementsAre("Notes Help", "-", "Record Guide…"));
}

TEST_F(HelpMenu, IsTheOneTheProgramDeclares)
{
  sim::Menu& declared = desktop_.mainMenu().menu("Support");
  desktop_.mainMenu().menu("Last");
  desktop_.setHelpMenu(declared);
  manager_->install();
  EXPECT_THAT(declared.titles(), ElementsAre("-", "Record Guide…"));
}

TEST_F(HelpMenu, IsTheLastMenuWhenTheProgramDeclaresNone)
{
  sim::Menu& last = desktop_.mainMenu().menu("Extras");
  manager_->install();
  EXPECT_THAT(last.titles(), ElementsAre("-", "Record Guide…"));
  EXPECT_THAT(help_.titles(), ElementsAre("Notes Help"));
}

TEST_F(HelpMenu, IsNoneWhenTheLastEntryOpensNoMenu)
{
  desktop_.mainMenu().item("Donate");
  manager_->install();
  EXPECT_THAT(help_.titles(), ElementsAre("Notes Help"));
}

TEST_F(HelpMenu, OfAProgramWithoutAnyMenuIsNoReasonToFail)
{
  desktop_.removeMainMenu();
  putGuide("First");
  manager_->install();
  EXPECT_TRUE(files_.isFolder(folder_));
  EXPECT_THAT(manager_->savedGuides(), IsEmpty());
  EXPECT_EQ(recorder_.delegate(), nullptr);
}

TEST_F(HelpMenu, MakesTheManagerTheRecordersDelegate)
{
  manager_->install();
  EXPECT_EQ(recorder_.delegate().get(), &*manager_);
}

TEST_F(HelpMenu, ShowsNewGuidesWhenItOpens)
{
  manager_->install();
  putGuide("First");
  EXPECT_THAT(help_.titles(), ElementsAre("Notes Help", "-", "Record Guide…"));
  desktop_.openMenu(help_);
  EXPECT_THAT(help_.titles(), ElementsAre("Notes Help", "-", "First", "-", "Record Guide…"));
}

TEST_F(HelpMenu, StaysTheSameHoweverOftenItOpens)
{
  putGuide("First");
  manager_->install();
  for (int i = 0; i < 5; ++i)
    desktop_.openMenu(help_);
  EXPECT_THAT(help_.titles(), ElementsAre("Notes Help", "-", "First", "-", "Record Guide…"));
  putGuide("Second");
  desktop_.openMenu(help_);
  EXPECT_THAT(help_.titles(), ElementsAre("Notes Help", "-", "Second", "First", "-", "Record Guide…"));
}

TEST_F(HelpMenu, LosesTheSecondSeparatorWithTheLastGuide)
{
  putGuide("First");
  manager_->install();
  files_.remove(pathOf("First"));
  desktop_.openMenu(help_);
  EXPECT_THAT(help_.titles(), ElementsAre("Notes Help", "-", "Record Guide…"));
}

TEST_F(HelpMenu, KeepsItsEntriesWhileNothingChanges)
{
  putGuide("First");
  manager_->install();
  const auto before = help_.items();
  desktop_.openMenu(help_);
  EXPECT_EQ(help_.items(), before);
}

TEST_F(HelpMenu, IsPutRightWhenTheHostRearrangedIt)
{
  putGuide("First");
  manager_->install();
  platform::MenuItemSpec between;
  between.title = "Between";
  help_.insertItem(between, 3);
  desktop_.openMenu(help_);
  EXPECT_THAT(help_.titles(), ElementsAre("Notes Help", "-", "Between", "First", "-", "Record Guide…"));
}

TEST_F(HelpMenu, ReloadsNothingWhenAnotherMenuOpens)
{
  sim::Menu& file = desktop_.makeContextMenu();
  manager_->install();
  putGuide("First");
  desktop_.openMenu(file);
  manager_->menuNeedsUpdate(file.self());
  manager_->menuNeedsUpdate(nullptr);
  EXPECT_THAT(manager_->savedGuides(), IsEmpty());
}

TEST_F(HelpMenu, ReloadsWhenToldThatItOpens)
{
  manager_->install();
  putGuide("First");
  manager_->menuNeedsUpdate(help_.self());
  EXPECT_THAT(namesOfGuides(), ElementsAre("First"));
}

TEST_F(HelpMenu, ThatIsNoLongerTheHelpMenuReloadsNothing)
{
  manager_->install();
  sim::Menu& other = desktop_.mainMenu().menu("Other");
  putGuide("First");
  desktop_.openMenu(help_);
  EXPECT_THAT(manager_->savedGuides(), IsEmpty());
  EXPECT_THAT(other.titles(), IsEmpty());
}

TEST_F(HelpMenu, ThatIsGoneIsNoReasonToFail)
{
  putGuide("First");
  manager_->install();
  help_.destroy();
  manager_->reloadGuides();
  EXPECT_THAT(namesOfGuides(), ElementsAre("First"));
}

TEST_F(HelpMenu, ShowsNamesInTheCurrentLanguage)
{
  files_.put(pathOf("First"), R"({"name": "First", "nameLocalizations": {"de": "Erste"}})");
  desktop_.setLanguage("de");
  desktop_.setFrameworkTable("de", {{"WV.Menu.RecordGuide", "Aufzeichnen"}});
  manager_->install();
  EXPECT_THAT(help_.titles(), ElementsAre("Notes Help", "-", "Erste", "-", "Aufzeichnen"));
}

TEST_F(HelpMenu, DressesGuidesAndRecordItem)
{
  putGuide("Plain");
  putGuide("Versioned", {}, "1.4");
  manager_->install();
  EXPECT_EQ(entry("Plain").action(), "_playGuide:");
  EXPECT_EQ(entry("Plain").image(), SymbolImage::Play);
  EXPECT_EQ(entry("Plain").toolTip(), std::nullopt);
  EXPECT_EQ(entry("Versioned").toolTip(), "Version 1.4");
  EXPECT_EQ(entry("Record Guide…").action(), "_toggleRecording:");
  EXPECT_EQ(entry("Record Guide…").image(), SymbolImage::Record);
}

TEST_F(HelpMenu, PlaysTheGuideThatIsChosen)
{
  putGuide("First");
  putGuide("Second");
  manager_->install();
  desktop_.addWindow("Notes");
  desktop_.chooseItem(entry("First"));
  ASSERT_NE(player_.guide(), nullptr);
  EXPECT_EQ(player_.guide()->name, "First");
}

TEST_F(HelpMenu, StartsARecordingAndOffersToStopIt)
{
  manager_->install();
  desktop_.chooseItem(entry("Record Guide…"));
  EXPECT_TRUE(recorder_.isRecording());
  EXPECT_EQ(recorder_.guide()->name, "Untitled");
  EXPECT_EQ(entry("Stop Recording").image(), SymbolImage::Stop);
}

TEST_F(HelpMenu, StopsTheRecordingWhenChosenAgainAndAsksForAName)
{
  manager_->install();
  desktop_.chooseItem(entry("Record Guide…"));
  recorder_.guide()->addStepWithAccessibilityIdentifier("save", "Save it");
  desktop_.answerNextAlert(0, "My Guide");
  desktop_.chooseItem(entry("Stop Recording"));
  EXPECT_FALSE(recorder_.isRecording());
  EXPECT_THAT(help_.titles(), ElementsAre("Notes Help", "-", "My Guide", "-", "Record Guide…"));
}

TEST_F(HelpMenu, ReturnsToRecordGuideHoweverTheRecordingEnds)
{
  manager_->install();
  desktop_.chooseItem(entry("Record Guide…"));
  recorder_.stopRecording();
  EXPECT_EQ(entry("Record Guide…").image(), SymbolImage::Record);
}

TEST_F(HelpMenu, DoesNotChangeForARecordingStartedElsewhere)
{
  manager_->install();
  recorder_.startRecordingGuide("Elsewhere");
  EXPECT_THAT(help_.titles(), ElementsAre("Notes Help", "-", "Record Guide…"));
}

TEST_F(HelpMenu, GetsEverythingTwiceWhenInstalledTwice)
{
  manager_->install();
  manager_->install();
  EXPECT_THAT(help_.titles(), ElementsAre("Notes Help", "-", "Record Guide…", "-", "Record Guide…"));
}

TEST_F(HelpMenu, EntriesOfAManagerThatIsGoneDoNothing)
{
  putGuide("First");
  manager_->install();
  manager_.reset();
  desktop_.openMenu(help_);
  desktop_.chooseItem(entry("First"));
  desktop_.chooseItem(entry("Record Guide…"));
  EXPECT_FALSE(player_.isPlaying());
  EXPECT_FALSE(recorder_.isRecording());
  EXPECT_EQ(recorder_.delegate(), nullptr);
}

} // namespace
} // namespace wayvane
