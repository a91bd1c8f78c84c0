#include <wayvane/platform/Surface.h>

#include <algorithm>
#include <utility>

namespace wayvane::platform {

SurfaceView::SurfaceView(const Rect& frame, bool flipped)
  : SurfaceView(frame, flipped, LayerKind::Plain)
{}

SurfaceView::SurfaceView(const Rect& frame, bool flipped, LayerKind kind)
  : layer_(Layer::make(kind))
{
  layer_->setGeometryFlipped(flipped);
  layer_->setFrame(frame);
}

SurfaceView::~SurfaceView()
{
  const bool wasInWindow = isInWindow();
  for (const std::shared_ptr<SurfaceView>& view : subviews_) {
    view->superview_ = nullptr;
    view->layer_->removeFromSuperlayer();
    if (wasInWindow) view->notifyMoved();
  }
  layer_->removeFromSuperlayer();
}

void SurfaceView::setFrame(const Rect& frame)
{
  layer_->setFrame(frame);
  // The layers are resized already; this lets subviews that lay themselves out hear of it. A copy, because
  // they may add or remove views.
  const std::vector<std::shared_ptr<SurfaceView>> views = subviews_;
  for (const std::shared_ptr<SurfaceView>& view : views)
    if (view->layer_->autoresizingMask() != 0) view->setFrame(view->frame());
}

void SurfaceView::setFrameOrigin(Point origin)
{
  const Rect old = frame();
  setFrame({origin.x, origin.y, old.width, old.height});
}

bool SurfaceView::isSelfOrAncestor(const SurfaceView& view) const
{
  for (const SurfaceView* ancestor = this; ancestor; ancestor = ancestor->superview_)
    if (ancestor == &view) return true;
  return false;
}

void SurfaceView::addSubview(const std::shared_ptr<SurfaceView>& view)
{
  if (!view || isSelfOrAncestor(*view)) return;
  const std::shared_ptr<SurfaceView> kept = view;
  kept->removeFromSuperview();
  kept->superview_ = this;
  subviews_.push_back(kept);
  layer_->addSublayer(kept->layer_);
  if (isInWindow()) kept->notifyMoved();
}

void SurfaceView::removeFromSuperview()
{
  if (!superview_) return;
  const bool wasInWindow = isInWindow();
  SurfaceView* const former = std::exchange(superview_, nullptr);
  const auto self = std::ranges::find(former->subviews_, this, &std::shared_ptr<SurfaceView>::get);
  const std::shared_ptr<SurfaceView> kept = *self;
  former->subviews_.erase(self);
  layer_->removeFromSuperlayer();
  if (wasInWindow) notifyMoved();
}

bool SurfaceView::isInWindow() const
{
  for (const SurfaceView* view = this; view; view = view->superview_)
    if (view->isContentView_) return true;
  return false;
}

void SurfaceView::notifyMoved()
{
  viewDidMoveToWindow();
  const std::vector<std::shared_ptr<SurfaceView>> views = subviews_;
  for (const std::shared_ptr<SurfaceView>& view : views)
    if (view->superview_ == this) view->notifyMoved();
}

Point SurfaceView::convertPointFromWindow(Point point) const
{
  // The content view fills the panel; above it there is only the panel's own space, y up.
  const bool isRoot = isContentView_ || !superview_;
  const bool outerFlipped = !isRoot && superview_->isFlipped();
  if (!isRoot) {
    const Point outer = superview_->convertPointFromWindow(point);
    point = {outer.x - frame().x, outer.y - frame().y};
  }
  return outerFlipped == isFlipped() ? point : Point{point.x, frame().height - point.y};
}

void SurfaceView::setIsContentView(bool isContentView)
{
  if (isContentView_ == isContentView) return;
  isContentView_ = isContentView;
  notifyMoved();
}

SurfaceLabel::SurfaceLabel(const Font& font, const Color& color, bool wraps)
  : SurfaceView({}, false, LayerKind::Text)
  , font_(font)
  , color_(color)
{
  layer()->setWrapsText(wraps);
}

void SurfaceLabel::setStringValue(const std::string& text)
{
  AttributedText value;
  if (!text.empty()) value.runs.push_back({text, font_, color_, nullptr, {}});
  setAttributedStringValue(value);
}

void SurfaceLabel::setAttributedStringValue(const AttributedText& text)
{
  layer()->setText(text);
}

} // namespace wayvane::platform
