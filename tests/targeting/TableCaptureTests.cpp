#include <tests/targeting/Support.h>

namespace wayvane {

using platform::HostProperty;

class TableCapture : public Targeting {
protected:
  static WVTargetDescriptor captured(const platform::View& view)
  {
    return WVTargetDescriptor::descriptorForView(view);
  }

  static WVTargetDescriptor capturedAt(const sim::TableView& table, int column, int row)
  {
    const auto rect = table.convertRectToWindow(table.frameOfCell(column, row));
    return WVTargetDescriptor::descriptorForView(table, rect.center());
  }

  sim::TableView& addTable(bool viewBased)
  {
    return content.addTableView({.columns = {{.identifier = "name"}, {.identifier = "height"}},
                                 .viewBased = viewBased,
                                 .accessibilityIdentifier = "peaks"});
  }
};

// Tables of views

class ViewBasedCapture : public TableCapture {
protected:
  ViewBasedCapture()
  {
    table.addRow({"Eiger", "3967"}, sim::makeModel({{"uuid", sim::textValue("A0")}}));
    table.addRow({"Mönch", "4110"}, sim::makeModel({{"uuid", sim::textValue("A1")}}));
    table.addRow({"Jungfrau", "4158"});
  }

  sim::View& cell(int column, int row) { return *table.cellAt(column, row); }

  std::optional<std::string> objectIdentifierFor(platform::ModelObjectHandle model)
  {
    table.row(0).model = std::move(model);
    table.reorderRows({0, 1, 2});
    return captured(cell(0, 0)).objectIdentifier;
  }

  sim::TableView& table = addTable(true);
};

TEST_F(ViewBasedCapture, CellTellsRowColumnCellAndObject)
{
  cell(1, 1).setIdentifier("heightCell");
  const auto descriptor = captured(cell(1, 1));
  EXPECT_EQ(descriptor.className, "NSTableCellView");
  EXPECT_EQ(descriptor.tableRow, 1);
  EXPECT_EQ(descriptor.tableColumn, 1);
  EXPECT_EQ(descriptor.tableColumnIdentifier, "height");
  EXPECT_EQ(descriptor.tableIdentifier, "peaks");
  EXPECT_EQ(descriptor.cellIdentifier, "heightCell");
  EXPECT_EQ(descriptor.objectIdentifier, "uuid:A1");
}

TEST_F(ViewBasedCapture, TextFieldInACellMeansTheCell)
{
  auto& label = *cell(0, 1).children().front();
  ASSERT_TRUE(label.isKind(platform::ViewKind::TextField));
  EXPECT_EQ(captured(label).className, "NSTableCellView");
}

TEST_F(ViewBasedCapture, EditableTextFieldInACellMeansTheCellToo)
{
  EXPECT_EQ(captured(cell(0, 1).addTextField({.editable = true})).className, "NSTableCellView");
}

TEST_F(ViewBasedCapture, ViewDeepInACellMeansTheCell)
{
  auto& field = cell(0, 1).addView("NSView").addView("NSView").addTextField();
  EXPECT_EQ(captured(field).className, "NSTableCellView");
}

TEST_F(ViewBasedCapture, ButtonInACellMeansTheButtonAndTellsItsRow)
{
  const auto descriptor = captured(cell(0, 1).addView("NSView").addButton({.title = "Go"}));
  EXPECT_EQ(descriptor.className, "NSButton");
  EXPECT_EQ(descriptor.title, "Go");
  EXPECT_EQ(descriptor.tableRow, 1);
  EXPECT_EQ(descriptor.tableColumn, 0);
  EXPECT_EQ(descriptor.objectIdentifier, "uuid:A1");
}

TEST_F(ViewBasedCapture, ViewInATableInsideOfACellDoesNotMeanTheOuterCell)
{
  auto& inner = cell(0, 1).addTableView({.columns = {{.identifier = "inner"}}});
  inner.setCellMaker([](sim::View& rowView, const platform::Rect& frame, int, int) {
    return &rowView.addTextField({.value = "note", .frame = frame});
  });
  inner.addRow({"note"});
  const auto descriptor = captured(*inner.cellAt(0, 0));
  EXPECT_EQ(descriptor.className, "NSTextField");
  EXPECT_EQ(descriptor.tableRow, 0);
  EXPECT_EQ(descriptor.tableColumnIdentifier, "inner");
}

TEST_F(ViewBasedCapture, NamedViewIsTheCellWhereTheTableHasNoCellViews)
{
  table.setCellMaker([](sim::View& rowView, const platform::Rect& frame, int, int) {
    return &rowView.addView("NSView", {.frame = frame, .identifier = "plainCell"});
  });
  const auto descriptor = captured(cell(0, 0).addView("NSView", {.identifier = "_NS:1"}).addButton());
  EXPECT_EQ(descriptor.cellIdentifier, "plainCell");
  EXPECT_EQ(descriptor.objectIdentifier, std::nullopt);
  EXPECT_EQ(descriptor.tableRow, 0);
}

TEST_F(ViewBasedCapture, NearestNamedViewIsTheCellWhereTheTableHasNoCellViews)
{
  table.setCellMaker([](sim::View& rowView, const platform::Rect& frame, int, int) {
    return &rowView.addView("NSView", {.frame = frame, .identifier = "outer"});
  });
  const auto descriptor = captured(cell(0, 0).addView("NSView", {.identifier = "inner"}).addButton());
  EXPECT_EQ(descriptor.cellIdentifier, "inner");
}

TEST_F(ViewBasedCapture, CellViewIsTheCellEvenWhenAViewInItIsNamed)
{
  cell(0, 0).setIdentifier("nameCell");
  const auto descriptor = captured(cell(0, 0).addView("NSView", {.identifier = "inner"}).addButton());
  EXPECT_EQ(descriptor.cellIdentifier, "nameCell");
}

TEST_F(ViewBasedCapture, CellWithoutIdentifierTellsNone)
{
  cell(0, 0).setIdentifier(std::nullopt);
  EXPECT_EQ(captured(cell(0, 0)).cellIdentifier, std::nullopt);
}

TEST_F(ViewBasedCapture, RowViewTellsItsRowButNoColumn)
{
  auto& rowView = *cell(0, 1).parent();
  const auto descriptor = captured(rowView);
  EXPECT_EQ(descriptor.className, "NSTableRowView");
  EXPECT_EQ(descriptor.tableRow, 1);
  EXPECT_EQ(descriptor.tableColumn, -1);
  EXPECT_EQ(descriptor.tableColumnIdentifier, std::nullopt);
  EXPECT_EQ(descriptor.objectIdentifier, std::nullopt);
}

TEST_F(ViewBasedCapture, ColumnWithoutIdentifierTellsItsIndex)
{
  auto& bare = content.addTableView({.columns = {{}, {}}});
  bare.addRow({"a", "b"});
  const auto descriptor = captured(*bare.cellAt(1, 0));
  EXPECT_EQ(descriptor.tableColumn, 1);
  EXPECT_EQ(descriptor.tableColumnIdentifier, std::nullopt);
}

TEST_F(ViewBasedCapture, ViewOutsideOfTablesTellsNoRow)
{
  const auto descriptor = captured(content.addButton());
  EXPECT_EQ(descriptor.tableRow, -1);
  EXPECT_EQ(descriptor.tableIdentifier, std::nullopt);
}

TEST_F(ViewBasedCapture, ViewInTheTableThatIsInNoRowTellsNoRow)
{
  EXPECT_EQ(captured(table.addButton()).tableRow, -1);
}

TEST_F(ViewBasedCapture, PressOnTheTableMeansTheCellBelowIt)
{
  table.makeVisibleCells();
  const auto descriptor = capturedAt(table, 1, 1);
  EXPECT_EQ(descriptor.className, "NSTableCellView");
  EXPECT_EQ(descriptor.tableRow, 1);
  EXPECT_EQ(descriptor.tableColumn, 1);
}

TEST_F(ViewBasedCapture, PressOnTheTableMeansTheButtonBelowIt)
{
  auto& below = cell(1, 1);
  below.addButton({.title = "Go", .frame = {0, 0, 100, 20}});
  EXPECT_EQ(capturedAt(table, 1, 1).title, "Go");
}

TEST_F(ViewBasedCapture, PressMakesNoCellViews)
{
  EXPECT_EQ(capturedAt(table, 1, 1).className, "NSTableView");
  EXPECT_EQ(table.cellsMade(), 0);
}

TEST_F(ViewBasedCapture, PressBelowTheLastRowMeansTheTable)
{
  table.makeVisibleCells();
  const auto below = table.convertRectToWindow({5, 150, 1, 1}).center();
  const auto descriptor = WVTargetDescriptor::descriptorForView(table, below);
  EXPECT_EQ(descriptor.className, "NSTableView");
  EXPECT_EQ(descriptor.tableRow, -1);
  EXPECT_EQ(descriptor.tableIdentifier, std::nullopt);
}

TEST_F(ViewBasedCapture, PressOutsideOfTheCellsHitsStillMeansTheCell)
{
  auto& below = cell(1, 1);
  below.setHidden(true);
  EXPECT_EQ(capturedAt(table, 1, 1).className, "NSTableCellView");
}

TEST_F(ViewBasedCapture, TableWithoutPressTellsNoRow)
{
  table.makeVisibleCells();
  const auto descriptor = captured(table);
  EXPECT_EQ(descriptor.className, "NSTableView");
  EXPECT_EQ(descriptor.tableRow, -1);
  EXPECT_EQ(descriptor.tableIdentifier, std::nullopt);
}

// Model objects

TEST_F(ViewBasedCapture, RowWithoutObjectTellsNone)
{
  EXPECT_EQ(objectIdentifierFor(nullptr), std::nullopt);
}

TEST_F(ViewBasedCapture, ObjectThatIsATextIsToldAsItIs)
{
  EXPECT_EQ(objectIdentifierFor(sim::makeTextModel("Row A")), "Row A");
}

TEST_F(ViewBasedCapture, EmptyValueOfAnObjectIsPassedOver)
{
  EXPECT_EQ(objectIdentifierFor(
                sim::makeModel({{"identifier", sim::textValue("")}, {"id", sim::numberValue("7")}})),
            "id:7");
}

TEST_F(ViewBasedCapture, ValueWithoutTextFormIsPassedOver)
{
  EXPECT_EQ(
      objectIdentifierFor(sim::makeModel({{"uid", sim::nothingValue()}, {"name", sim::textValue("Eiger")}})),
      "name:Eiger");
}

TEST_F(ViewBasedCapture, PersistentIdentityIsToldByItsUri)
{
  EXPECT_EQ(objectIdentifierFor(sim::makeModel({{"objectID", sim::uriValue("x-store:///Peak/p1")}})),
            "objectID:x-store:///Peak/p1");
}

TEST_F(ViewBasedCapture, ObjectWithoutAnyKnownKeyTellsNothing)
{
  EXPECT_EQ(objectIdentifierFor(sim::makeModel({{"colour", sim::textValue("red")}})), std::nullopt);
}

TEST_F(ViewBasedCapture, KeysOfAnObjectAreAskedInTheirFixedOrder)
{
  const std::vector<std::string> keys = {"identifier", "uid",          "id",   "uuid", "uniqueIdentifier",
                                         "objectID",   "persistentID", "name", "title"};
  for (std::size_t i = 0; i < keys.size(); ++i) {
    sim::ModelValues values{{keys[i], sim::textValue("x")}};
    if (i + 1 < keys.size()) values[keys[i + 1]] = sim::textValue("y");
    EXPECT_EQ(objectIdentifierFor(sim::makeModel(values)), keys[i] + ":x");
  }
}

TEST_F(ViewBasedCapture, ObjectIdentifierThatIsNoUtf8IsLeftOut)
{
  EXPECT_EQ(objectIdentifierFor(sim::makeModel({{"uuid", sim::textValue("\xff")}})), std::nullopt);
}

// Tables that draw their cells

class DrawnCapture : public TableCapture {
protected:
  DrawnCapture()
  {
    for (const std::string name : {"Eiger", "Mönch", "Jungfrau"}) {
      table.addRow({.cells = {cellWithText(name), cellWithText("high")}});
    }
  }

  platform::TableCell& cell(int column, int row)
  {
    return table.row(row).cells[static_cast<std::size_t>(column)];
  }

  void speak(int row, std::vector<platform::AccessibilityChild> children)
  {
    table.row(row).accessibilityChildren = std::move(children);
  }

  /// On the screen, around the middle of a cell.
  platform::Rect aroundCell(int column, int row)
  {
    const auto center = table.screenCenterOfCell(column, row);
    return {center.x - 2, center.y - 2, 4, 4};
  }

  sim::TableView& table = addTable(false);
};

TEST_F(DrawnCapture, PressTellsRowColumnActionAndLabel)
{
  cell(1, 2).action = "toggle:";
  cell(1, 2).accessibilityLabel = "Visited";
  const auto descriptor = capturedAt(table, 1, 2);
  EXPECT_EQ(descriptor.className, "NSTableView");
  EXPECT_EQ(descriptor.tableRow, 2);
  EXPECT_EQ(descriptor.tableColumn, 1);
  EXPECT_EQ(descriptor.tableColumnIdentifier, "height");
  EXPECT_EQ(descriptor.tableIdentifier, "peaks");
  EXPECT_EQ(descriptor.action, "toggle:");
  EXPECT_EQ(descriptor.title, "Visited");
  EXPECT_EQ(descriptor.cellIdentifier, std::nullopt);
}

TEST_F(DrawnCapture, CellWithoutLabelIsTitledByItsText)
{
  EXPECT_EQ(capturedAt(table, 0, 1).title, "Mönch");
}

TEST_F(DrawnCapture, CellWithoutLabelAndTextIsNotTitled)
{
  cell(0, 1).stringValue = "";
  EXPECT_EQ(capturedAt(table, 0, 1).title, std::nullopt);
}

TEST_F(DrawnCapture, ButtonCellIsNotTitledByItsText)
{
  cell(0, 1).isButton = true;
  EXPECT_EQ(capturedAt(table, 0, 1).title, std::nullopt);
}

TEST_F(DrawnCapture, ButtonCellIsTitledByItsLabel)
{
  cell(0, 1).isButton = true;
  cell(0, 1).accessibilityLabel = "Visited";
  EXPECT_EQ(capturedAt(table, 0, 1).title, "Visited");
}

TEST_F(DrawnCapture, TitleOfTheTableIsKept)
{
  table.setAccessibilityLabel("Peaks");
  cell(0, 1).accessibilityLabel = "Visited";
  EXPECT_EQ(capturedAt(table, 0, 1).title, "Peaks");
}

TEST_F(DrawnCapture, CellIsTitledByWhatIsSpokenAtItsPlace)
{
  speak(1, {{aroundCell(0, 1), "Summit Mönch"}, {aroundCell(1, 1), "Height 4110"}});
  EXPECT_EQ(capturedAt(table, 1, 1).title, "Height 4110");
}

TEST_F(DrawnCapture, LabelOfTheCellWinsOverWhatIsSpoken)
{
  speak(1, {{aroundCell(1, 1), "Height 4110"}});
  cell(1, 1).accessibilityLabel = "Visited";
  EXPECT_EQ(capturedAt(table, 1, 1).title, "Visited");
}

TEST_F(DrawnCapture, SpokenChildrenWithoutPlaceOrLabelArePassedOver)
{
  speak(1, {{std::nullopt, "no place"},
            {aroundCell(0, 1), "elsewhere"},
            {aroundCell(1, 1), std::nullopt},
            {aroundCell(1, 1), ""},
            {aroundCell(1, 1), "Height 4110"}});
  EXPECT_EQ(capturedAt(table, 1, 1).title, "Height 4110");
}

TEST_F(DrawnCapture, WithoutSpokenChildAtItsPlaceTheCellIsTitledByItsText)
{
  speak(1, {{aroundCell(0, 1), "elsewhere"}});
  EXPECT_EQ(capturedAt(table, 1, 1).title, "high");
}

TEST_F(DrawnCapture, ActionOfTheCellWinsOverTheTables)
{
  table.setAction("tableClicked:");
  cell(0, 1).action = "toggle:";
  EXPECT_EQ(capturedAt(table, 0, 1).action, "toggle:");
}

TEST_F(DrawnCapture, ActionOfTheTableIsKeptWhereTheCellHasNone)
{
  table.setAction("tableClicked:");
  EXPECT_EQ(capturedAt(table, 0, 1).action, "tableClicked:");
}

TEST_F(DrawnCapture, WithoutActionTheSelectorThatTheColumnIsBoundToIsTold)
{
  auto& bound = content.addTableView(
      {.columns = {{.identifier = "go", .targetBindingSelector = "visit:"}}, .viewBased = false});
  bound.addRow({.cells = {cellWithText("Eiger")}});
  EXPECT_EQ(capturedAt(bound, 0, 0).action, "visit:");
  bound.row(0).cells[0].action = "toggle:";
  EXPECT_EQ(capturedAt(bound, 0, 0).action, "toggle:");
}

TEST_F(DrawnCapture, EmptySelectorOfAColumnIsNotTold)
{
  auto& bound = content.addTableView(
      {.columns = {{.identifier = "go", .targetBindingSelector = ""}}, .viewBased = false});
  bound.addRow({.cells = {cellWithText("Eiger")}});
  EXPECT_EQ(capturedAt(bound, 0, 0).action, std::nullopt);
}

TEST_F(DrawnCapture, PressRightOfTheLastColumnTellsTheRowAlone)
{
  const auto right = table.convertRectToWindow({350, 25, 1, 1}).center();
  const auto descriptor = WVTargetDescriptor::descriptorForView(table, right);
  EXPECT_EQ(descriptor.tableRow, 1);
  EXPECT_EQ(descriptor.tableIdentifier, "peaks");
  EXPECT_EQ(descriptor.tableColumn, -1);
  EXPECT_EQ(descriptor.title, std::nullopt);
}

TEST_F(DrawnCapture, PressBelowTheLastRowTellsNoRow)
{
  const auto below = table.convertRectToWindow({5, 150, 1, 1}).center();
  const auto descriptor = WVTargetDescriptor::descriptorForView(table, below);
  EXPECT_EQ(descriptor.tableRow, -1);
  EXPECT_EQ(descriptor.tableIdentifier, std::nullopt);
}

TEST_F(DrawnCapture, WithoutPressNoRowIsTold)
{
  EXPECT_EQ(captured(table).tableRow, -1);
}

TEST_F(DrawnCapture, ObjectOfADrawnRowIsToldWhereTheToolkitKnowsIt)
{
  table.row(1).model = sim::makeModel({{"uuid", sim::textValue("A1")}});
  EXPECT_EQ(capturedAt(table, 0, 1).objectIdentifier, std::nullopt);
  table.setKnowsModelsOfDrawnRows(true);
  EXPECT_EQ(capturedAt(table, 0, 1).objectIdentifier, "uuid:A1");
}

TEST_F(DrawnCapture, TextOfACellThatIsNoUtf8IsLeftOut)
{
  cell(0, 1).stringValue = "M\xf6nch";
  EXPECT_EQ(capturedAt(table, 0, 1).title, std::nullopt);
}

TEST_F(DrawnCapture, DestroyedTableTellsNothing)
{
  const auto handle = table.handle();
  const auto place = table.convertRectToWindow(table.frameOfCell(0, 1)).center();
  table.destroy();
  EXPECT_EQ(WVTargetDescriptor::descriptorForView(*handle, place), WVTargetDescriptor());
}

} // namespace wayvane
