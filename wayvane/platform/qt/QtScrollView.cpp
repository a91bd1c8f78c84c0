#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtScrollView.h>
#include <wayvane/platform/qt/QtScrolling.h>

#include <QScrollArea>
#include <QScrollBar>

#include <cmath>

namespace wayvane::qt {

using platform::Rect;
using platform::ViewKind;

QScrollArea* QtScrollView::area() const
{
  return static_cast<QScrollArea*>(widget());
}

QWidget* QtScrollView::document() const
{
  const QScrollArea* a = area();
  return a ? a->widget() : nullptr;
}

platform::ViewHandle QtScrollView::documentView() const
{
  return viewForWidget(document());
}

Rect QtScrollView::documentVisibleRect() const
{
  const QWidget* shown = document();
  if (!shown) return {};
  return toRect(QRectF(-QPointF(shown->pos()), QSizeF(area()->viewport()->size())));
}

Rect QtScrollView::documentBounds() const
{
  const QWidget* shown = document();
  return shown ? toRect(QRectF(shown->rect())) : Rect{};
}

void QtScrollView::scrollToOrigin(platform::Point origin, platform::ScrollAnimation animation) const
{
  QScrollArea* a = area();
  if (!a || !a->widget() || std::isnan(origin.x) || std::isnan(origin.y)) return finishScroll(animation);
  QPoint values = toQPointF(origin).toPoint();
  // Where one reads from right to left, the bar counts from the right.
  if (a->isRightToLeft()) values.setX(a->horizontalScrollBar()->maximum() - values.x());
  scrollBarsTo(*a, values, std::move(animation));
}

const void* QtScrollView::roleOfKind(ViewKind kind) const
{
  if (kind == ViewKind::ScrollView) return static_cast<const platform::ScrollView*>(this);
  return QtView::roleOfKind(kind);
}

} // namespace wayvane::qt
