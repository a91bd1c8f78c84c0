#include <wayvane/platform/qt/QtBlur.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace wayvane::qt {

namespace {

using Channels = std::array<unsigned, 4>;

Channels split(QRgb pixel)
{
  return {pixel & 0xFF, (pixel >> 8) & 0xFF, (pixel >> 16) & 0xFF, pixel >> 24};
}

/// The running mean over `2 radius + 1` pixels of a line; outside there is nothing.
void averageLine(const std::vector<QRgb>& source, std::vector<QRgb>& target, int radius)
{
  const int count = static_cast<int>(source.size());
  const unsigned window = static_cast<unsigned>(2 * radius + 1);
  Channels sum{};
  const auto add = [&](int at, bool enters) {
    if (at < 0 || at >= count) return;
    const Channels c = split(source[static_cast<std::size_t>(at)]);
    for (std::size_t k = 0; k < c.size(); ++k)
      sum[k] = enters ? sum[k] + c[k] : sum[k] - c[k];
  };
  for (int i = 0; i < radius; ++i)
    add(i, true);
  for (int i = 0; i < count; ++i) {
    add(i + radius, true);
    add(i - radius - 1, false);
    target[static_cast<std::size_t>(i)] =
        (sum[0] / window) | (sum[1] / window) << 8 | (sum[2] / window) << 16 | (sum[3] / window) << 24;
  }
}

void averageThrice(std::vector<QRgb>& line, std::vector<QRgb>& spare, int radius)
{
  for (int pass = 0; pass < 3; ++pass) {
    averageLine(line, spare, radius);
    line.swap(spare);
  }
}

} // namespace

void blur(QImage& picture, double deviation)
{
  // Three running means of this width have the bell curve's deviation.
  const int radius = static_cast<int>(std::lround((std::sqrt(4 * deviation * deviation + 1) - 1) / 2));
  if (radius < 1 || picture.isNull()) return;
  std::vector<QRgb> line, spare;
  const auto width = static_cast<std::size_t>(picture.width());
  const auto height = static_cast<std::size_t>(picture.height());
  line.resize(width);
  spare.resize(width);
  for (int y = 0; y < picture.height(); ++y) {
    auto* pixels = reinterpret_cast<QRgb*>(picture.scanLine(y));
    std::copy_n(pixels, width, line.begin());
    averageThrice(line, spare, radius);
    std::copy_n(line.begin(), width, pixels);
  }
  line.resize(height);
  spare.resize(height);
  const auto stride = static_cast<std::size_t>(picture.bytesPerLine()) / sizeof(QRgb);
  auto* const pixels = reinterpret_cast<QRgb*>(picture.bits());
  for (std::size_t x = 0; x < width; ++x) {
    for (std::size_t y = 0; y < height; ++y)
      line[y] = pixels[y * stride + x];
    averageThrice(line, spare, radius);
    for (std::size_t y = 0; y < height; ++y)
      pixels[y * stride + x] = line[y];
  }
}

} // namespace wayvane::qt
