#include <wayvane/platform/qt/QtItemViews.h>

#include <QHeaderView>
#include <QListView>
#include <QTableView>
#include <QTreeView>

namespace wayvane::qt {

namespace {

/// Names what item views keep protected: how far they are scrolled in pixels, and the layout they owe.
class Opened : public QAbstractItemView {
public:
  static constexpr auto kHorizontalOffset = &Opened::horizontalOffset;
  static constexpr auto kVerticalOffset = &Opened::verticalOffset;
  static constexpr auto kExecuteLayout = &Opened::executeDelayedItemsLayout;
};

} // namespace

QAbstractItemView* itemViewOfCell(const QWidget& widget)
{
  const QWidget* parent = widget.isWindow() ? nullptr : widget.parentWidget();
  auto* view = parent ? qobject_cast<QAbstractItemView*>(parent->parentWidget()) : nullptr;
  return view && view->viewport() == parent && !qobject_cast<QHeaderView*>(view) ? view : nullptr;
}

QPoint scrollOffset(const QAbstractItemView& view)
{
  return {(view.*Opened::kHorizontalOffset)(), (view.*Opened::kVerticalOffset)()};
}

void layOutItems(const QAbstractItemView& view)
{
  (const_cast<QAbstractItemView&>(view).*Opened::kExecuteLayout)();
}

QModelIndex indexOfCell(const QAbstractItemView& view, const QWidget& cell)
{
  // A cell set just now has its place only after the layout.
  layOutItems(view);
  const QModelIndex index = view.indexAt(cell.geometry().center());
  return view.indexWidget(index) == &cell ? index : QModelIndex();
}

const QHeaderView* columnHeader(const QAbstractItemView& view)
{
  if (const auto* table = qobject_cast<const QTableView*>(&view)) return table->horizontalHeader();
  const auto* tree = qobject_cast<const QTreeView*>(&view);
  return tree ? tree->header() : nullptr;
}

const QHeaderView* rowHeader(const QAbstractItemView& view)
{
  const auto* table = qobject_cast<const QTableView*>(&view);
  return table ? table->verticalHeader() : nullptr;
}

int shownCount(const QHeaderView& header)
{
  return header.count() - header.hiddenSectionCount();
}

int logicalSection(const QHeaderView& header, int shown)
{
  if (shown < 0) return -1;
  if (!header.sectionsHidden()) return header.logicalIndex(shown);
  for (int visual = 0; visual < header.count(); ++visual) {
    const int logical = header.logicalIndex(visual);
    if (!header.isSectionHidden(logical) && shown-- == 0) return logical;
  }
  return -1;
}

int shownSection(const QHeaderView& header, int logical)
{
  const int visual = header.visualIndex(logical);
  if (visual < 0 || !header.sectionsHidden()) return visual;
  if (header.isSectionHidden(logical)) return -1;
  int shown = 0;
  for (int before = 0; before < visual; ++before)
    shown += header.isSectionHidden(header.logicalIndex(before)) ? 0 : 1;
  return shown;
}

int shownColumnCount(const QAbstractItemView& view)
{
  if (!view.model()) return 0;
  if (const QHeaderView* header = columnHeader(view)) return shownCount(*header);
  return qobject_cast<const QListView*>(&view) ? 1 : view.model()->columnCount(view.rootIndex());
}

int logicalColumn(const QAbstractItemView& view, int shownColumn)
{
  if (shownColumn < 0 || shownColumn >= shownColumnCount(view)) return -1;
  if (const QHeaderView* header = columnHeader(view)) return logicalSection(*header, shownColumn);
  const auto* list = qobject_cast<const QListView*>(&view);
  return list ? list->modelColumn() : shownColumn;
}

int shownColumn(const QAbstractItemView& view, int logicalColumn)
{
  if (const QHeaderView* header = columnHeader(view)) return shownSection(*header, logicalColumn);
  const auto* list = qobject_cast<const QListView*>(&view);
  return !list ? logicalColumn : list->modelColumn() == logicalColumn ? 0 : -1;
}

} // namespace wayvane::qt
