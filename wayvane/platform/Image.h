#pragma once

#include <wayvane/platform/Color.h>
#include <wayvane/platform/Geometry.h>

#include <cstdint>
#include <memory>
#include <vector>

namespace wayvane::platform {

/// Pixels, row by row from the top, each 0xAARRGGBB with the colours premultiplied by alpha.
struct Bitmap {
  int width = 0;
  int height = 0;
  std::vector<std::uint32_t> pixels;
};

/// A picture of the host's, for instance a button's icon. Immutable and shared; main thread only.
class Image {
public:
  virtual ~Image() = default;
  /// The natural size in points; zero when it has none.
  [[nodiscard]] virtual Size size() const = 0;
  /// The picture fitted into `points` (aspect kept, centred) at `scale` device pixels a point.
  [[nodiscard]] virtual Bitmap rendered(Size points, double scale, Appearance appearance) const = 0;
};

using ImageHandle = std::shared_ptr<const Image>;

} // namespace wayvane::platform
