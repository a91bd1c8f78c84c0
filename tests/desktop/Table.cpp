#include "Table.h"

#include "Desktop.h"

#include <cmath>

namespace wayvane::sim {

using platform::MakeIfNecessary;
using platform::Point;
using platform::Rect;

TableView::TableView(Desktop& desktop, const ClassInfo& info, const TableViewOptions& options)
  : Control(desktop, info, options.frame, true)
  , columns_(options.columns)
  , rowHeight_(options.rowHeight)
  , viewBased_(options.viewBased)
{
  applyClues(options);
  setAction(options.action);
}

bool TableView::hasRow(int row) const
{
  return isAlive() && row >= 0 && static_cast<std::size_t>(row) < rows_.size();
}

bool TableView::hasColumn(int column) const
{
  return isAlive() && column >= 0 && static_cast<std::size_t>(column) < columns_.size();
}

int TableView::numberOfRows() const
{
  return isAlive() ? static_cast<int>(rows_.size()) : 0;
}

int TableView::numberOfColumns() const
{
  return isAlive() ? static_cast<int>(columns_.size()) : 0;
}

Text TableView::identifierOfColumn(int column) const
{
  return hasColumn(column) ? columns_[static_cast<std::size_t>(column)].identifier : std::nullopt;
}

Text TableView::targetBindingSelectorOfColumn(int column) const
{
  return hasColumn(column) ? columns_[static_cast<std::size_t>(column)].targetBindingSelector : std::nullopt;
}

int TableView::rowAtPoint(Point point) const
{
  if (!bounds().contains(point)) return -1;
  const int row = static_cast<int>(std::floor(point.y / rowHeight_));
  return hasRow(row) ? row : -1;
}

int TableView::columnAtPoint(Point point) const
{
  if (!bounds().contains(point)) return -1;
  double right = 0;
  for (int column = 0; column < numberOfColumns(); ++column) {
    right += columns_[static_cast<std::size_t>(column)].width;
    if (point.x < right) return column;
  }
  return -1;
}

Rect TableView::rectOfRow(int row) const
{
  return hasRow(row) ? Rect{0, row * rowHeight_, frame().width, rowHeight_} : Rect{};
}

Rect TableView::frameOfCell(int column, int row) const
{
  if (!hasRow(row) || !hasColumn(column)) return {};
  double left = 0;
  for (int before = 0; before < column; ++before)
    left += columns_[static_cast<std::size_t>(before)].width;
  return {left, row * rowHeight_, columns_[static_cast<std::size_t>(column)].width, rowHeight_};
}

std::optional<platform::TableCell> TableView::preparedCell(int column, int row) const
{
  if (!hasRow(row) || !hasColumn(column)) return std::nullopt;
  const auto& cells = rows_[static_cast<std::size_t>(row)].cells;
  const auto index = static_cast<std::size_t>(column);
  return index < cells.size() ? cells[index] : platform::TableCell{};
}

platform::ModelObjectHandle TableView::modelObjectOfRow(int column, int row) const
{
  const bool knows = knowsModels_ && hasRow(row) && hasColumn(column);
  return knows ? rows_[static_cast<std::size_t>(row)].model : nullptr;
}

std::vector<platform::AccessibilityChild> TableView::accessibilityChildrenOfRow(int row) const
{
  if (!hasRow(row)) return {};
  return rows_[static_cast<std::size_t>(row)].accessibilityChildren;
}

void TableView::layoutIfNeeded() const
{
  if (isAlive()) ++layouts_;
}

namespace {

const ScrollView* scrollViewAround(const View& view)
{
  for (const View* above = view.parent(); above; above = above->parent())
    if (const auto* scroll = dynamic_cast<const ScrollView*>(above)) return scroll;
  return nullptr;
}

/// The least movement that brings `low`..`high` into `start`..`start + length`.
double nearestStart(double start, double length, double low, double high)
{
  if (low < start) return low;
  return high > start + length ? high - length : start;
}

} // namespace

void TableView::scrollRowToVisible(int row, platform::ScrollAnimation animation) const
{
  const ScrollView* scroll = hasRow(row) ? scrollViewAround(*this) : nullptr;
  if (isAlive()) scrolledRows_.push_back(row);
  if (scroll) {
    const Rect visible = scroll->documentVisibleRect(), rect = rectOfRow(row);
    const double y = nearestStart(visible.y, visible.height, rect.y, rect.maxY());
    return scroll->scrollToOrigin({visible.x, y}, std::move(animation));
  }
  if (isAlive() && animation.completion && animation.duration > 0)
    desktop().clock().after(animation.duration, std::move(animation.completion));
  else
    completeWithoutView(std::move(animation));
}

const void* TableView::role(platform::ViewKind kind) const
{
  if (kind == platform::ViewKind::TableView && isAlive())
    return static_cast<const platform::TableView*>(this);
  return Control::role(kind);
}

} // namespace wayvane::sim
