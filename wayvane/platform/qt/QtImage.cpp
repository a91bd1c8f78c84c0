#include <wayvane/platform/qt/QtImage.h>

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <cstring>

namespace wayvane::qt {

namespace {

constexpr int kLargestSide = 4096;

QSize naturalSize(const QIcon& icon, QSize wanted)
{
  if (!wanted.isEmpty()) return wanted;
  QSize largest;
  for (const QSize& size : icon.availableSizes())
    if (size.width() > largest.width()) largest = size;
  return largest.isEmpty() ? QSize(16, 16) : largest;
}

int pixels(double points, double scale)
{
  const double count = std::ceil(points * scale);
  return count > 0 ? static_cast<int>(std::min(count, static_cast<double>(kLargestSide))) : 0;
}

} // namespace

QtImage::QtImage(QIcon icon, QSize size, QIcon::State state)
  : icon_(std::move(icon))
  , size_(naturalSize(icon_, size))
  , state_(state)
{}

platform::Size QtImage::size() const
{
  if (icon_.isNull()) return {};
  return {static_cast<double>(size_.width()), static_cast<double>(size_.height())};
}

platform::Bitmap QtImage::rendered(platform::Size points, double scale, platform::Appearance) const
{
  const QSize canvas(pixels(points.width, scale), pixels(points.height, scale));
  if (canvas.isEmpty() || icon_.isNull()) return {};
  QImage image(canvas, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  const QSize fitted = size_.scaled(canvas, Qt::KeepAspectRatio).expandedTo({1, 1});
  const QRect place(QPoint((canvas.width() - fitted.width()) / 2, (canvas.height() - fitted.height()) / 2),
                    fitted);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  // Icons do not grow beyond their own pixels by themselves.
  QPixmap pixmap = icon_.pixmap(fitted, 1.0, QIcon::Normal, state_);
  painter.drawPixmap(place, pixmap);
  painter.end();
  return toBitmap(image);
}

platform::ImageHandle QtImage::make(const QIcon& icon, QSize size, QIcon::State state)
{
  if (icon.isNull()) return nullptr;
  return std::make_shared<QtImage>(icon, size, state);
}

platform::ImageHandle QtImage::make(const QPixmap& pixmap)
{
  if (pixmap.isNull()) return nullptr;
  return std::make_shared<QtImage>(QIcon(pixmap), pixmap.deviceIndependentSize().toSize());
}

QImage toQImage(const platform::Bitmap& bitmap)
{
  const auto count = static_cast<std::size_t>(std::max(bitmap.width, 0)) *
                     static_cast<std::size_t>(std::max(bitmap.height, 0));
  if (count == 0 || bitmap.pixels.size() < count) return {};
  QImage image(bitmap.width, bitmap.height, QImage::Format_ARGB32_Premultiplied);
  const auto width = static_cast<std::size_t>(bitmap.width);
  for (int y = 0; y < bitmap.height; ++y)
    std::memcpy(image.scanLine(y), bitmap.pixels.data() + static_cast<std::size_t>(y) * width,
                width * sizeof(std::uint32_t));
  return image;
}

platform::Bitmap toBitmap(const QImage& image)
{
  const QImage source = image.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  platform::Bitmap bitmap{source.width(), source.height(), {}};
  const auto width = static_cast<std::size_t>(source.width());
  bitmap.pixels.resize(width * static_cast<std::size_t>(source.height()));
  for (int y = 0; y < source.height(); ++y)
    std::memcpy(bitmap.pixels.data() + static_cast<std::size_t>(y) * width, source.constScanLine(y),
                width * sizeof(std::uint32_t));
  return bitmap;
}

} // namespace wayvane::qt
