#pragma once

#include <QColor>
#include <QPainterPath>
#include <QRegion>

class QPainter;

namespace wayvane::qt {

/// An area that runs around a rounded rectangle: straight along its sides, curved only near its corners.
/// Drawn in rectangles and four small outlines it costs a fraction of one large outline.
struct Band {
  /// The straight sides lie between these two.
  QRectF outer;
  QRectF inner;
  /// From here on, seen from the corners of `inner`, the sides are straight.
  double corner = 0;
  /// The whole area, which is drawn only at the corners.
  QPainterPath outline;
};

/// Fills the outline, whatever its size, without the detour through other threads that the toolkit takes for
/// large ones: it costs more than it brings. The painter's transform applies.
void fillInSlices(QPainter& painter, const QPainterPath& outline, const QColor& color);

/// Fills what of the band lies in `damage`, without gaps and without filling anything twice.
void fillBand(QPainter& painter, const Band& band, const QColor& color, const QRegion& damage);

} // namespace wayvane::qt
