#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtBand.h>
#include <wayvane/platform/qt/QtBlur.h>
#include <wayvane/platform/qt/QtScenePainter.h>
#include <wayvane/platform/qt/QtTextLayout.h>

#include <QPainter>

#include <cmath>

namespace wayvane::qt {

using platform::FillRule;
using platform::Layer;
using platform::LayerKind;
using platform::PresentedValues;

/// What a layer is drawn into, and with what.
struct QtScenePainter::Surroundings {
  QPainter* painter = nullptr;
  /// From the canvas to the painter's coordinates.
  QTransform toPainter;
  /// From the layer's downward coordinates to the canvas.
  QTransform toCanvas;
  double height = 0;
  bool flipped = false;
  double opacity = 1;
  double time = 0;
  QRegion damage;
  platform::Appearance appearance = platform::Appearance::Light;

  void usePainter() const
  {
    painter->setTransform(toCanvas * toPainter);
    painter->setOpacity(opacity);
    painter->setRenderHint(QPainter::Antialiasing);
  }

  [[nodiscard]] bool isDamaged(const QRectF& box) const
  {
    return damage.intersects(toCanvas.mapRect(box).adjusted(-1, -1, 1, 1).toAlignedRect());
  }

  [[nodiscard]] QColor color(const platform::Color& color) const { return toQColor(color, appearance); }
};

namespace {

QRectF boundsOf(const Layer& layer)
{
  return {0, 0, layer.frame().width, layer.frame().height};
}

QPainterPath roundedRect(const QRectF& rect, double radius)
{
  QPainterPath path;
  const double most = std::min(rect.width(), rect.height()) / 2;
  const double r = std::clamp(radius, 0.0, std::max(most, 0.0));
  path.addRoundedRect(rect, r, r);
  return path;
}

/// How many things are drawn over each other, which matters for see-through layers; 2 stands for many.
int drawnItems(const Layer& layer)
{
  int count = layer.shadow() ? 1 : 0;
  if (!layer.backgroundColor().isClear()) ++count;
  if (layer.kind() == LayerKind::Text) ++count;
  if (layer.kind() == LayerKind::Shape && !layer.fillColor().isClear()) ++count;
  if (layer.kind() == LayerKind::Shape && !layer.strokeColor().isClear()) ++count;
  for (const platform::LayerHandle& sublayer : layer.sublayers())
    if (!sublayer->isHidden()) count += 2;
  return std::min(count, 2);
}

/// The box of the layer and everything in it; `toCanvas` maps from its downward coordinates.
QRectF subtreeBox(const Layer& layer, const PresentedValues& values, double time, const QTransform& toCanvas)
{
  QRectF box = toCanvas.mapRect(ownBox(layer, values));
  for (const platform::LayerHandle& sublayer : layer.sublayers()) {
    if (sublayer->isHidden()) continue;
    PresentedValues inner;
    evaluateLayer(*sublayer, time, inner);
    const QTransform place =
        toOuter(*sublayer, inner.transform, layer.frame().height, layer.geometryFlipped());
    box |= subtreeBox(*sublayer, inner, time, place * toCanvas);
  }
  return box;
}

QRect touched(const QRectF& rect)
{
  return rect.adjusted(-1, -1, 1, 1).toAlignedRect();
}

bool isWhole(double number)
{
  return number == std::floor(number);
}

bool isWhole(const QRectF& rect)
{
  return isWhole(rect.x()) && isWhole(rect.y()) && isWhole(rect.width()) && isWhole(rect.height());
}

/// A mask that is an area with a hole, on the canvas.
struct PlacedHole {
  /// In whole points.
  QRect area;
  /// From the box around the hole, in whole points, to the hole.
  Band band;
};

std::optional<PlacedHole> placedHole(const Layer& mask, const platform::Path& path,
                                     const QTransform& toCanvas, const QRectF& bounds)
{
  if (mask.fillRule() != FillRule::EvenOdd || toCanvas.type() > QTransform::TxTranslate) return std::nullopt;
  const std::optional<HoleShape> hole = holeShape(path);
  if (!hole) return std::nullopt;
  const auto placed = [&](const platform::Rect& rect) {
    const double top = mask.geometryFlipped() ? rect.y : mask.frame().height - rect.maxY();
    return toCanvas.mapRect(QRectF(rect.x, top, rect.width, rect.height));
  };
  const QRectF outer = placed(hole->outer);
  if (!isWhole(outer) || !isWhole(bounds)) return std::nullopt;
  PlacedHole result{outer.toRect() & bounds.toRect(), {}};
  Band& band = result.band;
  band.inner = placed(hole->box);
  band.outer = touched(band.inner);
  // An outline that is no rounded rectangle is all corner.
  band.corner = hole->interior.isEmpty() ? band.inner.width() : hole->corner;
  band.outline = toCanvas.map(toPainterPath(path, mask, hole->first));
  band.outline.addRect(band.outer);
  band.outline.setFillRule(Qt::OddEvenFill);
  return result;
}

bool isPlainFill(const Layer& mask, platform::Appearance appearance)
{
  return mask.kind() == LayerKind::Shape && !mask.isHidden() && mask.sublayers().empty() && !mask.mask() &&
         !mask.shadow() && mask.backgroundColor().isClear() && mask.strokeColor().isClear() &&
         mask.fillColor().resolved(appearance).alpha >= 1;
}

} // namespace

void QtScenePainter::paint(QPainter& painter, const Layer& root, double time, QSizeF canvas,
                           const QRegion& damage, platform::Appearance appearance)
{
  Surroundings outer;
  outer.painter = &painter;
  outer.toPainter = painter.transform();
  outer.height = canvas.height();
  outer.time = time;
  outer.damage = damage;
  outer.appearance = appearance;
  painter.save();
  paintLayer(outer, root);
  painter.restore();
}

void QtScenePainter::paintLayer(const Surroundings& outer, const Layer& layer)
{
  if (layer.isHidden()) return;
  PresentedValues values;
  evaluateLayer(layer, outer.time, values);
  if (values.opacity <= 0) return;
  Surroundings own = outer;
  own.toCanvas = toOuter(layer, values.transform, outer.height, outer.flipped) * outer.toCanvas;
  own.height = layer.frame().height;
  own.flipped = layer.geometryFlipped();
  own.opacity = outer.opacity * values.opacity;
  if (layer.mask() && paintMaskedBackground(own, layer)) return;
  const bool isGroup = layer.mask() || (values.opacity < 1 && drawnItems(layer) > 1);
  if (!isGroup) return paintContents(own, layer, values);
  QRectF box = subtreeBox(layer, values, own.time, own.toCanvas);
  if (layer.mask()) box &= own.toCanvas.mapRect(boundsOf(layer));
  paintGrouped(own, touched(box), own.opacity, [&](const Surroundings& group) {
    paintContents(group, layer, values);
    if (layer.mask()) cutByMask(group, layer);
  });
}

void QtScenePainter::paintContents(const Surroundings& own, const Layer& layer, const PresentedValues& values)
{
  if (own.isDamaged(ownBox(layer, values))) paintOwn(own, layer, values);
  if (layer.sublayers().empty()) return;
  if (!layer.masksToBounds()) return paintSublayers(own, layer);
  if (layer.cornerRadius() > 0) return paintInRoundedBounds(own, layer);
  own.painter->save();
  own.usePainter();
  own.painter->setClipRect(boundsOf(layer), Qt::IntersectClip);
  paintSublayers(own, layer);
  own.painter->restore();
}

void QtScenePainter::paintSublayers(const Surroundings& own, const Layer& layer)
{
  for (const platform::LayerHandle& sublayer : layer.sublayers())
    paintLayer(own, *sublayer);
}

namespace {

/// A paragraph begins at the top; a single line stands in the middle, on whole pixels.
double roomAbove(const Layer& layer, const QtTextLayout& text, const QPainter& painter)
{
  if (layer.wrapsText()) return 0;
  const double scale = painter.device() ? painter.device()->devicePixelRatioF() : 1;
  return std::round((boundsOf(layer).height() - text.size().height) / 2 * scale) / scale;
}

} // namespace

void QtScenePainter::paintOwn(const Surroundings& own, const Layer& layer, const PresentedValues& values)
{
  if (layer.shadow()) paintShadow(own, layer, values);
  own.usePainter();
  if (!layer.backgroundColor().isClear()) {
    const QColor color = own.color(layer.backgroundColor());
    if (layer.cornerRadius() > 0)
      own.painter->fillPath(roundedRect(boundsOf(layer), layer.cornerRadius()), color);
    else
      own.painter->fillRect(boundsOf(layer), color);
  }
  if (layer.kind() == LayerKind::Shape) paintShape(own, layer, values);
  if (layer.kind() == LayerKind::Text && !layer.text().isEmpty()) {
    own.painter->save();
    own.painter->setClipRect(boundsOf(layer), Qt::IntersectClip);
    const QtTextLayout& text = cache_.layoutOf(layer, own.appearance);
    own.painter->translate(0, roomAbove(layer, text, *own.painter));
    text.draw(*own.painter);
    own.painter->restore();
  }
}

void QtScenePainter::paintShape(const Surroundings& own, const Layer& layer, const PresentedValues& values)
{
  if (!values.path || values.path->isEmpty()) return;
  QPainterPath path = toPainterPath(*values.path, layer);
  path.setFillRule(layer.fillRule() == FillRule::EvenOdd ? Qt::OddEvenFill : Qt::WindingFill);
  if (!layer.fillColor().isClear()) fillInSlices(*own.painter, path, own.color(layer.fillColor()));
  if (layer.strokeColor().isClear() || !(layer.lineWidth() > 0)) return;
  QPen pen(own.color(layer.strokeColor()), layer.lineWidth(), Qt::SolidLine, Qt::FlatCap, Qt::SvgMiterJoin);
  pen.setMiterLimit(2);
  if (!layer.lineDashPattern().empty()) {
    QList<qreal> dashes;
    for (const double length : layer.lineDashPattern())
      dashes << length / layer.lineWidth();
    if (dashes.size() % 2 != 0) dashes << QList<qreal>(dashes);
    pen.setDashPattern(dashes);
    pen.setDashOffset(values.lineDashPhase / layer.lineWidth());
  }
  const bool isFrame =
      own.toCanvas.type() <= QTransform::TxTranslate && !interiorOf(values.path->elements()).isEmpty();
  if (!layer.lineDashPattern().empty()) return own.painter->strokePath(path, pen);
  if (!isFrame) return fillInSlices(*own.painter, cache_.strokeOf(path, pen), pen.color());
  const double half = layer.lineWidth() / 2;
  const QRectF box = own.toCanvas.mapRect(path.boundingRect());
  const Band band{box.adjusted(-half, -half, half, half), box.adjusted(half, half, -half, -half),
                  cornerOf(values.path->elements()), own.toCanvas.map(cache_.strokeOf(path, pen))};
  own.painter->setTransform(own.toPainter);
  fillBand(*own.painter, band, own.color(layer.strokeColor()), own.damage);
}

void QtScenePainter::paintShadow(const Surroundings& own, const Layer& layer, const PresentedValues& values)
{
  QPainterPath shape;
  if (layer.kind() == LayerKind::Shape && values.path) {
    shape = toPainterPath(*values.path, layer);
    shape.setFillRule(layer.fillRule() == FillRule::EvenOdd ? Qt::OddEvenFill : Qt::WindingFill);
  } else if (!layer.backgroundColor().isClear()) {
    shape = roundedRect(boundsOf(layer), layer.cornerRadius());
  }
  if (shape.isEmpty()) return;
  const platform::Shadow& shadow = *layer.shadow();
  const QtSceneCache::Shadow& made = cache_.shadowOf(shape, own.color(shadow.color), shadow.blurRadius,
                                                     own.painter->device()->devicePixelRatioF());
  own.painter->save();
  // What an opaque body covers need not be drawn first.
  const platform::Color& body =
      layer.kind() == LayerKind::Shape ? layer.fillColor() : layer.backgroundColor();
  const bool isCovered = body.resolved(own.appearance).alpha >= 1 && own.opacity >= 1;
  if (isCovered && !made.body.isEmpty() && own.toCanvas.type() <= QTransform::TxScale) {
    const QRect hidden =
        own.toCanvas.mapRect(made.body).adjusted(1, 1, -1, -1).toRect().adjusted(1, 1, -1, -1);
    own.painter->setTransform(own.toPainter);
    own.painter->setClipRegion(own.damage - hidden, Qt::IntersectClip);
  }
  own.usePainter();
  own.painter->drawImage(made.place + QPointF(shadow.offset.width, -shadow.offset.height), made.picture);
  own.painter->restore();
}

template <class Draw>
void QtScenePainter::paintGrouped(const Surroundings& own, const QRect& area, double opacity, Draw draw)
{
  const QRegion damage = own.damage & area;
  const QRect rect = damage.boundingRect();
  const double scale = own.painter->device()->devicePixelRatioF();
  QImage picture((QSizeF(rect.size()) * scale).toSize(), QImage::Format_ARGB32_Premultiplied);
  if (rect.isEmpty() || picture.isNull()) return;
  picture.setDevicePixelRatio(scale);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  Surroundings group = own;
  group.painter = &painter;
  group.toPainter = QTransform::fromTranslate(-rect.x(), -rect.y());
  group.opacity = 1;
  group.damage = rect;
  draw(group);
  painter.end();
  own.painter->setTransform(own.toPainter);
  own.painter->setOpacity(opacity);
  own.painter->drawImage(rect.topLeft(), picture);
}

void QtScenePainter::cutByMask(const Surroundings& own, const Layer& layer)
{
  QImage stencil(own.painter->device()->width(), own.painter->device()->height(),
                 QImage::Format_ARGB32_Premultiplied);
  stencil.setDevicePixelRatio(own.painter->device()->devicePixelRatioF());
  stencil.fill(Qt::transparent);
  QPainter painter(&stencil);
  Surroundings cut = own;
  cut.painter = &painter;
  paintLayer(cut, *layer.mask());
  painter.end();
  own.painter->resetTransform();
  own.painter->setOpacity(1);
  own.painter->setCompositionMode(QPainter::CompositionMode_DestinationIn);
  own.painter->drawImage(0, 0, stencil);
  own.painter->setCompositionMode(QPainter::CompositionMode_SourceOver);
}

void QtScenePainter::paintInRoundedBounds(const Surroundings& own, const Layer& layer)
{
  const QRectF box = own.toCanvas.mapRect(boundsOf(layer));
  const QPainterPath rounded = own.toCanvas.map(roundedRect(boundsOf(layer), layer.cornerRadius()));
  const auto paintCut = [&](const QRect& area) {
    paintGrouped(own, area, own.opacity, [&](const Surroundings& group) {
      paintSublayers(group, layer);
      QPainterPath outside;
      outside.addRect(area.adjusted(-1, -1, 1, 1));
      outside.addPath(rounded);
      group.painter->setTransform(group.toPainter);
      group.painter->setOpacity(1);
      group.painter->setRenderHint(QPainter::Antialiasing);
      group.painter->setCompositionMode(QPainter::CompositionMode_DestinationOut);
      group.painter->fillPath(outside, Qt::black);
    });
  };
  if (own.toCanvas.type() > QTransform::TxTranslate || !isWhole(box)) return paintCut(touched(box));
  // Only the corners cost a group; most damage is elsewhere.
  const QRect all = box.toRect();
  const int side = static_cast<int>(std::ceil(layer.cornerRadius()));
  const QRect damaged = own.damage.boundingRect();
  if (all.adjusted(side, 0, -side, 0).contains(damaged) || all.adjusted(0, side, 0, -side).contains(damaged))
    return paintSublayers(own, layer);
  const QRect corner(0, 0, std::min(side, all.width()), std::min(side, all.height()));
  QRegion corners;
  for (const QPoint place : {all.topLeft(), QPoint(all.right() + 1 - corner.width(), all.top()),
                             QPoint(all.left(), all.bottom() + 1 - corner.height()),
                             QPoint(all.right() + 1 - corner.width(), all.bottom() + 1 - corner.height())})
    corners += corner.translated(place);
  for (const QRect& part : corners& own.damage)
    paintCut(part);
  Surroundings middle = own;
  middle.damage = (own.damage & all) - corners;
  if (middle.damage.isEmpty()) return;
  own.painter->save();
  if (middle.damage != own.damage) {
    own.painter->setTransform(own.toPainter);
    own.painter->setClipRegion(middle.damage, Qt::IntersectClip);
  }
  paintSublayers(middle, layer);
  own.painter->restore();
}

bool QtScenePainter::paintMaskedBackground(const Surroundings& own, const Layer& layer)
{
  const Layer& mask = *layer.mask();
  if (layer.kind() != LayerKind::Plain || layer.shadow() || layer.cornerRadius() > 0 ||
      !layer.sublayers().empty() || !isPlainFill(mask, own.appearance))
    return false;
  PresentedValues values;
  evaluateLayer(mask, own.time, values);
  if (!values.path || values.path->isEmpty()) return true;
  const QTransform toCanvas = toOuter(mask, values.transform, own.height, own.flipped) * own.toCanvas;
  const QColor color = own.color(layer.backgroundColor());
  const QRectF bounds = own.toCanvas.mapRect(boundsOf(layer));
  QPainter& painter = *own.painter;
  painter.save();
  painter.setTransform(own.toPainter);
  painter.setOpacity(own.opacity * values.opacity);
  painter.setRenderHint(QPainter::Antialiasing);
  const bool isSharp = isWhole(painter.device()->devicePixelRatioF());
  if (const auto hole = isSharp ? placedHole(mask, *values.path, toCanvas, bounds) : std::nullopt) {
    // Plain rectangles do everywhere but at the hole.
    const QRect around = hole->band.outer.toRect();
    for (const QRect& part : (own.damage & hole->area) - around)
      painter.fillRect(part, color);
    painter.setClipRect(hole->area, Qt::IntersectClip);
    fillBand(painter, hole->band, color, own.damage & hole->area & around);
  } else {
    QPainterPath outline = toCanvas.map(toPainterPath(*values.path, mask));
    outline.setFillRule(mask.fillRule() == FillRule::EvenOdd ? Qt::OddEvenFill : Qt::WindingFill);
    painter.setClipRect(bounds, Qt::IntersectClip);
    painter.fillPath(outline, color);
  }
  painter.restore();
  return true;
}

} // namespace wayvane::qt
