#pragma once

#include <wayvane/platform/qt/QtSceneCache.h>
#include <wayvane/platform/qt/QtSceneGeometry.h>

#include <QRegion>

class QPainter;

namespace wayvane::qt {

/// Draws a layer tree.
class QtScenePainter {
public:
  /// Draws what lies in `damage` of the tree whose root fills a canvas `canvas` large, y up. The painter's
  /// coordinates are the canvas's, downward. `damage` is in whole points.
  void paint(QPainter& painter, const platform::Layer& root, double time, QSizeF canvas,
             const QRegion& damage, platform::Appearance appearance);

private:
  struct Surroundings;

  void paintLayer(const Surroundings& outer, const platform::Layer& layer);
  void paintContents(const Surroundings& own, const platform::Layer& layer,
                     const platform::PresentedValues& values);
  void paintOwn(const Surroundings& own, const platform::Layer& layer,
                const platform::PresentedValues& values);
  void paintShape(const Surroundings& own, const platform::Layer& layer,
                  const platform::PresentedValues& values);
  void paintShadow(const Surroundings& own, const platform::Layer& layer,
                   const platform::PresentedValues& values);
  void paintSublayers(const Surroundings& own, const platform::Layer& layer);
  /// The sublayers of a layer whose rounded corners cut them off.
  void paintInRoundedBounds(const Surroundings& own, const platform::Layer& layer);
  /// A background under a mask of one filled outline, without the cost of a group. False when it is not that.
  bool paintMaskedBackground(const Surroundings& own, const platform::Layer& layer);
  /// Draws by way of a transparent picture of the part of `area` that is damaged.
  template <class Draw>
  void paintGrouped(const Surroundings& own, const QRect& area, double opacity, Draw draw);
  void cutByMask(const Surroundings& own, const platform::Layer& layer);

  QtSceneCache cache_;
};

} // namespace wayvane::qt
