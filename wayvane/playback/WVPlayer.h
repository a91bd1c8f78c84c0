#pragma once

#include <wayvane/model/WVGuide.h>
#include <wayvane/playback/WVPlayerDelegate.h>
#include <wayvane/playback/WVPlayerWindow.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace wayvane {

class WVBubbleView;
class WVCircleView;
class WVSpotlightView;

/// Plays a guide over the live program: for each step it finds the target, scrolls it into view, dims what is
/// around it and explains it in a bubble, then waits for the user to click it. A step whose target is not
/// there is logged and left out.
///
/// Main thread only. Nothing is reported to the caller as an error; what goes wrong is logged. Without an
/// installed platform every operation does nothing.
class WVPlayer {
public:
  /// The player of the process. Made on first use, never destroyed.
  [[nodiscard]] static WVPlayer& sharedPlayer();

  WVPlayer();
  /// Ends a run without telling the delegate: the overlay goes and the pointer leaves the target.
  ~WVPlayer();
  WVPlayer(const WVPlayer&) = delete;
  WVPlayer& operator=(const WVPlayer&) = delete;

  // Playing

  /// Plays from the first step.
  void playGuide(std::shared_ptr<WVGuide> guide);
  /// Plays from a step, counted from 0; a number past the end ends the run at once. A guide that is playing
  /// is stopped first. A guide without steps, or none, is refused and leaves everything as it is.
  void playGuide(std::shared_ptr<WVGuide> guide, std::uint64_t fromStep);
  /// Goes on as if the user had performed the step. Nothing while no guide plays.
  void advanceToNextStep();
  /// Ends the run. Nothing while no guide plays.
  void stop();

  // Configuration

  /// Null when there is none, or it is gone.
  [[nodiscard]] std::shared_ptr<WVPlayerDelegate> delegate() const { return delegate_.lock(); }

  /// Not kept alive by the player.
  void setDelegate(std::weak_ptr<WVPlayerDelegate> delegate) { delegate_ = std::move(delegate); }

  /// The ring's colour, system blue unless set. Taken when a run begins.
  [[nodiscard]] const platform::Color& circleColor() const { return circleColor_; }

  void setCircleColor(const platform::Color& color) { circleColor_ = color; }

  /// Kept for the host; playing does not look at it. 0 unless set.
  [[nodiscard]] std::int64_t bubbleStyle() const { return bubbleStyle_; }

  void setBubbleStyle(std::int64_t style) { bubbleStyle_ = style; }

  /// In points, 8 unless set. Kept for the host; the hole's padding is the target's own.
  [[nodiscard]] double spotlightPadding() const { return spotlightPadding_; }

  void setSpotlightPadding(double padding) { spotlightPadding_ = padding; }

  /// In seconds, 0.3 unless set. Kept for the host; a step's animations have fixed durations.
  [[nodiscard]] double animationDuration() const { return animationDuration_; }

  void setAnimationDuration(double seconds) { animationDuration_ = seconds; }

  /// Whether the ring is shown around targets of highlight style 0. False unless set.
  [[nodiscard]] bool showsCircle() const { return showsCircle_; }

  void setShowsCircle(bool shows) { showsCircle_ = shows; }

  // State of the run

  [[nodiscard]] bool isPlaying() const { return phase_ != Phase::Idle; }

  /// The guide being played, or else played last; null before the first one.
  [[nodiscard]] const std::shared_ptr<WVGuide>& guide() const { return guide_; }

  /// The step on screen, or else the one at which the last run ended (the number of steps when none was
  /// left).
  [[nodiscard]] std::uint64_t currentStepIndex() const { return currentStepIndex_; }

  /// Null while no guide plays; likewise the views in it.
  [[nodiscard]] const std::shared_ptr<WVPlayerWindow>& overlayWindow() const { return overlayWindow_; }

  [[nodiscard]] const std::shared_ptr<WVSpotlightView>& spotlightView() const { return spotlightView_; }

  [[nodiscard]] const std::shared_ptr<WVCircleView>& circleView() const { return circleView_; }

  /// Null between two steps, too.
  [[nodiscard]] const std::shared_ptr<WVBubbleView>& currentBubble() const { return currentBubble_; }

  /// What the user shall click, in screen coordinates; kept after the run.
  [[nodiscard]] const platform::Rect& currentTargetScreenRect() const { return currentTargetScreenRect_; }

  /// Active while a guide plays.
  [[nodiscard]] const platform::Registration& eventMonitor() const { return eventMonitor_; }

  [[nodiscard]] const platform::Registration& resizeObserver() const { return resizeObserver_; }

  /// The command chosen last in a guided menu.
  [[nodiscard]] const std::optional<std::string>& lastMenuAction() const { return lastMenuAction_; }

  /// Whether the user is being asked something; presses go to the program meanwhile.
  [[nodiscard]] bool showingExitPrompt() const { return showingExitPrompt_; }

  /// Whether a menu step waits for the user's choice.
  [[nodiscard]] bool menuStepActive() const { return menuStepActive_; }

private:
  /// Completing and Stopping last while the delegate is told, and keep it from causing the same end twice.
  enum class Phase : std::uint8_t { Idle, Playing, Completing, Stopping };
  enum class Outcome : std::uint8_t { Settled, Skipped };

  /// Leads deferred work back to the player it was made for, if that still plays the same.
  struct Ticket {
    std::weak_ptr<WVPlayer*> life;
    std::uint64_t run = 0;
    std::uint64_t attempt = 0;
    [[nodiscard]] WVPlayer* playerIfAlive() const;
    [[nodiscard]] WVPlayer* playerIfSameRun() const;
    [[nodiscard]] WVPlayer* playerIfSameStep() const;
  };

  [[nodiscard]] Ticket ticket() const { return {life_, run_, attempt_}; }

  [[nodiscard]] std::uint64_t stepCount() const;

  [[nodiscard]] bool stepIndexIsInside() const { return currentStepIndex_ < stepCount(); }

  // Sequencing
  void _showCurrentStep();
  Outcome _attemptCurrentStep();
  void _showResolvedStep(const WVStep& step, const platform::ViewHandle& view);
  void _leaveCurrentTarget() const;
  void _dismissBubble();
  void _tearDown();

  // Overlay
  void _setupOverlay();
  void _makeOverlayViews(const WVPlayerWindow& overlay);
  void _observeEvents(platform::Events& events);
  void _attachOverlayToWindow(const platform::WindowHandle& window);
  void _followResize(const platform::WindowHandle& window);

  // Presenting
  void _presentStep(const WVStep& step, const platform::ViewHandle& viewBeforeScrolling);
  void _showHighlightAndBubble(const WVStep& step, const platform::View& view);
  [[nodiscard]] std::shared_ptr<WVBubbleView>
  _makeBubble(const WVStep& step, const platform::Rect& overlayRect, std::int64_t position) const;
  void _highlight(std::int64_t style, const platform::Rect& rect, double cornerRadius);
  void _showBubble(const std::shared_ptr<WVBubbleView>& bubble);
  void _hideBubbleImmediately();

  // Clicks
  platform::EventVerdict _handleClickEvent(const platform::MouseEvent& event);
  void _askToExitTutorial();

  // Menu steps
  Outcome _showMenuStep(const WVStep& step);

  std::shared_ptr<WVPlayer*> life_;
  Phase phase_ = Phase::Idle;
  std::uint64_t run_ = 0;
  std::uint64_t attempt_ = 0;

  std::weak_ptr<WVPlayerDelegate> delegate_;
  platform::Color circleColor_ = platform::Color::systemBlue();
  std::int64_t bubbleStyle_ = 0;
  double spotlightPadding_ = 8;
  double animationDuration_ = 0.3;
  bool showsCircle_ = false;

  std::shared_ptr<WVGuide> guide_;
  std::uint64_t currentStepIndex_ = 0;
  std::shared_ptr<WVPlayerWindow> overlayWindow_;
  std::shared_ptr<WVSpotlightView> spotlightView_;
  std::shared_ptr<WVCircleView> circleView_;
  std::shared_ptr<WVBubbleView> currentBubble_;
  platform::Rect currentTargetScreenRect_;
  platform::Registration eventMonitor_;
  platform::Registration resizeObserver_;
  std::optional<std::string> lastMenuAction_;
  bool showingExitPrompt_ = false;
  bool menuStepActive_ = false;
};

} // namespace wayvane
