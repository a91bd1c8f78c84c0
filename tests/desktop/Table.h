#pragma once

#include <tests/desktop/Model.h>
#include <tests/desktop/Roles.h>

namespace wayvane::sim {

/// What one row shows. `cells` by column: drawn as they are, or, in a view-based table, the text of the label
/// in the cell view.
struct TableRow {
  platform::ModelObjectHandle model{};
  std::vector<platform::TableCell> cells{};
  std::vector<platform::AccessibilityChild> accessibilityChildren{};
};

/// A cell that draws a text.
[[nodiscard]] inline platform::TableCell drawnCell(std::string text, Text action = {}, Text label = {})
{
  platform::TableCell cell;
  cell.stringValue = std::move(text);
  cell.action = std::move(action);
  cell.accessibilityLabel = std::move(label);
  return cell;
}

class TableCellView : public View, public platform::TableCellView {
public:
  TableCellView(Desktop& desktop, const ClassInfo& info, const platform::Rect& frame,
                platform::ModelObjectHandle model);
  [[nodiscard]] platform::ModelObjectHandle objectValue() const override;

protected:
  [[nodiscard]] const void* role(platform::ViewKind kind) const override;

private:
  platform::ModelObjectHandle model_;
};

/// A flipped table of rows of one height, with or without views.
class TableView : public Control, public platform::TableView {
public:
  /// Makes the view of a cell, below the row view and at `frame`. May answer null.
  using CellMaker = std::function<View*(View& rowView, const platform::Rect& frame, int column, int row)>;

  TableView(Desktop& desktop, const ClassInfo& info, const TableViewOptions& options);

  /// The row that `cells` texts make.
  void addRow(const std::vector<std::string>& texts, platform::ModelObjectHandle model = nullptr);
  void addRow(TableRow row);
  void insertRow(int index, TableRow row);
  void removeRow(int index);
  void clearRows();
  /// `order[i]` is the present index of the row that comes to index i. Cell views are made anew.
  void reorderRows(const std::vector<int>& order);
  [[nodiscard]] TableRow& row(int index);
  void moveColumn(int from, int to);

  /// In place of the built-in one: an NSTableCellView that holds a label with the cell's text.
  void setCellMaker(CellMaker maker) { makeCell_ = std::move(maker); }

  /// A cell view of the built-in kind; for cell makers that add to it.
  TableCellView& makeCellView(View& rowView, const platform::Rect& frame, int column, int row);

  /// Makes the views of the cells in sight, as a table does when it is drawn.
  void makeVisibleCells();
  /// The view at a cell, made if necessary; null in a table of drawn cells.
  View* cellAt(int column, int row);
  /// The middle of a cell, in screen coordinates.
  [[nodiscard]] platform::Point screenCenterOfCell(int column, int row) const;

  /// How many cell views were made, and how often layout was asked for.
  [[nodiscard]] int cellsMade() const { return cellsMade_; }

  [[nodiscard]] int layouts() const { return layouts_; }

  /// Rows scrolled to, as asked.
  [[nodiscard]] const std::vector<int>& scrolledRows() const { return scrolledRows_; }

  /// Lets `modelObjectOfRow` answer.
  void setKnowsModelsOfDrawnRows(bool knows) { knowsModels_ = knows; }

  /// Keeps the table as high as its rows, as the document of a scroll view.
  void setFitsRows(bool fits);

  /// The height that all rows take.
  [[nodiscard]] double contentHeight() const;

  [[nodiscard]] int numberOfRows() const override;
  [[nodiscard]] int numberOfColumns() const override;
  [[nodiscard]] Text identifierOfColumn(int column) const override;
  [[nodiscard]] Text targetBindingSelectorOfColumn(int column) const override;
  [[nodiscard]] int rowAtPoint(platform::Point point) const override;
  [[nodiscard]] int columnAtPoint(platform::Point point) const override;
  [[nodiscard]] platform::ViewHandle viewAtColumnRow(int column, int row,
                                                     platform::MakeIfNecessary make) const override;
  [[nodiscard]] platform::ViewHandle rowViewAtRow(int row, platform::MakeIfNecessary make) const override;
  [[nodiscard]] int rowForView(const platform::View& view) const override;
  [[nodiscard]] int columnForView(const platform::View& view) const override;
  [[nodiscard]] platform::Rect rectOfRow(int row) const override;
  [[nodiscard]] platform::Rect frameOfCell(int column, int row) const override;
  [[nodiscard]] std::optional<platform::TableCell> preparedCell(int column, int row) const override;
  [[nodiscard]] platform::ModelObjectHandle modelObjectOfRow(int column, int row) const override;
  [[nodiscard]] std::vector<platform::AccessibilityChild> accessibilityChildrenOfRow(int row) const override;
  void layoutIfNeeded() const override;
  void scrollRowToVisible(int row, platform::ScrollAnimation animation) const override;

protected:
  [[nodiscard]] const void* role(platform::ViewKind kind) const override;

private:
  struct RowViews {
    View* row = nullptr;
    std::vector<View*> cells;
  };

  [[nodiscard]] bool hasRow(int row) const;
  [[nodiscard]] bool hasColumn(int column) const;
  void rowsChanged();
  void dropViews();
  View* makeRowView(int row);

  std::vector<TableColumn> columns_;
  double rowHeight_;
  bool viewBased_;
  bool knowsModels_ = false;
  bool fitsRows_ = false;
  std::vector<TableRow> rows_;
  std::vector<RowViews> views_;
  CellMaker makeCell_;
  int cellsMade_ = 0;
  mutable int layouts_ = 0;
  mutable std::vector<int> scrolledRows_;
};

} // namespace wayvane::sim
