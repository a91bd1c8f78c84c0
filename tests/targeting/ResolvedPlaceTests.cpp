#include <tests/targeting/Support.h>

namespace wayvane {

using platform::Rect;

class ResolvedPlace : public Targeting {
protected:
  sim::TableView& addTable(bool viewBased)
  {
    auto& table = content.addTableView({.frame = {50, 60, 400, 200},
                                        .columns = {{.identifier = "name"}, {.identifier = "height"}},
                                        .viewBased = viewBased});
    for (int row = 0; row < 3; ++row) {
      table.addRow({.cells = {cellWithText("a", sim::makeImage()), cellWithText("b")}});
    }
    descriptor.tableRow = 1;
    return table;
  }

  Rect onScreen(const sim::View& view, const Rect& rect)
  {
    return window->convertRectToScreen(view.convertRectToWindow(rect));
  }

  WVTargetDescriptor descriptor;
};

// Rectangles

TEST_F(ResolvedPlace, ElementIsWhereItIsOnTheScreen)
{
  content.addButton({.title = "Save", .frame = {30, 40, 80, 24}});
  descriptor.title = "Save";
  EXPECT_EQ(descriptor.resolvedScreenRect(), (Rect{130, 140, 80, 24}));
}

TEST_F(ResolvedPlace, UnresolvableDescriptorHasTheZeroRectangle)
{
  descriptor.title = "Save";
  EXPECT_EQ(descriptor.resolvedScreenRect(), Rect());
}

TEST_F(ResolvedPlace, HiddenElementHasTheZeroRectangle)
{
  content.addButton({.title = "Save", .frame = {30, 40, 80, 24}}).setHidden(true);
  descriptor.title = "Save";
  EXPECT_EQ(descriptor.resolvedScreenRect(), Rect());
}

TEST_F(ResolvedPlace, CellViewIsWhereItIsOnTheScreen)
{
  auto& table = addTable(true);
  descriptor.tableColumn = 1;
  const auto rect = descriptor.resolvedScreenRect();
  auto& cell = *table.cellAt(1, 1);
  EXPECT_EQ(rect, onScreen(cell, cell.bounds()));
  EXPECT_FALSE(rect.isEmpty());
}

TEST_F(ResolvedPlace, DrawnCellIsWhereItsFrameIs)
{
  auto& table = addTable(false);
  descriptor.tableColumn = 1;
  EXPECT_EQ(descriptor.resolvedScreenRect(), onScreen(table, table.frameOfCell(1, 1)));
}

TEST_F(ResolvedPlace, DrawnRowWithoutColumnIsWhereTheRowIs)
{
  auto& table = addTable(false);
  EXPECT_EQ(descriptor.resolvedScreenRect(), onScreen(table, table.rectOfRow(1)));
}

TEST_F(ResolvedPlace, DrawnRowThatMovedIsWhereItIsNow)
{
  auto& table = addTable(false);
  table.setKnowsModelsOfDrawnRows(true);
  table.row(2).model = sim::makeModel({{"uuid", sim::textValue("A1")}});
  descriptor.objectIdentifier = "uuid:A1";
  EXPECT_EQ(descriptor.resolvedScreenRect(), onScreen(table, table.rectOfRow(2)));
}

TEST_F(ResolvedPlace, TableWithoutTheRowHasTheZeroRectangle)
{
  addTable(false);
  descriptor.tableRow = 9;
  descriptor.className = "NSTableView";
  EXPECT_EQ(descriptor.resolvedScreenRect(), Rect());
}

TEST_F(ResolvedPlace, TableFoundWithoutRowIsWhereItIs)
{
  auto& table = addTable(false);
  descriptor.tableRow = -1;
  descriptor.className = "NSTableView";
  EXPECT_EQ(descriptor.resolvedScreenRect(), onScreen(table, table.bounds()));
}

// Icons

TEST_F(ResolvedPlace, IconIsTheImageOfTheDrawnCell)
{
  auto& table = addTable(false);
  descriptor.tableColumn = 0;
  EXPECT_EQ(descriptor.iconForResolvedView(table.handle()), table.row(1).cells[0].image);
  EXPECT_NE(descriptor.iconForResolvedView(table.handle()), nullptr);
}

TEST_F(ResolvedPlace, CellWithoutImageHasNoIcon)
{
  auto& table = addTable(false);
  descriptor.tableColumn = 1;
  EXPECT_EQ(descriptor.iconForResolvedView(table.handle()), nullptr);
}

TEST_F(ResolvedPlace, WithoutColumnThereIsNoIcon)
{
  EXPECT_EQ(descriptor.iconForResolvedView(addTable(false).handle()), nullptr);
}

TEST_F(ResolvedPlace, WithoutRowThereIsNoIcon)
{
  auto& table = addTable(false);
  descriptor.tableColumn = 0;
  descriptor.tableRow = -1;
  EXPECT_EQ(descriptor.iconForResolvedView(table.handle()), nullptr);
  descriptor.tableRow = 3;
  EXPECT_EQ(descriptor.iconForResolvedView(table.handle()), nullptr);
}

TEST_F(ResolvedPlace, CellThatIsAViewHasNoIcon)
{
  auto& table = addTable(true);
  descriptor.tableColumn = 0;
  table.makeVisibleCells();
  EXPECT_EQ(descriptor.iconForResolvedView(table.handle()), nullptr);
}

TEST_F(ResolvedPlace, OtherViewsHaveNoIcon)
{
  descriptor.tableRow = 0;
  descriptor.tableColumn = 0;
  EXPECT_EQ(descriptor.iconForResolvedView(content.addButton({.image = sim::makeImage()}).handle()), nullptr);
  EXPECT_EQ(descriptor.iconForResolvedView(nullptr), nullptr);
}

} // namespace wayvane
