#pragma once

#include <wayvane/platform/Image.h>
#include <wayvane/platform/Layer.h>

namespace wayvane::sim {

/// What the layer tree looks like at `time`, over `background`, `scale` pixels a point. Fills, strokes,
/// masks, clipping, opacity and shadows (with a box blur) are drawn as a toolkit draws them; of texts only
/// boxes are drawn, one a character, and of pictures in texts one box.
[[nodiscard]] platform::Bitmap renderLayer(const platform::Layer& root, double time, double scale = 1,
                                           platform::Appearance appearance = platform::Appearance::Light,
                                           platform::Rgba background = {});

/// The straight components of the pixel that holds `point`, root coordinates with y up; clear outside.
[[nodiscard]] platform::Rgba pixelAt(const platform::Bitmap& bitmap, platform::Point point, double scale = 1);

} // namespace wayvane::sim
