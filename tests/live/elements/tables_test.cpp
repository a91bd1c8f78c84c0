#include <tests/live/elements/Elements.h>

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTableView>
#include <QTreeWidget>

namespace wayvane::qt {

namespace {

using platform::MakeIfNecessary;

/// Three tours with name and length in a table of 300 x 200.
class Tables : public Elements {
protected:
  void SetUp() override
  {
    Elements::SetUp();
    model_.setHorizontalHeaderLabels({"Name", "Length"});
    for (int row = 0; row < 3; ++row) {
      auto* name = new QStandardItem(QStringLiteral("Tour %1").arg(row));
      name->setData(QVariantMap{{"uuid", QStringLiteral("A%1").arg(row)}}, Qt::UserRole);
      model_.appendRow({name, new QStandardItem(QStringLiteral("%1 km").arg(row))});
    }
    view_ = add<QTableView>(QRect(20, 30, 300, 200));
    view_->setModel(&model_);
    handle_ = viewForWidget(view_);
  }

  [[nodiscard]] QStandardItemModel& model() { return model_; }

  [[nodiscard]] QTableView& widget() { return *view_; }

  [[nodiscard]] const ViewHandle& handle() const { return handle_; }

  [[nodiscard]] const platform::TableView& table() const { return *handle_->as<platform::TableView>(); }

  /// A cell of a container with a label and a button, set on the item.
  QWidget* setCell(int row, int column)
  {
    auto* cell = new QWidget;
    auto* layout = new QHBoxLayout(cell);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(new QLabel(QStringLiteral("Hut")));
    layout->addWidget(new QPushButton(QStringLiteral("Book")));
    view_->setIndexWidget(model_.index(row, column), cell);
    QCoreApplication::sendPostedEvents();
    return cell;
  }

private:
  QStandardItemModel model_{0, 2};
  QTableView* view_ = nullptr;
  ViewHandle handle_;
};

TEST_F(Tables, RowsAndColumnsAreCountedAsShown)
{
  EXPECT_EQ(table().numberOfRows(), 3);
  EXPECT_EQ(table().numberOfColumns(), 2);
  widget().setColumnHidden(0, true);
  widget().setRowHidden(1, true);
  EXPECT_EQ(table().numberOfRows(), 2);
  EXPECT_EQ(table().numberOfColumns(), 1);
  EXPECT_EQ(table().preparedCell(0, 1)->stringValue, "2 km");
  EXPECT_FALSE(table().preparedCell(0, 2));
}

TEST_F(Tables, RowsAndColumnsFollowTheUsersOrder)
{
  widget().horizontalHeader()->moveSection(0, 1);
  widget().verticalHeader()->moveSection(0, 2);
  EXPECT_THAT(table().identifierOfColumn(0), Optional(std::string("Length")));
  EXPECT_EQ(table().preparedCell(1, 0)->stringValue, "Tour 1");
  EXPECT_EQ(table().preparedCell(1, 2)->stringValue, "Tour 0");
  const Point middle = table().frameOfCell(1, 2).center();
  EXPECT_EQ(table().rowAtPoint(middle), 2);
  EXPECT_EQ(table().columnAtPoint(middle), 1);
}

TEST_F(Tables, ColumnsAreIdentifiedByTheHostElseByTheirHeader)
{
  EXPECT_THAT(table().identifierOfColumn(0), Optional(std::string("Name")));
  model().setHeaderData(0, Qt::Horizontal, QStringLiteral("nameColumn"), Qt::UserRole);
  EXPECT_THAT(table().identifierOfColumn(0), Optional(std::string("nameColumn")));
  widget().setProperty("wv_columnIdentifiers", QStringList{"name"});
  EXPECT_THAT(table().identifierOfColumn(0), Optional(std::string("name")));
  EXPECT_THAT(table().identifierOfColumn(1), Optional(std::string("Length"))) << "the list is too short";
  EXPECT_FALSE(table().identifierOfColumn(2));
}

TEST_F(Tables, AColumnsNumberIsNoIdentifier)
{
  QStandardItemModel plain(2, 2);
  widget().setModel(&plain);
  EXPECT_FALSE(table().identifierOfColumn(0));
  widget().setModel(nullptr);
}

TEST_F(Tables, DrawnCellsTellTextLabelAndPicture)
{
  QPixmap pixmap(16, 16);
  pixmap.fill(Qt::red);
  model().item(1, 0)->setData(QIcon(pixmap), Qt::DecorationRole);
  model().item(1, 0)->setData(QStringLiteral("Tour one"), Qt::AccessibleTextRole);
  model().item(1, 0)->setCheckState(Qt::Checked);
  const auto cell = table().preparedCell(0, 1);
  ASSERT_TRUE(cell);
  EXPECT_EQ(cell->stringValue, "Tour 1");
  EXPECT_THAT(cell->accessibilityLabel, Optional(std::string("Tour one")));
  EXPECT_THAT(cell->image, NotNull());
  EXPECT_FALSE(cell->isButton);
  EXPECT_FALSE(cell->action);
  EXPECT_THAT(table().preparedCell(1, 1)->image, IsNull());
  EXPECT_THAT(table().viewAtColumnRow(0, 1, MakeIfNecessary::Yes), IsNull());
}

TEST_F(Tables, APixmapIsAPictureToo)
{
  QPixmap pixmap(12, 10);
  pixmap.fill(Qt::red);
  model().item(0, 0)->setData(pixmap, Qt::DecorationRole);
  ASSERT_THAT(table().preparedCell(0, 0)->image, NotNull());
  EXPECT_EQ(table().preparedCell(0, 0)->image->size(), (Size{12, 10}));
}

TEST_F(Tables, CellsLieWhereTheyAreShown)
{
  for (int row = 0; row < 3; ++row) {
    for (int column = 0; column < 2; ++column) {
      const QRect shown = widget().visualRect(model().index(row, column));
      const QRect inWindow(widget().viewport()->mapTo(&window(), shown.topLeft()), shown.size());
      EXPECT_EQ(placeOf(handle(), table().frameOfCell(column, row)), QRectF(inWindow));
    }
  }
}

TEST_F(Tables, ARowIsAsWideAsItsColumns)
{
  const Rect row = table().rectOfRow(1);
  EXPECT_EQ(row.x, 0);
  EXPECT_EQ(row.width, widget().horizontalHeader()->length());
  EXPECT_TRUE(row.contains(table().frameOfCell(0, 1)));
  EXPECT_TRUE(row.contains(table().frameOfCell(1, 1)));
  EXPECT_EQ(table().rectOfRow(3), Rect{});
  EXPECT_EQ(table().rectOfRow(-1), Rect{});
}

TEST_F(Tables, PointsOutsideTheCellsAreInNone)
{
  const Rect bounds = handle()->bounds();
  EXPECT_EQ(table().rowAtPoint({bounds.maxX() - 2, bounds.maxY() - 2}), -1);
  EXPECT_EQ(table().columnAtPoint({bounds.maxX() - 2, bounds.maxY() - 2}), -1);
  EXPECT_EQ(table().rowAtPoint({-5, 5}), -1);
}

TEST_F(Tables, TheTableIsWhatItsViewportShows)
{
  const QWidget* viewport = widget().viewport();
  const QRectF place(viewport->mapTo(&window(), QPoint(0, 0)), QSizeF(viewport->size()));
  EXPECT_EQ(placeOf(handle()), place) << "without headers";
  const auto* scroll = handle()->as<platform::ScrollView>();
  ASSERT_THAT(scroll, NotNull());
  EXPECT_THAT(scroll->documentView(), Shows(&widget()));
  EXPECT_EQ(scroll->documentVisibleRect(), handle()->bounds());
}

// Model objects

TEST_F(Tables, ARowKnowsItsModelObject)
{
  const auto object = table().modelObjectOfRow(0, 2);
  ASSERT_THAT(object, NotNull());
  EXPECT_EQ(object->valueForKey("uuid").text, "A2");
  ASSERT_THAT(table().modelObjectOfRow(1, 2), NotNull()) << "the row's first item speaks for it";
  EXPECT_EQ(table().modelObjectOfRow(1, 2)->valueForKey("uuid").text, "A2");
  EXPECT_THAT(table().modelObjectOfRow(0, 3), IsNull());
}

TEST_F(Tables, ARowWithoutModelObjectHasNone)
{
  model().item(0, 0)->setData(QVariant(), Qt::UserRole);
  EXPECT_THAT(table().modelObjectOfRow(0, 0), IsNull());
}

// Widgets on items

TEST_F(Tables, AWidgetOnAnItemIsItsCell)
{
  QWidget* cell = setCell(1, 0);
  EXPECT_THAT(table().viewAtColumnRow(0, 1, MakeIfNecessary::No), Shows(cell));
  EXPECT_THAT(table().viewAtColumnRow(1, 1, MakeIfNecessary::Yes), IsNull()) << "none is made";
  const auto view = viewForWidget(cell);
  EXPECT_TRUE(view->isKind(ViewKind::TableCellView));
  EXPECT_FALSE(viewForWidget(widget().viewport())->isKind(ViewKind::TableCellView));
  EXPECT_FALSE(viewForWidget(cell->findChild<QLabel*>())->isKind(ViewKind::TableCellView));
  const auto* role = view->as<platform::TableCellView>();
  ASSERT_THAT(role, NotNull());
  ASSERT_THAT(role->objectValue(), NotNull());
  EXPECT_EQ(role->objectValue()->valueForKey("uuid").text, "A1");
}

TEST_F(Tables, AButtonOnAnItemIsButtonAndCell)
{
  auto* button = new QPushButton(QStringLiteral("Book"));
  widget().setIndexWidget(model().index(0, 1), button);
  const auto view = viewForWidget(button);
  EXPECT_TRUE(view->isKind(ViewKind::Button));
  EXPECT_TRUE(view->isKind(ViewKind::TableCellView));
  EXPECT_EQ(view->as<platform::Button>()->title(), "Book");
}

TEST_F(Tables, WhatIsInACellIsInItsRowAndColumn)
{
  const QWidget* cell = setCell(2, 1);
  auto* button = cell->findChild<QPushButton*>();
  EXPECT_EQ(table().rowForView(*viewForWidget(button)), 2);
  EXPECT_EQ(table().columnForView(*viewForWidget(button)), 1);
  const auto outside = viewForWidget(add<QWidget>(QRect(400, 10, 20, 20)));
  EXPECT_EQ(table().rowForView(*outside), -1);
  EXPECT_EQ(table().columnForView(*outside), -1);
  EXPECT_EQ(table().rowForView(*handle()), -1);
}

TEST_F(Tables, AHitInACellFindsWhatIsInIt)
{
  const QWidget* cell = setCell(1, 1);
  auto* button = cell->findChild<QPushButton*>();
  EXPECT_THAT(hitAt(button->mapTo(&window(), button->rect().center())), Shows(button));
}

TEST_F(Tables, ACellLiesInTheTablesContents)
{
  const auto cell = viewForWidget(setCell(1, 1));
  const Rect inTable = cell->convertRectToAncestor(cell->bounds(), *handle());
  EXPECT_EQ(inTable, table().frameOfCell(1, 1));
}

// Lists

TEST_F(Tables, ATableInACellIsNamedByItsItemUnlessItHasAName)
{
  auto* list = new QListWidget;
  widget().setIndexWidget(model().index(2, 1), list);
  QCoreApplication::sendPostedEvents();
  const auto view = viewForWidget(list);
  EXPECT_EQ(view->accessibilityIdentifier(), "QTableView:2,1");
  EXPECT_TRUE(view->accessibilityIdentifierEquals(SearchText("QTableView:2,1")));
  EXPECT_FALSE(view->accessibilityIdentifierEquals(SearchText("QTableView:1,1")));
  EXPECT_EQ(handle()->accessibilityIdentifier(), std::nullopt);
  widget().setObjectName(QStringLiteral("tours"));
  EXPECT_EQ(view->accessibilityIdentifier(), "tours:2,1");
  list->setObjectName(QStringLiteral("huts"));
  EXPECT_EQ(view->accessibilityIdentifier(), "huts");
}

TEST_F(Tables, ATableInABranchIsNamedByThePathToItsItem)
{
  auto* tree = add<QTreeWidget>(QRect(330, 30, 200, 200));
  auto* region = new QTreeWidgetItem(tree, {QStringLiteral("Alps")});
  auto* place = new QTreeWidgetItem(region, {QString()});
  auto* list = new QListWidget;
  tree->setItemWidget(place, 0, list);
  tree->expandAll();
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(viewForWidget(list)->accessibilityIdentifier(), "QTreeWidget:0.0");
}

TEST_F(Tables, AListHasOneColumn)
{
  auto* list = add<QListWidget>(QRect(330, 30, 200, 200));
  list->addItems({"Alps", "Jura"});
  const auto view = viewForWidget(list);
  const auto& rows = *view->as<platform::TableView>();
  EXPECT_EQ(rows.numberOfRows(), 2);
  EXPECT_EQ(rows.numberOfColumns(), 1);
  EXPECT_FALSE(rows.identifierOfColumn(0));
  EXPECT_EQ(rows.preparedCell(0, 1)->stringValue, "Jura");
  EXPECT_EQ(rows.rowAtPoint(rows.rectOfRow(1).center()), 1);
  EXPECT_EQ(rows.columnAtPoint(rows.rectOfRow(1).center()), 0);
  EXPECT_FALSE(rows.preparedCell(1, 1));
}

TEST_F(Tables, AListShowsTheColumnOfItsModelThatItIsTold)
{
  auto* list = add<QListView>(QRect(330, 30, 200, 200));
  list->setModel(&model());
  list->setModelColumn(1);
  EXPECT_EQ(viewForWidget(list)->as<platform::TableView>()->preparedCell(0, 2)->stringValue, "2 km");
}

TEST_F(Tables, AViewWithoutModelIsEmpty)
{
  auto* empty = add<QTableView>(QRect(330, 30, 200, 200));
  const auto view = viewForWidget(empty);
  const auto& rows = *view->as<platform::TableView>();
  EXPECT_EQ(rows.numberOfRows(), 0);
  EXPECT_EQ(rows.numberOfColumns(), 0);
  EXPECT_FALSE(rows.identifierOfColumn(0));
  EXPECT_EQ(rows.rowAtPoint({5, 5}), -1);
  EXPECT_FALSE(rows.preparedCell(0, 0));
  EXPECT_EQ(rows.rectOfRow(0), Rect{});
  rows.scrollRowToVisible(0, {});
}

/// A view of a host's that shows two thousand million rows by arithmetic.
class EndlessView : public QAbstractItemView {
public:
  using QAbstractItemView::QAbstractItemView;

  [[nodiscard]] QRect visualRect(const QModelIndex& index) const override
  {
    return {0, static_cast<int>(index.row() - first_) * 20, 100, 20};
  }

  void scrollTo(const QModelIndex& index, ScrollHint /*hint*/) override { first_ = index.row(); }

  [[nodiscard]] QModelIndex indexAt(const QPoint& point) const override
  {
    return model()->index(first_ + point.y() / 20, 0);
  }

protected:
  QModelIndex moveCursor(CursorAction /*action*/, Qt::KeyboardModifiers /*modifiers*/) override { return {}; }

  [[nodiscard]] int horizontalOffset() const override { return 0; }

  [[nodiscard]] int verticalOffset() const override { return 0; }

  [[nodiscard]] bool isIndexHidden(const QModelIndex& /*index*/) const override { return false; }

  void setSelection(const QRect& /*rect*/, QItemSelectionModel::SelectionFlags /*command*/) override {}

  [[nodiscard]] QRegion visualRegionForSelection(const QItemSelection& /*selection*/) const override
  {
    return {};
  }

private:
  int first_ = 0;
};

class EndlessModel : public QAbstractListModel {
public:
  using QAbstractListModel::QAbstractListModel;

  [[nodiscard]] int rowCount(const QModelIndex& /*parent*/) const override { return 2'000'000'000; }

  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override
  {
    return role == Qt::DisplayRole ? QVariant(QStringLiteral("Row %1").arg(index.row())) : QVariant();
  }
};

TEST_F(Tables, TwoThousandMillionRowsTakeNoTime)
{
  EndlessModel endless;
  auto* list = add<EndlessView>(QRect(330, 30, 200, 200));
  list->setModel(&endless);
  const auto view = viewForWidget(list);
  const auto& rows = *view->as<platform::TableView>();
  QElapsedTimer timer;
  timer.start();
  EXPECT_EQ(rows.numberOfRows(), 2'000'000'000);
  EXPECT_EQ(rows.preparedCell(0, 1'999'999'999)->stringValue, "Row 1999999999");
  EXPECT_EQ(rows.rowAtPoint({5, 45}), 2);
  EXPECT_FALSE(rows.rectOfRow(50).isEmpty());
  EXPECT_LT(timer.elapsed(), 1000);
  list->setModel(nullptr);
}

} // namespace

} // namespace wayvane::qt
