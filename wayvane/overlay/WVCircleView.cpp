#include <wayvane/overlay/WVCircleView.h>

namespace wayvane {

using namespace platform;

namespace {

Animation pulse()
{
  Animation fade;
  fade.keyPath = KeyPath::Opacity;
  fade.from = 1.0;
  fade.to = 0.2;
  fade.duration = 0.9;
  fade.autoreverses = true;
  fade.repeatCount = Animation::kForever;
  fade.timing = TimingCurve::easeInEaseOut();
  return fade;
}

} // namespace

WVCircleView::WVCircleView(const Rect& frame)
  : SurfaceView(frame)
{}

void WVCircleView::showAroundRect(const Rect& rect)
{
  setFrame(rect);
  const Rect outline = bounds();
  if (!(outline.width >= 1) || !(outline.height >= 1)) return;
  if (!animating_) makeLayers();
  Path path;
  path.addRoundedRect(outline, cornerRadius_);
  for (const LayerHandle& shape : {ringLayer_, pulseLayer_}) {
    shape->setFrame(outline);
    shape->setPath(path);
  }
}

void WVCircleView::stopAnimating()
{
  animating_ = false;
  removeLayers();
}

void WVCircleView::makeLayers()
{
  removeLayers();
  ringLayer_ = addOutline();
  pulseLayer_ = addOutline();
  pulseLayer_->addAnimation(pulse(), "pulse");
  animating_ = true;
}

void WVCircleView::removeLayers()
{
  for (LayerHandle* shape : {&ringLayer_, &pulseLayer_}) {
    if (*shape) (*shape)->removeFromSuperlayer();
    shape->reset();
  }
}

LayerHandle WVCircleView::addOutline() const
{
  LayerHandle shape = Layer::make(LayerKind::Shape);
  shape->setFillColor(Color::clear());
  shape->setStrokeColor(circleColor_);
  shape->setLineWidth(2);
  layer()->addSublayer(shape);
  return shape;
}

} // namespace wayvane
