#include <wayvane/platform/qt/QtBlur.h>
#include <wayvane/platform/qt/QtSceneCache.h>
#include <wayvane/platform/qt/QtSceneGeometry.h>
#include <wayvane/platform/qt/QtTextLayout.h>

#include <QPainter>

#include <utility>

namespace wayvane::qt {

namespace {

constexpr std::size_t kMost = 12;

template <class Entry>
const Entry& keep(std::list<Entry>& entries, Entry entry)
{
  if (entries.size() >= kMost) entries.pop_front();
  entries.push_back(std::move(entry));
  return entries.back();
}

/// Bodies are boxes with rounded corners, and perhaps a tip on one side.
QRectF bodyOf(const QPainterPath& shape)
{
  const QRectF box = shape.boundingRect();
  for (const double inset : {0.0, 4.0, 8.0, 12.0, 20.0}) {
    const QRectF body = box.adjusted(inset, inset, -inset, -inset);
    if (body.isValid() && shape.contains(body)) return body;
  }
  return {};
}

void drawShadow(QtSceneCache::Shadow& shadow)
{
  const int reach = static_cast<int>(blurReach({{}, {}, shadow.blurRadius}));
  const QRect box = shadow.shape.boundingRect().toAlignedRect().adjusted(-reach, -reach, reach, reach);
  shadow.place = box.topLeft();
  shadow.picture = QImage((QSizeF(box.size()) * shadow.scale).toSize(), QImage::Format_ARGB32_Premultiplied);
  if (shadow.picture.isNull()) return;
  shadow.picture.setDevicePixelRatio(shadow.scale);
  shadow.picture.fill(Qt::transparent);
  QPainter painter(&shadow.picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(-box.topLeft());
  painter.fillPath(shadow.shape, QColor::fromRgba(shadow.color));
  painter.end();
  // Blur radii are given as twice the deviation of the bell curve.
  blur(shadow.picture, shadow.blurRadius * shadow.scale / 2);
}

} // namespace

QtSceneCache::QtSceneCache() = default;

QtSceneCache::~QtSceneCache() = default;

const QtSceneCache::Shadow& QtSceneCache::shadowOf(const QPainterPath& shape, const QColor& color,
                                                   double blurRadius, double scale)
{
  for (const Shadow& known : shadows_)
    if (known.scale == scale && known.blurRadius == blurRadius && known.color == color.rgba() &&
        known.shape == shape)
      return known;
  Shadow shadow{shape, color.rgba(), blurRadius, scale, {}, {}, bodyOf(shape)};
  drawShadow(shadow);
  return keep(shadows_, std::move(shadow));
}

const QPainterPath& QtSceneCache::strokeOf(const QPainterPath& path, const QPen& pen)
{
  for (const Stroke& known : strokes_)
    if (known.width == pen.widthF() && known.path == path) return known.outline;
  return keep(strokes_, {path, pen.widthF(), QPainterPathStroker(pen).createStroke(path)}).outline;
}

const QtTextLayout& QtSceneCache::layoutOf(const platform::Layer& layer, platform::Appearance appearance)
{
  const double width = layer.frame().width;
  const bool wraps = layer.wrapsText();
  for (const Text& known : texts_)
    if (known.width == width && known.wraps == wraps && known.appearance == appearance &&
        known.text == layer.text())
      return *known.layout;
  auto layout = std::make_unique<QtTextLayout>(layer.text(), width, wraps, appearance);
  return *keep(texts_, {layer.text(), width, wraps, appearance, std::move(layout)}).layout;
}

} // namespace wayvane::qt
