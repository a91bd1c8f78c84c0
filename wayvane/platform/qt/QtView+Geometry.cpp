#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtView.h>

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QKeySequenceEdit>

#include <cmath>

namespace wayvane::qt {

using platform::Point;
using platform::Rect;

QPoint QtView::originInWidget(const QWidget& /*widget*/) const
{
  return {};
}

Rect QtView::bounds() const
{
  const QWidget* w = widget();
  return w ? toRect(QRectF(w->rect())) : Rect{};
}

Rect QtView::convertRectToWindow(const Rect& rect) const
{
  const QWidget* w = widget();
  if (!w || !w->isVisible()) return {};
  const QWidget* top = w->window();
  const QPointF corner = w->mapTo(top, QPointF(rect.x, rect.y) + originInWidget(*w));
  return windowRectFromWidget({corner, QSizeF(rect.width, rect.height)}, *top);
}

Point QtView::convertPointFromWindow(Point point) const
{
  const QWidget* w = widget();
  if (!w) return {};
  const QWidget* top = w->window();
  return toPoint(w->mapFrom(top, widgetPointFromWindow(point, *top)) - originInWidget(*w));
}

Rect QtView::convertRectToAncestor(const Rect& rect, const platform::View& ancestor) const
{
  const QWidget* w = widget();
  const auto* other = dynamic_cast<const QtView*>(&ancestor);
  const QWidget* above = other ? other->widget() : nullptr;
  if (!w || !above) return {};
  if (w == above) return rect;
  const QWidget* contents = other->contents(*above);
  if (w != contents && !contents->isAncestorOf(w)) return {};
  const QPointF corner =
      w->mapTo(above, QPointF(rect.x, rect.y) + originInWidget(*w)) - other->originInWidget(*above);
  return {corner.x(), corner.y(), rect.width, rect.height};
}

namespace {

bool acceptsPoint(const QWidget& widget, QPoint point)
{
  if (!widget.rect().contains(point)) return false;
  const QRegion mask = widget.mask();
  return mask.isEmpty() || mask.contains(point);
}

bool isReachable(const QWidget& widget)
{
  return !widget.isWindow() && !widget.isHidden() &&
         !widget.testAttribute(Qt::WA_TransparentForMouseEvents) && !isOwnWidget(&widget);
}

QWidget* childUnder(const QWidget& parent, QPoint point)
{
  const QObjectList& children = parent.children();
  for (qsizetype i = children.size() - 1; i >= 0; --i) {
    auto* child = qobject_cast<QWidget*>(children[i]);
    if (child && isReachable(*child) && acceptsPoint(*child, child->mapFromParent(point))) return child;
  }
  return nullptr;
}

QWidget* deepestUnder(QWidget* widget, QPoint point)
{
  while (QWidget* child = childUnder(*widget, point)) {
    point = child->mapFromParent(point);
    widget = child;
  }
  return widget;
}

/// Widgets that the toolkit makes to build another one, and that no user knows of.
bool isPartOfParent(const QWidget& widget)
{
  const QWidget* parent = widget.parentWidget();
  if (!parent || widget.isWindow()) return false;
  if (const auto* area = qobject_cast<const QAbstractScrollArea*>(parent)) return area->viewport() == &widget;
  const bool isBox = qobject_cast<const QComboBox*>(parent) ||
                     qobject_cast<const QAbstractSpinBox*>(parent) ||
                     qobject_cast<const QKeySequenceEdit*>(parent);
  return isBox && widget.inherits("QLineEdit");
}

/// The open menu or list over which the point lies.
QWidget* popupUnder(QPoint global)
{
  QWidget* popup = QApplication::activePopupWidget();
  const bool covers = popup && popup->isVisible() && acceptsPoint(*popup, popup->mapFromGlobal(global));
  return covers && !isOwnWidget(popup) ? popup : nullptr;
}

} // namespace

platform::ViewHandle QtView::hitTest(Point locationInWindow) const
{
  QWidget* start = widget();
  if (!start || !start->isVisible()) return nullptr;
  const QWidget* top = start->window();
  const QPointF inWindow = widgetPointFromWindow(locationInWindow, *top);
  if (start == top) {
    if (QWidget* popup = popupUnder(top->mapToGlobal(inWindow).toPoint()); popup && popup != top)
      start = popup;
  }
  // The point is in the pixel it falls into, so the edges belong to one side only.
  const QPointF local = start->mapFromGlobal(top->mapToGlobal(inWindow));
  const QPoint point(static_cast<int>(std::floor(local.x())), static_cast<int>(std::floor(local.y())));
  if (!acceptsPoint(*start, point)) return nullptr;
  QWidget* hit = deepestUnder(start, point);
  while (hit != start && isPartOfParent(*hit))
    hit = hit->parentWidget();
  return viewForWidget(hit);
}

} // namespace wayvane::qt
