#include <wayvane/overlay/WVBubbleView.h>
#include <wayvane/overlay/WVCircleView.h>
#include <wayvane/overlay/WVSpotlightView.h>
#include <wayvane/platform/HostCall.h>
#include <wayvane/playback/PlayerLog.h>
#include <wayvane/playback/SimulatedHover.h>
#include <wayvane/playback/WVPlayer.h>

#include <utility>

namespace wayvane {

WVPlayer* WVPlayer::Ticket::playerIfAlive() const
{
  const std::shared_ptr<WVPlayer*> held = life.lock();
  return held ? *held : nullptr;
}

WVPlayer* WVPlayer::Ticket::playerIfSameRun() const
{
  WVPlayer* const player = playerIfAlive();
  return player && player->run_ == run ? player : nullptr;
}

WVPlayer* WVPlayer::Ticket::playerIfSameStep() const
{
  WVPlayer* const player = playerIfSameRun();
  return player && player->attempt_ == attempt ? player : nullptr;
}

WVPlayer& WVPlayer::sharedPlayer()
{
  static WVPlayer* const player = new WVPlayer;
  return *player;
}

WVPlayer::WVPlayer()
  : life_(std::make_shared<WVPlayer*>(this))
{}

WVPlayer::~WVPlayer()
{
  *life_ = nullptr;
  if (!isPlaying()) return;
  phase_ = Phase::Stopping;
  _leaveCurrentTarget();
  _tearDown();
}

std::uint64_t WVPlayer::stepCount() const
{
  return guide_ ? guide_->steps.size() : 0;
}

void WVPlayer::playGuide(std::shared_ptr<WVGuide> guide)
{
  playGuide(std::move(guide), 0);
}

void WVPlayer::playGuide(std::shared_ptr<WVGuide> guide, std::uint64_t fromStep)
{
  if (!platform::Platform::current()) return;
  const std::uint64_t count = guide ? guide->steps.size() : 0;
  const std::optional<std::string> name = guide ? guide->name : std::nullopt;
  logPlayer("WVPlayer: playGuide '%@' with %lu steps from step %lu", {name, count, fromStep});
  if (count == 0) {
    logPlayer("WVPlayer: no steps, returning", {});
    return;
  }
  const Ticket former = ticket();
  if (phase_ == Phase::Stopping)
    _tearDown();
  else
    stop();
  // Whoever was told of the end may have destroyed the player, or begun a guide that came later than this
  // one.
  if (!former.playerIfAlive() || isPlaying() || !platform::Platform::current()) return;

  guide_ = std::move(guide);
  currentStepIndex_ = fromStep;
  phase_ = Phase::Playing;
  ++run_;
  const Ticket mine = ticket();
  _setupOverlay();
  if (mine.playerIfSameRun()) _showCurrentStep();
}

void WVPlayer::_showCurrentStep()
{
  while (stepIndexIsInside()) {
    if (_attemptCurrentStep() == Outcome::Settled) return;
    ++currentStepIndex_;
  }
  stop();
}

WVPlayer::Outcome WVPlayer::_attemptCurrentStep()
{
  ++attempt_;
  const Ticket mine = ticket();
  const std::uint64_t index = currentStepIndex_;
  const WVStep step = guide_->steps[index];
  if (const std::shared_ptr<WVPlayerDelegate> told = delegate())
    platform::callHost("WVPlayer", [&] { told->playerWillShowStep(index); });
  if (!mine.playerIfSameStep()) return Outcome::Settled;
  _dismissBubble();

  const WVTargetDescriptor& target = step.target;
  if (target.menuAction || target.menuPath) {
    logPlayer("WVPlayer: step %lu is MENU target: action=%@ path=%@",
              {index, target.menuAction, target.menuPath});
    return _showMenuStep(step);
  }
  const platform::ViewHandle view = target.resolveInWindow(nullptr);
  const std::optional<std::string> className = view ? std::optional(view->className()) : std::nullopt;
  logPlayer("WVPlayer: step %lu target=%@ resolved=%@ class=%@",
            {index, target.displayDescription(), view ? "<" + *className + ">" : "(null)",
             className.value_or("nil")});
  if (!mine.playerIfSameStep()) return Outcome::Settled;
  if (!view) {
    logPlayer("WVPlayer: step %lu SKIPPED (target not found)", {index});
    return Outcome::Skipped;
  }
  _showResolvedStep(step, view);
  return Outcome::Settled;
}

void WVPlayer::advanceToNextStep()
{
  if (phase_ != Phase::Playing) return;
  const Ticket mine = ticket();
  _leaveCurrentTarget();
  if (!mine.playerIfSameStep()) return;
  ++currentStepIndex_;
  if (stepIndexIsInside()) {
    _showCurrentStep();
    return;
  }
  phase_ = Phase::Completing;
  if (const std::shared_ptr<WVPlayerDelegate> told = delegate())
    platform::callHost("WVPlayer", [&] { told->playerDidCompleteGuide(guide_->identifier.value_or("")); });
  if (mine.playerIfSameRun()) stop();
}

void WVPlayer::stop()
{
  if (phase_ == Phase::Idle || phase_ == Phase::Stopping) return;
  phase_ = Phase::Stopping;
  const Ticket mine = ticket();
  _leaveCurrentTarget();
  if (!mine.playerIfSameRun()) return;
  if (const std::shared_ptr<WVPlayerDelegate> told = delegate(); told && stepIndexIsInside())
    platform::callHost("WVPlayer",
                       [&] { told->playerDidSkipGuide(guide_->identifier.value_or(""), currentStepIndex_); });
  if (mine.playerIfSameRun()) _tearDown();
}

void WVPlayer::_leaveCurrentTarget() const
{
  if (!stepIndexIsInside() || !platform::Platform::current()) return;
  const WVTargetDescriptor target = guide_->steps[currentStepIndex_].target;
  if (const platform::ViewHandle view = target.resolveInWindow(nullptr)) simulateMouseExit(view);
}

void WVPlayer::_dismissBubble()
{
  const std::shared_ptr<WVBubbleView> bubble = std::exchange(currentBubble_, nullptr);
  if (!bubble) return;
  bubble->disappearWithCompletion({});
  if (overlayWindow_) overlayWindow_->hideAccessibleAlert();
}

void WVPlayer::_tearDown()
{
  // The player lets go of everything first: ordering a window out can reach code of the host's, and that may
  // well begin the next guide.
  std::shared_ptr<WVPlayerWindow> overlay = std::move(overlayWindow_);
  std::shared_ptr<WVSpotlightView> spotlight = std::move(spotlightView_);
  std::shared_ptr<WVCircleView> circle = std::move(circleView_);
  const std::shared_ptr<WVBubbleView> bubble = std::move(currentBubble_);
  platform::Registration monitor = std::move(eventMonitor_);
  platform::Registration observer = std::move(resizeObserver_);
  phase_ = Phase::Idle;
  menuStepActive_ = false;
  ++run_;

  if (circle) circle->stopAnimating();
  if (overlay) {
    overlay->hideAccessibleAlert();
    overlay->detach();
    overlay->orderOut();
  }
  overlay.reset();
  spotlight.reset();
  circle.reset();
  if (bubble) bubble->removeFromSuperview();
  monitor.reset();
  observer.reset();
}

} // namespace wayvane
