#include "Scroll.h"

#include "Desktop.h"

#include <wayvane/platform/Animation.h>

namespace wayvane::sim {

using platform::Point;
using platform::Rect;

ClipView::ClipView(Desktop& desktop, const ClassInfo& info, const Rect& frame, bool flipped)
  : View(desktop, info, frame, flipped)
{}

Point ClipView::boundsOrigin() const
{
  const double elapsed = isAlive() ? desktop().now() - begin_ : duration_;
  if (elapsed >= duration_) return to_;
  const double t = platform::TimingCurve::easeInEaseOut().progress(elapsed / duration_);
  return {from_.x + (to_.x - from_.x) * t, from_.y + (to_.y - from_.y) * t};
}

ScrollView::ScrollView(Desktop& desktop, const ClassInfo& info, const ScrollViewOptions& options)
  : View(desktop, info, options.frame)
{
  setIdentifier(options.identifier);
}

void ScrollView::build(const ScrollViewOptions& options)
{
  const auto& classes = desktop().application().classes;
  clip_ = &adopt(std::make_shared<ClipView>(desktop(), *classes.find("NSClipView"),
                                            Rect{0, 0, options.frame.width, options.frame.height},
                                            options.flippedDocument));
  const platform::Size size = options.documentSize;
  if (size == platform::Size{}) return;
  document_ = &clip_->addView(options.documentClassName,
                              {.frame = {0, 0, size.width, size.height}, .flipped = options.flippedDocument});
}

View& ScrollView::document()
{
  if (!document_) reportFailure("this scroll view has no document");
  return *document_;
}

TableView& ScrollView::addTableDocument(const TableViewOptions& options)
{
  removeDocument();
  TableView& table = clip_->addTableView(options);
  const Rect clip = clip_->frame();
  table.setFrame({0, 0, clip.width, clip.height});
  table.setFitsRows(true);
  document_ = &table;
  return table;
}

void ScrollView::removeDocument()
{
  if (document_) document_->destroy();
  document_ = nullptr;
}

platform::ViewHandle ScrollView::documentView() const
{
  return isAlive() && document_ ? document_->handle() : nullptr;
}

Rect ScrollView::documentVisibleRect() const
{
  return isAlive() && clip_ ? clip_->bounds() : Rect{};
}

Rect ScrollView::documentBounds() const
{
  return isAlive() && document_ ? document_->bounds() : Rect{};
}

void completeWithoutView(platform::ScrollAnimation animation)
{
  if (!animation.completion) return;
  // The desktop of a view that is gone may be gone, too.
  platform::Platform* const platform = platform::Platform::current();
  if (platform && animation.duration > 0)
    platform->mainQueue.async(std::move(animation.completion));
  else
    animation.completion();
}

void ScrollView::scrollToOrigin(Point origin, platform::ScrollAnimation animation) const
{
  if (!isAlive() || !clip_) {
    completeWithoutView(std::move(animation));
    return;
  }
  finishRunningScroll();
  requests_.push_back({origin, animation.duration});
  clip_->from_ = clip_->boundsOrigin();
  clip_->to_ = origin;
  clip_->begin_ = desktop().now();
  clip_->duration_ = std::max(animation.duration, 0.0);
  if (clip_->duration_ <= 0) {
    if (animation.completion) animation.completion();
    return;
  }
  running_ = std::make_shared<std::function<void()>>(std::move(animation.completion));
  desktop().clock().after(clip_->duration_, [running = running_] {
    if (const auto completion = std::exchange(*running, nullptr)) completion();
  });
}

void ScrollView::finishRunningScroll() const
{
  if (!running_) return;
  desktop().clock().async([running = std::exchange(running_, nullptr)] {
    if (const auto completion = std::exchange(*running, nullptr)) completion();
  });
}

const void* ScrollView::role(platform::ViewKind kind) const
{
  if (kind == platform::ViewKind::ScrollView && isAlive())
    return static_cast<const platform::ScrollView*>(this);
  return View::role(kind);
}

void ScrollView::willDie()
{
  finishRunningScroll();
}

} // namespace wayvane::sim
