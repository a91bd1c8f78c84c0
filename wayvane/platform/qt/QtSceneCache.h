#pragma once

#include <wayvane/platform/Layer.h>

#include <QColor>
#include <QImage>
#include <QPainterPath>

#include <list>
#include <memory>

class QPen;

namespace wayvane::qt {

class QtTextLayout;

/// What is dear to make when a scene is drawn, kept from one drawing to the next. A few of each, the oldest
/// of which goes first; what is returned stays until the next call.
class QtSceneCache {
public:
  struct Shadow {
    QPainterPath shape;
    QRgb color = 0;
    double blurRadius = 0;
    double scale = 1;
    QImage picture;
    /// Where the picture lies when the shadow has no offset, in the shape's coordinates.
    QPointF place;
    /// A rectangle that lies inside the shape; empty when none is easily found.
    QRectF body;
  };

  QtSceneCache();
  ~QtSceneCache();

  /// `scale` in pixels a point.
  [[nodiscard]] const Shadow& shadowOf(const QPainterPath& shape, const QColor& color, double blurRadius,
                                       double scale);
  /// The outline of a line without dashes.
  [[nodiscard]] const QPainterPath& strokeOf(const QPainterPath& path, const QPen& pen);
  [[nodiscard]] const QtTextLayout& layoutOf(const platform::Layer& layer, platform::Appearance appearance);

private:
  struct Stroke {
    QPainterPath path;
    double width = 0;
    QPainterPath outline;
  };

  struct Text {
    platform::AttributedText text;
    double width = 0;
    bool wraps = true;
    platform::Appearance appearance = platform::Appearance::Light;
    std::unique_ptr<QtTextLayout> layout;
  };

  std::list<Shadow> shadows_;
  std::list<Stroke> strokes_;
  std::list<Text> texts_;
};

} // namespace wayvane::qt
