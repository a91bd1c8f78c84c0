#include "Image.h"

#include <algorithm>
#include <cmath>

namespace wayvane::sim {

platform::Bitmap Image::rendered(platform::Size points, double scale, platform::Appearance) const
{
  platform::Bitmap bitmap;
  bitmap.width = std::max(0, static_cast<int>(std::lround(points.width * scale)));
  bitmap.height = std::max(0, static_cast<int>(std::lround(points.height * scale)));
  bitmap.pixels.assign(static_cast<std::size_t>(bitmap.width) * static_cast<std::size_t>(bitmap.height),
                       pixel_);
  return bitmap;
}

} // namespace wayvane::sim
