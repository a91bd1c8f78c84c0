#pragma once

#include <QAbstractItemView>
#include <QModelIndex>

class QHeaderView;

namespace wayvane::qt {

/// The item view in which the widget may be set on an item, or edit one; null when it is in none.
[[nodiscard]] QAbstractItemView* itemViewOfCell(const QWidget& widget);
/// The item on which the widget is set; invalid when it is on none.
[[nodiscard]] QModelIndex indexOfCell(const QAbstractItemView& view, const QWidget& cell);

/// How far the contents are scrolled, in pixels, whatever the view's scroll bars count.
[[nodiscard]] QPoint scrollOffset(const QAbstractItemView& view);
/// Performs the layout that the view has put off.
void layOutItems(const QAbstractItemView& view);

/// Null for views without one.
[[nodiscard]] const QHeaderView* columnHeader(const QAbstractItemView& view);
[[nodiscard]] const QHeaderView* rowHeader(const QAbstractItemView& view);

// "Shown" numbers count what is shown, in the order shown; "logical" ones are the model's. -1 for none.

[[nodiscard]] int shownCount(const QHeaderView& header);
[[nodiscard]] int logicalSection(const QHeaderView& header, int shown);
[[nodiscard]] int shownSection(const QHeaderView& header, int logical);
[[nodiscard]] int shownColumnCount(const QAbstractItemView& view);
[[nodiscard]] int logicalColumn(const QAbstractItemView& view, int shownColumn);
[[nodiscard]] int shownColumn(const QAbstractItemView& view, int logicalColumn);

} // namespace wayvane::qt
