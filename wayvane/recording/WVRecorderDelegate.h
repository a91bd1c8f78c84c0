#pragma once

#include <wayvane/model/WVGuide.h>

#include <cstdint>
#include <memory>

namespace wayvane {

/// Hears how a recording goes along. Every operation is optional: override those of interest. They are called
/// on the main thread and may do anything with the recorder, even begin the next recording or destroy it.
class WVRecorderDelegate {
public:
  virtual ~WVRecorderDelegate() = default;

  /// A step was appended to the recorder's guide. `stepIndex` counts from 0. Undoing a step is not told.
  virtual void recorderDidCaptureStep(std::uint64_t stepIndex) { static_cast<void>(stepIndex); }

  /// The recording ended, with the guide as far as it came; it may have no steps. Null when `stopRecording`
  /// was called before anything was ever recorded.
  virtual void recorderDidFinishWithGuide(const std::shared_ptr<WVGuide>& guide) { static_cast<void>(guide); }
};

} // namespace wayvane
