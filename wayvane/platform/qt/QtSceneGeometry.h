#pragma once

#include <wayvane/platform/LayerEvaluator.h>

#include <QPainterPath>
#include <QTransform>

namespace wayvane::qt {

/// Everything is drawn in downward coordinates: those of a layer start at the top left of its frame, those of
/// a canvas at the top left of the widget.

/// From a layer's downward coordinates to those of what it lies in, `outerHeight` high.
[[nodiscard]] QTransform toOuter(const platform::Layer& layer, const platform::Transform& transform,
                                 double outerHeight, bool outerFlipped);

/// A path of the layer's, from its element `first` on, in its downward coordinates.
[[nodiscard]] QPainterPath toPainterPath(const platform::Path& path, const platform::Layer& layer,
                                         std::size_t first = 0);

/// What the layer itself paints, shadow and stroke included, in its downward coordinates.
[[nodiscard]] QRectF ownBox(const platform::Layer& layer, const platform::PresentedValues& values);

/// How far a shadow's blur reaches beyond its shape.
[[nodiscard]] double blurReach(const platform::Shadow& shadow);

/// An area with a hole: a rectangle and further outlines inside it, filled by the even-odd rule.
struct HoleShape {
  platform::Rect outer;
  /// The box around the hole, and the largest simple rectangle inside it; in the path's own coordinates.
  platform::Rect box;
  platform::Rect interior;
  /// How far its curved corners reach along its sides.
  double corner = 0;
  /// The element with which the hole's own outline begins.
  std::size_t first = 0;
  friend bool operator==(const HoleShape&, const HoleShape&) = default;
};

/// Nothing when the path is something else.
[[nodiscard]] std::optional<HoleShape> holeShape(const platform::Path& path);

/// A rectangle that lies inside the outline, whole, when it is a (rounded) rectangle; else the zero
/// rectangle.
[[nodiscard]] platform::Rect interiorOf(const std::vector<platform::Path::Element>& elements,
                                        std::size_t first = 0);

/// How far the curves of an outline reach along its sides.
[[nodiscard]] double cornerOf(const std::vector<platform::Path::Element>& elements, std::size_t first = 0);

} // namespace wayvane::qt
