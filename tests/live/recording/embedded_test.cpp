#include "RecordingTest.h"

#include <wayvane/recording/WVHoverHUD.h>

#include <QGuiApplication>
#include <QLineEdit>
#include <QMouseEvent>
#include <QScrollArea>
#include <QTest>
#include <QWindow>

namespace wayvane::qt::test {
namespace {

/// A window that no widget knows of.
struct BareWindow : QWindow {
  int presses = 0, releases = 0;

  void mousePressEvent(QMouseEvent* /*event*/) override { ++presses; }

  void mouseReleaseEvent(QMouseEvent* /*event*/) override { ++releases; }
};

using Embedded = RecordingTest;

TEST_F(Embedded, AnElementWithAWindowOfItsOwnIsAStepLikeAnyOther)
{
  save->setAttribute(Qt::WA_NativeWindow);
  save->winId();
  ASSERT_TRUE(save->windowHandle());
  click(*save);
  EXPECT_THAT(acts, ElementsAre("Save"));
  ASSERT_TRUE(annotate());
  EXPECT_THAT(steps(), ElementsAre("QPushButton#save 'Save' @Main: Here | Press it."));
  EXPECT_TRUE(finishes());
}

TEST_F(Embedded, AnElementWithinOneThatHasAWindowOfItsOwnIsAStep)
{
  auto* const area = new QScrollArea(window);
  auto* const content = new QWidget;
  content->setFixedSize(200, 600);
  QPushButton* const deep = addButton(content, "Deep", {20, 20, 100, 30});
  area->setWidget(content);
  area->setGeometry(40, 120, 240, 160);
  area->show();
  content->setAttribute(Qt::WA_NativeWindow);
  content->winId();
  ASSERT_EQ(deep->nativeParentWidget(), content);
  ASSERT_TRUE(QTest::qWaitForWindowExposed(content->windowHandle()));
  wait(50);
  click(*deep);
  EXPECT_THAT(acts, ElementsAre("Deep"));
  ASSERT_TRUE(annotate());
  EXPECT_THAT(steps(), ElementsAre("QPushButton#deep 'Deep' @Main: Here | Press it."));
}

TEST_F(Embedded, AnElementWithAWindowOfItsOwnMayDeleteItself)
{
  save->setAttribute(Qt::WA_NativeWindow);
  save->winId();
  QObject::connect(save, &QPushButton::pressed, window, [this] { delete save; });
  click(*save);
  ASSERT_TRUE(annotate());
  EXPECT_THAT(steps(), ElementsAre("QPushButton#save 'Save' @Main: Here | Press it."));
}

TEST_F(Embedded, AWindowInAContainerIsTheStepOfTheContainer)
{
  auto* const bare = new BareWindow;
  QWidget* const container = QWidget::createWindowContainer(bare, window);
  container->setObjectName(QStringLiteral("canvas"));
  container->setGeometry(40, 120, 300, 200);
  container->show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(bare));
  QTest::mouseClick(bare, Qt::LeftButton, {}, {50, 50});
  EXPECT_EQ(bare->presses, 1);
  EXPECT_EQ(bare->releases, 1);
  ASSERT_TRUE(annotate());
  EXPECT_THAT(steps(), ElementsAre("QWindowContainer#canvas '-' @Main: Here | Press it."));
  EXPECT_TRUE(finishes());
}

TEST_F(Embedded, AForeignWindowInAContainerIsTheStepOfTheContainer)
{
  BareWindow stranger;
  stranger.create();
  const bool knowsForeignOnes = QGuiApplication::platformName() == QLatin1String("xcb");
  // Elsewhere the plainest window that is not the program's own stands in.
  QWindow* const foreign = knowsForeignOnes ? QWindow::fromWinId(stranger.winId()) : new QWindow;
  ASSERT_TRUE(foreign);
  QWidget* const container = QWidget::createWindowContainer(foreign, window);
  container->setObjectName(QStringLiteral("guest"));
  container->setGeometry(40, 120, 300, 200);
  container->show();
  wait(50);
  QTest::mouseClick(foreign, Qt::LeftButton, {}, {50, 50});
  ASSERT_TRUE(annotate());
  EXPECT_THAT(steps(), ElementsAre("QWindowContainer#guest '-' @Main: Here | Press it."));
  delete container;
}

TEST_F(Embedded, AWindowWithoutWidgetsIsNoStepAndGetsItsClick)
{
  ASSERT_FALSE(WVHoverHUD::shared().lastView());
  BareWindow bare;
  bare.setGeometry(800, 500, 200, 200);
  bare.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&bare));
  QTest::mouseClick(&bare, Qt::LeftButton, {}, {50, 50});
  EXPECT_EQ(bare.presses, 1);
  EXPECT_EQ(bare.releases, 1);
  EXPECT_TRUE(nothingIsAsked());
  EXPECT_THAT(steps(), IsEmpty());
}

TEST_F(Embedded, AWindowWithoutWidgetsIsTheStepOfWhatWasPointedAtLast)
{
  BareWindow bare;
  bare.setGeometry(800, 500, 200, 200);
  bare.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&bare));
  hover(*save);
  ASSERT_TRUE(waitUntil([] { return WVHoverHUD::shared().isVisible(); }));
  QTest::mouseMove(&bare, {50, 50});
  EXPECT_FALSE(WVHoverHUD::shared().isVisible());
  QTest::mouseClick(&bare, Qt::LeftButton, {}, {50, 50});
  EXPECT_EQ(bare.presses, 1);
  ASSERT_TRUE(annotate());
  EXPECT_THAT(steps(), ElementsAre("QPushButton#save 'Save' @Main: Here | Press it."));
}

} // namespace
} // namespace wayvane::qt::test
