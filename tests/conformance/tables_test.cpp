#include <tests/conformance/Conformance.h>

namespace wayvane::conformance {

namespace {

using platform::MakeIfNecessary;
using platform::ModelValue;

/// Two columns and as many rows as asked for, from (10, 10), 260 x 200.
class TableCase : public Conformance {
protected:
  ViewHandle addTable(Cells cells, int rows = 3)
  {
    TablePiece piece{.cells = cells, .columnIdentifiers = {"name", "length"}};
    for (int row = 0; row < rows; ++row) {
      const std::string number = std::to_string(row);
      piece.texts.push_back({"Tour " + number, number + " km"});
      piece.models.push_back({{"identifier", "tour-" + number}, {"name", "Tour " + number}});
    }
    view_ = stage().addTable(window(), {.frame = {10, 10, 260, 200}}, piece);
    return view_;
  }

  [[nodiscard]] const platform::TableView& table() const { return *view_->as<platform::TableView>(); }

  [[nodiscard]] const ViewHandle& view() const { return view_; }

  [[nodiscard]] Rect rowInWindow(int row) const { return view_->convertRectToWindow(table().rectOfRow(row)); }

private:
  ViewHandle view_;
};

class Tables : public TableCase, public testing::WithParamInterface<Cells> {
protected:
  void SetUp() override
  {
    TableCase::SetUp();
    addTable(GetParam());
  }
};

TEST_P(Tables, ATableIsAControlWithRowsAndColumns)
{
  EXPECT_TRUE(view()->isKind(ViewKind::TableView));
  EXPECT_TRUE(view()->isKind(ViewKind::Control));
  EXPECT_EQ(table().numberOfRows(), 3);
  EXPECT_EQ(table().numberOfColumns(), 2);
}

TEST_P(Tables, ColumnsHaveIdentifiers)
{
  EXPECT_THAT(table().identifierOfColumn(0), Optional(std::string("name")));
  EXPECT_THAT(table().identifierOfColumn(1), Optional(std::string("length")));
  EXPECT_FALSE(table().identifierOfColumn(2));
  EXPECT_FALSE(table().identifierOfColumn(-1));
}

TEST_P(Tables, RowsInSightLieInsideTheTable)
{
  for (int row = 0; row < 3; ++row) {
    const Rect rect = table().rectOfRow(row);
    EXPECT_FALSE(rect.isEmpty()) << "row " << row;
    EXPECT_TRUE(view()->bounds().contains(rect)) << "row " << row << ": " << platform::stringFromRect(rect);
  }
}

TEST_P(Tables, RowsFollowEachOtherDownwards)
{
  EXPECT_GT(rowInWindow(0).y, rowInWindow(1).y);
  EXPECT_GT(rowInWindow(1).y, rowInWindow(2).y);
  EXPECT_FALSE(rowInWindow(0).intersects(rowInWindow(1)));
}

TEST_P(Tables, TheMiddleOfARowIsInThatRow)
{
  for (int row = 0; row < 3; ++row)
    EXPECT_EQ(table().rowAtPoint(table().rectOfRow(row).center()), row);
}

TEST_P(Tables, TheMiddleOfACellIsInItsRowAndColumn)
{
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 2; ++column) {
      const Rect cell = table().frameOfCell(column, row);
      EXPECT_EQ(table().rowAtPoint(cell.center()), row);
      EXPECT_EQ(table().columnAtPoint(cell.center()), column);
      EXPECT_TRUE(table().rectOfRow(row).grownBy(0.5).contains(cell));
    }
  }
}

TEST_P(Tables, CellsOfARowStandSideBySide)
{
  const Rect first = table().frameOfCell(0, 1), second = table().frameOfCell(1, 1);
  EXPECT_LE(first.maxX(), second.x + 1);
  EXPECT_FALSE(first.intersects(second.grownBy(-1)));
}

TEST_P(Tables, APointOutsideIsInNoRow)
{
  const Rect bounds = view()->bounds();
  EXPECT_EQ(table().rowAtPoint({bounds.x - 1, bounds.y + 5}), -1);
  EXPECT_EQ(table().rowAtPoint({bounds.x + 5, bounds.y - 1}), -1);
  EXPECT_EQ(table().columnAtPoint({bounds.x - 1, bounds.y + 5}), -1);
}

TEST_P(Tables, APointBelowTheLastRowIsInNone)
{
  const Rect last = rowInWindow(2);
  const Point below{last.center().x, last.y - 20};
  EXPECT_EQ(table().rowAtPoint(view()->convertPointFromWindow(below)), -1);
}

TEST_P(Tables, WhatIsOutOfRangeIsNothing)
{
  for (const int row : {-1, 3, 1000}) {
    EXPECT_EQ(table().rectOfRow(row), Rect{});
    EXPECT_EQ(table().frameOfCell(0, row), Rect{});
    EXPECT_FALSE(table().preparedCell(0, row));
    EXPECT_THAT(table().viewAtColumnRow(0, row, MakeIfNecessary::Yes), IsNull());
    EXPECT_THAT(table().rowViewAtRow(row, MakeIfNecessary::Yes), IsNull());
    EXPECT_THAT(table().modelObjectOfRow(0, row), IsNull());
    EXPECT_THAT(table().accessibilityChildrenOfRow(row), IsEmpty());
  }
  for (const int column : {-1, 2, 1000}) {
    EXPECT_EQ(table().frameOfCell(column, 0), Rect{});
    EXPECT_FALSE(table().preparedCell(column, 0));
    EXPECT_THAT(table().viewAtColumnRow(column, 0, MakeIfNecessary::Yes), IsNull());
    EXPECT_FALSE(table().targetBindingSelectorOfColumn(column));
  }
}

TEST_P(Tables, AViewElsewhereIsInNoRow)
{
  const auto other = stage().addPlain(window(), {.frame = {400, 10, 50, 50}});
  EXPECT_EQ(table().rowForView(*other), -1);
  EXPECT_EQ(table().columnForView(*other), -1);
}

TEST_P(Tables, AHitInARowComesFromTheTableOrFromInsideIt)
{
  auto hit = window()->frameView()->hitTest(rowInWindow(1).center());
  while (hit && !isSameView(hit, view()))
    hit = hit->superview();
  EXPECT_THAT(hit, IsSameView(view()));
}

INSTANTIATE_TEST_SUITE_P(OfBothKinds, Tables, testing::Values(Cells::Drawn, Cells::Views),
                         [](const auto& kind) { return kind.param == Cells::Drawn ? "Drawn" : "Views"; });

class DrawnTables : public TableCase {
protected:
  void SetUp() override
  {
    TableCase::SetUp();
    addTable(Cells::Drawn);
  }
};

TEST_F(DrawnTables, CellsAreTextsAndNoViews)
{
  const auto cell = table().preparedCell(0, 1);
  ASSERT_TRUE(cell);
  EXPECT_EQ(cell->stringValue, "Tour 1");
  EXPECT_FALSE(cell->isButton);
  EXPECT_EQ(table().preparedCell(1, 2)->stringValue, "2 km");
  EXPECT_THAT(table().viewAtColumnRow(0, 1, MakeIfNecessary::Yes), IsNull());
}

TEST_F(DrawnTables, ARowsModelIsReadByKeyWhereTheToolkitKnowsIt)
{
  const auto model = table().modelObjectOfRow(0, 1);
  ASSERT_THAT(model, NotNull());
  EXPECT_EQ(model->valueForKey("identifier").form, ModelValue::Form::String);
  EXPECT_EQ(model->valueForKey("identifier").text, "tour-1");
  EXPECT_EQ(model->valueForKey("colour").form, ModelValue::Form::NoSuchKey);
}

class ViewTables : public TableCase {
protected:
  void SetUp() override
  {
    TableCase::SetUp();
    addTable(Cells::Views);
  }
};

TEST_F(ViewTables, ACellIsAViewThatKnowsItsRow)
{
  const auto cell = table().viewAtColumnRow(1, 2, MakeIfNecessary::Yes);
  ASSERT_THAT(cell, NotNull());
  EXPECT_EQ(table().rowForView(*cell), 2);
  EXPECT_EQ(table().columnForView(*cell), 1);
  EXPECT_THAT(cell->window(), IsSameWindow(window()));
}

TEST_F(ViewTables, ACellOnceMadeIsThere)
{
  const auto made = table().viewAtColumnRow(0, 1, MakeIfNecessary::Yes);
  EXPECT_THAT(table().viewAtColumnRow(0, 1, MakeIfNecessary::No), IsSameView(made));
}

TEST_F(ViewTables, ACellCoversItsFrame)
{
  const auto cell = table().viewAtColumnRow(0, 1, MakeIfNecessary::Yes);
  ASSERT_THAT(cell, NotNull());
  const Rect frame = view()->convertRectToWindow(table().frameOfCell(0, 1));
  EXPECT_THAT(placeOf(cell), IsNearRect(frame, 1));
}

TEST_F(ViewTables, ACellKnowsTheModelObjectOfItsRow)
{
  const auto cell = table().viewAtColumnRow(0, 1, MakeIfNecessary::Yes);
  ASSERT_THAT(cell, NotNull());
  ASSERT_TRUE(cell->isKind(ViewKind::TableCellView));
  const auto* role = cell->as<platform::TableCellView>();
  ASSERT_THAT(role, NotNull());
  const auto model = role->objectValue();
  ASSERT_THAT(model, NotNull());
  EXPECT_FALSE(model->asString());
  EXPECT_EQ(model->valueForKey("identifier").text, "tour-1");
  EXPECT_EQ(model->valueForKey("colour").form, ModelValue::Form::NoSuchKey);
}

TEST_F(ViewTables, ADescendantOfACellIsInItsRow)
{
  const auto cell = table().viewAtColumnRow(0, 2, MakeIfNecessary::Yes);
  ASSERT_THAT(cell, NotNull());
  const auto inside = stage().addPlain(window(), {.frame = placeOf(cell).grownBy(-4), .inside = cell});
  EXPECT_EQ(table().rowForView(*inside), 2);
  EXPECT_EQ(table().columnForView(*inside), 0);
}

class LongTables : public TableCase, public testing::WithParamInterface<Cells> {
protected:
  void SetUp() override
  {
    TableCase::SetUp();
    addTable(GetParam(), 60);
  }

  /// Whether the window shows the whole row.
  [[nodiscard]] bool isInSight(int row) const
  {
    return Rect{10, 10, 260, 200}.grownBy(0.5).contains(rowInWindow(row));
  }
};

TEST_P(LongTables, ARowOutOfSightScrollsIntoIt)
{
  ASSERT_FALSE(isInSight(50));
  int completions = 0;
  table().scrollRowToVisible(50, {.duration = 0.1, .completion = [&] { ++completions; }});
  EXPECT_EQ(completions, 0) << "not before the function returns";
  ASSERT_TRUE(stage().waitUntil([&] { return completions > 0; }));
  EXPECT_TRUE(isInSight(50)) << platform::stringFromRect(rowInWindow(50));
  stage().pass(0.05);
  EXPECT_EQ(completions, 1);
}

TEST_P(LongTables, AJumpIsCompleteAtOnce)
{
  int completions = 0;
  table().scrollRowToVisible(50, {.duration = 0, .completion = [&] { ++completions; }});
  EXPECT_EQ(completions, 1);
  EXPECT_TRUE(isInSight(50));
  stage().pass(0.05);
  EXPECT_EQ(completions, 1);
}

TEST_P(LongTables, ARowInSightStaysWhereItIs)
{
  const Rect before = rowInWindow(1);
  int completions = 0;
  table().scrollRowToVisible(1, {.duration = 0.05, .completion = [&] { ++completions; }});
  ASSERT_TRUE(stage().waitUntil([&] { return completions == 1; }));
  EXPECT_EQ(rowInWindow(1), before);
}

TEST_P(LongTables, ARowThatIsNotThereCompletesAllTheSame)
{
  const Rect before = rowInWindow(0);
  int completions = 0;
  table().scrollRowToVisible(60, {.duration = 0.05, .completion = [&] { ++completions; }});
  ASSERT_TRUE(stage().waitUntil([&] { return completions == 1; }));
  EXPECT_EQ(rowInWindow(0), before);
}

TEST_P(LongTables, RowsKeepTheirPlaceAmongThemselvesWhileScrolled)
{
  table().scrollRowToVisible(50, {});
  EXPECT_EQ(table().rowAtPoint(table().rectOfRow(50).center()), 50);
  EXPECT_GT(rowInWindow(49).y, rowInWindow(50).y);
  EXPECT_TRUE(view()->bounds().contains(table().rectOfRow(50))) << "the bounds follow the scrolling";
}

TEST_P(LongTables, ATableThatEndsWhileItScrollsCompletesOnce)
{
  int completions = 0;
  table().scrollRowToVisible(50, {.duration = 0.2, .completion = [&] { ++completions; }});
  stage().pass(0.03);
  stage().destroy(view());
  ASSERT_TRUE(stage().waitUntil([&] { return completions > 0; }));
  stage().pass(0.25);
  EXPECT_EQ(completions, 1);
}

INSTANTIATE_TEST_SUITE_P(OfBothKinds, LongTables, testing::Values(Cells::Drawn, Cells::Views),
                         [](const auto& kind) { return kind.param == Cells::Drawn ? "Drawn" : "Views"; });

} // namespace

} // namespace wayvane::conformance
