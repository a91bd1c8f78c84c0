#include <wayvane/platform/qt/QtSymbols.h>

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>

namespace wayvane::qt {

using platform::SymbolImage;

namespace {

/// The symbols are designed on a square of this many points.
constexpr double kSide = 16;
constexpr double kStroke = 1.3;

void drawSymbol(QPainter& painter, SymbolImage symbol)
{
  const QRectF square(0, 0, kSide, kSide);
  switch (symbol) {
  case SymbolImage::Play: {
    painter.drawRoundedRect(square.adjusted(1, 2.5, -1, -2.5), 2.5, 2.5);
    QPainterPath triangle;
    triangle.addPolygon(QPolygonF({{6.3, 5.2}, {11, 8}, {6.3, 10.8}}));
    triangle.closeSubpath();
    painter.fillPath(triangle, painter.pen().color());
    break;
  }
  case SymbolImage::Record:
    painter.drawEllipse(square.adjusted(1.5, 1.5, -1.5, -1.5));
    painter.setBrush(painter.pen().color());
    painter.drawEllipse(square.center(), 2.8, 2.8);
    break;
  case SymbolImage::Stop:
    painter.drawEllipse(square.adjusted(1.5, 1.5, -1.5, -1.5));
    painter.fillRect(QRectF(5.5, 5.5, 5, 5), painter.pen().color());
    break;
  case SymbolImage::None:
    break;
  }
}

QPixmap pixmapOf(SymbolImage symbol, int scale)
{
  QPixmap pixmap(static_cast<int>(kSide) * scale, static_cast<int>(kSide) * scale);
  pixmap.setDevicePixelRatio(scale);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QGuiApplication::palette().color(QPalette::WindowText), kStroke));
  drawSymbol(painter, symbol);
  return pixmap;
}

} // namespace

QIcon symbolIcon(SymbolImage symbol)
{
  QIcon icon;
  if (symbol == SymbolImage::None) return icon;
  for (const int scale : {1, 2, 3})
    icon.addPixmap(pixmapOf(symbol, scale));
  return icon;
}

} // namespace wayvane::qt
