#include <tests/live/elements/Elements.h>

#include <QHeaderView>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStandardItemModel>
#include <QTableView>

#include <limits>
#include <stdexcept>

namespace wayvane::qt {

namespace {

/// A document of 400 x 900 in an area of 220 x 200.
class Scrolling : public Elements {
protected:
  void SetUp() override
  {
    Elements::SetUp();
    area_ = add<QScrollArea>(QRect(50, 50, 220, 200));
    document_ = new QWidget;
    document_->resize(400, 900);
    area_->setWidget(document_);
    handle_ = viewForWidget(area_);
  }

  [[nodiscard]] QScrollArea& area() { return *area_; }

  [[nodiscard]] QWidget* document() { return document_; }

  [[nodiscard]] const platform::ScrollView& scroll() const { return *handle_->as<platform::ScrollView>(); }

  [[nodiscard]] platform::ScrollAnimation counted(double duration)
  {
    return {.duration = duration, .completion = [this] { ++completions_; }};
  }

  [[nodiscard]] int completions() const { return completions_; }

private:
  QScrollArea* area_ = nullptr;
  QWidget* document_ = nullptr;
  ViewHandle handle_;
  int completions_ = 0;
};

TEST_F(Scrolling, TheWidgetOfTheAreaIsTheDocument)
{
  EXPECT_THAT(scroll().documentView(), Shows(document()));
  EXPECT_EQ(scroll().documentBounds(), (Rect{0, 0, 400, 900}));
  const QSize viewport = area().viewport()->size();
  EXPECT_EQ(scroll().documentVisibleRect(),
            (Rect{0, 0, double(viewport.width()), double(viewport.height())}));
}

TEST_F(Scrolling, AnEmptyAreaHasNoDocument)
{
  const auto view = viewForWidget(add<QScrollArea>(QRect(300, 50, 100, 100)));
  const auto& empty = *view->as<platform::ScrollView>();
  EXPECT_THAT(empty.documentView(), IsNull());
  EXPECT_EQ(empty.documentVisibleRect(), Rect{});
  EXPECT_EQ(empty.documentBounds(), Rect{});
  empty.scrollToOrigin({0, 10}, counted(0));
  EXPECT_EQ(completions(), 1);
}

TEST_F(Scrolling, AJumpIsCompleteBeforeTheCallReturns)
{
  scroll().scrollToOrigin({30, 400}, counted(0));
  EXPECT_EQ(completions(), 1);
  EXPECT_EQ(scroll().documentVisibleRect().origin(), (Point{30, 400}));
}

TEST_F(Scrolling, AScrollEndsAtTheEdgeOfTheDocument)
{
  scroll().scrollToOrigin({-50, 5000}, {});
  const Rect visible = scroll().documentVisibleRect();
  EXPECT_EQ(visible.x, 0);
  EXPECT_EQ(visible.maxY(), 900);
}

TEST_F(Scrolling, WhatIsNoPlaceLeadsNowhere)
{
  scroll().scrollToOrigin({std::numeric_limits<double>::quiet_NaN(), 40}, counted(0));
  EXPECT_EQ(completions(), 1);
  EXPECT_EQ(scroll().documentVisibleRect().origin(), (Point{0, 0}));
}

TEST_F(Scrolling, AnAnimationRunsInEaseInEaseOut)
{
  QElapsedTimer timer;
  timer.start();
  std::vector<std::pair<double, double>> course;
  const auto noted =
      QObject::connect(area().verticalScrollBar(), &QScrollBar::valueChanged, &area(), [&](int y) {
        course.emplace_back(static_cast<double>(timer.elapsed()) / 400, y / 500.0);
      });
  scroll().scrollToOrigin({0, 500}, counted(0.4));
  EXPECT_EQ(completions(), 0);
  ASSERT_TRUE(QTest::qWaitFor([&] { return completions() == 1; }));
  EXPECT_EQ(scroll().documentVisibleRect().y, 500);
  ASSERT_GE(course.size(), 3U);
  for (std::size_t i = 1; i < course.size(); ++i)
    EXPECT_GE(course[i].second, course[i - 1].second) << "it never turns back";
  QObject::disconnect(noted);
}

TEST_F(Scrolling, AnotherScrollTakesOverAndBothComplete)
{
  int first = 0;
  scroll().scrollToOrigin({0, 500}, {.duration = 5, .completion = [&] { ++first; }});
  QTest::qWait(20);
  scroll().scrollToOrigin({0, 100}, counted(0.05));
  EXPECT_EQ(first, 0) << "told on a later turn";
  ASSERT_TRUE(QTest::qWaitFor([&] { return first > 0 && completions() > 0; }));
  QTest::qWait(30);
  EXPECT_EQ(first, 1);
  EXPECT_EQ(completions(), 1);
  EXPECT_EQ(scroll().documentVisibleRect().y, 100);
}

TEST_F(Scrolling, AJumpTakesOverToo)
{
  int first = 0;
  scroll().scrollToOrigin({0, 500}, {.duration = 5, .completion = [&] { ++first; }});
  scroll().scrollToOrigin({0, 100}, counted(0));
  EXPECT_EQ(completions(), 1);
  ASSERT_TRUE(QTest::qWaitFor([&] { return first == 1; }));
  EXPECT_EQ(scroll().documentVisibleRect().y, 100);
}

TEST_F(Scrolling, AnAreaThatEndsCompletesOnce)
{
  scroll().scrollToOrigin({0, 500}, counted(0.1));
  QTest::qWait(20);
  delete &area();
  ASSERT_TRUE(QTest::qWaitFor([&] { return completions() > 0; }));
  QTest::qWait(120);
  EXPECT_EQ(completions(), 1);
}

TEST_F(Scrolling, AnAreaMayEndInTheCompletion)
{
  bool done = false;
  scroll().scrollToOrigin({0, 500}, {.duration = 0.03, .completion = [&] {
                                       delete &area();
                                       done = true;
                                     }});
  EXPECT_TRUE(QTest::qWaitFor([&] { return done; }));
}

TEST_F(Scrolling, ADeadAreaStillCompletes)
{
  delete &area();
  scroll().scrollToOrigin({0, 500}, counted(0));
  EXPECT_EQ(completions(), 1);
  scroll().scrollToOrigin({0, 500}, counted(0.1));
  EXPECT_EQ(completions(), 1);
  EXPECT_TRUE(QTest::qWaitFor([&] { return completions() == 2; }));
}

TEST_F(Scrolling, ACompletionThatThrowsHarmsNobody)
{
  scroll().scrollToOrigin({0, 50}, {.duration = 0.02, .completion = [this] {
                                      static_cast<void>(counted(0).completion());
                                      throw std::runtime_error("the host's own trouble");
                                    }});
  EXPECT_TRUE(QTest::qWaitFor([&] { return completions() == 1; }));
}

TEST_F(Scrolling, FromRightToLeftPlacesStayPlaces)
{
  area().setLayoutDirection(Qt::RightToLeft);
  scroll().scrollToOrigin({30, 100}, {});
  EXPECT_EQ(scroll().documentVisibleRect().origin(), (Point{30, 100}));
}

TEST_F(Scrolling, AnElementOfTheDocumentKeepsItsPlaceInIt)
{
  auto* button = new QPushButton(document());
  button->setGeometry(20, 500, 80, 30);
  button->show();
  scroll().scrollToOrigin({10, 450}, {});
  const auto view = viewForWidget(button);
  EXPECT_EQ(view->convertRectToAncestor(view->bounds(), *scroll().documentView()), (Rect{20, 500, 80, 30}));
}

// Tables

class ScrollingTables : public Scrolling, public testing::WithParamInterface<QAbstractItemView::ScrollMode> {
protected:
  void SetUp() override
  {
    Scrolling::SetUp();
    for (int row = 0; row < 100; ++row) {
      QList<QStandardItem*> items;
      for (int column = 0; column < 8; ++column)
        items.append(new QStandardItem(QStringLiteral("%1/%2").arg(row).arg(column)));
      model_.appendRow(items);
    }
    view_ = add<QTableView>(QRect(300, 50, 280, 300));
    view_->setModel(&model_);
    view_->setHorizontalScrollMode(GetParam());
    view_->setVerticalScrollMode(GetParam());
    handle_ = viewForWidget(view_);
  }

  [[nodiscard]] QTableView& widget() { return *view_; }

  [[nodiscard]] const ViewHandle& handle() const { return handle_; }

  [[nodiscard]] const platform::TableView& table() const { return *handle_->as<platform::TableView>(); }

  [[nodiscard]] const platform::ScrollView& contents() const { return *handle_->as<platform::ScrollView>(); }

private:
  QStandardItemModel model_;
  QTableView* view_ = nullptr;
  ViewHandle handle_;
};

TEST_P(ScrollingTables, CellsKeepTheirPlaceInTheContents)
{
  const Rect before = table().frameOfCell(2, 50);
  table().scrollRowToVisible(60, {});
  widget().horizontalScrollBar()->setValue(widget().horizontalScrollBar()->maximum());
  EXPECT_EQ(table().frameOfCell(2, 50), before);
  EXPECT_EQ(table().rowAtPoint(before.center()), 50);
}

TEST_P(ScrollingTables, CellsMoveInTheWindow)
{
  table().scrollRowToVisible(60, {});
  const QRect shown = widget().visualRect(widget().model()->index(60, 0));
  const QRectF inWindow(widget().viewport()->mapTo(&window(), shown.topLeft()), QSizeF(shown.size()));
  EXPECT_EQ(placeOf(handle(), table().frameOfCell(0, 60)), inWindow);
}

TEST_P(ScrollingTables, ARowThatIsPartlyCoveredIsCutOff)
{
  const Rect wide = table().rectOfRow(1);
  ASSERT_GT(wide.width, handle()->bounds().width);
  const QRectF shown = placeOf(handle(), wide);
  EXPECT_EQ(shown.width(), widget().viewport()->width());
}

TEST_P(ScrollingTables, ARowScrollsIntoSightInTime)
{
  table().scrollRowToVisible(80, counted(0.1));
  EXPECT_EQ(completions(), 0);
  EXPECT_FALSE(handle()->bounds().contains(table().frameOfCell(0, 80))) << "not before its time";
  ASSERT_TRUE(QTest::qWaitFor([&] { return completions() == 1; }));
  EXPECT_TRUE(handle()->bounds().contains(table().frameOfCell(0, 80)));
  EXPECT_EQ(widget().horizontalScrollBar()->value(), 0);
}

TEST_P(ScrollingTables, TheContentsReachAsFarAsTheCells)
{
  const Rect all = contents().documentBounds();
  EXPECT_EQ(all.origin(), (Point{0, 0}));
  EXPECT_TRUE(all.contains(table().frameOfCell(7, 99)));
  EXPECT_LE(all.maxY(), table().frameOfCell(7, 99).maxY() + 1) << "and a line of the grid";
  EXPECT_LE(all.maxX(), table().frameOfCell(7, 99).maxX() + 1);
}

TEST_P(ScrollingTables, APlaceInTheContentsComesIntoSight)
{
  const Rect cell = table().frameOfCell(5, 70);
  const Rect visible = contents().documentVisibleRect();
  contents().scrollToOrigin({cell.center().x - visible.width / 2, cell.center().y - visible.height / 2},
                            counted(0));
  EXPECT_EQ(completions(), 1);
  EXPECT_TRUE(contents().documentVisibleRect().intersects(cell))
      << platform::stringFromRect(contents().documentVisibleRect());
}

TEST_P(ScrollingTables, HeadersAndScrollBarsAreNotInTheContents)
{
  for (QWidget* beside : {static_cast<QWidget*>(widget().horizontalHeader()),
                          static_cast<QWidget*>(widget().verticalScrollBar())}) {
    const auto view = viewForWidget(beside);
    EXPECT_EQ(view->convertRectToAncestor(view->bounds(), *handle()), Rect{});
    EXPECT_FALSE(view->convertRectToAncestor(view->bounds(), *viewForWidget(&window())).isEmpty());
  }
}

TEST_P(ScrollingTables, ARowThatIsNotThereCompletes)
{
  table().scrollRowToVisible(100, counted(0));
  table().scrollRowToVisible(-1, counted(0));
  EXPECT_EQ(completions(), 2);
  EXPECT_EQ(widget().verticalScrollBar()->value(), 0);
}

INSTANTIATE_TEST_SUITE_P(By, ScrollingTables,
                         testing::Values(QAbstractItemView::ScrollPerItem, QAbstractItemView::ScrollPerPixel),
                         [](const auto& mode) {
                           return mode.param == QAbstractItemView::ScrollPerItem ? "Item" : "Pixel";
                         });

} // namespace

} // namespace wayvane::qt
