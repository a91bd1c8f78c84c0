#include <wayvane/platform/qt/QtBand.h>

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace wayvane::qt {

namespace {

/// The lines, on whole points, at which the corners end.
struct Cuts {
  int left, top, right, bottom;
};

Cuts cutsOf(const Band& band)
{
  return {static_cast<int>(std::ceil(band.inner.left() + band.corner)),
          static_cast<int>(std::ceil(band.inner.top() + band.corner)),
          static_cast<int>(std::floor(band.inner.right() - band.corner)),
          static_cast<int>(std::floor(band.inner.bottom() - band.corner))};
}

void fillWithin(QPainter& painter, const QPainterPath& outline, const QColor& color, const QRegion& part)
{
  if (part.isEmpty()) return;
  painter.save();
  painter.setClipRegion(part, Qt::IntersectClip);
  painter.fillPath(outline, color);
  painter.restore();
}

std::array<QRectF, 4> sidesOf(const Band& band, const Cuts& cut)
{
  const QRectF& outer = band.outer;
  const QRectF& inner = band.inner;
  const double width = cut.right - cut.left, height = cut.bottom - cut.top;
  return {QRectF(cut.left, outer.top(), width, inner.top() - outer.top()),
          QRectF(cut.left, inner.bottom(), width, outer.bottom() - inner.bottom()),
          QRectF(outer.left(), cut.top, inner.left() - outer.left(), height),
          QRectF(inner.right(), cut.top, outer.right() - inner.right(), height)};
}

std::array<QRect, 4> cornersOf(const Band& band, const Cuts& cut)
{
  const QRect all = band.outer.toAlignedRect();
  const int left = all.left(), top = all.top(), right = all.right() + 1, bottom = all.bottom() + 1;
  return {QRect(left, top, cut.left - left, cut.top - top),
          QRect(cut.right, top, right - cut.right, cut.top - top),
          QRect(left, cut.bottom, cut.left - left, bottom - cut.bottom),
          QRect(cut.right, cut.bottom, right - cut.right, bottom - cut.bottom)};
}

} // namespace

void fillInSlices(QPainter& painter, const QPainterPath& outline, const QColor& color)
{
  constexpr int kSlice = 40;
  constexpr int kMostSlices = 10;
  const QTransform map = painter.transform();
  const QRect box = map.mapRect(outline.boundingRect()).toAlignedRect().adjusted(-1, -1, 1, 1);
  if (box.height() <= kSlice || box.height() > kMostSlices * kSlice || map.type() > QTransform::TxScale)
    return painter.fillPath(outline, color);
  for (int top = box.top(); top <= box.bottom(); top += kSlice) {
    const QRect slice(box.left(), top, box.width(), std::min(kSlice, box.bottom() + 1 - top));
    painter.save();
    painter.resetTransform();
    painter.setClipRect(slice, Qt::IntersectClip);
    painter.setTransform(map);
    painter.fillPath(outline, color);
    painter.restore();
  }
}

void fillBand(QPainter& painter, const Band& band, const QColor& color, const QRegion& damage)
{
  const Cuts cut = cutsOf(band);
  if (cut.left >= cut.right || cut.top >= cut.bottom) return fillWithin(painter, band.outline, color, damage);
  for (const QRectF& side : sidesOf(band, cut))
    if (!side.isEmpty() && damage.intersects(side.toAlignedRect())) painter.fillRect(side, color);
  // Two corners at a time: an outline costs its way through the rasterizer, and a hundred lines of it a
  // detour through other threads.
  const auto [topLeft, topRight, bottomLeft, bottomRight] = cornersOf(band, cut);
  fillWithin(painter, band.outline, color, damage & (QRegion(topLeft) + topRight));
  fillWithin(painter, band.outline, color, damage & (QRegion(bottomLeft) + bottomRight));
}

} // namespace wayvane::qt
