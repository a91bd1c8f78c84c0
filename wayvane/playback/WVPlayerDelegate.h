#pragma once

#include <cstdint>
#include <string>

namespace wayvane {

/// Hears how a guide goes along. Every operation is optional: override those of interest. They are called on
/// the main thread and may do anything with the player, even start another guide or destroy it.
class WVPlayerDelegate {
public:
  virtual ~WVPlayerDelegate() = default;

  /// A step is about to be shown. Comes before its target is looked for, so also for a step that is then
  /// left out because its target is not there. `stepIndex` counts from 0.
  virtual void playerWillShowStep(std::uint64_t stepIndex) { static_cast<void>(stepIndex); }

  /// The user performed the last step. The overlay is still there and goes away after the call.
  virtual void playerDidCompleteGuide(const std::string& guideIdentifier)
  {
    static_cast<void>(guideIdentifier);
  }

  /// The guide ended at a step: the user left it, another guide replaced it, or the host stopped it. A guide
  /// whose last steps could not be shown ends without any notice.
  virtual void playerDidSkipGuide(const std::string& guideIdentifier, std::uint64_t stepIndex)
  {
    static_cast<void>(guideIdentifier);
    static_cast<void>(stepIndex);
  }
};

} // namespace wayvane
