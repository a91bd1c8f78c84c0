#include <tests/playback/PlayerFixture.h>

namespace wayvane {
namespace {

using platform::EventVerdict;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr platform::Point kElsewhere{150, 650};

/// The target lies at (400, 400) of the screen, 80 x 24.
class PlayerClick : public PlayerFixture {
protected:
  void showTwoSteps() { playAndShow({"save", "save"}); }

  void pressElsewhere() { EXPECT_EQ(desktop.click(kElsewhere).verdict, EventVerdict::Swallow); }

  /// Whether a press there counts as performing the step.
  bool performsStep(platform::Point point)
  {
    desktop.click(point);
    desktop.advance(0.2);
    return player->currentStepIndex() == 1;
  }

  sim::Button& save = addButton("save");
};

TEST_F(PlayerClick, InsideTheTargetReachesTheProgramAndAdvancesAfterAFifthOfASecond)
{
  showTwoSteps();
  EXPECT_EQ(desktop.clickView(save).verdict, EventVerdict::PassOn);
  EXPECT_EQ(save.clickCount(), 1);
  desktop.advance(0.19);
  EXPECT_EQ(player->currentStepIndex(), 0U);
  desktop.advance(0.02);
  EXPECT_EQ(player->currentStepIndex(), 1U);
}

TEST_F(PlayerClick, InsideHidesTheBubbleAtOnceAndKeepsItInPlace)
{
  showTwoSteps();
  desktop.advance(3);
  const std::shared_ptr<WVBubbleView> bubble = player->currentBubble();
  ASSERT_EQ(bubble->alphaValue(), 1.0);
  desktop.clickView(save);
  EXPECT_EQ(bubble->alphaValue(), 0.0);
  EXPECT_EQ(player->currentBubble(), bubble);
  EXPECT_NE(bubble->superview(), nullptr);
}

TEST_F(PlayerClick, UpToTwelvePointsOutsideOnEverySideStillCounts)
{
  for (const platform::Point point :
       {platform::Point{388, 412}, {491.9, 412}, {440, 388}, {440, 435.9}, {388, 388}}) {
    showTwoSteps();
    EXPECT_TRUE(performsStep(point)) << point.x << ", " << point.y;
    player->stop();
  }
}

TEST_F(PlayerClick, MoreThanTwelvePointsOutsideOnEverySideAsksToExit)
{
  for (const platform::Point point :
       {platform::Point{387.9, 412}, {492.1, 412}, {440, 387.9}, {440, 436.1}}) {
    showTwoSteps();
    desktop.answerNextAlert(0);
    EXPECT_FALSE(performsStep(point)) << point.x << ", " << point.y;
    player->stop();
  }
  EXPECT_THAT(desktop.alerts(), SizeIs(4));
}

TEST_F(PlayerClick, ThePointersPlaceDecidesAndNotTheEventsOwn)
{
  showTwoSteps();
  EXPECT_EQ(desktop.clickAt(kElsewhere, {440, 412}).verdict, EventVerdict::PassOn);
  desktop.advance(0.2);
  EXPECT_EQ(player->currentStepIndex(), 1U);
}

TEST_F(PlayerClick, EventInsideIsHeldBackWhenThePointerIsElsewhere)
{
  showTwoSteps();
  desktop.answerNextAlert(0);
  EXPECT_EQ(desktop.clickAt({440, 412}, kElsewhere).verdict, EventVerdict::Swallow);
  desktop.advance(0.5);
  EXPECT_EQ(player->currentStepIndex(), 0U);
}

TEST_F(PlayerClick, InsideOnTheLastStepCompletesTheGuide)
{
  playAndShow({"save"});
  EXPECT_EQ(desktop.clickView(save).verdict, EventVerdict::PassOn);
  EXPECT_TRUE(player->isPlaying());
  desktop.advance(0.2);
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "complete Tour"));
  expectIdle();
}

TEST_F(PlayerClick, OutsideOnTheLastStepEndsTheGuideWithoutPromptAndReachesTheProgram)
{
  playAndShow({"save"});
  EXPECT_EQ(desktop.click(kElsewhere).verdict, EventVerdict::PassOn);
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "skip Tour at 0"));
  expectIdle();
  desktop.advance(1);
  EXPECT_THAT(desktop.alerts(), IsEmpty());
}

TEST_F(PlayerClick, OutsideIsHeldBackAndAsksOnTheNextTurn)
{
  showTwoSteps();
  pressElsewhere();
  EXPECT_THAT(desktop.alerts(), IsEmpty());
  desktop.answerNextAlert(0);
  desktop.runTurn();
  EXPECT_THAT(desktop.alerts(), SizeIs(1));
}

TEST_F(PlayerClick, PromptAsksInTheseWords)
{
  showTwoSteps();
  pressElsewhere();
  desktop.answerNextAlert(0);
  desktop.runTurn();
  ASSERT_THAT(desktop.alerts(), SizeIs(1));
  const platform::AlertSpec& alert = desktop.alerts()[0];
  EXPECT_EQ(alert.style, platform::AlertSpec::Style::Informational);
  EXPECT_EQ(alert.messageText, "Exit Tutorial?");
  EXPECT_EQ(alert.informativeText,
            "You clicked outside the highlighted area. Do you want to exit this tutorial?");
  EXPECT_THAT(alert.buttons, ElementsAre("Continue Tutorial", "Exit"));
  EXPECT_FALSE(alert.field.has_value());
}

TEST_F(PlayerClick, PromptSpeaksTheUsersLanguage)
{
  desktop.setFrameworkTable("en", {{"WV.Exit.Tutorial.Title", "T"},
                                   {"WV.Exit.Tutorial.Message", "M"},
                                   {"WV.Exit.Tutorial.Continue", "C"},
                                   {"WV.Exit.Tutorial.Exit", "E"}});
  showTwoSteps();
  pressElsewhere();
  desktop.answerNextAlert(0);
  desktop.runTurn();
  ASSERT_THAT(desktop.alerts(), SizeIs(1));
  EXPECT_EQ(desktop.alerts()[0].messageText, "T");
  EXPECT_EQ(desktop.alerts()[0].informativeText, "M");
  EXPECT_THAT(desktop.alerts()[0].buttons, ElementsAre("C", "E"));
}

TEST_F(PlayerClick, ContinuingLeavesTheStepAndItsBubbleUntouched)
{
  showTwoSteps();
  const std::shared_ptr<WVBubbleView> bubble = player->currentBubble();
  pressElsewhere();
  desktop.answerNextAlert(0);
  desktop.advance(1);
  EXPECT_EQ(player->currentStepIndex(), 0U);
  EXPECT_EQ(player->currentBubble(), bubble);
  EXPECT_EQ(bubble->alphaValue(), 1.0);
  EXPECT_FALSE(player->showingExitPrompt());
  EXPECT_THAT(delegate->calls, ElementsAre("show 0"));
}

TEST_F(PlayerClick, PromptThatEndsWithoutAnAnswerContinues)
{
  showTwoSteps();
  pressElsewhere();
  desktop.answerNextAlert(-1);
  desktop.runTurn();
  EXPECT_TRUE(player->isPlaying());
  EXPECT_FALSE(player->showingExitPrompt());
}

TEST_F(PlayerClick, ExitingStopsTheGuideAndTellsTheStep)
{
  showTwoSteps();
  pressElsewhere();
  desktop.answerNextAlert(1);
  desktop.runTurn();
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "skip Tour at 0"));
  EXPECT_FALSE(player->showingExitPrompt());
  expectIdle();
}

TEST_F(PlayerClick, PressesWhileThePromptIsUpReachTheProgramUnjudged)
{
  showTwoSteps();
  pressElsewhere();
  EventVerdict outside = EventVerdict::Swallow;
  desktop.setOnAlert([&](const platform::AlertSpec&) {
    EXPECT_TRUE(player->showingExitPrompt());
    outside = desktop.click(kElsewhere).verdict;
    desktop.clickView(save);
  });
  desktop.answerNextAlert(0);
  desktop.advance(1);
  EXPECT_EQ(outside, EventVerdict::PassOn);
  EXPECT_EQ(player->currentStepIndex(), 0U);
  EXPECT_THAT(desktop.alerts(), SizeIs(1));
}

TEST_F(PlayerClick, SecondRequestWhileThePromptIsUpIsDropped)
{
  showTwoSteps();
  pressElsewhere();
  pressElsewhere();
  desktop.setOnAlert([&](const platform::AlertSpec&) { desktop.runPending(); });
  desktop.answerNextAlert(0);
  desktop.advance(1);
  EXPECT_THAT(desktop.alerts(), SizeIs(1));
}

TEST_F(PlayerClick, PromptOfAReplacedRunIsNotShown)
{
  showTwoSteps();
  pressElsewhere();
  player->playGuide(guideFor({"save", "save"}, "Next"));
  desktop.advance(1);
  EXPECT_THAT(desktop.alerts(), IsEmpty());
}

TEST_F(PlayerClick, ExitAnsweredAfterTheRunWasReplacedLeavesTheNewOneAlone)
{
  showTwoSteps();
  pressElsewhere();
  desktop.setOnAlert([&](const platform::AlertSpec&) {
    player->playGuide(guideFor({"save", "save"}, "Next"));
  });
  desktop.answerNextAlert(1);
  desktop.advance(1);
  EXPECT_TRUE(player->isPlaying());
  EXPECT_EQ(player->guide()->name, "Next");
  EXPECT_FALSE(player->showingExitPrompt());
}

TEST_F(PlayerClick, ExitAnsweredAfterTheStepMovedOnStillStops)
{
  showTwoSteps();
  pressElsewhere();
  desktop.setOnAlert([&](const platform::AlertSpec&) { player->advanceToNextStep(); });
  desktop.answerNextAlert(1);
  desktop.runTurn();
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "show 1", "skip Tour at 1"));
  expectIdle();
}

TEST_F(PlayerClick, DoubleClickAdvancesOnce)
{
  playAndShow({"save", "save", "save"});
  desktop.clickView(save);
  desktop.advance(0.1);
  desktop.clickView(save);
  desktop.advance(0.15);
  EXPECT_EQ(player->currentStepIndex(), 1U);
}

TEST_F(PlayerClick, AdvanceOfAClickIsDroppedWhenTheStepMovedOnMeanwhile)
{
  playAndShow({"save", "save", "save"});
  desktop.clickView(save);
  player->advanceToNextStep();
  desktop.advance(0.25);
  EXPECT_EQ(player->currentStepIndex(), 1U);
}

TEST_F(PlayerClick, AdvanceOfAClickIsDroppedWhenAnotherRunBeganMeanwhile)
{
  showTwoSteps();
  desktop.clickView(save);
  player->playGuide(guideFor({"save", "save"}, "Next"));
  desktop.advance(0.25);
  EXPECT_EQ(player->currentStepIndex(), 0U);
}

TEST_F(PlayerClick, PressOnTheOverlayItselfPasses)
{
  showTwoSteps();
  desktop.setMouseLocation(kElsewhere);
  EXPECT_EQ(desktop.events().send(
                {platform::MouseEvent::Type::LeftMouseDown, desktop.overlay()->window(), {50, 550}, false}),
            EventVerdict::PassOn);
  desktop.advance(1);
  EXPECT_THAT(desktop.alerts(), IsEmpty());
}

TEST_F(PlayerClick, ChoosingFromAnOpenListIsNotJudged)
{
  showTwoSteps();
  EXPECT_EQ(desktop.pressInMenu(kElsewhere), EventVerdict::PassOn);
  EXPECT_EQ(desktop.pressInMenu(save.screenCenter()), EventVerdict::PassOn);
  desktop.advance(1);
  EXPECT_THAT(desktop.alerts(), IsEmpty());
  EXPECT_EQ(player->currentStepIndex(), 0U);
}

TEST_F(PlayerClick, PressWithoutAWindowIsJudgedByThePointer)
{
  showTwoSteps();
  EXPECT_EQ(desktop.pressWithoutWindow(save.screenCenter()), EventVerdict::PassOn);
  desktop.advance(0.2);
  EXPECT_EQ(player->currentStepIndex(), 1U);
}

TEST_F(PlayerClick, MovesOfThePointerNeitherAdvanceNorAsk)
{
  showTwoSteps();
  desktop.moveMouse(save.screenCenter());
  desktop.moveMouse(kElsewhere);
  desktop.advance(1);
  EXPECT_EQ(player->currentStepIndex(), 0U);
  EXPECT_TRUE(player->isPlaying());
  EXPECT_THAT(desktop.alerts(), IsEmpty());
}

TEST_F(PlayerClick, PressesAreTheProgramsOwnWhileNothingPlays)
{
  EXPECT_EQ(desktop.click(kElsewhere).verdict, EventVerdict::PassOn);
  showTwoSteps();
  player->stop();
  EXPECT_EQ(desktop.click(kElsewhere).verdict, EventVerdict::PassOn);
  desktop.advance(1);
  EXPECT_THAT(desktop.alerts(), IsEmpty());
}

} // namespace
} // namespace wayvane
