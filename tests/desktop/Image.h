#pragma once

#include <wayvane/platform/Image.h>

#include <string>

namespace wayvane::sim {

/// A picture of one colour.
class Image : public platform::Image {
public:
  explicit Image(platform::Size size = {16, 16}, std::uint32_t pixel = 0xff000000)
    : size_(size)
    , pixel_(pixel)
  {}

  [[nodiscard]] platform::Size size() const override { return size_; }

  [[nodiscard]] platform::Bitmap rendered(platform::Size points, double scale,
                                          platform::Appearance appearance) const override;

private:
  platform::Size size_;
  std::uint32_t pixel_;
};

[[nodiscard]] inline platform::ImageHandle makeImage(platform::Size size = {16, 16})
{
  return std::make_shared<const Image>(size);
}

} // namespace wayvane::sim
