#include <tests/live/elements/Elements.h>

#include <QComboBox>
#include <QKeySequenceEdit>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRegion>
#include <QSpinBox>
#include <QTableWidget>
#include <QTextEdit>

namespace wayvane::qt {

namespace {

class Geometry : public Elements {};

TEST_F(Geometry, AnElementLiesInItsWindowUpwardFromTheBottom)
{
  const auto view = viewForWidget(add<QWidget>(QRect(40, 60, 120, 30)));
  EXPECT_EQ(view->bounds(), (Rect{0, 0, 120, 30}));
  EXPECT_EQ(view->convertRectToWindow(view->bounds()), (Rect{40, 400 - 60 - 30, 120, 30}));
  EXPECT_EQ(view->convertRectToWindow({10, 5, 20, 10}), (Rect{50, 400 - 60 - 15, 20, 10}));
}

TEST_F(Geometry, PointsOfTheWindowComeBackIntoTheElement)
{
  auto* parent = add<QWidget>(QRect(30, 20, 300, 200));
  auto* child = new QWidget(parent);
  child->setGeometry(10, 40, 120, 30);
  child->show();
  const auto view = viewForWidget(child);
  EXPECT_EQ(view->convertPointFromWindow({45.5, 400 - 70.25}), (Point{5.5, 10.25}));
}

TEST_F(Geometry, AnAncestorSeesAnElementInItsOwnCoordinates)
{
  auto* parent = add<QWidget>(QRect(30, 20, 300, 200));
  auto* child = new QWidget(parent);
  child->setGeometry(10, 40, 120, 30);
  const auto view = viewForWidget(child);
  EXPECT_EQ(view->convertRectToAncestor(view->bounds(), *viewForWidget(parent)), (Rect{10, 40, 120, 30}));
  EXPECT_EQ(view->convertRectToAncestor({1, 2, 3, 4}, *viewForWidget(&window())), (Rect{41, 62, 3, 4}));
  EXPECT_EQ(view->convertRectToAncestor({1, 2, 3, 4}, *view), (Rect{1, 2, 3, 4}));
  EXPECT_EQ(viewForWidget(parent)->convertRectToAncestor({1, 2, 3, 4}, *view), Rect{}) << "no ancestor";
}

TEST_F(Geometry, WhatIsNotShownIsNowhere)
{
  auto* parent = add<QWidget>(QRect(30, 20, 300, 200));
  auto* child = new QWidget(parent);
  child->setGeometry(10, 40, 120, 30);
  child->show();
  const auto view = viewForWidget(child);
  parent->hide();
  EXPECT_EQ(view->convertRectToWindow(view->bounds()), Rect{});
  parent->show();
  window().hide();
  EXPECT_EQ(view->convertRectToWindow(view->bounds()), Rect{}) << "its window is hidden";
}

TEST_F(Geometry, AFrameIsTheClientAreaOnTheScreen)
{
  const auto handle = windowForWidget(&window());
  const QRectF global(window().mapToGlobal(QPoint(0, 0)), QSizeF(600, 400));
  EXPECT_EQ(handle->frame(), screenRectFromGlobal(global));
  EXPECT_EQ(handle->convertPointFromScreen(screenPointFromGlobal(global.bottomLeft())), (Point{0, 0}));
}

// Hits

TEST_F(Geometry, AHitFindsTheDeepestAndFrontmost)
{
  auto* back = add<QWidget>(QRect(0, 0, 200, 200));
  auto* inside = new QPushButton(back);
  inside->setGeometry(10, 10, 50, 50);
  inside->show();
  auto* front = add<QWidget>(QRect(100, 100, 200, 200));
  EXPECT_THAT(hitAt({20, 20}), Shows(inside));
  EXPECT_THAT(hitAt({80, 80}), Shows(back));
  EXPECT_THAT(hitAt({150, 150}), Shows(front));
  EXPECT_THAT(hitAt({500, 380}), Shows(&content()));
  EXPECT_THAT(hitAt({-1, 10}), IsNull());
  EXPECT_THAT(hitAt({10, 400}), IsNull());
}

TEST_F(Geometry, APixelBelongsToOneElementOnly)
{
  auto* upper = add<QWidget>(QRect(0, 0, 100, 50));
  auto* lower = add<QWidget>(QRect(0, 50, 100, 50));
  EXPECT_THAT(hitAt({10, 49}), Shows(upper));
  EXPECT_THAT(hitAt({10, 50}), Shows(lower));
}

TEST_F(Geometry, AHitPassesWhatTakesNoMouse)
{
  auto* back = add<QWidget>(QRect(0, 0, 200, 200));
  auto* glass = add<QWidget>(QRect(0, 0, 200, 200));
  EXPECT_THAT(hitAt({20, 20}), Shows(glass));
  glass->setAttribute(Qt::WA_TransparentForMouseEvents);
  EXPECT_THAT(hitAt({20, 20}), Shows(back));
  glass->setAttribute(Qt::WA_TransparentForMouseEvents, false);
  glass->setProperty("wv_own", true);
  EXPECT_THAT(hitAt({20, 20}), Shows(back)) << "ours";
  glass->setProperty("wv_own", false);
  glass->setMask(QRegion(100, 100, 50, 50));
  EXPECT_THAT(hitAt({20, 20}), Shows(back)) << "cut out of its shape";
  EXPECT_THAT(hitAt({120, 120}), Shows(glass));
  glass->hide();
  EXPECT_THAT(hitAt({120, 120}), Shows(back));
}

TEST_F(Geometry, AHitFindsDisabledElements)
{
  auto* button = add<QPushButton>(QRect(0, 0, 100, 30));
  button->setEnabled(false);
  EXPECT_THAT(hitAt({20, 20}), Shows(button));
}

TEST_F(Geometry, AHitFindsTheControlAndNotTheEditorInIt)
{
  auto* combo = add<QComboBox>(QRect(0, 0, 150, 30));
  combo->setEditable(true);
  auto* spin = add<QSpinBox>(QRect(0, 40, 150, 30));
  auto* keys = add<QKeySequenceEdit>(QRect(0, 80, 150, 30));
  auto* text = add<QTextEdit>(QRect(0, 120, 150, 80));
  auto* table = add<QTableWidget>(QRect(0, 220, 150, 150), 2, 1);
  EXPECT_THAT(hitAt({20, 15}), Shows(combo));
  EXPECT_THAT(hitAt({20, 55}), Shows(spin));
  EXPECT_THAT(hitAt({20, 95}), Shows(keys));
  EXPECT_THAT(hitAt({20, 160}), Shows(text));
  EXPECT_THAT(hitAt({60, 280}), Shows(table));
}

TEST_F(Geometry, AHitInsideAnElementStaysInside)
{
  auto* spin = add<QSpinBox>(QRect(0, 40, 150, 30));
  auto* editor = spin->findChild<QLineEdit*>();
  const auto hit = viewForWidget(editor)->hitTest(windowPointFromWidget({20, 55}, window()));
  EXPECT_THAT(hit, Shows(editor));
  EXPECT_THAT(viewForWidget(spin)->hitTest(windowPointFromWidget({20, 35}, window())), IsNull());
}

TEST_F(Geometry, AnOpenMenuCoversWhatLiesBelow)
{
  add<QWidget>(QRect(0, 0, 600, 400));
  QMenu menu;
  menu.addAction(QStringLiteral("Cut"));
  menu.popup(window().mapToGlobal(QPoint(50, 50)));
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu));
  EXPECT_THAT(hitAt(QPointF(window().mapFromGlobal(menu.geometry().center()))), Shows(&menu));
  menu.close();
  EXPECT_THAT(hitAt({60, 60}), NotNull());
}

} // namespace

} // namespace wayvane::qt
