#include <wayvane/platform/Platform.h>
#include <wayvane/recording/WVAnnotationPopover.h>

#include <algorithm>
#include <utility>

namespace wayvane {

using platform::PopoverButton;
using platform::Rect;
using platform::WindowHandle;

namespace {

constexpr const char* kTitleField = "titleField";
constexpr const char* kMessageField = "msgField";

std::optional<std::string> unlessEmpty(std::string text)
{
  return text.empty() ? std::nullopt : std::optional(std::move(text));
}

/// One question to the author. It keeps itself until the popover is closed.
class Question : public std::enable_shared_from_this<Question> {
public:
  explicit Question(WVAnnotationPopover::Completion completion)
    : completion_(std::move(completion))
  {}

  bool ask(platform::Platform& platform, const WindowHandle& window, const Rect& anchor);

private:
  [[nodiscard]] platform::PopoverSpec spec();
  void closed();
  void giveBackPopover();

  WVAnnotationPopover::Completion completion_;
  std::unique_ptr<platform::Popover> popover_;
  bool addStepWasClicked_ = false;
};

platform::PopoverSpec Question::spec()
{
  const auto self = shared_from_this();
  platform::PopoverSpec spec;
  spec.contentSize = {260, 100};
  spec.fields = {{kTitleField, {10, 66, 240, 24}, "Step title (optional)", 12},
                 {kMessageField, {10, 36, 240, 24}, "Describe this step…", 12}};
  spec.buttons = {{"Cancel", {85, 6, 70, 24}, PopoverButton::Key::Escape, nullptr},
                  {"Add Step", {170, 6, 80, 24}, PopoverButton::Key::Return, [self] {
                     self->addStepWasClicked_ = true;
                   }}};
  spec.onClose = [self] { self->closed(); };
  return spec;
}

bool Question::ask(platform::Platform& platform, const WindowHandle& window, const Rect& anchor)
{
  popover_ = platform.panels.makePopover(spec());
  if (!popover_->show(window, anchor)) {
    // It may have been shown and closed again meanwhile, which was an answer.
    const bool hasAnswered = !completion_;
    completion_ = nullptr;
    giveBackPopover();
    return hasAnswered;
  }
  // The popover's window takes the keyboard only in a later turn.
  platform.mainQueue.async([weak = weak_from_this()] {
    const auto self = weak.lock();
    if (self && self->popover_) self->popover_->focusField(kTitleField);
  });
  return true;
}

void Question::closed()
{
  if (!popover_) return;
  const auto completion = std::exchange(completion_, nullptr);
  auto title = unlessEmpty(popover_->text(kTitleField));
  auto message = popover_->text(kMessageField);
  const bool accepted = addStepWasClicked_;
  giveBackPopover();
  if (!completion) return;
  if (!accepted) return completion(std::nullopt, std::nullopt);
  completion(title, message.empty() ? "Click here" : std::move(message));
}

// The popover holds the question, and it may be in the middle of closing.
void Question::giveBackPopover()
{
  const std::shared_ptr<platform::Popover> last = std::move(popover_);
  if (platform::Platform* const platform = platform::Platform::current())
    platform->mainQueue.async([last] {});
}

/// The part of one axis: `start` moved so that `length` fits between `low` and `low + room`.
double movedInside(double start, double length, double low, double room)
{
  return std::max(low, std::min(start, low + room - length));
}

Rect anchorInWindow(const Rect& screenRect, const WindowHandle& window, const platform::View& content)
{
  Rect anchor = window->convertRectFromScreen(screenRect);
  const Rect inside = content.convertRectToWindow(content.bounds());
  if (anchor.intersects(inside)) return anchor;
  anchor.x = movedInside(anchor.x, anchor.width, inside.x, inside.width);
  anchor.y = movedInside(anchor.y, anchor.height, inside.y, inside.height);
  return anchor;
}

} // namespace

void WVAnnotationPopover::showForView(const platform::ViewHandle& view, const Completion& completion)
{
  const WindowHandle window = view ? view->window() : nullptr;
  Rect rect;
  if (window) rect = window->convertRectToScreen(view->convertRectToWindow(view->bounds()));
  showAtScreenRect(rect, window, completion);
}

void WVAnnotationPopover::showAtScreenRect(const Rect& screenRect, const WindowHandle& forWindow,
                                           const Completion& completion)
{
  platform::Platform* const platform = platform::Platform::current();
  const platform::ViewHandle content = forWindow ? forWindow->contentView() : nullptr;
  const bool asked = platform && content &&
                     std::make_shared<Question>(completion)
                         ->ask(*platform, forWindow, anchorInWindow(screenRect, forWindow, *content));
  if (!asked && completion) completion(std::nullopt, "");
}

} // namespace wayvane
