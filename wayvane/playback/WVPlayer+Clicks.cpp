#include <wayvane/model/WVLocalization.h>
#include <wayvane/playback/WVPlayer.h>

namespace wayvane {

namespace {

constexpr double kClickTolerance = 12;
constexpr double kAdvanceDelay = 0.2;
constexpr int kExitButton = 1;

platform::AlertSpec exitPrompt()
{
  platform::AlertSpec spec;
  spec.style = platform::AlertSpec::Style::Informational;
  spec.messageText = wv_localizedWithDefault("WV.Exit.Tutorial.Title", "Exit Tutorial?");
  spec.informativeText =
      wv_localizedWithDefault("WV.Exit.Tutorial.Message",
                              "You clicked outside the highlighted area. Do you want to exit this tutorial?");
  spec.buttons = {wv_localizedWithDefault("WV.Exit.Tutorial.Continue", "Continue Tutorial"),
                  wv_localizedWithDefault("WV.Exit.Tutorial.Exit", "Exit")};
  return spec;
}

} // namespace

platform::EventVerdict WVPlayer::_handleClickEvent(const platform::MouseEvent& event)
{
  using platform::EventVerdict;
  platform::Platform* const platform = platform::Platform::current();
  if (!platform || phase_ != Phase::Playing || showingExitPrompt_ || menuStepActive_)
    return EventVerdict::PassOn;
  // An open list belongs to the control that the user already pressed.
  if (event.inMenu) return EventVerdict::PassOn;
  if (overlayWindow_ && isSameWindow(event.window, overlayWindow_->window())) return EventVerdict::PassOn;

  const platform::Rect hitArea = currentTargetScreenRect_.grownBy(kClickTolerance);
  if (hitArea.contains(platform->events.mouseLocation())) {
    _hideBubbleImmediately();
    platform->mainQueue.after(kAdvanceDelay, [mine = ticket()] {
      if (WVPlayer* const player = mine.playerIfSameStep()) player->advanceToNextStep();
    });
    return EventVerdict::PassOn;
  }
  if (currentStepIndex_ + 1 < stepCount()) {
    platform->mainQueue.async([mine = ticket()] {
      if (WVPlayer* const player = mine.playerIfSameRun()) player->_askToExitTutorial();
    });
    return EventVerdict::Swallow;
  }
  stop();
  return EventVerdict::PassOn;
}

void WVPlayer::_askToExitTutorial()
{
  platform::Platform* const platform = platform::Platform::current();
  if (!platform || showingExitPrompt_) return;
  const Ticket mine = ticket();
  showingExitPrompt_ = true;
  const platform::AlertAnswer answer = platform->panels.runAlert(exitPrompt());
  if (!mine.playerIfAlive()) return;
  showingExitPrompt_ = false;
  if (answer.button == kExitButton && mine.playerIfSameRun()) stop();
}

} // namespace wayvane
