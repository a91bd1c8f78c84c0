#include <tests/playback/PlayerFixture.h>

namespace wayvane {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::SizeIs;

class PlayerOverlay : public PlayerFixture {
protected:
  std::shared_ptr<sim::Window> addSecondWindow()
  {
    const auto second = desktop.addWindow("Second", {950, 200, 400, 300});
    desktop.setMainWindow(window);
    return second;
  }

  /// The parent that the overlay of a run begun now gets.
  platform::WindowHandle parentChosen()
  {
    platform::WindowHandle parent;
    delegate->onShow = [&](std::uint64_t) { parent = player->overlayWindow()->parentWindow(); };
    play({"gone"});
    return parent;
  }
};

TEST_F(PlayerOverlay, LiesOverTheTargetWindowAndLetsPressesThrough)
{
  addButton("save");
  play({"save"});
  ASSERT_THAT(desktop.overlays(), SizeIs(1));
  EXPECT_EQ(desktop.overlay()->frame(), window->frame());
  EXPECT_EQ(desktop.overlay()->cornerRadius(), 10.0);
  EXPECT_TRUE(isSameWindow(desktop.overlay()->parentWindow(), window));
  EXPECT_TRUE(desktop.overlay()->isVisible());
  EXPECT_FALSE(WVPlayerWindow::canBecomeKeyWindow());
  EXPECT_TRUE(isSameWindow(desktop.click({440, 412}).view->window(), window));
}

TEST_F(PlayerOverlay, StacksBubbleOverRingOverSpotlight)
{
  addButton("save");
  playAndShow({"save"});
  const std::shared_ptr<platform::SurfaceView> spotlight = player->spotlightView(),
                                               circle = player->circleView(),
                                               bubble = player->currentBubble();
  EXPECT_THAT(desktop.overlay()->contentView().subviews(), ElementsAre(spotlight, circle, bubble));
  EXPECT_EQ(spotlight->frame(), (platform::Rect{0, 0, 800, 600}));
}

TEST_F(PlayerOverlay, RingStartsEmptyInThePlayersColour)
{
  addButton("save");
  player->setCircleColor(platform::Color::rgba(1, 0, 0));
  play({"save"});
  EXPECT_EQ(player->circleView()->circleColor(), platform::Color::rgba(1, 0, 0));
  EXPECT_EQ(player->circleView()->frame(), platform::Rect{});
}

TEST_F(PlayerOverlay, WithoutAnyWindowCoversTheMainScreenWithoutParent)
{
  window->close();
  std::optional<platform::Rect> frame;
  bool hasParent = true;
  delegate->onShow = [&](std::uint64_t) {
    frame = player->overlayWindow()->frame();
    hasParent = player->overlayWindow()->parentWindow() != nullptr;
  };
  play({"gone"});
  EXPECT_EQ(frame, (platform::Rect{0, 0, 1440, 900}));
  EXPECT_FALSE(hasParent);
  EXPECT_THAT(desktop.log(), Contains("WVPlayer: setupOverlay targetWindow=(null) frame={{0, 0}, {0, 0}}"));
  EXPECT_THAT(desktop.log(), Contains("WVPlayer: overlay visible=1 frame={{0, 0}, {1440, 900}}"));
}

TEST_F(PlayerOverlay, WithoutWindowAndScreenHasTheZeroFrame)
{
  window->close();
  desktop.removeScreen();
  play({"gone"});
  EXPECT_THAT(desktop.log(), Contains("WVPlayer: overlay bounds={{0, 0}, {0, 0}}"));
  expectIdle();
}

TEST_F(PlayerOverlay, PrefersTheMainWindow)
{
  const auto second = addSecondWindow();
  desktop.setKeyWindow(second);
  EXPECT_TRUE(isSameWindow(parentChosen(), window));
}

TEST_F(PlayerOverlay, TakesTheKeyWindowWhenNoneIsMain)
{
  const auto second = addSecondWindow();
  desktop.setMainWindow(nullptr);
  desktop.setKeyWindow(second);
  EXPECT_TRUE(isSameWindow(parentChosen(), second));
}

TEST_F(PlayerOverlay, TakesTheFirstWindowWhenNoneIsMainOrKey)
{
  addSecondWindow();
  desktop.setMainWindow(nullptr);
  desktop.setKeyWindow(nullptr);
  EXPECT_TRUE(isSameWindow(parentChosen(), window));
}

TEST_F(PlayerOverlay, FollowsItsParentsSizeWithTheDimmingAndLeavesTheHole)
{
  addButton("save");
  playAndShow({"save"});
  const auto hole = player->spotlightView()->maskLayer()->path();
  window->setFrame({50, 60, 1000, 700});
  EXPECT_EQ(desktop.overlay()->frame(), (platform::Rect{50, 60, 1000, 700}));
  EXPECT_EQ(player->spotlightView()->frame(), (platform::Rect{0, 0, 1000, 700}));
  EXPECT_EQ(player->spotlightView()->maskLayer()->path(), hole);
  EXPECT_EQ(player->currentTargetScreenRect(), (platform::Rect{400, 400, 80, 24}));
}

TEST_F(PlayerOverlay, IgnoresTheSizeOfOtherWindows)
{
  const auto second = addSecondWindow();
  addButton("save");
  playAndShow({"save"});
  second->setFrame({950, 200, 300, 200});
  EXPECT_EQ(desktop.overlay()->frame(), window->frame());
}

TEST_F(PlayerOverlay, MovesToTheWindowOfATargetBeforeAnythingIsHighlighted)
{
  const auto second = addSecondWindow();
  addButton(*second, "there", {50, 100, 80, 24});
  play({"there"});
  EXPECT_TRUE(isSameWindow(desktop.overlay()->parentWindow(), second));
  EXPECT_EQ(desktop.overlay()->frame(), second->frame());
  EXPECT_EQ(player->spotlightView()->maskLayer()->path(), std::nullopt);
  EXPECT_TRUE(desktop.overlay()->isVisible());
  EXPECT_THAT(desktop.overlays(), SizeIs(1));
}

TEST_F(PlayerOverlay, StepInTheSameWindowDoesNotAttachItAgain)
{
  const sim::Button& save = addButton("save");
  playAndShow({"save", "save"});
  performStep(save);
  EXPECT_EQ(desktop.overlay()->attachCount(), 1);
}

TEST_F(PlayerOverlay, FollowsATargetThatCameToAnotherWindowDuringTheWait)
{
  const auto second = addSecondWindow();
  sim::Button& save = addButton("save");
  play({"save"});
  save.destroy();
  addButton(*second, "save", {50, 100, 80, 24});
  waitForHighlight();
  EXPECT_TRUE(isSameWindow(desktop.overlay()->parentWindow(), second));
  EXPECT_EQ(player->currentTargetScreenRect(), (platform::Rect{1000, 300, 80, 24}));
  EXPECT_EQ(highlightedRect(), (platform::Rect{50, 100, 80, 24}));
}

TEST_F(PlayerOverlay, ShowsTheNextStepInAnotherWindowAfterTheFirstOneIsGone)
{
  const auto second = addSecondWindow();
  addButton("save");
  addButton(*second, "there", {50, 100, 80, 24});
  playAndShow({"save", "there"});
  window->close();
  desktop.click({440, 412});
  desktop.advance(0.5);
  EXPECT_EQ(player->currentStepIndex(), 1U);
  EXPECT_TRUE(isSameWindow(desktop.overlay()->parentWindow(), second));
  EXPECT_TRUE(desktop.overlay()->isVisible());
  EXPECT_NE(player->currentBubble(), nullptr);
}

TEST_F(PlayerOverlay, GuideWhoseOnlyWindowDiesEndsAtTheNextStep)
{
  addButton("save");
  playAndShow({"save", "save"});
  window->close();
  desktop.click({440, 412});
  desktop.advance(1);
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "show 1"));
  expectIdle();
}

TEST_F(PlayerOverlay, WindowThatDiesDuringTheWaitSkipsTheStep)
{
  addButton("save");
  play({"save"});
  window->close();
  waitForHighlight();
  EXPECT_EQ(player->currentStepIndex(), 1U);
  expectIdle();
}

TEST_F(PlayerOverlay, GoesWithMonitorAndObserverWhenTheRunStops)
{
  addButton("save");
  playAndShow({"save"});
  EXPECT_EQ(desktop.events().monitorCount(platform::MouseEvent::Type::LeftMouseDown), 1U);
  EXPECT_EQ(desktop.events().monitorCount(platform::MouseEvent::Type::MouseMoved), 0U);
  EXPECT_EQ(desktop.events().resizeObserverCount(), 1U);
  player->stop();
  expectIdle();
  EXPECT_FALSE(player->eventMonitor().isActive());
  EXPECT_FALSE(player->resizeObserver().isActive());
}

TEST_F(PlayerOverlay, HiddenAgainBeforeItIsReleased)
{
  addButton("save");
  playAndShow({"save"});
  const std::shared_ptr<WVPlayerWindow> kept = player->overlayWindow();
  player->stop();
  EXPECT_EQ(kept->parentWindow(), nullptr);
  EXPECT_FALSE(kept->isVisible());
}

} // namespace
} // namespace wayvane
