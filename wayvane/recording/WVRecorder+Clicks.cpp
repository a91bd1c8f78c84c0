#include <wayvane/platform/Format.h>
#include <wayvane/platform/Platform.h>
#include <wayvane/recording/WVAnnotationPopover.h>
#include <wayvane/recording/WVHitTestEvent.h>
#include <wayvane/recording/WVHoverHUD.h>
#include <wayvane/recording/WVRecorder.h>

namespace wayvane {

using platform::MouseEvent;
using platform::ViewHandle;

namespace {

/// So that the click has done its work in the program before the popover takes the keyboard.
constexpr double kPopoverDelay = 0.1;

struct Hit {
  ViewHandle view;
  std::optional<WVTargetDescriptor> target;
};

Hit hitByEvent(const MouseEvent& event)
{
  if (const ViewHandle view = WVHitTestEvent(event))
    return {view, WVTargetDescriptor::descriptorForView(*view, event.locationInWindow)};
  const WVHoverHUD& hud = WVHoverHUD::shared();
  return {hud.lastView(), hud.lastDescriptor()};
}

void logClick(const ViewHandle& view, const MouseEvent& event, const WVTargetDescriptor& target)
{
  const auto title = event.window ? std::optional(event.window->title()) : std::nullopt;
  if (platform::Platform* const platform = platform::Platform::current())
    platform->log.write(platform::format("WVRecorder: click hit=%@ in %@ → %@",
                                         {view->className(), title, target.displayDescription()}));
}

} // namespace

void WVRecorder::_handleLeftMouseDown(const MouseEvent& event)
{
  const bool inUtilityPanel = event.window && event.window->isUtilityPanel();
  if (!recording_ || capturingAnnotation_ || _isBadge(event.window) || inUtilityPanel) return;
  // The command that is chosen in the end is the step.
  if (event.inMenu || event.inMenuBar) return;
  const auto [view, target] = hitByEvent(event);
  if (!view || !target) return;
  logClick(view, event, *target);
  Anchor anchor;
  anchor.window = view->window();
  if (anchor.window)
    anchor.rect = anchor.window->convertRectToScreen(view->convertRectToWindow(view->bounds()));
  _annotateClick(WVStep::stepWithTarget(*target, ""), anchor);
}

void WVRecorder::_annotateClick(const WVStep& step, const Anchor& anchor)
{
  platform::Platform* const platform = platform::Platform::current();
  if (!guide_ || !platform) return;
  capturingAnnotation_ = true;
  platform->mainQueue.after(kPopoverDelay, [mine = ticket(), step, anchor] {
    const WVRecorder* const asking = mine.recorderIfSameRecording();
    if (!asking || !asking->recording_) return;
    // It may lie over the popover, until the next movement would hide it.
    WVHoverHUD::shared().orderOut();
    WVAnnotationPopover::showAtScreenRect(
        anchor.rect, anchor.window,
        [mine, step](const std::optional<std::string>& title, const std::optional<std::string>& message) {
          if (WVRecorder* const recorder = mine.recorderIfSameRecording())
            recorder->_finishClick(step, {title, message});
        });
  });
}

void WVRecorder::_finishClick(WVStep step, const Annotation& annotation)
{
  capturingAnnotation_ = false;
  if (annotation.isCancelled() || !recording_) return;
  step.title = annotation.title;
  step.message = annotation.message.value_or("");
  _appendStep(std::move(step));
}

} // namespace wayvane
