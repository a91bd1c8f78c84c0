#include <tests/manager/ManagerFixture.h>

namespace wayvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::StartsWith;

class SavingAGuide : public ManagerTest {
protected:
  SavingAGuide() { manager_->install(); }

  /// The author gives the guide that name.
  void save(const std::string& name, const GuideHandle& guide = recordedGuide())
  {
    desktop_.answerNextAlert(0, name);
    manager_->recorderDidFinishWithGuide(guide);
  }

  [[nodiscard]] std::vector<std::string> filesInFolder() const
  {
    std::vector<std::string> names;
    const auto entries = files_.list(folder_).value();
    for (const auto& entry : entries)
      names.push_back(entry.name);
    return names;
  }
};

TEST_F(SavingAGuide, AsksForANameInAnAlert)
{
  auto guide = recordedGuide();
  guide->addStepWithMenuPath("File > Save", "Save");
  save("x", guide);
  ASSERT_EQ(desktop_.alerts().size(), 1U);
  const platform::AlertSpec& alert = desktop_.alerts().front();
  EXPECT_EQ(alert.messageText, "Save Guide");
  EXPECT_EQ(alert.informativeText, "Recorded 2 steps. Enter a name:");
  EXPECT_THAT(alert.buttons, ElementsAre("Save", "Cancel"));
  ASSERT_TRUE(alert.field);
  EXPECT_EQ(alert.field->size, (platform::Size{260, 24}));
  EXPECT_EQ(alert.field->value, "Untitled");
  EXPECT_EQ(alert.field->placeholder, "Guide name");
}

TEST_F(SavingAGuide, WritesTheFileAndShowsTheGuideAtOnce)
{
  const auto guide = recordedGuide();
  save("My Guide", guide);
  const auto file = files_.get(pathOf("My Guide"));
  ASSERT_TRUE(file);
  EXPECT_EQ(WVGuide::guideWithJSONData(*file)->identifier, guide->identifier);
  EXPECT_THAT(help_.titles(), ElementsAre("Notes Help", "-", "My Guide", "-", "Record Guide…"));
}

TEST_F(SavingAGuide, WithoutStepsAsksNothingAndWritesNothing)
{
  manager_->recorderDidFinishWithGuide(std::make_shared<WVGuide>("Untitled"));
  EXPECT_THAT(desktop_.alerts(), IsEmpty());
  EXPECT_THAT(filesInFolder(), IsEmpty());
}

TEST_F(SavingAGuide, WithoutStepsStillReturnsTheRecordItem)
{
  desktop_.chooseItem(*help_.find("Record Guide…"));
  ASSERT_EQ(help_.titles().back(), "Stop Recording");
  manager_->recorderDidFinishWithGuide(std::make_shared<WVGuide>("Untitled"));
  EXPECT_EQ(help_.titles().back(), "Record Guide…");
}

TEST_F(SavingAGuide, ThatIsNoneDoesNothing)
{
  manager_->recorderDidFinishWithGuide(nullptr);
  EXPECT_THAT(desktop_.alerts(), IsEmpty());
}

TEST_F(SavingAGuide, DropsItWhenTheAuthorCancels)
{
  desktop_.answerNextAlert(1, "My Guide");
  manager_->recorderDidFinishWithGuide(recordedGuide());
  EXPECT_THAT(filesInFolder(), IsEmpty());
}

TEST_F(SavingAGuide, DropsItWhenTheAlertEndsWithoutAnAnswer)
{
  desktop_.answerNextAlert(-1, "My Guide");
  manager_->recorderDidFinishWithGuide(recordedGuide());
  EXPECT_THAT(filesInFolder(), IsEmpty());
}

TEST_F(SavingAGuide, KeepsASlashInTheNameButNotInTheFilesName)
{
  save("A/B");
  EXPECT_THAT(filesInFolder(), ElementsAre("A-B.wayvane"));
  EXPECT_THAT(namesOfGuides(), ElementsAre("A/B"));
}

TEST_F(SavingAGuide, WithoutANameIsUntitledGuide)
{
  save("");
  EXPECT_THAT(filesInFolder(), ElementsAre("Untitled Guide.wayvane"));
  EXPECT_THAT(namesOfGuides(), ElementsAre("Untitled Guide"));
}

TEST_F(SavingAGuide, ReplacesAnotherOfThatName)
{
  save("Same");
  const auto second = recordedGuide();
  second->steps.front().message = "Second";
  save("Same", second);
  EXPECT_THAT(filesInFolder(), ElementsAre("Same.wayvane"));
  EXPECT_EQ(manager_->savedGuides().at(0)->steps.at(0).message, "Second");
}

TEST_F(SavingAGuide, TwiceKeepsItsIdentifier)
{
  const auto guide = recordedGuide();
  save("One", guide);
  save("Two", guide);
  EXPECT_EQ(manager_->savedGuides().at(0)->identifier, manager_->savedGuides().at(1)->identifier);
}

TEST_F(SavingAGuide, KeepsWhatTheRecorderStamped)
{
  const auto guide = recordedGuide();
  guide->appBundleIdentifier = "org.example.Notes";
  guide->appBundleVersion = "1.9";
  save("Stamped", guide);
  EXPECT_EQ(manager_->savedGuides().at(0)->appBundleVersion, "1.9");
}

TEST_F(SavingAGuide, ThatCannotBeWrittenIsLogged)
{
  files_.setDiskFull(true);
  save("My Guide");
  EXPECT_THAT(desktop_.log(),
              ElementsAre("WVGuideManager: save failed: " + pathOf("My Guide") + ": no space left"));
  EXPECT_THAT(filesInFolder(), IsEmpty());
}

TEST_F(SavingAGuide, IntoAFolderThatIsGoneIsLogged)
{
  files_.remove(folder_);
  save("My Guide");
  EXPECT_THAT(desktop_.log(), ElementsAre(StartsWith("WVGuideManager: save failed: ")));
}

TEST_F(SavingAGuide, WithoutAnyFolderIsLogged)
{
  files_.setApplicationSupportFolder("");
  save("My Guide");
  EXPECT_THAT(desktop_.log(), ElementsAre("WVGuideManager: save failed: There is no folder for guides"));
}

TEST_F(SavingAGuide, UnderANameThatIsNoTextIsLogged)
{
  save("caf\xE9");
  EXPECT_THAT(desktop_.log(),
              ElementsAre("WVGuideManager: save failed: The text of \"name\" is not valid UTF-8"));
}

TEST_F(SavingAGuide, NamedDotsStaysInTheFolder)
{
  save("..");
  EXPECT_TRUE(files_.get(folder_ + "/...wayvane"));
}

TEST_F(SavingAGuide, NamedLikeAPathStaysInTheFolder)
{
  save("../../../etc/passwd");
  EXPECT_THAT(filesInFolder(), IsEmpty());
  EXPECT_TRUE(files_.get(folder_ + "/..-..-..-etc-passwd.wayvane"));
}

TEST_F(SavingAGuide, UnderANameThatLeavesTheFolderOnOtherSystemsIsLogged)
{
  save("..\\..\\evil");
  EXPECT_THAT(desktop_.log(), ElementsAre("WVGuideManager: save failed: The name cannot be that of a file"));
  EXPECT_EQ(files_.writeCount(), 0);
}

TEST_F(SavingAGuide, UnderANameWithAZeroInItIsLogged)
{
  save(std::string("a\0b", 3));
  EXPECT_THAT(desktop_.log(), ElementsAre("WVGuideManager: save failed: The name cannot be that of a file"));
  EXPECT_EQ(files_.writeCount(), 0);
}

TEST_F(SavingAGuide, KeepsBackslashesAndPlaceholdersInNames)
{
  save("50 %@ a\\b");
  EXPECT_THAT(filesInFolder(), ElementsAre("50 %@ a\\b.wayvane"));
}

TEST_F(SavingAGuide, UnderALongNameThatTheSystemRefusesIsLogged)
{
  const std::string name(300, 'x');
  files_.setUnwritable(pathOf(name));
  save(name);
  EXPECT_THAT(desktop_.log(), ElementsAre(StartsWith("WVGuideManager: save failed: ")));
}

TEST_F(SavingAGuide, DropsItWhenTheManagerGoesWhileTheAlertIsUp)
{
  desktop_.setOnAlert([this](const platform::AlertSpec&) { manager_.reset(); });
  desktop_.answerNextAlert(0, "My Guide");
  WVGuideManager& manager = *manager_;
  manager.recorderDidFinishWithGuide(recordedGuide());
  EXPECT_THAT(filesInFolder(), IsEmpty());
}

TEST_F(SavingAGuide, SurvivesAMenuThatGoesWhileTheAlertIsUp)
{
  desktop_.setOnAlert([this](const platform::AlertSpec&) { help_.destroy(); });
  save("My Guide");
  EXPECT_THAT(namesOfGuides(), ElementsAre("My Guide"));
}

TEST_F(SavingAGuide, DoesNothingForASingleCapturedStep)
{
  manager_->recorderDidCaptureStep(0);
  EXPECT_THAT(desktop_.log(), IsEmpty());
  EXPECT_THAT(filesInFolder(), IsEmpty());
}

} // namespace
} // namespace wayvane
