#include <wayvane/platform/LayerEvaluator.h>

#include <algorithm>
#include <cmath>

namespace wayvane::platform {
namespace {

constexpr double kNever = std::numeric_limits<double>::infinity();

/// Where an animation is within its passes.
struct Progress {
  /// Of one pass, 0 to 1, after autoreversing and the timing curve.
  double fraction = 0;
  bool isOver = false;
};

/// The fraction of the pass at which a finished animation stopped.
double lastFraction(const Animation& animation)
{
  const double cycle = animation.autoreverses ? 2 : 1;
  const double rest = std::fmod(animation.repeatCount * cycle, cycle);
  if (rest <= 1e-9) return animation.autoreverses ? 0 : 1;
  return rest <= 1 ? rest : 2 - rest;
}

Progress progressAt(const Animation& animation, double seconds)
{
  if (!(animation.duration > 0) || seconds >= animation.activeDuration())
    return {animation.timing.progress(lastFraction(animation)), true};
  const double cycle = animation.autoreverses ? 2 : 1;
  const double pass = std::fmod(std::max(0.0, seconds) / animation.duration, cycle);
  return {animation.timing.progress(pass <= 1 ? pass : 2 - pass), false};
}

double mix(double a, double b, double t)
{
  return a + (b - a) * t;
}

Transform mix(const Transform& a, const Transform& b, double t)
{
  return {mix(a.a, b.a, t), mix(a.b, b.b, t),   mix(a.c, b.c, t),
          mix(a.d, b.d, t), mix(a.tx, b.tx, t), mix(a.ty, b.ty, t)};
}

template <class Value>
void assignMix(const Animation& animation, double t, Value& out)
{
  const auto* from = std::get_if<Value>(&animation.from);
  const auto* to = std::get_if<Value>(&animation.to);
  if (from && to) out = mix(*from, *to, t);
}

void applyPath(const Animation& animation, double t, PresentedValues& out)
{
  const auto* from = std::get_if<Path>(&animation.from);
  const auto* to = std::get_if<Path>(&animation.to);
  if (!from || !to) return;
  out.animatedPath = from->interpolated(*to, t);
  out.path = &out.animatedPath;
}

void applyValue(const Animation& animation, double t, PresentedValues& out)
{
  switch (animation.keyPath) {
  case KeyPath::Opacity:
    assignMix(animation, t, out.opacity);
    break;
  case KeyPath::Transform:
    assignMix(animation, t, out.transform);
    break;
  case KeyPath::Path:
    applyPath(animation, t, out);
    break;
  case KeyPath::LineDashPhase:
    assignMix(animation, t, out.lineDashPhase);
    break;
  }
}

/// How the progress of a pass becomes a share of the way from start to end.
double shareOfTheWay(const Animation& animation, const Progress& progress)
{
  if (animation.kind != Animation::Kind::Spring) return progress.fraction;
  if (progress.isOver && progress.fraction >= 1) return 1;
  return animation.spring.position(progress.fraction * animation.duration);
}

void apply(const Animation& animation, const Progress& progress, PresentedValues& out)
{
  if (animation.kind != Animation::Kind::Group) {
    applyValue(animation, shareOfTheWay(animation, progress), out);
    return;
  }
  const double seconds = progress.fraction * animation.duration;
  for (const Animation& member : animation.members) {
    // A member that lasts as long as its group still counts at the group's very end.
    if (seconds > member.activeDuration() && !member.fillForwards) continue;
    apply(member, progressAt(member, seconds), out);
  }
}

bool isOver(const RunningAnimation& running, double time)
{
  return progressAt(running.animation, time - running.beginTime).isOver;
}

bool hasEffect(const RunningAnimation& running, double time)
{
  if (time < running.beginTime) return false;
  const Animation& animation = running.animation;
  return !isOver(running, time) || (animation.fillForwards && !animation.removedOnCompletion);
}

bool moves(const Animation& animation)
{
  if (animation.kind != Animation::Kind::Group) return animation.from != animation.to;
  return std::ranges::any_of(animation.members, moves);
}

double nextChangeOf(const RunningAnimation& running, double time)
{
  if (time < running.beginTime) return running.beginTime;
  if (isOver(running, time)) return kNever;
  if (moves(running.animation)) return time;
  return running.beginTime + running.animation.activeDuration();
}

bool animatesOpacity(const Animation& animation)
{
  if (animation.kind != Animation::Kind::Group) return animation.keyPath == KeyPath::Opacity;
  return std::ranges::any_of(animation.members, animatesOpacity);
}

/// When a layer that cannot be seen at `time` may come into sight by its own animations.
double nextChangeOfOpacity(const Layer& layer, double time)
{
  double next = kNever;
  for (const RunningAnimation& running : layer.animations())
    if (animatesOpacity(running.animation)) next = std::min(next, nextChangeOf(running, time));
  return next;
}

/// From the layer's own coordinates to its superlayer's, both with y up.
Transform upwardToSuper(const Layer& layer, const Transform& transform)
{
  const Rect& frame = layer.frame();
  const Layer* super = layer.superlayer();
  const double low = super && super->geometryFlipped() ? super->frame().height - frame.maxY() : frame.y;
  return transform.then(Transform::translation(frame.x, low));
}

Transform ownToUpward(const Layer& layer)
{
  return layer.geometryFlipped() ? Transform{1, 0, 0, -1, 0, layer.frame().height} : Transform{};
}

/// The box of the layer's own drawing in its own coordinates with y up.
Rect ownBox(const Layer& layer, const PresentedValues& values)
{
  Rect box;
  if (!layer.backgroundColor().isClear()) box = layer.bounds();
  if (layer.kind() == LayerKind::Text && !layer.text().isEmpty()) box = box.united(layer.bounds());
  if (layer.kind() == LayerKind::Shape && values.path && !values.path->isEmpty()) {
    const Rect outline = ownToUpward(layer).apply(values.path->bounds());
    if (!layer.fillColor().isClear()) box = box.united(outline);
    // Joins stand out up to the line width, see Layer::setLineWidth.
    if (!layer.strokeColor().isClear()) box = box.united(outline.grownBy(layer.lineWidth()));
  }
  if (!layer.shadow() || box.isEmpty()) return box;
  const Shadow& shadow = *layer.shadow();
  return box.united(box.movedBy(shadow.offset.width, shadow.offset.height).grownBy(shadow.blurRadius));
}

/// The box painted by the layer and what is in it; `toRoot` maps from the layer's coordinates with y up.
Rect paintedBox(const Layer& layer, double time, const Transform& superToRoot, bool isRoot)
{
  if (layer.isHidden()) return {};
  PresentedValues values;
  evaluateLayer(layer, time, values);
  if (values.opacity <= 0) return {};
  const Transform toRoot = isRoot ? superToRoot : upwardToSuper(layer, values.transform).then(superToRoot);
  Rect inside;
  for (const LayerHandle& sublayer : layer.sublayers())
    inside = inside.united(paintedBox(*sublayer, time, toRoot, false));
  if (layer.masksToBounds()) inside = inside.intersection(toRoot.apply(layer.bounds()));
  const Rect own = ownBox(layer, values);
  Rect box = own.isEmpty() ? inside : toRoot.apply(own).united(inside);
  if (layer.mask()) box = box.intersection(paintedBox(*layer.mask(), time, toRoot, false));
  return box;
}

/// As transformToRoot, but from coordinates with y up.
Transform upwardToRoot(const Layer& layer, double time)
{
  PresentedValues values;
  evaluateLayer(layer, time, values);
  if (!layer.superlayer()) return values.transform;
  return upwardToSuper(layer, values.transform).then(upwardToRoot(*layer.superlayer(), time));
}

} // namespace

void evaluateLayer(const Layer& layer, double time, PresentedValues& out)
{
  out.opacity = layer.opacity();
  out.transform = layer.transform();
  out.path = layer.path() ? &*layer.path() : nullptr;
  out.lineDashPhase = layer.lineDashPhase();
  for (const RunningAnimation& running : layer.animations())
    if (hasEffect(running, time))
      apply(running.animation, progressAt(running.animation, time - running.beginTime), out);
  out.opacity = std::clamp(out.opacity, 0.0, 1.0);
}

void removeFinishedAnimations(Layer& root, double time)
{
  std::vector<std::string> finished;
  for (const RunningAnimation& running : root.animations())
    if (running.animation.removedOnCompletion && isOver(running, time)) finished.push_back(running.key);
  for (const std::string& key : finished)
    root.removeAnimation(key);
  for (const LayerHandle& layer : root.sublayers())
    removeFinishedAnimations(*layer, time);
  if (root.mask()) removeFinishedAnimations(*root.mask(), time);
}

double nextVisibleChange(const Layer& root, double time)
{
  if (root.isHidden()) return kNever;
  PresentedValues values;
  evaluateLayer(root, time, values);
  if (values.opacity <= 0) return nextChangeOfOpacity(root, time);
  double next = kNever;
  for (const RunningAnimation& running : root.animations())
    next = std::min(next, nextChangeOf(running, time));
  for (const LayerHandle& layer : root.sublayers()) {
    if (next <= time) break;
    next = std::min(next, nextVisibleChange(*layer, time));
  }
  if (root.mask()) next = std::min(next, nextVisibleChange(*root.mask(), time));
  return next;
}

Transform transformToRoot(const Layer& layer, double time)
{
  return ownToUpward(layer).then(upwardToRoot(layer, time));
}

Rect paintedBounds(const Layer& layer, double time)
{
  return paintedBox(layer, time, upwardToRoot(layer, time), true);
}

} // namespace wayvane::platform
