#include <wayvane/platform/Layer.h>
#include <wayvane/platform/Platform.h>

#include <algorithm>
#include <utility>

namespace wayvane::platform {
namespace {

double now()
{
  const Platform* platform = Platform::current();
  return platform ? platform->mainQueue.now() : 0;
}

Rect resized(Rect frame, unsigned bits, double widthChange, double heightChange)
{
  if (bits & kWidthSizable) frame.width += widthChange;
  if (bits & kHeightSizable) frame.height += heightChange;
  return frame;
}

} // namespace

LayerHandle Layer::make(LayerKind kind)
{
  return LayerHandle(new Layer(kind));
}

Layer::~Layer()
{
  for (const LayerHandle& layer : sublayers_)
    layer->superlayer_ = nullptr;
  if (mask_) mask_->superlayer_ = nullptr;
}

template <class Value>
void Layer::assign(Value& member, const Value& value)
{
  if (member == value) return;
  member = value;
  noteChange();
}

bool Layer::isSelfOrAncestor(const Layer& layer) const
{
  for (const Layer* ancestor = this; ancestor; ancestor = ancestor->superlayer_)
    if (ancestor == &layer) return true;
  return false;
}

void Layer::addSublayer(const LayerHandle& layer)
{
  if (!layer || isSelfOrAncestor(*layer)) return;
  const LayerHandle kept = layer;
  kept->removeFromSuperlayer();
  kept->superlayer_ = this;
  sublayers_.push_back(kept);
  noteChange();
}

void Layer::removeFromSuperlayer()
{
  if (!superlayer_) return;
  const LayerHandle kept = shared_from_this();
  Layer* const former = superlayer_;
  superlayer_ = nullptr;
  if (former->mask_.get() == this)
    former->mask_.reset();
  else
    std::erase(former->sublayers_, kept);
  former->noteChange();
}

void Layer::setMask(const LayerHandle& mask)
{
  if (mask == mask_ || (mask && isSelfOrAncestor(*mask))) return;
  const LayerHandle kept = mask;
  if (mask_) mask_->removeFromSuperlayer();
  if (kept) {
    kept->removeFromSuperlayer();
    kept->superlayer_ = this;
  }
  mask_ = kept;
  noteChange();
}

void Layer::setFrame(const Rect& frame)
{
  if (frame == frame_) return;
  const Rect old = frame_;
  frame_ = frame;
  noteChange();
  resizeForBounds(old);
}

void Layer::resizeForBounds(const Rect& oldFrame)
{
  const double dw = frame_.width - oldFrame.width, dh = frame_.height - oldFrame.height;
  if (dw == 0 && dh == 0) return;
  for (const LayerHandle& layer : sublayers_)
    layer->setFrame(resized(layer->frame_, layer->autoresizingMask_, dw, dh));
  if (mask_) mask_->setFrame(resized(mask_->frame_, mask_->autoresizingMask_, dw, dh));
}

void Layer::setAutoresizingMask(unsigned bits)
{
  autoresizingMask_ = bits;
}

void Layer::setGeometryFlipped(bool flipped)
{
  assign(geometryFlipped_, flipped);
}

void Layer::setHidden(bool hidden)
{
  assign(hidden_, hidden);
}

void Layer::setOpacity(double opacity)
{
  assign(opacity_, opacity);
}

void Layer::setTransform(const Transform& transform)
{
  assign(transform_, transform);
}

void Layer::setBackgroundColor(const Color& color)
{
  assign(backgroundColor_, color);
}

void Layer::setCornerRadius(double radius)
{
  assign(cornerRadius_, radius);
}

void Layer::setMasksToBounds(bool masks)
{
  assign(masksToBounds_, masks);
}

void Layer::setShadow(const std::optional<Shadow>& shadow)
{
  assign(shadow_, shadow);
}

void Layer::setPath(const Path& path)
{
  assign(path_, std::optional<Path>(path));
}

void Layer::removePath()
{
  assign(path_, std::optional<Path>());
}

void Layer::setFillRule(FillRule rule)
{
  assign(fillRule_, rule);
}

void Layer::setFillColor(const Color& color)
{
  assign(fillColor_, color);
}

void Layer::setStrokeColor(const Color& color)
{
  assign(strokeColor_, color);
}

void Layer::setLineWidth(double width)
{
  assign(lineWidth_, width);
}

void Layer::setLineDashPattern(const std::vector<double>& lengths)
{
  assign(lineDashPattern_, lengths);
}

void Layer::setLineDashPhase(double phase)
{
  assign(lineDashPhase_, phase);
}

void Layer::setText(const AttributedText& text)
{
  assign(text_, text);
}

void Layer::setWrapsText(bool wraps)
{
  assign(wrapsText_, wraps);
}

void Layer::addAnimation(const Animation& animation, const std::string& key)
{
  std::erase_if(animations_, [&](const RunningAnimation& running) { return running.key == key; });
  animations_.push_back({key, animation, now()});
  noteChange();
}

void Layer::removeAnimation(const std::string& key)
{
  const auto removed =
      std::erase_if(animations_, [&](const RunningAnimation& running) { return running.key == key; });
  if (removed > 0) noteChange();
}

void Layer::removeAllAnimations()
{
  if (animations_.empty()) return;
  animations_.clear();
  noteChange();
}

const RunningAnimation* Layer::animationForKey(const std::string& key) const
{
  const auto found = std::ranges::find(animations_, key, &RunningAnimation::key);
  return found == animations_.end() ? nullptr : &*found;
}

void Layer::setChangeObserver(std::function<void()> observer)
{
  changeObserver_ = std::move(observer);
}

bool Layer::takeChange()
{
  return std::exchange(changed_, false);
}

void Layer::noteChange()
{
  Layer* root = this;
  while (root->superlayer_)
    root = root->superlayer_;
  if (std::exchange(root->changed_, true)) return;
  // A copy: the observer may set another one.
  if (const auto observer = root->changeObserver_) observer();
}

} // namespace wayvane::platform
