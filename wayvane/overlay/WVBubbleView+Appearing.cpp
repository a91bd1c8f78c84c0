#include <wayvane/overlay/WVBubbleView.h>
#include <wayvane/platform/LayerEvaluator.h>
#include <wayvane/platform/Platform.h>

#include <algorithm>

namespace wayvane {

using namespace platform;

namespace {

constexpr double kAppearDelay = 0.5;
constexpr double kFadeDuration = 0.15;

/// Without a platform there is nothing to wait for.
void runAfter(double seconds, std::function<void()> work)
{
  if (Platform* platform = Platform::current())
    platform->mainQueue.after(seconds, std::move(work));
  else
    work();
}

Animation spring(const Transform& from)
{
  Animation spring;
  spring.kind = Animation::Kind::Spring;
  spring.keyPath = KeyPath::Transform;
  spring.from = from;
  spring.to = Transform{};
  spring.spring = {1, 200, 12, 5};
  spring.duration = spring.spring.settlingDuration();
  return spring;
}

Animation fade(double from, double to, double duration)
{
  Animation fade;
  fade.keyPath = KeyPath::Opacity;
  fade.from = from;
  fade.to = to;
  fade.duration = duration;
  return fade;
}

/// To 70 % about `origin`.
Transform shrunkAbout(Point origin)
{
  const double rest = 1 - 0.7;
  return Transform::scale(0.7, 0.7).then(Transform::translation(origin.x * rest, origin.y * rest));
}

} // namespace

void WVBubbleView::appearAtPoint(Point point, SurfaceView& inView, std::function<void()> completion)
{
  inView.addSubview(std::static_pointer_cast<WVBubbleView>(shared_from_this()));
  setFrameOrigin(point);
  layer()->setOpacity(0);
  runAfter(kAppearDelay, [self = std::static_pointer_cast<WVBubbleView>(shared_from_this()),
                          origin = scaleOrigin(), completion = std::move(completion)] {
    const bool isShown = self->superview() && !self->dismissed_;
    if (isShown) self->springOut(origin, completion);
  });
}

/// The point out of which the bubble grows, from its bottom left, y up.
Point WVBubbleView::scaleOrigin() const
{
  const Rect box = frame();
  if (pointerTip_ == Point{}) return {box.width / 2, box.height / 2};
  return {std::clamp(pointerTip_.x - box.x, 0.0, box.width),
          std::clamp(pointerTip_.y - box.y, 0.0, box.height)};
}

void WVBubbleView::springOut(Point origin, const std::function<void()>& completion)
{
  Animation group;
  group.kind = Animation::Kind::Group;
  group.members = {spring(shrunkAbout(origin)), fade(0, 1, 0.2)};
  group.duration = std::max(group.members[0].duration, group.members[1].duration);
  group.timing = TimingCurve::easeOut();
  group.fillForwards = true;
  group.removedOnCompletion = false;
  layer()->addAnimation(group, "keynoteAppear");
  layer()->setOpacity(1);
  layer()->setTransform({});
  if (completion) runAfter(group.duration, completion);
}

void WVBubbleView::disappearWithCompletion(std::function<void()> completion)
{
  dismissed_ = true;
  const Platform* platform = Platform::current();
  PresentedValues shown;
  evaluateLayer(*layer(), platform ? platform->mainQueue.now() : 0, shown);
  layer()->addAnimation(fade(shown.opacity, 0, kFadeDuration), "disappear");
  layer()->setOpacity(0);
  runAfter(kFadeDuration, [self = shared_from_this(), completion = std::move(completion)] {
    self->removeFromSuperview();
    if (completion) completion();
  });
}

} // namespace wayvane
