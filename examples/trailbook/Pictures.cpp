#include "Pictures.h"

#include <QPainter>

namespace trailbook {

Pictures::Pictures(const QDir& folder, const QString& variant, const QString& subject)
  : folder_(folder)
  , variant_(variant)
  , subject_(subject)
{
  folder_.mkpath(".");
}

void Pictures::add(const QImage& picture, const QString& name)
{
  const QString caption = name + '-' + variant_;
  picture.save(folder_.filePath(caption + ".png"));
  frames_.push_back({picture, caption});
}

void Pictures::saveContactSheet() const
{
  if (frames_.empty()) return;
  const int columns = 3;
  const QSize cell(520, 360);
  const int rows = (static_cast<int>(frames_.size()) + columns - 1) / columns;
  QImage sheet(cell.width() * columns, cell.height() * rows, QImage::Format_RGB32);
  sheet.fill(QColor(0x60, 0x60, 0x60));
  QPainter painter(&sheet);
  painter.setPen(Qt::white);
  for (int i = 0; i < static_cast<int>(frames_.size()); ++i) {
    const Frame& frame = frames_[static_cast<std::size_t>(i)];
    const QRect place(i % columns * cell.width() + 8, i / columns * cell.height() + 8, cell.width() - 16,
                      cell.height() - 34);
    QImage picture = frame.picture.scaled(place.size(), Qt::KeepAspectRatio, Qt::SmoothTransformation);
    picture.setDevicePixelRatio(1);
    painter.drawImage(place.topLeft(), picture);
    painter.drawText(QRect(place.left(), place.bottom() + 4, place.width(), 20), Qt::AlignLeft,
                     frame.caption);
  }
  painter.end();
  sheet.save(folder_.filePath("contact-sheet-" + subject_ + '-' + variant_ + ".png"));
}

} // namespace trailbook
