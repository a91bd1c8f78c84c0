#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtSceneSnapshot.h>

#include <algorithm>
#include <cmath>

namespace wayvane::qt {

using platform::Layer;
using platform::PresentedValues;

namespace {

/// Smaller steps cannot be seen in eight bits.
double visibleStep(double opacity)
{
  return std::round(opacity * 255) / 255;
}

/// The pixels that the rectangle touches, with the blur of their edges.
QRect outward(const QRectF& rect)
{
  return rect.isEmpty() ? QRect() : rect.adjusted(-1, -1, 1, 1).toAlignedRect();
}

/// The pixels that lie wholly inside, clear of blurred edges.
QRect inward(const QRectF& rect)
{
  const QRectF inner = rect.adjusted(1, 1, -1, -1);
  if (!inner.isValid()) return {};
  const QPoint topLeft(static_cast<int>(std::ceil(inner.left())), static_cast<int>(std::ceil(inner.top())));
  const QPoint end(static_cast<int>(std::floor(inner.right())), static_cast<int>(std::floor(inner.bottom())));
  return {topLeft, QPoint(end.x() - 1, end.y() - 1)};
}

QRectF toDownward(const platform::Rect& rect, const platform::Rect& bounds, bool flipped)
{
  QRectF result = toQRectF(rect);
  if (!flipped) result.moveTop(bounds.height - result.bottom());
  return result;
}

} // namespace

QtSceneSnapshot::QtSceneSnapshot(const Layer& root, double time, QSizeF canvas)
{
  add(root, time, {}, canvas.height(), false, 1);
}

QtSceneSnapshot::Look QtSceneSnapshot::lookOf(const Layer& layer, const PresentedValues& values)
{
  Look look;
  look.kind = layer.kind();
  look.bounds = layer.bounds();
  look.flipped = layer.geometryFlipped();
  look.background = layer.backgroundColor();
  look.cornerRadius = layer.cornerRadius();
  look.masksToBounds = layer.masksToBounds();
  look.shadow = layer.shadow();
  if (layer.kind() == platform::LayerKind::Shape) {
    look.fillRule = layer.fillRule();
    look.fill = layer.fillColor();
    look.stroke = layer.strokeColor();
    look.lineWidth = layer.lineWidth();
    look.dashes = layer.lineDashPattern();
    look.dashPhase = values.lineDashPhase;
    if (values.path) look.path = *values.path;
  }
  if (layer.kind() == platform::LayerKind::Text) {
    look.text = layer.text();
    look.wraps = layer.wrapsText();
  }
  return look;
}

std::optional<QtSceneSnapshot::Mask> QtSceneSnapshot::maskOf(const Layer& layer, double time)
{
  if (!layer.mask()) return std::nullopt;
  const Layer& mask = *layer.mask();
  PresentedValues values;
  evaluateLayer(mask, time, values);
  return Mask{lookOf(mask, values),
              toOuter(mask, values.transform, layer.frame().height, layer.geometryFlipped()),
              mask.isHidden() ? 0 : visibleStep(values.opacity)};
}

void QtSceneSnapshot::add(const Layer& layer, double time, const QTransform& outer, double outerHeight,
                          bool outerFlipped, double opacity)
{
  if (layer.isHidden()) return;
  PresentedValues values;
  evaluateLayer(layer, time, values);
  const double shown = visibleStep(opacity * values.opacity);
  if (shown <= 0) return;
  Entry entry;
  entry.layer = &layer;
  entry.toCanvas = toOuter(layer, values.transform, outerHeight, outerFlipped) * outer;
  entry.opacity = shown;
  entry.box = ownBox(layer, values);
  entry.look = lookOf(layer, values);
  entry.mask = maskOf(layer, time);
  // A change of what cuts the sublayers off shows within the bounds.
  if (entry.mask || layer.masksToBounds()) entry.box |= toQRectF(layer.bounds());
  const QTransform toCanvas = entry.toCanvas;
  entries_.push_back(std::move(entry));
  for (const platform::LayerHandle& sublayer : layer.sublayers())
    add(*sublayer, time, toCanvas, layer.frame().height, layer.geometryFlipped(), opacity * values.opacity);
}

QRegion QtSceneSnapshot::coverage(const Entry& entry)
{
  QRegion covered = outward(entry.toCanvas.mapRect(entry.box));
  if (entry.toCanvas.type() > QTransform::TxScale) return covered;
  const Look& look = entry.look;
  const bool isOutline = look.kind == platform::LayerKind::Shape && look.fill.isClear() &&
                         look.background.isClear() && !look.shadow && !entry.mask && look.path;
  if (isOutline) {
    const auto placed = [&](const platform::Rect& rect) {
      return entry.toCanvas.mapRect(toDownward(rect, look.bounds, look.flipped));
    };
    // A frame without sharp tips: half the line lies inside, half outside.
    const platform::Rect inside = interiorOf(look.path->elements()).grownBy(-look.lineWidth / 2);
    if (!inside.isEmpty())
      covered =
          QRegion(outward(placed(look.path->bounds().grownBy(look.lineWidth / 2)))) - inward(placed(inside));
  }
  if (entry.mask && entry.mask->look.path && entry.mask->toLayer.type() <= QTransform::TxScale) {
    const Look& mask = entry.mask->look;
    const std::optional<HoleShape> hole =
        mask.fillRule == platform::FillRule::EvenOdd ? holeShape(*mask.path) : std::nullopt;
    if (hole && !hole->interior.isEmpty())
      covered -= inward((entry.mask->toLayer * entry.toCanvas)
                            .mapRect(toDownward(hole->interior, mask.bounds, mask.flipped)));
  }
  return covered;
}

bool QtSceneSnapshot::differOnlyInHole(const Entry& before, const Entry& after)
{
  if (before.toCanvas != after.toCanvas || before.opacity != after.opacity || before.look != after.look)
    return false;
  if (!before.mask || !after.mask || !before.mask->look.path || !after.mask->look.path) return false;
  Mask same = *before.mask;
  same.look.path = after.mask->look.path;
  return same == *after.mask && same.look.fillRule == platform::FillRule::EvenOdd;
}

QRegion QtSceneSnapshot::changeOfHole(const Entry& before, const Entry& after)
{
  const std::optional<HoleShape> from = holeShape(*before.mask->look.path);
  const std::optional<HoleShape> to = holeShape(*after.mask->look.path);
  if (!from || !to || from->outer != to->outer) return coverage(before) + coverage(after);
  const Look& mask = after.mask->look;
  const QTransform map = after.mask->toLayer * after.toCanvas;
  const auto mapped = [&](const platform::Rect& rect) {
    return map.mapRect(toDownward(rect, mask.bounds, mask.flipped));
  };
  const QRect open = inward(mapped(from->interior)) & inward(mapped(to->interior));
  const QRegion region = QRegion(outward(mapped(from->box))) + outward(mapped(to->box));
  return map.type() > QTransform::TxScale ? region : region - open;
}

QRegion QtSceneSnapshot::change(const Entry& before, const Entry& after)
{
  const bool sameLook = before.look == after.look && before.mask == after.mask &&
                        before.toCanvas == after.toCanvas && before.box == after.box;
  if (sameLook) return before.opacity == after.opacity ? QRegion() : coverage(after);
  if (differOnlyInHole(before, after)) return changeOfHole(before, after);
  return coverage(before) + coverage(after);
}

const QtSceneSnapshot::Entry* QtSceneSnapshot::find(const Layer* layer, std::size_t guess) const
{
  if (guess < entries_.size() && entries_[guess].layer == layer) return &entries_[guess];
  const auto found = std::ranges::find(entries_, layer, &Entry::layer);
  return found == entries_.end() ? nullptr : &*found;
}

QRegion QtSceneSnapshot::changesSince(const QtSceneSnapshot& before) const
{
  QRegion region;
  const Entry* last = nullptr;
  for (std::size_t i = 0; i < entries_.size(); ++i) {
    const Entry* old = before.find(entries_[i].layer, i);
    // What was below is above now, so that both show differently where they meet.
    const bool overtaken = old && last && old < last;
    if (!old || overtaken) region += coverage(entries_[i]);
    if (!old) continue;
    region += overtaken ? coverage(*old) : change(*old, entries_[i]);
    if (!overtaken) last = old;
  }
  for (std::size_t i = 0; i < before.entries_.size(); ++i)
    if (!find(before.entries_[i].layer, i)) region += coverage(before.entries_[i]);
  return region;
}

} // namespace wayvane::qt
