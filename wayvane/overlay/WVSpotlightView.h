#pragma once

#include <wayvane/platform/Surface.h>

namespace wayvane {

/// Darkens everything it covers but a rounded hole. Nothing is darkened before the first `animateToRect`.
/// It has no look beyond its two layers. Main thread only.
class WVSpotlightView : public platform::SurfaceView {
public:
  explicit WVSpotlightView(const platform::Rect& frame);

  /// The opacity of the black over everything but the hole; takes effect at once. 0.15 unless set.
  void setDimAlpha(double dimAlpha);

  [[nodiscard]] double dimAlpha() const { return dimAlpha_; }

  /// The hole's, in points, from the next `animateToRect` on. 6 unless set.
  void setCornerRadius(double cornerRadius) { cornerRadius_ = cornerRadius; }

  [[nodiscard]] double cornerRadius() const { return cornerRadius_; }

  /// Moves the hole within half a second to exactly `rect`, which is in the view's own coordinates. The first
  /// hole appears where it belongs. A move under way is cut short: the new one starts where that would have
  /// ended. The hole does not follow when the view is resized.
  void animateToRect(const platform::Rect& rect);

  [[nodiscard]] const platform::LayerHandle& dimLayer() const { return dimLayer_; }

  [[nodiscard]] const platform::LayerHandle& maskLayer() const { return maskLayer_; }

private:
  double dimAlpha_ = 0.15;
  double cornerRadius_ = 6;
  platform::LayerHandle dimLayer_;
  platform::LayerHandle maskLayer_;
};

} // namespace wayvane
