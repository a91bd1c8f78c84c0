#pragma once

#include <QAbstractItemView>
#include <QPersistentModelIndex>

class QTreeView;

namespace wayvane::qt {

/// The rows of an item view as its user counts them: those of a tree run through all open branches. Rows that
/// a list hides count nevertheless, with an empty rectangle, because a list does not tell how many it hides.
///
/// A tree knows no row numbers, so finding one takes steps from row to row; the last one found is remembered,
/// which makes going through all rows cheap.
class QtTableRows {
public:
  /// No more rows of a tree than this are counted.
  static constexpr int kMostTreeRows = 1'000'000;

  [[nodiscard]] int count(const QAbstractItemView& view);
  /// The item in the row, in the model's first column; invalid out of range.
  [[nodiscard]] QModelIndex indexOfRow(const QAbstractItemView& view, int row);
  /// -1 for an invalid index, and for one that is not shown.
  [[nodiscard]] int rowOfIndex(const QAbstractItemView& view, const QModelIndex& index);

private:
  /// An item of which the row was known when it lay at that height.
  struct Mark {
    QPersistentModelIndex index;
    int row = 0;
    int top = 0;
    /// Whether the tree still has it in the same place, so that the row holds.
    [[nodiscard]] bool holds(const QTreeView& tree) const;
  };

  static void place(Mark& mark, const QTreeView& tree, const QModelIndex& index, int row);
  [[nodiscard]] int countTree(const QTreeView& tree);
  [[nodiscard]] QModelIndex indexInTree(const QTreeView& tree, int row);

  Mark found_;
  Mark last_;
};

} // namespace wayvane::qt
