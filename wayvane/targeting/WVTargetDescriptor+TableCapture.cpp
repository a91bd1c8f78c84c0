#include <wayvane/platform/ViewRoles.h>
#include <wayvane/targeting/CaptureClues.h>
#include <wayvane/targeting/ViewProperties.h>

#include <array>

namespace wayvane::capture {

using platform::Point;
using platform::TableView;
using platform::View;
using platform::ViewHandle;
using platform::ViewKind;

namespace {

constexpr std::array<std::string_view, 9> kIdentityKeys = {
    "identifier", "uid", "id", "uuid", "uniqueIdentifier", "objectID", "persistentID", "name", "title"};

// A name of the model object that stays the same when rows are sorted or inserted.
std::optional<std::string> identifierFromObject(const platform::ModelObjectHandle& object)
{
  using Form = platform::ModelValue::Form;
  if (!object) return std::nullopt;
  if (auto text = object->asString()) return text;
  for (const auto key : kIdentityKeys) {
    const auto value = object->valueForKey(key);
    const bool isText = value.form == Form::String || value.form == Form::Number;
    if (value.form == Form::Uri || (isText && !value.text.empty())) {
      return std::string(key) + ":" + value.text;
    }
  }
  return std::nullopt;
}

void describeColumn(const TableView& table, int column, WVTargetDescriptor& descriptor)
{
  if (column < 0 || column >= table.numberOfColumns()) return;
  descriptor.tableColumnIdentifier = clue(table.identifierOfColumn(column));
  descriptor.tableColumn = column;
}

void describeCellView(const View& cell, WVTargetDescriptor& descriptor)
{
  descriptor.cellIdentifier = clue(cell.identifier());
  if (const auto* tableCell = cell.as<platform::TableCellView>()) {
    descriptor.objectIdentifier = clue(identifierFromObject(tableCell->objectValue()));
  }
}

struct Surroundings {
  ViewHandle table;
  /// The table cell view nearest to the table or, without one, the first named view on the way.
  ViewHandle cell;
};

Surroundings surroundingsOf(const ViewHandle& element)
{
  Surroundings around;
  for (auto view = element; view; view = view->superview()) {
    if (view->isKind(ViewKind::TableView)) {
      around.table = view;
      break;
    }
    const bool isNamed = !around.cell && WVIsMeaningfulIdentifier(view->identifier());
    if (isNamed || view->isKind(ViewKind::TableCellView)) around.cell = view;
  }
  return around;
}

void describeAction(const TableView& table, int column, const std::optional<platform::TableCell>& cell,
                    WVTargetDescriptor& descriptor)
{
  if (cell && cell->action) descriptor.action = clue(cell->action);
  if (descriptor.action) return;
  auto selector = table.targetBindingSelectorOfColumn(column);
  if (selector && !selector->empty()) descriptor.action = clue(std::move(selector));
}

// What assistive technology would read out for the cell, found by its place on the screen.
std::string spokenLabel(const View& view, const TableView& table, int column, int row)
{
  const auto window = view.window();
  if (!window) return {};
  const auto frame = view.convertRectToWindow(table.frameOfCell(column, row));
  const Point center = window->convertRectToScreen(frame).center();
  for (const auto& child : table.accessibilityChildrenOfRow(row)) {
    const bool isThere = child.screenFrame && child.screenFrame->contains(center);
    if (isThere && child.label && !child.label->empty()) return *child.label;
  }
  return {};
}

void describeTitle(std::string label, const std::optional<platform::TableCell>& cell,
                   WVTargetDescriptor& descriptor)
{
  if (descriptor.title) return;
  if (!label.empty()) {
    descriptor.title = clue(std::move(label));
  } else if (cell && !cell->isButton && !cell->stringValue.empty()) {
    descriptor.title = clue(cell->stringValue);
  }
}

} // namespace

ViewHandle viewBelowPress(const ViewHandle& view, Point location)
{
  const auto* table = view->as<TableView>();
  if (!table) return view;
  const Point point = view->convertPointFromWindow(location);
  const int row = table->rowAtPoint(point);
  const int column = table->columnAtPoint(point);
  if (row < 0 || column < 0) return view;
  auto cell = table->viewAtColumnRow(column, row, platform::MakeIfNecessary::No);
  if (!cell) return view;
  auto hit = cell->hitTest(location);
  return hit ? hit : cell;
}

void describeRowOfView(const ViewHandle& view, WVTargetDescriptor& descriptor)
{
  const auto [tableView, cell] = surroundingsOf(view);
  const auto* table = tableView ? tableView->as<TableView>() : nullptr;
  if (!table || isSameView(tableView, view)) return;
  const int row = table->rowForView(*view);
  if (row < 0) return;
  descriptor.tableRow = row;
  descriptor.tableIdentifier = clue(tableView->accessibilityIdentifier());
  describeColumn(*table, table->columnForView(*view), descriptor);
  if (cell) describeCellView(*cell, descriptor);
}

void describeDrawnCell(const View& view, Point location, WVTargetDescriptor& descriptor)
{
  const auto* table = view.as<TableView>();
  if (!table) return;
  const Point point = view.convertPointFromWindow(location);
  const int row = table->rowAtPoint(point);
  if (row < 0) return;
  descriptor.tableRow = row;
  descriptor.tableIdentifier = clue(view.accessibilityIdentifier());
  const int column = table->columnAtPoint(point);
  if (column < 0 || column >= table->numberOfColumns()) return;
  describeColumn(*table, column, descriptor);
  descriptor.objectIdentifier = clue(identifierFromObject(table->modelObjectOfRow(column, row)));
  const auto cell = table->preparedCell(column, row);
  describeAction(*table, column, cell, descriptor);
  auto label = cell ? cell->accessibilityLabel.value_or("") : std::string();
  if (label.empty()) label = spokenLabel(view, *table, column, row);
  describeTitle(std::move(label), cell, descriptor);
}

} // namespace wayvane::capture
