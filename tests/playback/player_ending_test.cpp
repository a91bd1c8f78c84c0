#include <tests/playback/PlayerFixture.h>

#include <algorithm>
#include <stdexcept>

namespace wayvane {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// Ends of a run at every moment of a step, and by every hand.
class PlayerEnding : public PlayerFixture {
protected:
  /// A step whose target must be scrolled to: 1.5 s, then the wait.
  void addFarButton()
  {
    sim::ScrollView& scroll =
        window->content().addScrollView({.frame = {50, 50, 300, 200}, .documentSize = {300, 2000}});
    scroll.document().addButton({.frame = {10, 1800, 80, 24}, .identifier = "far"});
  }

  /// Brings a run of two steps to a moment, ends it with `end`, and lets everything that is still under way
  /// happen.
  void endAfter(double seconds, const std::function<void()>& end)
  {
    addFarButton();
    play({"far", "far"});
    desktop.advance(seconds);
    end();
    desktop.clearLog();
    desktop.advance(10);
    expectNothingLeft();
    EXPECT_THAT(desktop.log(), IsEmpty());
  }

  const std::function<void()> stopIt = [this] {
    player->stop();
    EXPECT_FALSE(player->isPlaying());
  };
  const std::function<void()> destroyIt = [this] { player.reset(); };
};

constexpr double kWhileScrolling = 0.7, kWhileWaiting = 1.6, kBeforeRefresh = 1.85, kBeforeBubble = 2.0,
                 kWhileSpringing = 2.4, kWhileShown = 8;

TEST_F(PlayerEnding, StoppedWhileScrolling)
{
  endAfter(kWhileScrolling, stopIt);
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "skip Tour at 0"));
}

TEST_F(PlayerEnding, StoppedDuringTheWaitPresentsNothing)
{
  endAfter(kWhileWaiting, stopIt);
  EXPECT_EQ(player->currentTargetScreenRect(), platform::Rect{});
  EXPECT_EQ(player->currentBubble(), nullptr);
}

TEST_F(PlayerEnding, StoppedBeforeTheHoverRefresh)
{
  endAfter(kBeforeRefresh, stopIt);
}

TEST_F(PlayerEnding, StoppedBeforeTheBubbleSprings)
{
  endAfter(kBeforeBubble, stopIt);
}

TEST_F(PlayerEnding, StoppedWhileTheBubbleSprings)
{
  endAfter(kWhileSpringing, stopIt);
}

TEST_F(PlayerEnding, StoppedWhileShown)
{
  endAfter(kWhileShown, stopIt);
}

TEST_F(PlayerEnding, StoppedBetweenTheHitAndTheAdvance)
{
  endAfter(kWhileShown, [this] {
    desktop.click(player->currentTargetScreenRect().center());
    desktop.advance(0.1);
    player->stop();
  });
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "skip Tour at 0"));
}

TEST_F(PlayerEnding, StoppedWithThePromptOnItsWay)
{
  endAfter(kWhileShown, [this] {
    desktop.click({120, 650});
    player->stop();
  });
  EXPECT_THAT(desktop.alerts(), IsEmpty());
}

TEST_F(PlayerEnding, DestroyedWhileScrolling)
{
  endAfter(kWhileScrolling, destroyIt);
  EXPECT_THAT(delegate->calls, ElementsAre("show 0"));
}

TEST_F(PlayerEnding, DestroyedDuringTheWait)
{
  endAfter(kWhileWaiting, destroyIt);
}

TEST_F(PlayerEnding, DestroyedBeforeTheBubbleSprings)
{
  endAfter(kBeforeBubble, destroyIt);
}

TEST_F(PlayerEnding, DestroyedWhileShownLetsThePointerLeaveAndTellsNobody)
{
  const sim::Button& save = addButton("save");
  playAndShow({"save"});
  player.reset();
  expectNothingLeft();
  EXPECT_EQ(save.hoverEvents().back().type, platform::HoverEvent::Type::Exited);
  EXPECT_THAT(delegate->calls, ElementsAre("show 0"));
}

TEST_F(PlayerEnding, DestroyedBetweenTheHitAndTheAdvance)
{
  endAfter(kWhileShown, [this] {
    desktop.click(player->currentTargetScreenRect().center());
    player.reset();
  });
}

TEST_F(PlayerEnding, DestroyedWithThePromptOnItsWay)
{
  endAfter(kWhileShown, [this] {
    desktop.click({120, 650});
    player.reset();
  });
  EXPECT_THAT(desktop.alerts(), IsEmpty());
}

TEST_F(PlayerEnding, DestroyedWhileThePromptIsUp)
{
  endAfter(kWhileShown, [this] {
    desktop.setOnAlert([this](const platform::AlertSpec&) { player.reset(); });
    desktop.answerNextAlert(1);
    desktop.click({120, 650});
    desktop.runPending();
    EXPECT_EQ(player, nullptr);
  });
}

TEST_F(PlayerEnding, DesktopGoneBeforeThePlayer)
{
  auto late = std::make_unique<WVPlayer>();
  {
    sim::Desktop shortLived;
    addButton(*shortLived.addWindow("Short"), "save");
    late->playGuide(guideFor({"save"}));
    shortLived.advance(0.3);
    ASSERT_NE(late->currentBubble(), nullptr);
  }
  late->advanceToNextStep();
  EXPECT_FALSE(late->isPlaying());
}

// The delegate acts from within what it is told.

TEST_F(PlayerEnding, DelegateStopsWhenAStepIsAboutToBeShown)
{
  addButton("save");
  delegate->onShow = [this](std::uint64_t) { player->stop(); };
  play({"save", "save"});
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "skip Tour at 0"));
  expectIdle();
}

TEST_F(PlayerEnding, DelegateAdvancesWhenAStepIsAboutToBeShown)
{
  addButton("save");
  delegate->onShow = [this](std::uint64_t index) {
    if (index == 0) player->advanceToNextStep();
  };
  playAndShow({"save", "save"});
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "show 1"));
  EXPECT_EQ(player->currentStepIndex(), 1U);
  EXPECT_NE(player->currentBubble(), nullptr);
}

TEST_F(PlayerEnding, DelegateBeginsAnotherGuideWhenAStepIsAboutToBeShown)
{
  addButton("save");
  delegate->onShow = [this](std::uint64_t) {
    delegate->onShow = nullptr;
    player->playGuide(guideFor({"save"}, "Next"));
  };
  playAndShow({"gone", "save"});
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "skip Tour at 0", "show 0"));
  EXPECT_EQ(player->guide()->name, "Next");
  EXPECT_EQ(desktop.overlays().size(), 1U);
}

TEST_F(PlayerEnding, DelegateBeginsAnotherGuideOnCompletion)
{
  addButton("save");
  playAndShow({"save"});
  delegate->onComplete = [this] { player->playGuide(guideFor({"save", "save"}, "Next")); };
  player->advanceToNextStep();
  waitForHighlight();
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "complete Tour", "show 0"));
  EXPECT_TRUE(player->isPlaying());
  EXPECT_NE(player->currentBubble(), nullptr);
  EXPECT_EQ(desktop.overlays().size(), 1U);
}

TEST_F(PlayerEnding, DelegateBeginsAnotherGuideOnSkip)
{
  addButton("save");
  playAndShow({"save"});
  delegate->onSkip = [this] { player->playGuide(guideFor({"save"}, "Next")); };
  player->stop();
  waitForHighlight();
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "skip Tour at 0", "show 0"));
  EXPECT_NE(player->currentBubble(), nullptr);
  EXPECT_EQ(desktop.overlays().size(), 1U);
}

TEST_F(PlayerEnding, GuideBegunByTheDelegateMeanwhileWinsOverTheOneThatReplaced)
{
  addButton("save");
  playAndShow({"save"});
  delegate->onSkip = [this] { player->playGuide(guideFor({"save"}, "Latest")); };
  player->playGuide(guideFor({"save"}, "Next"));
  EXPECT_EQ(player->guide()->name, "Latest");
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "skip Tour at 0", "show 0"));
  EXPECT_EQ(desktop.overlays().size(), 1U);
}

TEST_F(PlayerEnding, DelegateStopsAndAdvancesOnSkipWithoutBeingToldAgain)
{
  addButton("save");
  playAndShow({"save", "save"});
  delegate->onSkip = [this] {
    player->advanceToNextStep();
    player->stop();
  };
  player->stop();
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "skip Tour at 0"));
  expectIdle();
}

TEST_F(PlayerEnding, DelegateAdvancesAndStopsOnCompletionWithoutBeingToldAgain)
{
  addButton("save");
  playAndShow({"save"});
  delegate->onComplete = [this] {
    player->advanceToNextStep();
    player->stop();
  };
  player->advanceToNextStep();
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "complete Tour"));
  expectIdle();
}

TEST_F(PlayerEnding, PressesDuringTheCompletionNoticeBelongToTheProgram)
{
  const sim::Button& save = addButton("save");
  playAndShow({"save"});
  platform::EventVerdict verdict = platform::EventVerdict::Swallow;
  delegate->onComplete = [&] { verdict = desktop.click({120, 650}).verdict; };
  performStep(save);
  EXPECT_EQ(verdict, platform::EventVerdict::PassOn);
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "complete Tour"));
}

TEST_F(PlayerEnding, DelegateDestroysThePlayerWhenAStepIsAboutToBeShown)
{
  addButton("save");
  delegate->onShow = [this](std::uint64_t) { player.reset(); };
  play({"gone", "save"});
  desktop.advance(2);
  expectNothingLeft();
}

TEST_F(PlayerEnding, DelegateDestroysThePlayerOnCompletion)
{
  addButton("save");
  playAndShow({"save"});
  delegate->onComplete = [this] { player.reset(); };
  player->advanceToNextStep();
  expectNothingLeft();
}

TEST_F(PlayerEnding, DelegateDestroysThePlayerOnSkip)
{
  addButton("save");
  playAndShow({"save"});
  delegate->onSkip = [this] { player.reset(); };
  player->playGuide(guideFor({"save"}, "Next"));
  desktop.advance(2);
  expectNothingLeft();
}

TEST_F(PlayerEnding, DelegateThatIsReleasedWithinItsOwnNoticeSurvivesIt)
{
  addButton("save");
  playAndShow({"save"});
  delegate->onSkip = [this] { delegate.reset(); };
  player->stop();
  expectIdle();
}

TEST_F(PlayerEnding, TargetsActionStopsTheGuide)
{
  sim::Button& save = addButton("save");
  save.setOnClick([this] { player->stop(); });
  playAndShow({"save", "save"});
  performStep(save);
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "skip Tour at 0"));
  expectIdle();
}

TEST_F(PlayerEnding, DelegateThatThrowsAtEveryChanceHoldsNothingUp)
{
  const auto failing = [] { throw std::runtime_error("out of order"); };
  delegate->onShow = [&](std::uint64_t) { failing(); };
  delegate->onComplete = failing;
  delegate->onSkip = failing;
  const sim::Button& save = addButton("save");
  playAndShow({"save"});
  performStep(save);
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "complete Tour"));
  expectIdle();
  playAndShow({"save"});
  player->stop();
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "complete Tour", "show 0", "skip Tour at 0"));
  expectIdle();
  EXPECT_EQ(std::ranges::count(desktop.log(), "WVPlayer: the host threw: out of order"), 4);
}

TEST_F(PlayerEnding, DelegateThatThrowsSomethingElseHoldsNothingUpEither)
{
  delegate->onSkip = [] { throw 7; }; // NOLINT(hicpp-exception-baseclass)
  addButton("save");
  playAndShow({"save"});
  player->stop();
  expectIdle();
  EXPECT_EQ(desktop.log().back(), "WVPlayer: the host threw: unknown");
}

} // namespace
} // namespace wayvane
