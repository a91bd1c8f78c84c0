#pragma once

#include <wayvane/platform/Layer.h>

namespace wayvane::platform {

/// What a layer shows at one moment: its model values with the animations that run at that time applied.
struct PresentedValues {
  double opacity = 1;
  Transform transform;
  /// Null when the layer has no path; points into the layer or into `animatedPath`.
  const Path* path = nullptr;
  Path animatedPath;
  double lineDashPhase = 0;

  PresentedValues() = default;
  PresentedValues(const PresentedValues&) = delete;
  PresentedValues& operator=(const PresentedValues&) = delete;
};

/// Evaluates one layer at `time` (MainQueue::now seconds) into `out`. Later animations win over earlier ones
/// on the same property. Toolkit-free: every binding that draws by itself draws from this.
void evaluateLayer(const Layer& layer, double time, PresentedValues& out);

/// Drops the animations of the tree that are over and are removed on completion.
void removeFinishedAnimations(Layer& root, double time);

/// The next moment at or after `time` at which the tree looks different from how it looks at `time`: `time`
/// itself while something visible moves, infinity when nothing moves until somebody changes the tree. Hidden
/// layers, layers of opacity 0 that are not fading and animations that rest on their end value do not count.
[[nodiscard]] double nextVisibleChange(const Layer& root, double time);

/// The map from the layer's own coordinates (after geometryFlipped) to root coordinates, with animated
/// transforms applied. Root coordinates start at the bottom left of the tree's topmost layer, y up, whether
/// or not that layer is flipped.
[[nodiscard]] Transform transformToRoot(const Layer& layer, double time);

/// The box in root coordinates (y up) that the layer and its sublayers paint at `time`, shadow and stroke
/// included; the zero rectangle when nothing is painted. Superlayers are not asked whether they hide it.
[[nodiscard]] Rect paintedBounds(const Layer& layer, double time);

} // namespace wayvane::platform
