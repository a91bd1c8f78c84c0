#include <wayvane/platform/Format.h>
#include <wayvane/platform/HostCall.h>
#include <wayvane/platform/Platform.h>
#include <wayvane/recording/WVHitTestEvent.h>
#include <wayvane/recording/WVHoverHUD.h>
#include <wayvane/recording/WVRecorder.h>
#include <wayvane/recording/WVRecordingBadge.h>

namespace wayvane {

using platform::EventVerdict;
using platform::MouseEvent;

WVRecorder* WVRecorder::Ticket::recorderIfSameRecording() const
{
  const std::shared_ptr<WVRecorder*> held = life.lock();
  WVRecorder* const recorder = held ? *held : nullptr;
  return recorder && recorder->recordingNumber_ == recording ? recorder : nullptr;
}

WVRecorder& WVRecorder::sharedRecorder()
{
  static WVRecorder* const recorder = new WVRecorder;
  return *recorder;
}

WVRecorder::WVRecorder()
  : life_(std::make_shared<WVRecorder*>(this))
{}

WVRecorder::~WVRecorder()
{
  *life_ = nullptr;
  if (recording_) WVHoverHUD::shared().orderOut();
}

void WVRecorder::startRecordingGuide(const std::string& guideName)
{
  platform::Platform* const platform = platform::Platform::current();
  if (recording_ || !platform) return;
  ++recordingNumber_;
  capturingAnnotation_ = false;
  const auto& application = platform->application;
  guide_ = std::make_shared<WVGuide>(guideName);
  guide_->appBundleIdentifier = application.bundleIdentifier();
  const auto shortVersion = application.shortVersion();
  guide_->appBundleVersion = shortVersion ? shortVersion : application.bundleVersion();
  recording_ = true;
  _makeBadge();
  _observe(platform->events);
}

void WVRecorder::_makeBadge()
{
  badge_ = std::make_shared<WVRecordingBadge>();
  badge_->setOnDone([mine = ticket()] {
    if (WVRecorder* const recorder = mine.recorderIfSameRecording()) recorder->stopRecording();
  });
  badge_->setOnUndo([mine = ticket()] {
    if (WVRecorder* const recorder = mine.recorderIfSameRecording()) recorder->undoLastStep();
  });
  badge_->orderFront();
}

void WVRecorder::_observe(platform::Events& events)
{
  moveMonitor_ = events.addLocalMonitor(MouseEvent::Type::MouseMoved, [mine = ticket()](const auto& event) {
    if (const WVRecorder* const recorder = mine.recorderIfSameRecording()) recorder->_handleMouseMoved(event);
    return EventVerdict::PassOn;
  });
  menuObserver_ = events.observeMenuCommands([mine = ticket()](const platform::MenuItemHandle& item) {
    if (WVRecorder* const recorder = mine.recorderIfSameRecording()) recorder->_handleMenuCommand(item);
  });
  eventMonitor_ =
      events.addLocalMonitor(MouseEvent::Type::LeftMouseDown, [mine = ticket()](const auto& event) {
        if (WVRecorder* const recorder = mine.recorderIfSameRecording())
          recorder->_handleLeftMouseDown(event);
        return EventVerdict::PassOn;
      });
}

std::shared_ptr<WVGuide> WVRecorder::stopRecording()
{
  recording_ = false;
  eventMonitor_.reset();
  moveMonitor_.reset();
  menuObserver_.reset();
  WVHoverHUD::shared().orderOut();
  if (const auto badge = std::exchange(badge_, nullptr)) {
    badge->orderOut();
    // Its own button may be what ended the recording: it has to last until that press is over.
    if (platform::Platform* const platform = platform::Platform::current())
      platform->mainQueue.async([badge] {});
  }
  const std::shared_ptr<WVGuide> guide = guide_;
  if (finishing_ == recordingNumber_) return guide;
  const std::weak_ptr<WVRecorder*> life = life_;
  const auto outer = std::exchange(finishing_, recordingNumber_);
  if (const auto told = delegate())
    platform::callHost("WVRecorder", [&] { told->recorderDidFinishWithGuide(guide); });
  if (!life.expired()) finishing_ = outer;
  return guide;
}

void WVRecorder::undoLastStep()
{
  if (!guide_ || guide_->steps.empty()) return;
  guide_->steps.pop_back();
  _updateBadge();
}

void WVRecorder::_appendStep(WVStep step)
{
  guide_->steps.push_back(std::move(step));
  _updateBadge();
  const std::uint64_t index = guide_->steps.size() - 1;
  if (const auto told = delegate())
    platform::callHost("WVRecorder", [&] { told->recorderDidCaptureStep(index); });
}

void WVRecorder::_updateBadge() const
{
  const std::uint64_t count = guide_->steps.size();
  if (badge_) badge_->stepCountLabel().setStringValue(platform::format("%lu steps", {count}));
}

bool WVRecorder::_isBadge(const platform::WindowHandle& window) const
{
  return badge_ && isSameWindow(window, badge_->window());
}

void WVRecorder::_handleMouseMoved(const MouseEvent& event) const
{
  WVHoverHUD& hud = WVHoverHUD::shared();
  if (!recording_ || capturingAnnotation_) return hud.orderOut();
  platform::Platform* const platform = platform::Platform::current();
  if (!platform) return;
  const platform::Point pointer = platform->events.mouseLocation();
  if (_isBadge(event.window) || isSameWindow(event.window, hud.window())) return;
  hud.updateForView(WVHitTestEvent(event), pointer);
}

} // namespace wayvane
