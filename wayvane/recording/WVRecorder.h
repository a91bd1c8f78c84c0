#pragma once

#include <wayvane/model/WVGuide.h>
#include <wayvane/platform/Events.h>
#include <wayvane/recording/WVRecorderDelegate.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace wayvane {

class WVRecordingBadge;

/// Turns what the author does in the running program into the steps of a guide: every click and every menu
/// command is described, the author is asked for a title and a message, and a step is appended. The program
/// works as usual meanwhile; no press is ever kept from it.
///
/// Main thread only. Nothing is reported to the caller as an error. Without an installed platform a recording
/// does not begin.
class WVRecorder {
public:
  /// The recorder of the process. Made on first use, never destroyed.
  [[nodiscard]] static WVRecorder& sharedRecorder();

  WVRecorder();
  /// Ends a recording without telling the delegate. An annotation that is open stays open, without effect.
  ~WVRecorder();
  WVRecorder(const WVRecorder&) = delete;
  WVRecorder& operator=(const WVRecorder&) = delete;

  // Recording

  /// Begins a new guide of that name, stamped with the program's identifier and version. Nothing while a
  /// recording goes on.
  void startRecordingGuide(const std::string& guideName);
  /// Ends the recording, tells the delegate and answers the guide: null when none was ever recorded. Does so
  /// also while none goes on, except from within the delegate's notice of the same end. A menu command that
  /// is being annotated can still become a step of that guide; a click cannot.
  std::shared_ptr<WVGuide> stopRecording();
  /// Drops the guide's last step; nothing when it has none. The delegate is not told.
  void undoLastStep();

  /// Null when there is none, or it is gone.
  [[nodiscard]] std::shared_ptr<WVRecorderDelegate> delegate() const { return delegate_.lock(); }

  /// Not kept alive by the recorder.
  void setDelegate(std::weak_ptr<WVRecorderDelegate> delegate) { delegate_ = std::move(delegate); }

  // State

  [[nodiscard]] bool isRecording() const { return recording_; }

  /// True from the moment a click or command is accepted until the author has answered. Clicks, commands and
  /// movements are not recorded meanwhile. Stays true when the recording ends first.
  [[nodiscard]] bool capturingAnnotation() const { return capturingAnnotation_; }

  /// The guide being recorded, or else recorded last; null before the first one.
  [[nodiscard]] const std::shared_ptr<WVGuide>& guide() const { return guide_; }

  /// Null while nothing is recorded.
  [[nodiscard]] const std::shared_ptr<WVRecordingBadge>& badge() const { return badge_; }

  /// Active while something is recorded.
  [[nodiscard]] const platform::Registration& eventMonitor() const { return eventMonitor_; }

  [[nodiscard]] const platform::Registration& moveMonitor() const { return moveMonitor_; }

  [[nodiscard]] const platform::Registration& menuObserver() const { return menuObserver_; }

private:
  /// Leads deferred work back to the recorder, as long as no later recording began.
  struct Ticket {
    std::weak_ptr<WVRecorder*> life;
    std::uint64_t recording = 0;
    [[nodiscard]] WVRecorder* recorderIfSameRecording() const;
  };

  /// What the author says about a step; both absent when the author gave up.
  struct Annotation {
    std::optional<std::string> title;
    std::optional<std::string> message;

    [[nodiscard]] bool isCancelled() const { return !title && !message; }
  };

  /// Where an annotation is asked for; `rect` in screen coordinates.
  struct Anchor {
    platform::Rect rect;
    platform::WindowHandle window;
  };

  [[nodiscard]] Ticket ticket() const { return {life_, recordingNumber_}; }

  void _makeBadge();
  void _observe(platform::Events& events);
  void _handleMouseMoved(const platform::MouseEvent& event) const;
  void _appendStep(WVStep step);
  void _updateBadge() const;
  [[nodiscard]] bool _isBadge(const platform::WindowHandle& window) const;

  // Clicks
  void _handleLeftMouseDown(const platform::MouseEvent& event);
  void _annotateClick(const WVStep& step, const Anchor& anchor);
  void _finishClick(WVStep step, const Annotation& annotation);

  // Menu commands
  void _handleMenuCommand(const platform::MenuItemHandle& item);
  void _annotateMenuCommand(const WVStep& step);
  void _finishMenuCommand(WVStep step, const Annotation& annotation);

  std::shared_ptr<WVRecorder*> life_;
  std::uint64_t recordingNumber_ = 0;
  bool recording_ = false;
  /// The recording of whose end the delegate is just being told.
  std::optional<std::uint64_t> finishing_;
  bool capturingAnnotation_ = false;
  std::weak_ptr<WVRecorderDelegate> delegate_;
  std::shared_ptr<WVGuide> guide_;
  std::shared_ptr<WVRecordingBadge> badge_;
  platform::Registration eventMonitor_;
  platform::Registration moveMonitor_;
  platform::Registration menuObserver_;
};

} // namespace wayvane
