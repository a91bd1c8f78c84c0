#include "Desktop.h"
#include "Table.h"

namespace wayvane::sim {

using platform::MakeIfNecessary;
using platform::Rect;
using platform::ViewHandle;

TableCellView::TableCellView(Desktop& desktop, const ClassInfo& info, const Rect& frame,
                             platform::ModelObjectHandle model)
  : View(desktop, info, frame)
  , model_(std::move(model))
{}

platform::ModelObjectHandle TableCellView::objectValue() const
{
  return isAlive() ? model_ : nullptr;
}

const void* TableCellView::role(platform::ViewKind kind) const
{
  if (kind == platform::ViewKind::TableCellView && isAlive())
    return static_cast<const platform::TableCellView*>(this);
  return View::role(kind);
}

View* TableView::makeRowView(int row)
{
  views_.resize(rows_.size());
  RowViews& views = views_[static_cast<std::size_t>(row)];
  if (views.row && views.row->isAlive()) return views.row;
  views.row = &addView("NSTableRowView", {.frame = rectOfRow(row)});
  views.cells.assign(columns_.size(), nullptr);
  return views.row;
}

TableCellView& TableView::makeCellView(View& rowView, const Rect& frame, int column, int row)
{
  const ClassInfo& info = *desktop().application().classes.find("NSTableCellView");
  const platform::ModelObjectHandle model = rows_[static_cast<std::size_t>(row)].model;
  TableCellView& cell = rowView.adopt(std::make_shared<TableCellView>(desktop(), info, frame, model));
  cell.setIdentifier(identifierOfColumn(column));
  const auto drawn = preparedCell(column, row);
  cell.addTextField({.value = drawn ? drawn->stringValue : std::string(),
                     .frame = {2, 2, frame.width - 4, frame.height - 4}});
  return cell;
}

View* TableView::cellAt(int column, int row)
{
  if (!viewBased_ || !hasRow(row) || !hasColumn(column)) return nullptr;
  View* rowView = makeRowView(row);
  View*& cell = views_[static_cast<std::size_t>(row)].cells[static_cast<std::size_t>(column)];
  if (cell && cell->isAlive()) return cell;
  Rect frame = frameOfCell(column, row);
  frame.y = 0;
  cell = makeCell_ ? makeCell_(*rowView, frame, column, row) : &makeCellView(*rowView, frame, column, row);
  if (cell) ++cellsMade_;
  return cell;
}

ViewHandle TableView::viewAtColumnRow(int column, int row, MakeIfNecessary make) const
{
  if (!viewBased_ || !hasRow(row) || !hasColumn(column)) return nullptr;
  if (make == MakeIfNecessary::Yes) {
    // Asking for a view may make it, although nothing about the table itself changes.
    const View* cell = const_cast<TableView*>(this)->cellAt(column, row);
    return cell ? cell->handle() : nullptr;
  }
  const auto r = static_cast<std::size_t>(row), c = static_cast<std::size_t>(column);
  const bool exists = r < views_.size() && c < views_[r].cells.size() && views_[r].cells[c];
  return exists ? views_[r].cells[c]->handle() : nullptr;
}

ViewHandle TableView::rowViewAtRow(int row, MakeIfNecessary make) const
{
  if (!viewBased_ || !hasRow(row)) return nullptr;
  if (make == MakeIfNecessary::Yes) return const_cast<TableView*>(this)->makeRowView(row)->handle();
  const auto r = static_cast<std::size_t>(row);
  return r < views_.size() && views_[r].row ? views_[r].row->handle() : nullptr;
}

namespace {

bool isInside(const platform::View& view, const View* outer)
{
  for (const View* v = dynamic_cast<const View*>(&view); v; v = v->parent())
    if (v == outer) return true;
  return false;
}

} // namespace

int TableView::rowForView(const platform::View& view) const
{
  if (!isAlive()) return -1;
  for (std::size_t row = 0; row < views_.size(); ++row)
    if (views_[row].row && isInside(view, views_[row].row)) return static_cast<int>(row);
  return -1;
}

int TableView::columnForView(const platform::View& view) const
{
  const int row = rowForView(view);
  if (row < 0) return -1;
  const auto& cells = views_[static_cast<std::size_t>(row)].cells;
  for (std::size_t column = 0; column < cells.size(); ++column)
    if (cells[column] && isInside(view, cells[column])) return static_cast<int>(column);
  return -1;
}

void TableView::makeVisibleCells()
{
  const Rect visible = visibleScreenFrame();
  for (int row = 0; row < numberOfRows(); ++row) {
    const Rect inWindow = convertRectToWindow(rectOfRow(row));
    if (!window() || !window()->convertRectToScreen(inWindow).intersects(visible)) continue;
    for (int column = 0; column < numberOfColumns(); ++column)
      cellAt(column, row);
  }
}

platform::Point TableView::screenCenterOfCell(int column, int row) const
{
  const auto holder = window();
  return holder ? holder->convertRectToScreen(convertRectToWindow(frameOfCell(column, row))).center()
                : platform::Point{};
}

} // namespace wayvane::sim
