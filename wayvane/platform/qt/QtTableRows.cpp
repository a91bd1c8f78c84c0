#include <wayvane/platform/qt/QtItemViews.h>
#include <wayvane/platform/qt/QtTableRows.h>

#include <QHeaderView>
#include <QTreeView>

#include <cstdlib>

namespace wayvane::qt {

namespace {

/// The first (or last) child that is not hidden; invalid when there is none.
QModelIndex shownChild(const QTreeView& tree, const QModelIndex& parent, bool last)
{
  const QAbstractItemModel& model = *tree.model();
  const int count = model.rowCount(parent);
  for (int i = 0; i < count; ++i) {
    const int row = last ? count - 1 - i : i;
    if (!tree.isRowHidden(row, parent)) return model.index(row, 0, parent);
  }
  return {};
}

QModelIndex lastShown(const QTreeView& tree)
{
  QModelIndex result = shownChild(tree, tree.rootIndex(), true);
  while (result.isValid() && tree.isExpanded(result)) {
    const QModelIndex child = shownChild(tree, result, true);
    if (!child.isValid()) break;
    result = child;
  }
  return result;
}

int topOf(const QTreeView& tree, const QModelIndex& index)
{
  return tree.visualRect(index).top() + scrollOffset(tree).y();
}

} // namespace

bool QtTableRows::Mark::holds(const QTreeView& tree) const
{
  return index.isValid() && index.model() == tree.model() && !tree.visualRect(index).isEmpty() &&
         topOf(tree, index) == top;
}

void QtTableRows::place(Mark& mark, const QTreeView& tree, const QModelIndex& index, int row)
{
  mark = {QPersistentModelIndex(index), row, topOf(tree, index)};
}

int QtTableRows::countTree(const QTreeView& tree)
{
  const QModelIndex last = lastShown(tree);
  if (!last.isValid()) return 0;
  if (last_.index == last && last_.holds(tree)) return last_.row + 1;
  int count = 0;
  for (QModelIndex index = shownChild(tree, tree.rootIndex(), false);
       index.isValid() && count < kMostTreeRows; index = tree.indexBelow(index))
    ++count;
  place(last_, tree, last, count - 1);
  return count;
}

QModelIndex QtTableRows::indexInTree(const QTreeView& tree, int row)
{
  QModelIndex index = shownChild(tree, tree.rootIndex(), false);
  int at = 0;
  if (found_.holds(tree) && std::abs(row - found_.row) < row) {
    index = found_.index;
    at = found_.row;
  }
  for (; at < row && index.isValid(); ++at)
    index = tree.indexBelow(index);
  for (; at > row && index.isValid(); --at)
    index = tree.indexAbove(index);
  if (index.isValid()) place(found_, tree, index, row);
  return index;
}

int QtTableRows::count(const QAbstractItemView& view)
{
  if (!view.model()) return 0;
  if (const auto* tree = qobject_cast<const QTreeView*>(&view)) return countTree(*tree);
  if (const QHeaderView* header = rowHeader(view)) return shownCount(*header);
  return view.model()->rowCount(view.rootIndex());
}

QModelIndex QtTableRows::indexOfRow(const QAbstractItemView& view, int row)
{
  if (!view.model() || row < 0) return {};
  if (const auto* tree = qobject_cast<const QTreeView*>(&view))
    return row < kMostTreeRows ? indexInTree(*tree, row) : QModelIndex();
  const QHeaderView* header = rowHeader(view);
  const int logical = header ? logicalSection(*header, row) : row;
  if (logical < 0 || logical >= view.model()->rowCount(view.rootIndex())) return {};
  return view.model()->index(logical, 0, view.rootIndex());
}

int QtTableRows::rowOfIndex(const QAbstractItemView& view, const QModelIndex& index)
{
  if (!index.isValid()) return -1;
  if (const auto* tree = qobject_cast<const QTreeView*>(&view)) {
    const QModelIndex first = index.siblingAtColumn(0);
    if (tree->visualRect(first).isEmpty() && tree->visualRect(index).isEmpty()) return -1;
    if (found_.index == first && found_.holds(*tree)) return found_.row;
    int row = 0;
    for (QModelIndex above = tree->indexAbove(first); above.isValid() && row < kMostTreeRows; ++row)
      above = tree->indexAbove(above);
    place(found_, *tree, first, row);
    return row;
  }
  const QHeaderView* header = rowHeader(view);
  return header ? shownSection(*header, index.row()) : index.row();
}

} // namespace wayvane::qt
