#pragma once

#include <wayvane/platform/Surface.h>

namespace wayvane {

/// A thin outline around the target: a steady ring and, above it, a copy whose opacity pulses without end.
/// Half of the 2-point line lies outside the view. Nothing is drawn before `showAroundRect`. Main thread
/// only.
class WVCircleView : public platform::SurfaceView {
public:
  explicit WVCircleView(const platform::Rect& frame);

  /// The line's, from the next time the outline appears. The system's blue unless set.
  void setCircleColor(const platform::Color& color) { circleColor_ = color; }

  [[nodiscard]] const platform::Color& circleColor() const { return circleColor_; }

  /// In points, from the next `showAroundRect` on. 6 unless set.
  void setCornerRadius(double cornerRadius) { cornerRadius_ = cornerRadius; }

  [[nodiscard]] double cornerRadius() const { return cornerRadius_; }

  /// Makes `rect`, in the superview's coordinates, the view's frame and draws the outline around it; one that
  /// is drawn already moves there, and its pulse goes on undisturbed. A rectangle less than a point wide or
  /// high moves the view and changes nothing else.
  void showAroundRect(const platform::Rect& rect);
  /// Takes the outline away. Harmless when there is none.
  void stopAnimating();

  [[nodiscard]] bool isAnimating() const { return animating_; }

  /// Null while nothing is drawn.
  [[nodiscard]] const platform::LayerHandle& ringLayer() const { return ringLayer_; }

  /// Null while nothing is drawn.
  [[nodiscard]] const platform::LayerHandle& pulseLayer() const { return pulseLayer_; }

private:
  void makeLayers();
  void removeLayers();
  [[nodiscard]] platform::LayerHandle addOutline() const;

  platform::Color circleColor_ = platform::Color::systemBlue();
  double cornerRadius_ = 6;
  bool animating_ = false;
  platform::LayerHandle ringLayer_;
  platform::LayerHandle pulseLayer_;
};

} // namespace wayvane
