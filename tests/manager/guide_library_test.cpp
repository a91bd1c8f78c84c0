#include <tests/manager/ManagerFixture.h>

namespace wayvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class GuideLibrary : public ManagerTest {};

TEST_F(GuideLibrary, IsEmptyBeforeTheFirstReload)
{
  putGuide("First");
  EXPECT_THAT(manager_->savedGuides(), IsEmpty());
}

TEST_F(GuideLibrary, LivesInTheProgramsApplicationSupportFolder)
{
  EXPECT_EQ(manager_->guidesDirectory(), folder_);
}

TEST_F(GuideLibrary, IsEmptyWithoutAFolder)
{
  manager_->reloadGuides();
  EXPECT_THAT(manager_->savedGuides(), IsEmpty());
  EXPECT_THAT(desktop_.log(), IsEmpty());
}

TEST_F(GuideLibrary, IsEmptyForAUserWithoutApplicationSupportFolder)
{
  files_.setApplicationSupportFolder("");
  files_.put("/org.example.Notes/Guides/First.wayvane", "{}");
  manager_->install();
  EXPECT_EQ(manager_->guidesDirectory(), "");
  EXPECT_THAT(manager_->savedGuides(), IsEmpty());
}

TEST_F(GuideLibrary, IsInTheOrderOfTheListing)
{
  putGuide("B");
  putGuide("C");
  putGuide("A");
  manager_->reloadGuides();
  EXPECT_THAT(namesOfGuides(), ElementsAre("A", "C", "B"));
}

TEST_F(GuideLibrary, IgnoresAnExtensionInUpperCase)
{
  files_.put(folder_ + "/First.WAYVANE", "{}");
  files_.put(folder_ + "/Second.Wayvane", "{}");
  files_.put(folder_ + "/Third.wayvane.bak", "{}");
  files_.put(folder_ + "/wayvane", "{}");
  manager_->reloadGuides();
  EXPECT_THAT(manager_->savedGuides(), IsEmpty());
  EXPECT_EQ(files_.readCount(), 0);
}

TEST_F(GuideLibrary, LeavesOutFilesThatAreNoGuidesWithoutAWord)
{
  files_.put(pathOf("broken"), "{");
  files_.put(pathOf("secret"), "{}");
  files_.setUnreadable(pathOf("secret"));
  files_.putSpecial(pathOf("pipe"));
  files_.makeFolder(pathOf("folder"));
  putGuide("Good");
  manager_->reloadGuides();
  EXPECT_THAT(namesOfGuides(), ElementsAre("Good"));
  EXPECT_THAT(desktop_.log(), IsEmpty());
}

TEST_F(GuideLibrary, AlwaysShowsAGuideWithoutBundleAndVersion)
{
  putGuide("Anyone's");
  manager_->reloadGuides();
  EXPECT_THAT(namesOfGuides(), ElementsAre("Anyone's"));
}

TEST_F(GuideLibrary, ShowsAGuideOfThisProgram)
{
  putGuide("Ours", "org.example.Notes");
  manager_->reloadGuides();
  EXPECT_THAT(namesOfGuides(), ElementsAre("Ours"));
}

TEST_F(GuideLibrary, SkipsAGuideOfAnotherProgram)
{
  putGuide("Theirs", "org.example.notes");
  manager_->reloadGuides();
  EXPECT_THAT(manager_->savedGuides(), IsEmpty());
  EXPECT_THAT(desktop_.log(), ElementsAre("WVGuideManager: Skipping guide 'Theirs' (bundle mismatch: "
                                          "org.example.notes != org.example.Notes)"));
}

TEST_F(GuideLibrary, SkipsAGuideOfANewerVersionComparedByNumber)
{
  putGuide("New", "org.example.Notes", "1.10");
  manager_->reloadGuides();
  EXPECT_THAT(manager_->savedGuides(), IsEmpty());
  EXPECT_THAT(desktop_.log(),
              ElementsAre("WVGuideManager: Skipping guide 'New' (version too new: 1.10 > 1.9)"));
}

TEST_F(GuideLibrary, ComparesTheFirstFourPartsOfVersions)
{
  desktop_.setBundle("org.example.Notes", "1.2.3.4", {});
  putGuide("Same", {}, "1.2.3.4.9");
  manager_->reloadGuides();
  EXPECT_THAT(namesOfGuides(), ElementsAre("Same"));
}

TEST_F(GuideLibrary, ShowsAGuideOfAnOlderVersion)
{
  putGuide("Old", {}, "1.8.99");
  manager_->reloadGuides();
  EXPECT_THAT(namesOfGuides(), ElementsAre("Old"));
}

TEST_F(GuideLibrary, GoesByTheBuildsVersionWhenThereIsNoOther)
{
  desktop_.setBundle("org.example.Notes", {}, "190");
  putGuide("New", {}, "191");
  manager_->reloadGuides();
  EXPECT_THAT(desktop_.log(),
              ElementsAre("WVGuideManager: Skipping guide 'New' (version too new: 191 > 190)"));
}

TEST_F(GuideLibrary, KnowsNoTooNewWithoutAVersion)
{
  desktop_.setBundle("org.example.Notes", {}, {});
  putGuide("New", {}, "99");
  manager_->reloadGuides();
  EXPECT_THAT(namesOfGuides(), ElementsAre("New"));
}

TEST_F(GuideLibrary, OfAnUnnamedProgramSkipsEveryGuideThatNamesOne)
{
  desktop_.setBundle({}, {}, {});
  files_.put("/home/user/.local/share/com.unknown.app/Guides/Theirs.wayvane",
             R"({"name": "Theirs", "appBundleIdentifier": "org.example.Notes"})");
  files_.put("/home/user/.local/share/com.unknown.app/Guides/Any.wayvane", R"({"name": "Any"})");
  manager_->reloadGuides();
  EXPECT_THAT(namesOfGuides(), ElementsAre("Any"));
  EXPECT_THAT(desktop_.log(), ElementsAre("WVGuideManager: Skipping guide 'Theirs' (bundle mismatch: "
                                          "org.example.Notes != (null))"));
}

TEST_F(GuideLibrary, AppendsGuidesToAMenuWithoutRecordItem)
{
  putGuide("First");
  putGuide("Second");
  manager_->reloadGuides();
  EXPECT_THAT(help_.titles(), ElementsAre("Notes Help", "Second", "First"));
  manager_->reloadGuides();
  EXPECT_THAT(help_.titles(), ElementsAre("Notes Help", "Second", "First"));
}

// Reading again

TEST_F(GuideLibrary, ReadsNothingAgainThatDidNotChange)
{
  for (int i = 0; i < 10; ++i)
    putGuide(std::to_string(i));
  files_.put(pathOf("broken"), "{");
  manager_->reloadGuides();
  const int reads = files_.readCount();
  manager_->reloadGuides();
  manager_->reloadGuides();
  EXPECT_EQ(files_.readCount(), reads);
  EXPECT_EQ(manager_->savedGuides().size(), 10U);
}

TEST_F(GuideLibrary, KeepsTheGuideOfAnUnchangedFile)
{
  putGuide("First");
  manager_->reloadGuides();
  const GuideHandle guide = manager_->savedGuides().at(0);
  putGuide("Second");
  manager_->reloadGuides();
  EXPECT_EQ(manager_->savedGuides().at(1), guide);
}

TEST_F(GuideLibrary, ShowsAddedReplacedAndDeletedFiles)
{
  putGuide("A");
  putGuide("B");
  manager_->reloadGuides();
  files_.remove(pathOf("A"));
  files_.put(pathOf("B"), R"({"name": "B2"})");
  putGuide("C");
  manager_->reloadGuides();
  EXPECT_THAT(namesOfGuides(), ElementsAre("C", "B2"));
}

TEST_F(GuideLibrary, ReadsAFileAgainThatCouldNotBeRead)
{
  putGuide("Secret");
  files_.setUnreadable(pathOf("Secret"));
  manager_->reloadGuides();
  files_.setUnreadable(pathOf("Secret"), false);
  manager_->reloadGuides();
  EXPECT_THAT(namesOfGuides(), ElementsAre("Secret"));
}

TEST_F(GuideLibrary, FollowsTheProgramsVersionWithoutReadingAgain)
{
  putGuide("New", {}, "2.0");
  manager_->reloadGuides();
  const int reads = files_.readCount();
  desktop_.setBundle("org.example.Notes", "2.0", {});
  manager_->reloadGuides();
  EXPECT_THAT(namesOfGuides(), ElementsAre("New"));
  EXPECT_EQ(files_.readCount(), reads);
}

TEST_F(GuideLibrary, GivesAwayACopyOfItsList)
{
  putGuide("First");
  manager_->reloadGuides();
  auto guides = manager_->savedGuides();
  guides.clear();
  EXPECT_THAT(namesOfGuides(), ElementsAre("First"));
}

TEST_F(GuideLibrary, TakesAnotherListUntilTheNextReload)
{
  manager_->setGuides({std::make_shared<WVGuide>("Mine")});
  EXPECT_THAT(namesOfGuides(), ElementsAre("Mine"));
  manager_->reloadGuides();
  EXPECT_THAT(manager_->savedGuides(), IsEmpty());
}

} // namespace
} // namespace wayvane
