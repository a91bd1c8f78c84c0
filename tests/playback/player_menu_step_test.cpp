#include <tests/playback/PlayerFixture.h>

namespace wayvane {
namespace {

using ::testing::ElementsAre;

class PlayerMenuStep : public PlayerFixture {
protected:
  Lines linesOfStep(const WVTargetDescriptor& target)
  {
    playStep(WVStep::stepWithTarget(target, "Choose it"));
    return {desktop.log().begin() + 4, desktop.log().end()};
  }
};

TEST_F(PlayerMenuStep, WhoseCommandIsNowhereIsLoggedAndSkipped)
{
  WVTargetDescriptor target;
  target.menuAction = "export:";
  EXPECT_THAT(linesOfStep(target),
              ElementsAre("WVPlayer: step 0 is MENU target: action=export: path=(null)",
                          "WVPlayer: menu action export: not found in any menu, skipping"));
  EXPECT_THAT(delegate->calls, ElementsAre("show 0"));
  EXPECT_EQ(player->currentStepIndex(), 1U);
  expectIdle();
}

TEST_F(PlayerMenuStep, ThatKnowsOnlyItsPathIsSkipped)
{
  EXPECT_THAT(linesOfStep(WVTargetDescriptor::descriptorForMenuPath("File > Export")),
              ElementsAre("WVPlayer: step 0 is MENU target: action=(null) path=File > Export",
                          "WVPlayer: menu action (null) not found in any menu, skipping"));
  expectIdle();
}

TEST_F(PlayerMenuStep, IsLeftOutAndTheNextStepShownInTheSameTurn)
{
  addButton("save");
  player->playGuide(guideOf(
      {WVStep::stepWithTarget(WVTargetDescriptor::descriptorForMenuPath("File"), "Open"), stepFor("save")}));
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "show 1"));
  EXPECT_EQ(player->currentStepIndex(), 1U);
}

} // namespace
} // namespace wayvane
