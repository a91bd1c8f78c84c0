#include <tests/desktop/Desktop.h>

#include <gmock/gmock.h>

namespace wayvane::sim {
namespace {

using platform::MakeIfNecessary;
using platform::Point;
using platform::Rect;
using platform::ViewKind;

class SimTable : public testing::Test {
protected:
  TableView& addTable(bool viewBased)
  {
    TableView& table = window->content().addTableView({.frame = {0, 0, 300, 200},
                                                       .columns = {{"name", 100}, {"size", 80}},
                                                       .rowHeight = 20,
                                                       .viewBased = viewBased});
    table.addRow({"Anna", "1"}, makeModel({{"uuid", textValue("A1")}}));
    table.addRow({"Bert", "2"}, makeModel({{"uuid", textValue("B2")}}));
    table.addRow({"Cora", "3"}, makeTextModel("Row C"));
    return table;
  }

  Desktop desktop;
  std::shared_ptr<Window> window = desktop.addWindow("Main", {0, 0, 800, 628});
};

TEST_F(SimTable, RowsAndColumnsAreFoundByPoint)
{
  TableView& table = addTable(true);
  EXPECT_EQ(table.rowAtPoint({5, 25}), 1);
  EXPECT_EQ(table.columnAtPoint({120, 25}), 1);
  EXPECT_EQ(table.rowAtPoint({5, 65}), -1);
  EXPECT_EQ(table.columnAtPoint({200, 25}), -1);
  EXPECT_EQ(table.frameOfCell(1, 2), (Rect{100, 40, 80, 20}));
  EXPECT_EQ(table.rectOfRow(3), Rect{});
}

TEST_F(SimTable, CellViewsAreMadeOnlyWhenAskedFor)
{
  TableView& table = addTable(true);
  EXPECT_EQ(table.viewAtColumnRow(0, 1, MakeIfNecessary::No), nullptr);
  EXPECT_EQ(table.cellsMade(), 0);
  const auto cell = table.viewAtColumnRow(0, 1, MakeIfNecessary::Yes);
  ASSERT_NE(cell, nullptr);
  EXPECT_EQ(table.cellsMade(), 1);
  EXPECT_TRUE(isSameView(cell, table.viewAtColumnRow(0, 1, MakeIfNecessary::No)));
  EXPECT_TRUE(cell->isKind(ViewKind::TableCellView));
  EXPECT_EQ(cell->as<platform::TableCellView>()->objectValue()->valueForKey("uuid").text, "B2");
}

TEST_F(SimTable, ACellLiesInItsRowView)
{
  TableView& table = addTable(true);
  View* cell = table.cellAt(1, 2);
  EXPECT_TRUE(cell->superview()->isKind(ViewKind::TableRowView));
  EXPECT_EQ(cell->convertRectToAncestor(cell->bounds(), table), table.frameOfCell(1, 2));
  EXPECT_EQ(table.rowForView(*cell), 2);
  EXPECT_EQ(table.columnForView(*cell), 1);
  EXPECT_EQ(table.columnForView(*cell->superview()), -1);
  EXPECT_EQ(table.rowForView(window->content()), -1);
}

TEST_F(SimTable, AClickHitsTheTextInTheCell)
{
  TableView& table = addTable(true);
  table.makeVisibleCells();
  const auto hit = desktop.click(table.screenCenterOfCell(0, 1)).view;
  ASSERT_NE(hit, nullptr);
  ASSERT_NE(hit->as<platform::TextField>(), nullptr);
  EXPECT_EQ(hit->as<platform::TextField>()->stringValue(), "Bert");
}

TEST_F(SimTable, DrawnCellsHaveNoViews)
{
  TableView& table = addTable(false);
  EXPECT_EQ(table.viewAtColumnRow(0, 0, MakeIfNecessary::Yes), nullptr);
  EXPECT_EQ(table.rowViewAtRow(0, MakeIfNecessary::Yes), nullptr);
  EXPECT_EQ(table.preparedCell(1, 2)->stringValue, "3");
  EXPECT_EQ(table.preparedCell(1, 3), std::nullopt);
  const auto hit = desktop.click(table.screenCenterOfCell(0, 1)).view;
  EXPECT_TRUE(isSameView(hit, table.handle()));
}

TEST_F(SimTable, ReorderingMakesCellViewsAnew)
{
  TableView& table = addTable(true);
  const auto before = table.viewAtColumnRow(0, 0, MakeIfNecessary::Yes);
  table.reorderRows({2, 1, 0});
  EXPECT_FALSE(before->isAlive());
  const auto after = table.viewAtColumnRow(0, 0, MakeIfNecessary::Yes);
  EXPECT_EQ(after->as<platform::TableCellView>()->objectValue()->asString(), "Row C");
}

TEST_F(SimTable, ACellMakerDecidesWhatACellIs)
{
  TableView& table = addTable(true);
  table.setCellMaker([&](View& row, const Rect& frame, int, int) -> View* {
    return &row.addButton({.title = "Go", .frame = frame});
  });
  EXPECT_TRUE(table.cellAt(0, 0)->isKind(ViewKind::Button));
}

TEST_F(SimTable, ColumnsTellIdentifierAndBinding)
{
  TableView& table = window->content().addTableView({.columns = {{"a", 50, "open:"}, {}}});
  EXPECT_EQ(table.identifierOfColumn(0), "a");
  EXPECT_EQ(table.targetBindingSelectorOfColumn(0), "open:");
  EXPECT_EQ(table.identifierOfColumn(1), std::nullopt);
  EXPECT_EQ(table.identifierOfColumn(2), std::nullopt);
}

TEST_F(SimTable, AMovedColumnTakesItsCellsAlong)
{
  TableView& table = addTable(false);
  table.moveColumn(1, 0);
  EXPECT_EQ(table.identifierOfColumn(0), "size");
  EXPECT_EQ(table.preparedCell(0, 1)->stringValue, "2");
}

TEST_F(SimTable, ScrollingToARowMovesTheDocumentAsLittleAsNeeded)
{
  ScrollView& scroll = window->content().addScrollView({.frame = {0, 0, 300, 100}});
  TableView& table = scroll.addTableDocument({.columns = {{"name"}}, .rowHeight = 20});
  for (int row = 0; row < 50; ++row)
    table.addRow({"x"});
  EXPECT_EQ(scroll.documentBounds().height, 1000);
  bool done = false;
  table.scrollRowToVisible(20, {1.2, [&] { done = true; }});
  desktop.advance(1.2);
  EXPECT_TRUE(done);
  EXPECT_EQ(scroll.documentVisibleRect(), (Rect{0, 320, 300, 100}));
}

TEST_F(SimTable, ADeadTableAnswersNothing)
{
  TableView& table = addTable(true);
  const auto handle = table.handle();
  const auto* role = handle->as<platform::TableView>();
  table.destroy();
  EXPECT_EQ(role->numberOfRows(), 0);
  EXPECT_EQ(role->rowAtPoint({5, 5}), -1);
  EXPECT_EQ(role->viewAtColumnRow(0, 0, MakeIfNecessary::Yes), nullptr);
  int done = 0;
  role->scrollRowToVisible(0, {1, [&] { ++done; }});
  EXPECT_EQ(done, 0);
  desktop.runPending();
  EXPECT_EQ(done, 1);
}

} // namespace
} // namespace wayvane::sim
