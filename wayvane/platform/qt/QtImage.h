#pragma once

#include <wayvane/platform/Image.h>

#include <QIcon>
#include <QImage>

namespace wayvane::qt {

/// A picture of the host's: an icon (which has several sizes) in the state in which it was found.
class QtImage final : public platform::Image {
public:
  /// `size` in points; an empty one takes the icon's largest, or 16 x 16 for an icon of any size.
  explicit QtImage(QIcon icon, QSize size = {}, QIcon::State state = QIcon::Off);

  [[nodiscard]] platform::Size size() const override;
  [[nodiscard]] platform::Bitmap rendered(platform::Size points, double scale,
                                          platform::Appearance appearance) const override;

  /// Null for an icon without a picture.
  [[nodiscard]] static platform::ImageHandle make(const QIcon& icon, QSize size = {},
                                                  QIcon::State state = QIcon::Off);
  [[nodiscard]] static platform::ImageHandle make(const QPixmap& pixmap);

private:
  QIcon icon_;
  QSize size_;
  QIcon::State state_;
};

[[nodiscard]] QImage toQImage(const platform::Bitmap& bitmap);
[[nodiscard]] platform::Bitmap toBitmap(const QImage& image);

} // namespace wayvane::qt
