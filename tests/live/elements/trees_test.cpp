#include <tests/live/elements/Elements.h>

#include <QHeaderView>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTreeWidget>

namespace wayvane::qt {

namespace {

using platform::MakeIfNecessary;

/// Two branches of two leaves each, and a leaf: A (A1, A2), B (B1, B2), C. All branches are closed.
class Trees : public Elements {
protected:
  void SetUp() override
  {
    Elements::SetUp();
    tree_ = add<QTreeWidget>(QRect(20, 30, 300, 300));
    tree_->setHeaderLabels({"Place", "Height"});
    for (const auto* name : {"A", "B"}) {
      auto* branch = new QTreeWidgetItem(tree_, {name, "0"});
      for (const auto* leaf : {"1", "2"})
        new QTreeWidgetItem(branch, {QLatin1String(name) + QLatin1String(leaf), leaf});
    }
    new QTreeWidgetItem(tree_, {"C", "0"});
    handle_ = viewForWidget(tree_);
  }

  [[nodiscard]] QTreeWidget& widget() { return *tree_; }

  [[nodiscard]] const platform::TableView& table() const { return *handle_->as<platform::TableView>(); }

  [[nodiscard]] const ViewHandle& handle() const { return handle_; }

  [[nodiscard]] std::string shown() const
  {
    std::string names;
    for (int row = 0; row < table().numberOfRows(); ++row)
      names += (row ? " " : "") + table().preparedCell(0, row)->stringValue;
    return names;
  }

private:
  QTreeWidget* tree_ = nullptr;
  ViewHandle handle_;
};

TEST_F(Trees, RowsRunThroughOpenBranches)
{
  EXPECT_EQ(shown(), "A B C");
  widget().expandItem(widget().topLevelItem(0));
  EXPECT_EQ(shown(), "A A1 A2 B C");
  widget().expandAll();
  EXPECT_EQ(shown(), "A A1 A2 B B1 B2 C");
  widget().collapseItem(widget().topLevelItem(0));
  EXPECT_EQ(shown(), "A B B1 B2 C");
}

TEST_F(Trees, HiddenRowsAreNotCounted)
{
  widget().expandAll();
  widget().topLevelItem(0)->child(0)->setHidden(true);
  EXPECT_EQ(shown(), "A A2 B B1 B2 C");
  widget().topLevelItem(0)->setHidden(true);
  EXPECT_EQ(shown(), "B B1 B2 C");
  widget().topLevelItem(2)->setHidden(true);
  EXPECT_EQ(shown(), "B B1 B2");
}

TEST_F(Trees, RowsThatComeAndGoAreNoticed)
{
  widget().expandAll();
  ASSERT_EQ(table().preparedCell(0, 4)->stringValue, "B1");
  widget().insertTopLevelItem(0, new QTreeWidgetItem({"0"}));
  EXPECT_EQ(shown(), "0 A A1 A2 B B1 B2 C");
  ASSERT_EQ(table().preparedCell(0, 5)->stringValue, "B1");
  delete widget().topLevelItem(1);
  EXPECT_EQ(table().preparedCell(0, 2)->stringValue, "B1");
  EXPECT_EQ(shown(), "0 B B1 B2 C");
}

TEST_F(Trees, SortedRowsAreNoticed)
{
  widget().expandAll();
  ASSERT_EQ(table().preparedCell(0, 1)->stringValue, "A1");
  widget().sortItems(0, Qt::DescendingOrder);
  EXPECT_EQ(shown(), "C B B2 B1 A A2 A1");
}

TEST_F(Trees, EveryRowIsFoundWhereItLies)
{
  widget().expandAll();
  for (const int row : {6, 0, 3, 5, 4, 1, 2}) {
    EXPECT_EQ(table().rowAtPoint(table().frameOfCell(0, row).center()), row);
    EXPECT_EQ(table().columnAtPoint(table().frameOfCell(1, row).center()), 1);
  }
}

TEST_F(Trees, RowsAreAsWideAsTheTreeAndCellsAreIndented)
{
  widget().expandAll();
  EXPECT_EQ(table().rectOfRow(1).x, 0);
  EXPECT_EQ(table().rectOfRow(1).width, widget().header()->length());
  EXPECT_GT(table().frameOfCell(0, 1).x, table().frameOfCell(0, 0).x);
}

TEST_F(Trees, RowsInAClosedBranchAreNowhere)
{
  EXPECT_EQ(table().numberOfRows(), 3);
  EXPECT_EQ(table().rectOfRow(3), Rect{});
  EXPECT_FALSE(table().preparedCell(0, 3));
}

TEST_F(Trees, AWidgetOnAnItemKnowsItsRow)
{
  widget().expandAll();
  auto* cell = new QWidget;
  widget().setItemWidget(widget().topLevelItem(1)->child(0), 1, cell);
  EXPECT_EQ(table().rowForView(*viewForWidget(cell)), 4);
  EXPECT_EQ(table().columnForView(*viewForWidget(cell)), 1);
  EXPECT_THAT(table().viewAtColumnRow(1, 4, MakeIfNecessary::No), Shows(cell));
}

TEST_F(Trees, ATreeBelowAnotherRootCountsFromThere)
{
  widget().setRootIndex(widget().model()->index(1, 0));
  EXPECT_EQ(shown(), "B1 B2");
}

TEST_F(Trees, ATreeWithoutRowsHasNone)
{
  widget().clear();
  EXPECT_EQ(table().numberOfRows(), 0);
  EXPECT_EQ(table().rowAtPoint({5, 5}), -1);
  EXPECT_FALSE(table().preparedCell(0, 0));
}

TEST_F(Trees, GoingThroughManyRowsIsNotSlow)
{
  QStandardItemModel model;
  for (int i = 0; i < 5000; ++i)
    model.appendRow(new QStandardItem(QString::number(i)));
  auto* tree = add<QTreeView>(QRect(330, 30, 200, 200));
  tree->setModel(&model);
  const auto view = viewForWidget(tree);
  const auto& rows = *view->as<platform::TableView>();
  QElapsedTimer timer;
  timer.start();
  for (int row = 0; row < rows.numberOfRows(); ++row)
    ASSERT_EQ(rows.preparedCell(0, row)->stringValue, std::to_string(row));
  EXPECT_LT(timer.elapsed(), 10000) << "steps from row to row, not from the first one each time";
}

TEST_F(Trees, ARowOutOfSightScrollsIntoIt)
{
  for (int i = 0; i < 100; ++i)
    new QTreeWidgetItem(&widget(), {QString::number(i)});
  int completions = 0;
  table().scrollRowToVisible(90, {.duration = 0, .completion = [&] { ++completions; }});
  EXPECT_EQ(completions, 1);
  EXPECT_TRUE(handle()->bounds().contains(table().frameOfCell(0, 90)));
  EXPECT_EQ(table().rowAtPoint(table().frameOfCell(0, 90).center()), 90);
}

} // namespace

} // namespace wayvane::qt
