#include <tests/playback/PlayerFixture.h>

#include <limits>

namespace wayvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Player : public PlayerFixture {};

TEST_F(Player, StartsWithItsDefaults)
{
  const WVPlayer fresh;
  EXPECT_EQ(fresh.delegate(), nullptr);
  EXPECT_EQ(fresh.circleColor(), platform::Color::systemBlue());
  EXPECT_EQ(fresh.bubbleStyle(), 0);
  EXPECT_EQ(fresh.spotlightPadding(), 8.0);
  EXPECT_EQ(fresh.animationDuration(), 0.3);
  EXPECT_FALSE(fresh.showsCircle());
  EXPECT_FALSE(fresh.isPlaying());
  EXPECT_EQ(fresh.guide(), nullptr);
  EXPECT_EQ(fresh.currentStepIndex(), 0U);
  EXPECT_EQ(fresh.currentTargetScreenRect(), platform::Rect{});
  EXPECT_FALSE(fresh.eventMonitor().isActive());
  EXPECT_FALSE(fresh.resizeObserver().isActive());
  EXPECT_EQ(fresh.lastMenuAction(), std::nullopt);
  EXPECT_FALSE(fresh.showingExitPrompt());
  EXPECT_FALSE(fresh.menuStepActive());
}

TEST_F(Player, KeepsWhatTheHostConfigures)
{
  player->setBubbleStyle(3);
  player->setSpotlightPadding(12);
  player->setAnimationDuration(1.5);
  EXPECT_EQ(player->bubbleStyle(), 3);
  EXPECT_EQ(player->spotlightPadding(), 12.0);
  EXPECT_EQ(player->animationDuration(), 1.5);
}

TEST_F(Player, IsSharedByTheWholeProcess)
{
  EXPECT_EQ(&WVPlayer::sharedPlayer(), &WVPlayer::sharedPlayer());
}

TEST_F(Player, LogsEverythingThatLeadsToTheFirstStep)
{
  addButton("save");
  play({"save", "open"});
  EXPECT_THAT(desktop.log(),
              ElementsAre("WVPlayer: playGuide 'Tour' with 2 steps from step 0",
                          "WVPlayer: setupOverlay targetWindow=Main frame={{100, 100}, {800, 600}}",
                          "WVPlayer: overlay bounds={{0, 0}, {800, 600}}",
                          "WVPlayer: overlay visible=1 frame={{100, 100}, {800, 600}}",
                          "WVPlayer: step 0 target=ID: save resolved=<NSButton> class=NSButton"));
}

TEST_F(Player, EmptyGuideLogsTwiceAndLeavesTheRunningGuideUntouched)
{
  addButton("save");
  playAndShow({"save", "save"});
  desktop.clearLog();
  delegate->calls.clear();
  const std::shared_ptr<WVGuide> running = player->guide();
  const std::shared_ptr<WVBubbleView> bubble = player->currentBubble();

  player->playGuide(guideFor({}, "Empty"), 7);

  EXPECT_THAT(desktop.log(), ElementsAre("WVPlayer: playGuide 'Empty' with 0 steps from step 7",
                                         "WVPlayer: no steps, returning"));
  EXPECT_TRUE(player->isPlaying());
  EXPECT_EQ(player->guide(), running);
  EXPECT_EQ(player->currentBubble(), bubble);
  EXPECT_THAT(delegate->calls, IsEmpty());
}

TEST_F(Player, NoGuideAtAllIsRefusedLikeAnEmptyOne)
{
  player->playGuide(nullptr);
  EXPECT_THAT(desktop.log(), ElementsAre("WVPlayer: playGuide '(null)' with 0 steps from step 0",
                                         "WVPlayer: no steps, returning"));
  expectIdle();
}

TEST_F(Player, StartIndexAtTheEndBuildsTheOverlayAndStopsAtOnceWithoutDelegateCall)
{
  player->playGuide(guideFor({"save", "open"}), 2);
  EXPECT_THAT(desktop.log(),
              ElementsAre("WVPlayer: playGuide 'Tour' with 2 steps from step 2",
                          "WVPlayer: setupOverlay targetWindow=Main frame={{100, 100}, {800, 600}}",
                          "WVPlayer: overlay bounds={{0, 0}, {800, 600}}",
                          "WVPlayer: overlay visible=1 frame={{100, 100}, {800, 600}}"));
  EXPECT_THAT(delegate->calls, IsEmpty());
  EXPECT_EQ(player->currentStepIndex(), 2U);
  expectIdle();
}

TEST_F(Player, LargestStartIndexEndsTheRunAtOnce)
{
  player->playGuide(guideFor({"save"}), std::numeric_limits<std::uint64_t>::max());
  EXPECT_THAT(delegate->calls, IsEmpty());
  expectIdle();
}

TEST_F(Player, StartsAtTheStepAskedFor)
{
  addButton("open");
  player->playGuide(guideFor({"save", "open"}), 1);
  EXPECT_THAT(delegate->calls, ElementsAre("show 1"));
  EXPECT_EQ(player->currentStepIndex(), 1U);
}

TEST_F(Player, ReplacingARunningGuideTellsOfItsEndBeforeTheNewOverlayAppears)
{
  const sim::Button& save = addButton("save");
  addButton("open", {100, 300, 80, 24});
  playAndShow({"save", "open"});
  performStep(save);
  desktop.clearLog();
  delegate->calls.clear();
  const WVPlayerWindow* const formerOverlay = player->overlayWindow().get();
  Lines logAtSkip;
  delegate->onSkip = [&] {
    logAtSkip = desktop.log();
    EXPECT_EQ(player->overlayWindow().get(), formerOverlay);
  };

  player->playGuide(guideFor({"save"}, "Next"));

  EXPECT_THAT(delegate->calls, ElementsAre("skip Tour at 1", "show 0"));
  EXPECT_THAT(logAtSkip, ElementsAre("WVPlayer: playGuide 'Next' with 1 steps from step 0"));
  EXPECT_EQ(desktop.overlays().size(), 1U);
  EXPECT_EQ(player->guide()->name, "Next");
}

TEST_F(Player, UnresolvedStepIsLoggedAndSkippedInTheSameTurn)
{
  addButton("save");
  play({"gone", "save"});
  EXPECT_THAT(Lines(desktop.log().end() - 3, desktop.log().end()),
              ElementsAre("WVPlayer: step 0 target=ID: gone resolved=(null) class=nil",
                          "WVPlayer: step 0 SKIPPED (target not found)",
                          "WVPlayer: step 1 target=ID: save resolved=<NSButton> class=NSButton"));
  EXPECT_EQ(player->currentStepIndex(), 1U);
}

TEST_F(Player, TellsOfEveryAttemptOnceAlsoOfThoseThatAreSkipped)
{
  const sim::Button& save = addButton("save");
  playAndShow({"gone", "save", "lost", "save"});
  performStep(save);
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "show 1", "show 2", "show 3"));
}

TEST_F(Player, TellsOfAStepBeforeTheOldBubbleGoesAndBeforeTheTargetIsLookedFor)
{
  addButton("save");
  playAndShow({"save", "open"});
  const std::shared_ptr<WVBubbleView> bubble = player->currentBubble();
  bool asked = false;
  delegate->onShow = [&](std::uint64_t) {
    asked = true;
    EXPECT_EQ(player->currentBubble(), bubble);
    addButton("open");
  };
  player->advanceToNextStep();
  EXPECT_TRUE(asked);
  EXPECT_EQ(player->currentBubble(), nullptr);
  EXPECT_EQ(player->currentStepIndex(), 1U);
  EXPECT_TRUE(player->isPlaying());
}

TEST_F(Player, OldBubbleFadesOutAndLeavesTheOverlay)
{
  addButton("save");
  playAndShow({"save", "save"});
  const std::shared_ptr<WVBubbleView> bubble = player->currentBubble();
  player->advanceToNextStep();
  EXPECT_NE(bubble->superview(), nullptr);
  desktop.advance(0.2);
  EXPECT_EQ(bubble->superview(), nullptr);
}

TEST_F(Player, LastStepsThatCannotBeShownEndTheGuideSilently)
{
  const sim::Button& save = addButton("save");
  playAndShow({"save", "gone", "lost"});
  performStep(save);
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "show 1", "show 2"));
  EXPECT_EQ(player->currentStepIndex(), 3U);
  expectIdle();
}

TEST_F(Player, PerformingTheLastStepTellsOfCompletionBeforeTheOverlayGoes)
{
  const sim::Button& save = addButton("save");
  playAndShow({"save"});
  bool overlayWasThere = false;
  delegate->onComplete = [&] { overlayWasThere = player->isPlaying() && desktop.overlay()->isVisible(); };
  performStep(save);
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "complete Tour"));
  EXPECT_TRUE(overlayWasThere);
  expectIdle();
}

TEST_F(Player, GuideWithoutIdentifierIsToldByTheEmptyText)
{
  addButton("save");
  const auto guide = guideFor({"save"});
  guide->identifier.reset();
  player->playGuide(guide);
  player->advanceToNextStep();
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "complete "));
}

TEST_F(Player, KeepsGuideIndexAndTargetAfterTheRun)
{
  addButton("save");
  playAndShow({"gone", "save", "save"});
  player->stop();
  EXPECT_EQ(player->guide()->name, "Tour");
  EXPECT_EQ(player->currentStepIndex(), 1U);
  EXPECT_EQ(player->currentTargetScreenRect(), (platform::Rect{400, 400, 80, 24}));
}

TEST_F(Player, StopTellsOfTheSkipAfterThePointerLeftAndBeforeTheOverlayGoes)
{
  const sim::Button& save = addButton("save");
  playAndShow({"save"});
  bool hasLeft = false, overlayWasThere = false;
  delegate->onSkip = [&] {
    hasLeft = save.hoverEvents().back().type == platform::HoverEvent::Type::Exited;
    overlayWasThere = player->isPlaying() && desktop.overlay()->isVisible();
  };
  player->stop();
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "skip Tour at 0"));
  EXPECT_TRUE(hasLeft);
  EXPECT_TRUE(overlayWasThere);
  expectIdle();
}

TEST_F(Player, StopTakesTheBubbleAwayWithoutFading)
{
  addButton("save");
  playAndShow({"save"});
  desktop.advance(3);
  const std::shared_ptr<WVBubbleView> bubble = player->currentBubble();
  ASSERT_NE(bubble->superview(), nullptr);
  player->stop();
  EXPECT_EQ(bubble->superview(), nullptr);
}

TEST_F(Player, StopStopsTheRing)
{
  addButton("save");
  player->setShowsCircle(true);
  playAndShow({"save"});
  const std::shared_ptr<WVCircleView> circle = player->circleView();
  ASSERT_TRUE(circle->isAnimating());
  player->stop();
  EXPECT_FALSE(circle->isAnimating());
}

TEST_F(Player, AdvancingLetsThePointerLeaveBeforeTheNextStepIsTold)
{
  const sim::Button& save = addButton("save");
  playAndShow({"save", "save"});
  std::size_t eventsBefore = 0;
  delegate->onShow = [&](std::uint64_t) { eventsBefore = save.hoverEvents().size(); };
  player->advanceToNextStep();
  ASSERT_EQ(eventsBefore, 2U);
  EXPECT_EQ(save.hoverEvents()[1].type, platform::HoverEvent::Type::Exited);
}

TEST_F(Player, StoppingAndAdvancingWhileIdleDoNothing)
{
  player->stop();
  player->advanceToNextStep();
  const sim::Button& save = addButton("save");
  playAndShow({"save", "save"});
  player->stop();
  const std::size_t hoverEvents = save.hoverEvents().size();
  delegate->calls.clear();
  desktop.clearLog();

  player->stop();
  player->advanceToNextStep();

  EXPECT_EQ(player->currentStepIndex(), 0U);
  EXPECT_EQ(save.hoverEvents().size(), hoverEvents);
  EXPECT_THAT(delegate->calls, IsEmpty());
  EXPECT_THAT(desktop.log(), IsEmpty());
}

TEST_F(Player, DoesNotWaitForAStepsDelay)
{
  addButton("save");
  WVStep step = stepFor("save");
  step.delay = 5;
  playAndShowStep(step);
  EXPECT_NE(player->currentBubble(), nullptr);
}

TEST_F(Player, SkipsWhatCannotBeShownWhetherOptionalOrNot)
{
  WVStep optional = stepFor("gone");
  optional.optional = true;
  player->playGuide(guideOf({optional, stepFor("lost")}));
  EXPECT_EQ(player->currentStepIndex(), 2U);
  expectIdle();
}

TEST_F(Player, NoTimerRunsWhileAStepWaitsForItsClick)
{
  addButton("save");
  player->setShowsCircle(true);
  playAndShow({"save"});
  desktop.advance(60);
  EXPECT_TRUE(player->isPlaying());
  EXPECT_EQ(desktop.clock().pendingCount(), 0U);
}

TEST_F(Player, HundredThousandLostStepsEndTheGuideWithoutExhaustingTheStack)
{
  player->setDelegate({});
  player->playGuide(guideOf(std::vector<WVStep>(100'000, stepFor("gone"))));
  EXPECT_EQ(player->currentStepIndex(), 100'000U);
  EXPECT_EQ(desktop.log().back(), "WVPlayer: step 99999 SKIPPED (target not found)");
  expectIdle();
}

TEST_F(Player, DoesNotKeepItsDelegateAlive)
{
  addButton("save");
  playAndShow({"save"});
  delegate.reset();
  EXPECT_EQ(player->delegate(), nullptr);
  player->stop();
  expectIdle();
}

TEST_F(Player, PlaysWithoutADelegate)
{
  player->setDelegate({});
  const sim::Button& save = addButton("save");
  playAndShow({"save"});
  performStep(save);
  expectIdle();
}

TEST_F(Player, DelegateNeedNotImplementAnything)
{
  const auto silent = std::make_shared<WVPlayerDelegate>();
  player->setDelegate(silent);
  const sim::Button& save = addButton("save");
  playAndShow({"save", "save"});
  performStep(save);
  player->stop();
  expectIdle();
}

TEST_F(Player, StepsAddedByTheHostDuringTheRunArePlayed)
{
  const sim::Button& save = addButton("save");
  const auto guide = guideFor({"save"});
  player->playGuide(guide);
  waitForHighlight();
  guide->steps.push_back(stepFor("save"));
  performStep(save);
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "show 1"));
}

TEST_F(Player, StepsTakenAwayByTheHostDuringTheRunEndIt)
{
  const sim::Button& save = addButton("save");
  const auto guide = guideFor({"save", "save"});
  player->playGuide(guide);
  waitForHighlight();
  guide->steps.clear();
  performStep(save);
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "complete Tour"));
  expectIdle();
}

TEST(PlayerWithoutPlatform, DoesNothing)
{
  WVPlayer player;
  const auto guide = std::make_shared<WVGuide>("Tour");
  guide->steps.emplace_back();
  player.playGuide(guide);
  player.advanceToNextStep();
  player.stop();
  EXPECT_FALSE(player.isPlaying());
  EXPECT_EQ(player.guide(), nullptr);
}

TEST_F(Player, ThePointerLeavesThePerformedTargetAndNotTheNextOne)
{
  const sim::Button& save = addButton("save");
  const sim::Button& open = addButton("open", {100, 100, 80, 24});
  playAndShow({"save", "open"});
  performStep(save);
  desktop.advance(0.5);
  ASSERT_EQ(save.hoverEvents().size(), 2U);
  EXPECT_EQ(save.hoverEvents().back().type, platform::HoverEvent::Type::Exited);
  ASSERT_EQ(open.hoverEvents().size(), 1U);
  EXPECT_EQ(open.hoverEvents().back().type, platform::HoverEvent::Type::Entered);
}

} // namespace
} // namespace wayvane
