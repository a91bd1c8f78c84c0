#include "Icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

#include <array>
#include <cmath>
#include <numbers>

namespace trailbook {
namespace {

QPainterPath strokes(Symbol symbol)
{
  QPainterPath path;
  switch (symbol) {
  case Symbol::Add:
    path.moveTo(12, 5);
    path.lineTo(12, 19);
    [[fallthrough]];
  case Symbol::Remove:
    path.moveTo(5, 12);
    path.lineTo(19, 12);
    break;
  case Symbol::Share:
    path.moveTo(8, 8);
    path.lineTo(12, 4);
    path.lineTo(16, 8);
    path.moveTo(12, 4);
    path.lineTo(12, 15);
    path.moveTo(8, 11);
    path.lineTo(5, 11);
    path.lineTo(5, 20);
    path.lineTo(19, 20);
    path.lineTo(19, 11);
    path.lineTo(16, 11);
    break;
  case Symbol::Packing:
    path.addRoundedRect(6, 8, 12, 12, 3, 3);
    path.moveTo(9, 8);
    path.cubicTo(9, 3, 15, 3, 15, 8);
    path.addRoundedRect(9, 13, 6, 4, 1, 1);
    break;
  case Symbol::Bold:
    path.moveTo(8, 5);
    path.lineTo(8, 19);
    path.lineTo(13, 19);
    path.cubicTo(18, 19, 18, 12, 13, 12);
    path.lineTo(8, 12);
    path.moveTo(13, 12);
    path.cubicTo(17, 12, 17, 5, 12.5, 5);
    path.lineTo(8, 5);
    break;
  case Symbol::Star:
    for (int corner = 0; corner <= 10; ++corner) {
      const double angle = std::numbers::pi * (corner / 5.0 - 0.5);
      const double radius = corner % 2 == 0 ? 8 : 3.5;
      const QPointF point(12 + radius * std::cos(angle), 12.5 + radius * std::sin(angle));
      corner == 0 ? path.moveTo(point) : path.lineTo(point);
    }
    break;
  }
  return path;
}

class SymbolEngine final : public QIconEngine {
public:
  explicit SymbolEngine(Symbol symbol)
    : symbol_(symbol)
  {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
  {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const double side = std::min(rect.width(), rect.height());
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.center().x() + 0.5 - side / 2, rect.center().y() + 0.5 - side / 2);
    painter->scale(side / 24, side / 24);
    painter->setPen(QPen(QGuiApplication::palette().color(group, QPalette::ButtonText), 1.8, Qt::SolidLine,
                         Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(strokes(symbol_));
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
  {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return picture;
  }

  QIconEngine* clone() const override { return new SymbolEngine(symbol_); }

private:
  Symbol symbol_;
};

} // namespace

QIcon icon(Symbol symbol)
{
  return QIcon(new SymbolEngine(symbol));
}

} // namespace trailbook
