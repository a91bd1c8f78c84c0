#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtItemViews.h>
#include <wayvane/platform/qt/QtScrolling.h>
#include <wayvane/platform/qt/QtTableView.h>

#include <QHeaderView>
#include <QListView>
#include <QScrollBar>
#include <QTableView>
#include <QTreeView>

#include <algorithm>
#include <cmath>

namespace wayvane::qt {

using platform::Point;
using platform::Rect;

namespace {

bool scrollsByPixel(const QAbstractItemView& view, Qt::Orientation orientation)
{
  const auto mode = orientation == Qt::Horizontal ? view.horizontalScrollMode() : view.verticalScrollMode();
  return mode == QAbstractItemView::ScrollPerPixel;
}

/// The lower right corner of the last item, where nothing else tells how far the contents reach.
QPoint endOfItems(const QAbstractItemView& view, QtTableRows& rows)
{
  const int count = rows.count(view);
  const QModelIndex last = count > 0 ? rows.indexOfRow(view, count - 1) : QModelIndex();
  if (!last.isValid()) return {};
  return view.visualRect(last).bottomRight() + QPoint(1, 1) + scrollOffset(view);
}

QSize contentSize(const QAbstractItemView& view, QtTableRows& rows)
{
  const QSize viewport = view.viewport()->size();
  const QHeaderView* columns = columnHeader(view);
  const QHeaderView* lines = rowHeader(view);
  const QScrollBar* across = view.horizontalScrollBar();
  const QScrollBar* down = view.verticalScrollBar();
  QSize size(across->maximum() + viewport.width(), down->maximum() + viewport.height());
  if (columns) size.setWidth(columns->length());
  if (lines) size.setHeight(lines->length());
  if (!columns && !scrollsByPixel(view, Qt::Horizontal)) size.setWidth(endOfItems(view, rows).x());
  if (!lines && !scrollsByPixel(view, Qt::Vertical)) size.setHeight(endOfItems(view, rows).y());
  return size.expandedTo(viewport);
}

/// The value that brings the pixel to the edge. Bars that count items get the nearest one by proportion,
/// which is exact for items of one size.
int barValue(const QScrollBar& bar, bool byPixel, double pixel, int contents, int viewport)
{
  if (!byPixel) {
    const int range = contents - viewport;
    pixel = range > 0 ? std::ceil(pixel / range * bar.maximum()) : 0;
  }
  return static_cast<int>(std::lround(std::clamp(pixel, 0.0, static_cast<double>(bar.maximum()))));
}

} // namespace

QPoint QtTableView::originInWidget(const QWidget& widget) const
{
  const auto& view = static_cast<const QAbstractItemView&>(widget);
  return view.viewport()->pos() - scrollOffset(view);
}

const QWidget* QtTableView::contents(const QWidget& widget) const
{
  return static_cast<const QAbstractItemView&>(widget).viewport();
}

Rect QtTableView::bounds() const
{
  const QAbstractItemView* view = itemView();
  return view ? toRect(QRectF(scrollOffset(*view), view->viewport()->size())) : Rect{};
}

Rect QtTableView::convertRectToWindow(const Rect& rect) const
{
  const Rect shown = rect.intersection(bounds());
  return QtControlView::convertRectToWindow(shown.isEmpty() ? rect : shown);
}

Rect QtTableView::rectOfRow(int row) const
{
  const QModelIndex index = indexAt(0, row);
  const QAbstractItemView* view = itemView();
  if (!view || !index.isValid()) return {};
  QRect rect = view->visualRect(index);
  if (rect.isEmpty()) return {};
  rect.translate(scrollOffset(*view));
  if (const QHeaderView* columns = columnHeader(*view)) {
    rect.setLeft(0);
    rect.setWidth(columns->length());
  }
  return toRect(QRectF(rect));
}

Rect QtTableView::frameOfCell(int column, int row) const
{
  const QModelIndex index = indexAt(column, row);
  const QAbstractItemView* view = itemView();
  const QRect rect = view && index.isValid() ? view->visualRect(index) : QRect();
  return rect.isEmpty() ? Rect{} : toRect(QRectF(rect.translated(scrollOffset(*view))));
}

void QtTableView::layoutIfNeeded() const
{
  if (const QAbstractItemView* view = itemView()) layOutItems(*view);
}

// Scrolling

platform::ViewHandle QtTableView::documentView() const
{
  return handle();
}

Rect QtTableView::documentVisibleRect() const
{
  return bounds();
}

Rect QtTableView::documentBounds() const
{
  const QAbstractItemView* view = itemView();
  return view ? toRect(QRectF(QPointF(), QSizeF(contentSize(*view, rows_)))) : Rect{};
}

void QtTableView::scrollToOrigin(Point origin, platform::ScrollAnimation animation) const
{
  QAbstractItemView* view = itemView();
  if (!view || std::isnan(origin.x) || std::isnan(origin.y)) return finishScroll(animation);
  const QSize contents = contentSize(*view, rows_);
  const QSize viewport = view->viewport()->size();
  const int x = barValue(*view->horizontalScrollBar(), scrollsByPixel(*view, Qt::Horizontal), origin.x,
                         contents.width(), viewport.width());
  const int y = barValue(*view->verticalScrollBar(), scrollsByPixel(*view, Qt::Vertical), origin.y,
                         contents.height(), viewport.height());
  scrollBarsTo(*view, {x, y}, std::move(animation));
}

void QtTableView::scrollRowToVisible(int row, platform::ScrollAnimation animation) const
{
  QAbstractItemView* view = itemView();
  const QModelIndex index = indexAt(0, row);
  if (!view || !index.isValid()) return finishScroll(animation);
  // Only the view itself knows where it would scroll, and it can only be asked by letting it.
  layOutItems(*view);
  const QPoint before = scrollBarValues(*view);
  view->scrollTo(index);
  const QPoint after(before.x(), view->verticalScrollBar()->value());
  setScrollBarValues(*view, before);
  scrollBarsTo(*view, after, std::move(animation));
}

} // namespace wayvane::qt
