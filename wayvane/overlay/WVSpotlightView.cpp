#include <wayvane/overlay/WVSpotlightView.h>

namespace wayvane {

using namespace platform;

namespace {

constexpr unsigned kFollowsView = kWidthSizable | kHeightSizable;

} // namespace

WVSpotlightView::WVSpotlightView(const Rect& frame)
  : SurfaceView(frame)
  , dimLayer_(Layer::make())
  , maskLayer_(Layer::make(LayerKind::Shape))
{
  dimLayer_->setBackgroundColor(Color::white(0, dimAlpha_));
  dimLayer_->setFrame(bounds());
  dimLayer_->setAutoresizingMask(kFollowsView);
  maskLayer_->setFillRule(FillRule::EvenOdd);
  maskLayer_->setFillColor(Color::white(1));
  maskLayer_->setFrame(bounds());
  maskLayer_->setAutoresizingMask(kFollowsView);
  dimLayer_->setMask(maskLayer_);
  layer()->addSublayer(dimLayer_);
}

void WVSpotlightView::setDimAlpha(double dimAlpha)
{
  dimAlpha_ = dimAlpha;
  dimLayer_->setBackgroundColor(Color::white(0, dimAlpha_));
}

void WVSpotlightView::animateToRect(const Rect& rect)
{
  // Filled by the even-odd rule, the inner outline is a hole in the outer one.
  Path path;
  path.addRect(bounds());
  path.addRoundedRect(rect, cornerRadius_);

  Animation move;
  move.keyPath = KeyPath::Path;
  move.from = maskLayer_->path().value_or(path);
  move.to = path;
  move.duration = 0.5;
  move.timing = TimingCurve::easeInEaseOut();
  move.fillForwards = true;
  move.removedOnCompletion = false;
  maskLayer_->setPath(path);
  maskLayer_->addAnimation(move, "path");
}

} // namespace wayvane
