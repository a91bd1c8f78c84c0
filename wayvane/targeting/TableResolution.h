#pragma once

#include <wayvane/model/WVTargetDescriptor.h>
#include <wayvane/targeting/HierarchyPath.h>

namespace wayvane::resolution {

/// The element at the row the descriptor tells, below `content`: the row's view, a view in the cell, the cell
/// or, where the table draws its cells, the table. Null when there is no such table or row. `path` is the
/// descriptor's, or null. May create the cell's view.
[[nodiscard]] platform::ViewHandle viewAtTableRow(const WVTargetDescriptor& descriptor,
                                                  const platform::View& content, const HierarchyPath* path);

/// The rectangle, in the table's own coordinates, of the row or, where it is drawn, of the cell; the zero
/// rectangle when the table has no such row.
[[nodiscard]] platform::Rect rectInTable(const WVTargetDescriptor& descriptor,
                                         const platform::TableView& table);

} // namespace wayvane::resolution
