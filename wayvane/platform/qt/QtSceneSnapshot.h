#pragma once

#include <wayvane/platform/qt/QtSceneGeometry.h>

#include <QRegion>
#include <QSizeF>

namespace wayvane::qt {

/// How a layer tree looks at one moment, kept to find out what another moment changes. A plain value.
class QtSceneSnapshot {
public:
  QtSceneSnapshot() = default;
  /// `root` fills a canvas of that size, y up.
  QtSceneSnapshot(const platform::Layer& root, double time, QSizeF canvas);

  /// What has to be painted anew on the canvas to get from `before` to this one.
  [[nodiscard]] QRegion changesSince(const QtSceneSnapshot& before) const;

private:
  struct Look {
    platform::LayerKind kind = platform::LayerKind::Plain;
    platform::Rect bounds;
    bool flipped = false;
    platform::Color background;
    double cornerRadius = 0;
    bool masksToBounds = false;
    std::optional<platform::Shadow> shadow;
    platform::FillRule fillRule = platform::FillRule::NonZero;
    platform::Color fill;
    platform::Color stroke;
    double lineWidth = 0;
    std::vector<double> dashes;
    double dashPhase = 0;
    std::optional<platform::Path> path;
    platform::AttributedText text;
    bool wraps = true;
    friend bool operator==(const Look&, const Look&) = default;
  };

  struct Mask {
    Look look;
    QTransform toLayer;
    double opacity = 1;
    friend bool operator==(const Mask&, const Mask&) = default;
  };

  struct Entry {
    const platform::Layer* layer = nullptr;
    QTransform toCanvas;
    double opacity = 1;
    /// Of the layer's own painting, in its downward coordinates.
    QRectF box;
    Look look;
    std::optional<Mask> mask;
  };

  [[nodiscard]] static Look lookOf(const platform::Layer& layer, const platform::PresentedValues& values);
  [[nodiscard]] static std::optional<Mask> maskOf(const platform::Layer& layer, double time);
  /// The canvas that the entry covers; holes and the inside of outlines are left out.
  [[nodiscard]] static QRegion coverage(const Entry& entry);
  [[nodiscard]] static QRegion change(const Entry& before, const Entry& after);
  [[nodiscard]] static bool differOnlyInHole(const Entry& before, const Entry& after);
  [[nodiscard]] static QRegion changeOfHole(const Entry& before, const Entry& after);

  void add(const platform::Layer& layer, double time, const QTransform& outer, double outerHeight,
           bool outerFlipped, double opacity);
  [[nodiscard]] const Entry* find(const platform::Layer* layer, std::size_t guess) const;

  /// In drawing order; what cannot be seen is not in it.
  std::vector<Entry> entries_;
};

} // namespace wayvane::qt
