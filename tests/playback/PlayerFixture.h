#pragma once

#include <tests/desktop/Desktop.h>
#include <wayvane/overlay/WVBubbleView.h>
#include <wayvane/overlay/WVCircleView.h>
#include <wayvane/overlay/WVSpotlightView.h>
#include <wayvane/playback/WVPlayer.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace wayvane {

/// Writes down what it is told, and does what a test wants of it then.
class DelegateSpy : public WVPlayerDelegate {
public:
  void playerWillShowStep(std::uint64_t stepIndex) override
  {
    calls.push_back("show " + std::to_string(stepIndex));
    if (onShow) onShow(stepIndex);
  }

  void playerDidCompleteGuide(const std::string& guideIdentifier) override
  {
    calls.push_back("complete " + guideIdentifier);
    if (onComplete) onComplete();
  }

  void playerDidSkipGuide(const std::string& guideIdentifier, std::uint64_t stepIndex) override
  {
    calls.push_back("skip " + guideIdentifier + " at " + std::to_string(stepIndex));
    if (onSkip) onSkip();
  }

  std::vector<std::string> calls;
  std::function<void(std::uint64_t)> onShow;
  std::function<void()> onComplete;
  std::function<void()> onSkip;
};

/// A program with one window, 800 x 600 at (100, 100), and a player of its own with a delegate.
class PlayerFixture : public ::testing::Test {
protected:
  using Lines = std::vector<std::string>;

  PlayerFixture() { player->setDelegate(delegate); }

  /// A button that steps find by `identifier`. The window's coordinates are the overlay's, too.
  sim::Button& addButton(const std::string& identifier, const platform::Rect& frame = {300, 300, 80, 24})
  {
    return addButton(*window, identifier, frame);
  }

  static sim::Button& addButton(sim::Window& where, const std::string& identifier,
                                const platform::Rect& frame = {300, 300, 80, 24})
  {
    sim::Button& button =
        where.content().addButton({.title = identifier, .frame = frame, .identifier = identifier});
    button.setHostNumber(platform::HostProperty::GuidePadding, 4);
    button.setHostNumber(platform::HostProperty::GuideCornerRadius, 5);
    return button;
  }

  static WVStep stepFor(const std::string& identifier)
  {
    WVTargetDescriptor target;
    target.accessibilityIdentifier = identifier;
    return WVStep::stepWithTarget(target, "Click " + identifier);
  }

  static std::shared_ptr<WVGuide> guideOf(const std::vector<WVStep>& steps, const std::string& name = "Tour")
  {
    auto guide = std::make_shared<WVGuide>(name);
    guide->identifier = name;
    guide->steps = steps;
    return guide;
  }

  static std::shared_ptr<WVGuide> guideFor(const std::vector<std::string>& identifiers,
                                           const std::string& name = "Tour")
  {
    std::vector<WVStep> steps;
    for (const std::string& identifier : identifiers)
      steps.push_back(stepFor(identifier));
    return guideOf(steps, name);
  }

  void play(const std::vector<std::string>& identifiers) { player->playGuide(guideFor(identifiers)); }

  void playStep(const WVStep& step) { player->playGuide(guideOf({step})); }

  /// Until the highlight of a step that needs no scrolling is there.
  void waitForHighlight() { desktop.advance(0.3); }

  void playAndShow(const std::vector<std::string>& identifiers)
  {
    play(identifiers);
    waitForHighlight();
  }

  void playAndShowStep(const WVStep& step)
  {
    playStep(step);
    waitForHighlight();
  }

  /// As a user who does what the bubble says.
  void performStep(const sim::View& target)
  {
    desktop.clickView(target);
    desktop.advance(0.2);
    waitForHighlight();
  }

  /// Where the hole in the dimming is, without the target's padding of 4.
  [[nodiscard]] platform::Rect highlightedRect() const
  {
    return player->overlayWindow()->convertRectFromScreen(player->currentTargetScreenRect());
  }

  /// Nothing of a run is left on the desktop.
  void expectIdle()
  {
    EXPECT_FALSE(player->isPlaying());
    EXPECT_EQ(player->overlayWindow(), nullptr);
    EXPECT_EQ(player->spotlightView(), nullptr);
    EXPECT_EQ(player->circleView(), nullptr);
    EXPECT_EQ(player->currentBubble(), nullptr);
    expectNothingLeft();
  }

  void expectNothingLeft()
  {
    EXPECT_TRUE(desktop.overlays().empty());
    EXPECT_EQ(desktop.events().monitorCount(platform::MouseEvent::Type::LeftMouseDown), 0U);
    EXPECT_EQ(desktop.events().resizeObserverCount(), 0U);
  }

  sim::Desktop desktop;
  std::shared_ptr<sim::Window> window = desktop.addWindow("Main");
  std::shared_ptr<DelegateSpy> delegate = std::make_shared<DelegateSpy>();
  std::unique_ptr<WVPlayer> player = std::make_unique<WVPlayer>();
};

} // namespace wayvane
