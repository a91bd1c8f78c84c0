#include "Failures.h"
#include "Table.h"

#include <algorithm>

namespace wayvane::sim {

void TableView::addRow(const std::vector<std::string>& texts, platform::ModelObjectHandle model)
{
  TableRow row{std::move(model), {}, {}};
  for (const std::string& text : texts)
    row.cells.push_back(drawnCell(text));
  addRow(std::move(row));
}

void TableView::addRow(TableRow row)
{
  insertRow(static_cast<int>(rows_.size()), std::move(row));
}

void TableView::insertRow(int index, TableRow row)
{
  rows_.insert(rows_.begin() + index, std::move(row));
  rowsChanged();
}

void TableView::removeRow(int index)
{
  rows_.erase(rows_.begin() + index);
  rowsChanged();
}

void TableView::clearRows()
{
  rows_.clear();
  rowsChanged();
}

void TableView::reorderRows(const std::vector<int>& order)
{
  if (order.size() != rows_.size()) return reportFailure("the new order needs every row once");
  std::vector<TableRow> rows;
  for (const int index : order)
    rows.push_back(rows_.at(static_cast<std::size_t>(index)));
  rows_ = std::move(rows);
  rowsChanged();
}

TableRow& TableView::row(int index)
{
  return rows_.at(static_cast<std::size_t>(index));
}

void TableView::moveColumn(int from, int to)
{
  const TableColumn column = columns_.at(static_cast<std::size_t>(from));
  columns_.erase(columns_.begin() + from);
  columns_.insert(columns_.begin() + to, column);
  for (TableRow& row : rows_) {
    row.cells.resize(columns_.size());
    const platform::TableCell cell = row.cells.at(static_cast<std::size_t>(from));
    row.cells.erase(row.cells.begin() + from);
    row.cells.insert(row.cells.begin() + to, cell);
  }
  rowsChanged();
}

double TableView::contentHeight() const
{
  return rowHeight_ * static_cast<double>(rows_.size());
}

void TableView::setFitsRows(bool fits)
{
  fitsRows_ = fits;
  rowsChanged();
}

void TableView::rowsChanged()
{
  dropViews();
  if (!fitsRows_) return;
  platform::Rect fitting = frame();
  fitting.height = contentHeight();
  setFrame(fitting);
}

void TableView::dropViews()
{
  for (const RowViews& views : views_)
    if (views.row) views.row->destroy();
  views_.clear();
}

} // namespace wayvane::sim
