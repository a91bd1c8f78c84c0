#include <wayvane/model/WVTargetDescriptor.h>
#include <wayvane/platform/ViewRoles.h>
#include <wayvane/targeting/TableResolution.h>
#include <wayvane/targeting/ViewFinding.h>

#include <algorithm>
#include <limits>

namespace wayvane {

using platform::MakeIfNecessary;
using platform::TableView;
using platform::View;
using platform::ViewHandle;
using platform::ViewKind;

namespace {

constexpr std::string_view kGeneratedColumnPrefix = "AutomaticTableColumnIdentifier";

// A row or column as far as a table could have it.
int tableIndex(std::int64_t recorded)
{
  using Limits = std::numeric_limits<int>;
  return static_cast<int>(std::clamp<std::int64_t>(recorded, Limits::min(), Limits::max()));
}

int columnWithIdentifier(const TableView& table, const std::string& identifier)
{
  const int count = table.numberOfColumns();
  for (int column = 0; column < count; ++column) {
    if (table.identifierOfColumn(column) == identifier) return column;
  }
  return -1;
}

platform::ModelObjectHandle objectInRow(const TableView& table, int column, int row)
{
  const auto view = table.viewAtColumnRow(column, row, MakeIfNecessary::Yes);
  if (!view) return table.modelObjectOfRow(column, row);
  const auto* cell = view->as<platform::TableCellView>();
  return cell ? cell->objectValue() : nullptr;
}

// A URI is left out: it has no text form that the recorded identifier could be compared with.
bool hasValue(const platform::ModelObjectHandle& object, std::string_view key, std::string_view text)
{
  using Form = platform::ModelValue::Form;
  if (!object) return false;
  const auto value = object->valueForKey(key);
  return (value.form == Form::String || value.form == Form::Number) && value.text == text;
}

bool isDrawnCell(const TableView& table, int column, int row)
{
  return column >= 0 && !table.viewAtColumnRow(column, row, MakeIfNecessary::No);
}

ViewHandle tableInContent(const WVTargetDescriptor& descriptor, const View& content,
                          const HierarchyPath* path)
{
  if (descriptor.tableIdentifier) {
    const platform::SearchText identifier(*descriptor.tableIdentifier);
    auto table = wv_viewWithAccessibilityIdentifier(content, identifier);
    if (table && table->isKind(ViewKind::TableView)) return table;
  }
  if (const auto pathOfTable = path ? path->upToFirstTable() : std::nullopt) {
    auto table = pathOfTable->viewNear(content);
    if (table && table->isKind(ViewKind::TableView)) return table;
  }
  return wv_viewOfKind(content, ViewKind::TableView);
}

// The recorded path behind the component that names the cell's class.
std::optional<std::string_view> pathInsideCell(std::string_view path, std::string_view cellClass)
{
  const auto start = path.find(cellClass);
  if (cellClass.empty() || start == std::string_view::npos) return std::nullopt;
  const auto afterName = start + cellClass.size();
  const auto bracket = path.find(']', afterName);
  const auto separator = bracket == std::string_view::npos ? afterName : bracket + 1;
  if (separator >= path.size() || path[separator] != '/') return std::nullopt;
  return path.substr(separator + 1);
}

ViewHandle viewInCell(const WVTargetDescriptor& descriptor, const ViewHandle& cell)
{
  const auto cellClass = cell->className();
  const std::string wholePath = descriptor.hierarchyPath.value_or("");
  if (const auto path = pathInsideCell(wholePath, cellClass)) {
    if (auto view = wv_viewAtHierarchyPath(*cell, *path)) return view;
  }
  if (descriptor.className && *descriptor.className != cellClass) {
    const auto viewClass = classNamed(*descriptor.className);
    if (auto view = viewClass ? wv_viewOfClass(*cell, *viewClass) : nullptr) return view;
  }
  return cell;
}

ViewHandle viewInRow(const WVTargetDescriptor& descriptor, const ViewHandle& tableView, int row)
{
  const auto& table = *tableView->as<TableView>();
  if (descriptor.className && isNameOfKind(*descriptor.className, ViewKind::TableRowView)) {
    if (auto rowView = table.rowViewAtRow(row, MakeIfNecessary::Yes)) return rowView;
  }
  table.layoutIfNeeded();
  const int column = std::max(descriptor.resolveColumnInTable(table), 0);
  const auto cell = table.viewAtColumnRow(column, row, MakeIfNecessary::Yes);
  return cell ? viewInCell(descriptor, cell) : tableView;
}

} // namespace

namespace resolution {

ViewHandle viewAtTableRow(const WVTargetDescriptor& descriptor, const View& content,
                          const HierarchyPath* path)
{
  if (descriptor.tableRow < 0) return nullptr;
  const auto tableView = tableInContent(descriptor, content, path);
  const auto* table = tableView ? tableView->as<TableView>() : nullptr;
  if (!table) return nullptr;
  const int row = descriptor.resolveRowInTable(*table);
  return row >= 0 && row < table->numberOfRows() ? viewInRow(descriptor, tableView, row) : nullptr;
}

platform::Rect rectInTable(const WVTargetDescriptor& descriptor, const TableView& table)
{
  const int row = descriptor.resolveRowInTable(table);
  const int column = descriptor.resolveColumnInTable(table);
  return isDrawnCell(table, column, row) ? table.frameOfCell(column, row) : table.rectOfRow(row);
}

} // namespace resolution

int WVTargetDescriptor::resolveColumnInTable(const TableView& table) const
{
  const bool isGenerated =
      tableColumnIdentifier && tableColumnIdentifier->starts_with(kGeneratedColumnPrefix);
  if (tableColumnIdentifier && !isGenerated) {
    const int column = columnWithIdentifier(table, *tableColumnIdentifier);
    if (column >= 0) return column;
  }
  if (tableColumn >= 0 && tableColumn < table.numberOfColumns()) return tableIndex(tableColumn);
  return tableColumnIdentifier ? columnWithIdentifier(table, *tableColumnIdentifier) : -1;
}

int WVTargetDescriptor::resolveRowInTable(const TableView& table) const
{
  const auto identifier = std::string_view(objectIdentifier ? *objectIdentifier : std::string_view());
  const auto colon = identifier.find(':');
  if (colon == std::string_view::npos) return tableIndex(tableRow);
  const auto key = identifier.substr(0, colon);
  const auto value = identifier.substr(colon + 1);
  const int column = std::max(resolveColumnInTable(table), 0);
  for (int row = 0; row < table.numberOfRows(); ++row) {
    if (hasValue(objectInRow(table, column, row), key, value)) return row;
  }
  return tableIndex(tableRow);
}

platform::ImageHandle WVTargetDescriptor::iconForResolvedView(const ViewHandle& view) const
{
  const auto* table = view && tableRow >= 0 ? view->as<TableView>() : nullptr;
  if (!table) return nullptr;
  const int row = resolveRowInTable(*table);
  if (row < 0 || row >= table->numberOfRows()) return nullptr;
  const int column = resolveColumnInTable(*table);
  const auto cell = isDrawnCell(*table, column, row) ? table->preparedCell(column, row) : std::nullopt;
  return cell ? cell->image : nullptr;
}

} // namespace wayvane
