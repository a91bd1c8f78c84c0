#include <tests/targeting/Support.h>

namespace wayvane {

namespace {

sim::TableRow rowOf(const std::string& name, const std::string& uuid)
{
  return {.model = sim::makeModel({{"uuid", sim::textValue(uuid)}, {"id", sim::numberValue("7" + uuid)}}),
          .cells = {cellWithText(name), cellWithText("high")}};
}

} // namespace

class TableResolution : public Targeting {
protected:
  sim::TableView& addTable(const std::string& identifier, bool viewBased = true)
  {
    auto& table = content.addTableView({.columns = {{.identifier = "name"}, {.identifier = "height"}},
                                        .viewBased = viewBased,
                                        .accessibilityIdentifier = identifier});
    for (const std::string uuid : {"A0", "A1", "A2"})
      table.addRow(rowOf("Peak " + uuid, uuid));
    return table;
  }

  [[nodiscard]] platform::ViewHandle found() const { return descriptor.resolveInWindow(nullptr); }

  WVTargetDescriptor descriptor;
};

// Which table

TEST_F(TableResolution, TableIsFoundByItsIdentifier)
{
  addTable("first").setIdentifier("x");
  auto& second = addTable("second");
  descriptor.tableRow = 1;
  descriptor.tableIdentifier = "second";
  descriptor.hierarchyPath = "NSTableView[0]";
  EXPECT_TRUE(isView(found(), *second.cellAt(0, 1)));
}

TEST_F(TableResolution, IdentifierOfSomethingElseLeavesThePath)
{
  addTable("first");
  auto& second = addTable("second");
  content.addButton({.accessibilityIdentifier = "peaks"});
  descriptor.tableRow = 1;
  descriptor.tableIdentifier = "peaks";
  descriptor.hierarchyPath = "NSTableView[1]/NSTableRowView[0]";
  EXPECT_TRUE(isView(found(), *second.cellAt(0, 1)));
}

TEST_F(TableResolution, TableInThePathIsFoundBelowAChangedTop)
{
  addTable("first");
  auto& second = addTable("second");
  descriptor.tableRow = 1;
  descriptor.hierarchyPath = "NSSplitView[0]/NSTableView[1]/NSTableRowView[0]";
  EXPECT_TRUE(isView(found(), *second.cellAt(0, 1)));
}

TEST_F(TableResolution, OutlineInThePathIsATableToo)
{
  addTable("first");
  auto& outline = content.addTableView({.columns = {{}}, .className = "NSOutlineView"});
  outline.addRow({"a"});
  descriptor.tableRow = 0;
  descriptor.hierarchyPath = "NSOutlineView[0]/NSTableRowView[0]";
  EXPECT_TRUE(isView(found(), *outline.cellAt(0, 0)));
}

TEST_F(TableResolution, OnlyTheFirstTableInThePathIsTried)
{
  auto& first = addTable("first");
  addTable("second");
  descriptor.tableRow = 0;
  descriptor.hierarchyPath = "NSTableView[5]/NSTableView[1]";
  EXPECT_TRUE(isView(found(), *first.cellAt(0, 0)));
}

TEST_F(TableResolution, FirstTableServesWithoutIdentifierAndPath)
{
  auto& first = addTable("first");
  addTable("second");
  descriptor.tableRow = 2;
  EXPECT_TRUE(isView(found(), *first.cellAt(0, 2)));
}

TEST_F(TableResolution, RowOutOfRangeLeavesTheOtherStrategies)
{
  addTable("first");
  auto& titled = content.addButton({.title = "Peak"});
  descriptor.title = "Peak";
  for (const std::int64_t row : {std::int64_t{3}, std::int64_t{1} << 40, std::int64_t{1} << 32}) {
    descriptor.tableRow = row;
    EXPECT_TRUE(isView(found(), titled)) << row;
  }
}

TEST_F(TableResolution, WindowWithoutTableLeavesTheOtherStrategies)
{
  auto& titled = content.addButton({.title = "Peak"});
  descriptor.tableRow = 0;
  descriptor.title = "Peak";
  EXPECT_TRUE(isView(found(), titled));
}

TEST_F(TableResolution, NegativeRowIsNoTableRow)
{
  addTable("first");
  auto& titled = content.addButton({.title = "Peak"});
  descriptor.tableRow = -5;
  descriptor.title = "Peak";
  EXPECT_TRUE(isView(found(), titled));
}

// Inside the table

TEST_F(TableResolution, RowViewIsFoundByItsClass)
{
  auto& table = addTable("peaks");
  descriptor.tableRow = 1;
  descriptor.className = "NSTableRowView";
  EXPECT_TRUE(isView(found(), *table.cellAt(0, 1)->parent()));
}

TEST_F(TableResolution, RowViewOfASubclassIsFoundByItsClass)
{
  desktop.defineClass("PeakRowView", "NSTableRowView");
  auto& table = addTable("peaks");
  descriptor.tableRow = 1;
  descriptor.className = "PeakRowView";
  EXPECT_TRUE(isView(found(), *table.cellAt(0, 1)->parent()));
}

TEST_F(TableResolution, RowClassOfADrawnTableGivesTheTable)
{
  auto& table = addTable("peaks", false);
  descriptor.tableRow = 1;
  descriptor.className = "NSTableRowView";
  EXPECT_TRUE(isView(found(), table));
}

TEST_F(TableResolution, DrawnTableIsItselfTheElement)
{
  auto& table = addTable("peaks", false);
  descriptor.tableRow = 1;
  descriptor.tableColumn = 1;
  EXPECT_TRUE(isView(found(), table));
}

TEST_F(TableResolution, CellIsFoundInItsColumn)
{
  auto& table = addTable("peaks");
  descriptor.tableRow = 1;
  descriptor.tableColumnIdentifier = "height";
  const auto cell = found();
  EXPECT_TRUE(isView(cell, *table.cellAt(1, 1)));
}

TEST_F(TableResolution, CellViewIsMadeWhenItIsNotThere)
{
  auto& table = addTable("peaks");
  descriptor.tableRow = 1;
  ASSERT_EQ(table.cellsMade(), 0);
  EXPECT_FALSE(isNothing(found()));
  EXPECT_GT(table.cellsMade(), 0);
}

TEST_F(TableResolution, TableIsLaidOutBeforeItsCellIsTaken)
{
  auto& table = addTable("peaks");
  descriptor.tableRow = 1;
  EXPECT_FALSE(isNothing(found()));
  EXPECT_EQ(table.layouts(), 1);
}

TEST_F(TableResolution, ViewInACellIsFoundByTheRestOfItsPath)
{
  auto& table = addTable("peaks");
  auto& cell = *table.cellAt(0, 1);
  cell.addButton();
  auto& second = cell.addView("NSBox").addButton();
  descriptor.tableRow = 1;
  descriptor.className = "NSButton";
  descriptor.hierarchyPath = "NSTableView[0]/NSTableRowView[5]/NSTableCellView[0]/NSBox[0]/NSButton[0]";
  EXPECT_TRUE(isView(found(), second));
}

TEST_F(TableResolution, RestOfThePathMayFollowTheClassNameWithoutIndex)
{
  auto& cell = *addTable("peaks").cellAt(0, 1);
  auto& inner = cell.addView("NSBox");
  descriptor.tableRow = 1;
  descriptor.hierarchyPath = "NSTableView/NSTableCellView/NSBox";
  EXPECT_TRUE(isView(found(), inner));
}

TEST_F(TableResolution, RestOfThePathThatLeadsNowhereLeavesTheClass)
{
  auto& cell = *addTable("peaks").cellAt(0, 1);
  auto& button = cell.addView("NSView").addButton();
  descriptor.tableRow = 1;
  descriptor.className = "NSButton";
  descriptor.hierarchyPath = "NSTableView[0]/NSTableCellView[0]/NSBox[0]";
  EXPECT_TRUE(isView(found(), button));
}

TEST_F(TableResolution, PathThatEndsAtTheCellGivesTheCell)
{
  auto& cell = *addTable("peaks").cellAt(0, 1);
  descriptor.tableRow = 1;
  for (const auto* path : {"NSTableView[0]/NSTableCellView[0]", "NSTableView[0]/NSTableCellView[0]/",
                           "NSTableView[0]/NSTableCellView", "NSTableCellView[0]NSView[0]"}) {
    descriptor.hierarchyPath = path;
    EXPECT_TRUE(isView(found(), cell)) << path;
  }
}

TEST_F(TableResolution, ViewInACellIsFoundByItsClass)
{
  auto& cell = *addTable("peaks").cellAt(0, 1);
  auto& button = cell.addView("NSView").addButton();
  cell.addButton();
  descriptor.tableRow = 1;
  descriptor.className = "NSButton";
  EXPECT_TRUE(isView(found(), button));
}

TEST_F(TableResolution, CellIsTheElementWhenItHasNoViewOfTheClass)
{
  auto& cell = *addTable("peaks").cellAt(0, 1);
  descriptor.tableRow = 1;
  descriptor.className = "NSButton";
  EXPECT_TRUE(isView(found(), cell));
}

TEST_F(TableResolution, CellIsTheElementWhenTheProgramHasNoSuchClass)
{
  auto& cell = *addTable("peaks").cellAt(0, 1);
  cell.addView("MyOldView");
  descriptor.tableRow = 1;
  descriptor.className = "MyOldView";
  EXPECT_TRUE(isView(found(), cell));
}

TEST_F(TableResolution, CellIsTheElementWhenItIsOfTheClass)
{
  auto& cell = *addTable("peaks").cellAt(0, 1);
  descriptor.tableRow = 1;
  descriptor.className = "NSTableCellView";
  EXPECT_TRUE(isView(found(), cell));
}

TEST_F(TableResolution, CellItselfServesForItsSuperclass)
{
  auto& cell = *addTable("peaks").cellAt(0, 1);
  cell.addView("NSView");
  descriptor.tableRow = 1;
  descriptor.className = "NSView";
  EXPECT_TRUE(isView(found(), cell));
}

// Columns

class ColumnResolution : public TableResolution {
protected:
  int columnIn(const std::vector<sim::TableColumn>& columns)
  {
    return descriptor.resolveColumnInTable(content.addTableView({.columns = columns}));
  }
};

TEST_F(ColumnResolution, IdentifierWinsOverTheIndex)
{
  descriptor.tableColumnIdentifier = "height";
  descriptor.tableColumn = 0;
  EXPECT_EQ(columnIn({{.identifier = "name"}, {.identifier = "height"}}), 1);
}

TEST_F(ColumnResolution, IndexServesWhenTheIdentifierIsGone)
{
  descriptor.tableColumnIdentifier = "height";
  descriptor.tableColumn = 1;
  EXPECT_EQ(columnIn({{.identifier = "name"}, {}}), 1);
}

TEST_F(ColumnResolution, IndexServesWithoutIdentifier)
{
  descriptor.tableColumn = 0;
  EXPECT_EQ(columnIn({{.identifier = "name"}}), 0);
}

TEST_F(ColumnResolution, IndexWinsOverAGeneratedIdentifier)
{
  descriptor.tableColumnIdentifier = "AutomaticTableColumnIdentifier.0";
  descriptor.tableColumn = 2;
  EXPECT_EQ(columnIn({{.identifier = "AutomaticTableColumnIdentifier.0"}, {}, {}}), 2);
}

TEST_F(ColumnResolution, GeneratedIdentifierServesWhenTheIndexIsOutOfRange)
{
  descriptor.tableColumnIdentifier = "AutomaticTableColumnIdentifier.0";
  descriptor.tableColumn = 2;
  EXPECT_EQ(columnIn({{.identifier = "a"}, {.identifier = "AutomaticTableColumnIdentifier.0"}}), 1);
}

TEST_F(ColumnResolution, NothingServesWhenIndexAndIdentifierAreGone)
{
  descriptor.tableColumnIdentifier = "AutomaticTableColumnIdentifier.0";
  descriptor.tableColumn = 2;
  EXPECT_EQ(columnIn({{}, {}}), -1);
}

TEST_F(ColumnResolution, WithoutCluesThereIsNoColumn)
{
  EXPECT_EQ(columnIn({{}, {}}), -1);
}

TEST_F(ColumnResolution, IndexesThatNoTableHasAreNoColumns)
{
  for (const std::int64_t column : {std::int64_t{1}, std::int64_t{1} << 32, std::int64_t{-1} << 40}) {
    descriptor.tableColumn = column;
    EXPECT_EQ(columnIn({{}}), -1) << column;
  }
}

// Rows

class RowResolution : public TableResolution {
protected:
  int row()
  {
    descriptor.tableRow = 2;
    return descriptor.resolveRowInTable(table);
  }

  sim::TableView& table = addTable("peaks");
};

TEST_F(RowResolution, RowIsFoundAgainByItsObjectAfterSorting)
{
  descriptor.objectIdentifier = "uuid:A1";
  EXPECT_EQ(row(), 1);
  table.reorderRows({1, 2, 0});
  EXPECT_EQ(row(), 0);
  EXPECT_TRUE(isView(found(), *table.cellAt(0, 0)));
}

TEST_F(RowResolution, RowIsFoundAgainByItsObjectAfterRowsWereInserted)
{
  table.insertRow(0, rowOf("New", "B0"));
  descriptor.objectIdentifier = "uuid:A2";
  EXPECT_EQ(row(), 3);
}

TEST_F(RowResolution, RowIsFoundAgainByANumber)
{
  descriptor.objectIdentifier = "id:7A1";
  EXPECT_EQ(row(), 1);
}

TEST_F(RowResolution, ValueMayContainColons)
{
  table.row(1).model = sim::makeModel({{"uuid", sim::textValue("a:b")}});
  descriptor.objectIdentifier = "uuid:a:b";
  EXPECT_EQ(row(), 1);
}

TEST_F(RowResolution, FirstRowWithTheValueWins)
{
  table.row(0).model = sim::makeModel({{"uuid", sim::textValue("A1")}});
  descriptor.objectIdentifier = "uuid:A1";
  EXPECT_EQ(row(), 0);
}

TEST_F(RowResolution, UnknownValueGivesTheRecordedRow)
{
  descriptor.objectIdentifier = "uuid:A9";
  EXPECT_EQ(row(), 2);
}

TEST_F(RowResolution, UnknownKeyGivesTheRecordedRow)
{
  descriptor.objectIdentifier = "colour:A1";
  EXPECT_EQ(row(), 2);
}

TEST_F(RowResolution, PersistentIdentityGivesTheRecordedRow)
{
  table.row(0).model = sim::makeModel({{"objectID", sim::uriValue("x:p1")}});
  descriptor.objectIdentifier = "objectID:x:p1";
  EXPECT_EQ(row(), 2);
}

TEST_F(RowResolution, EmptyValueDoesNotMatchAKeyWithoutValue)
{
  table.row(0).model = sim::makeModel({{"uuid", sim::nothingValue()}});
  descriptor.objectIdentifier = "uuid:";
  EXPECT_EQ(row(), 2);
}

TEST_F(RowResolution, IdentifierWithoutKeyGivesTheRecordedRowWithoutLooking)
{
  table.row(0).model = sim::makeTextModel("Row A");
  descriptor.objectIdentifier = "Row A";
  EXPECT_EQ(row(), 2);
  EXPECT_EQ(table.cellsMade(), 0);
}

TEST_F(RowResolution, WithoutIdentifierTheRecordedRowIsTaken)
{
  EXPECT_EQ(row(), 2);
}

TEST_F(RowResolution, EmptyTableGivesTheRecordedRow)
{
  table.clearRows();
  descriptor.objectIdentifier = "uuid:A1";
  EXPECT_EQ(row(), 2);
}

TEST_F(RowResolution, CellsThatAreNoCellViewsArePassedOver)
{
  table.setCellMaker(
      [this](sim::View& rowView, const platform::Rect& frame, int column, int row) -> sim::View* {
        if (row == 0) return &rowView.addView("NSView", {.frame = frame});
        return &table.makeCellView(rowView, frame, column, row);
      });
  table.row(0).model = table.row(1).model;
  descriptor.objectIdentifier = "uuid:A1";
  EXPECT_EQ(row(), 1);
}

TEST_F(RowResolution, ObjectIsReadInTheRecordedColumn)
{
  table.setCellMaker(
      [this](sim::View& rowView, const platform::Rect& frame, int column, int row) -> sim::View* {
        if (column == 0) return &rowView.addView("NSView", {.frame = frame});
        return &table.makeCellView(rowView, frame, column, row);
      });
  descriptor.objectIdentifier = "uuid:A1";
  EXPECT_EQ(row(), 2);
  descriptor.tableColumnIdentifier = "height";
  EXPECT_EQ(row(), 1);
}

TEST_F(RowResolution, DrawnRowIsFoundAgainWhereTheToolkitKnowsItsObject)
{
  auto& drawn = addTable("drawn", false);
  descriptor.tableRow = 2;
  descriptor.objectIdentifier = "uuid:A1";
  EXPECT_EQ(descriptor.resolveRowInTable(drawn), 2);
  drawn.setKnowsModelsOfDrawnRows(true);
  EXPECT_EQ(descriptor.resolveRowInTable(drawn), 1);
}

TEST_F(RowResolution, RowThatNoTableHasIsNoRow)
{
  descriptor.tableRow = std::int64_t{1} << 40;
  EXPECT_GE(descriptor.resolveRowInTable(table), table.numberOfRows());
  descriptor.tableRow = -1;
  EXPECT_EQ(descriptor.resolveRowInTable(table), -1);
}

// Tables that go away meanwhile

TEST_F(RowResolution, TableThatDiesWhileItMakesACellGivesNothing)
{
  table.setCellMaker([this](sim::View&, const platform::Rect&, int, int) -> sim::View* {
    window->close();
    return nullptr;
  });
  descriptor.tableRow = 1;
  const auto view = found();
  EXPECT_TRUE(!view || !view->isAlive());
}

TEST_F(RowResolution, TableThatDiesWhileItsRowsAreComparedGivesTheRecordedRow)
{
  table.setCellMaker([this](sim::View&, const platform::Rect&, int, int) -> sim::View* {
    table.destroy();
    return nullptr;
  });
  descriptor.objectIdentifier = "uuid:A2";
  EXPECT_EQ(row(), 2);
}

TEST_F(RowResolution, DestroyedTableHasNoRowsAndColumns)
{
  const auto handle = table.handle();
  table.destroy();
  descriptor.objectIdentifier = "uuid:A1";
  descriptor.tableColumnIdentifier = "name";
  descriptor.tableColumn = 0;
  EXPECT_EQ(row(), 2);
  EXPECT_EQ(descriptor.resolveColumnInTable(table), -1);
  EXPECT_TRUE(isNothing(found()));
  EXPECT_EQ(descriptor.iconForResolvedView(handle), nullptr);
}

} // namespace wayvane
