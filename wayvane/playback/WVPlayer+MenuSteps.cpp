#include <wayvane/playback/PlayerLog.h>
#include <wayvane/playback/WVPlayer.h>

namespace wayvane {

WVPlayer::Outcome WVPlayer::_showMenuStep(const WVStep& step)
{
  logPlayer("WVPlayer: menu action %@ not found in any menu, skipping", {step.target.menuAction});
  return Outcome::Skipped;
}

} // namespace wayvane
