#pragma once

#include <wayvane/platform/LayerEvaluator.h>

namespace wayvane::tests {

/// A layer with a background, so that it paints its frame.
inline platform::LayerHandle box(const platform::Rect& frame,
                                 const platform::Color& color = platform::Color::white(0))
{
  platform::LayerHandle layer = platform::Layer::make();
  layer->setFrame(frame);
  layer->setBackgroundColor(color);
  return layer;
}

inline platform::Path rectPath(const platform::Rect& rect)
{
  platform::Path path;
  path.addRect(rect);
  return path;
}

inline platform::Animation fade(double from, double to, double duration)
{
  platform::Animation animation;
  animation.from = from;
  animation.to = to;
  animation.duration = duration;
  return animation;
}

/// From the natural size to `factor` times it.
inline platform::Animation stretch(double factor, double duration)
{
  platform::Animation animation;
  animation.keyPath = platform::KeyPath::Transform;
  animation.from = platform::Transform{};
  animation.to = platform::Transform::scale(factor, factor);
  animation.duration = duration;
  return animation;
}

inline platform::Animation group(std::vector<platform::Animation> members, double duration)
{
  platform::Animation animation;
  animation.kind = platform::Animation::Kind::Group;
  animation.members = std::move(members);
  animation.duration = duration;
  return animation;
}

inline double opacityAt(const platform::Layer& layer, double time)
{
  platform::PresentedValues values;
  platform::evaluateLayer(layer, time, values);
  return values.opacity;
}

} // namespace wayvane::tests
