#pragma once

#include <tests/desktop/Desktop.h>
#include <tests/desktop/Raster.h>
#include <wayvane/platform/LayerEvaluator.h>

#include <gtest/gtest.h>

namespace wayvane::tests {

/// A program with one window and an overlay over it, 400 x 300.
class OverlayTest : public ::testing::Test {
protected:
  platform::SurfaceView& content() { return panel_->contentView(); }

  [[nodiscard]] double opacityOf(const platform::Layer& layer) const
  {
    platform::PresentedValues values;
    platform::evaluateLayer(layer, desktop.now(), values);
    return values.opacity;
  }

  /// The overlay over white, as it looks now.
  [[nodiscard]] platform::Bitmap picture() const
  {
    return sim::renderLayer(*panel_->contentView().layer(), desktop.now(), 1, platform::Appearance::Light,
                            {1, 1, 1, 1});
  }

  [[nodiscard]] platform::Rgba pixel(platform::Point point) const { return sim::pixelAt(picture(), point); }

  [[nodiscard]] bool somethingMoves() const
  {
    return platform::nextVisibleChange(*panel_->contentView().layer(), desktop.now()) == desktop.now();
  }

  void closePanel() { panel_.reset(); }

  sim::Desktop desktop;
  std::shared_ptr<sim::Window> window = desktop.addWindow("Main", {100, 100, 400, 300});

private:
  std::unique_ptr<platform::OverlayPanel> panel_ =
      desktop.platform().panels.makeOverlayPanel({100, 100, 400, 300}, 0);
};

} // namespace wayvane::tests
