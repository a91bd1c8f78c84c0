#include "PlaybackTest.h"

#include <wayvane/overlay/WVBubbleView.h>

#include <gmock/gmock.h>

namespace wayvane::qt::test {
namespace {

using testing::ElementsAre;

TEST_F(PlaybackTest, ClicksOnTheTargetsWalkTheGuideToItsEndAndReachTheProgram)
{
  player->playGuide(guideFor({"save", "far", "apply"}));
  ASSERT_TRUE(waitForStep(0));
  clickTarget();
  ASSERT_TRUE(waitForStep(1));
  EXPECT_EQ(host->saves, 1);
  const QRect visible = host->scroll->viewport()->rect();
  const QRect far(host->far->mapTo(host->scroll->viewport(), QPoint()), host->far->size());
  EXPECT_TRUE(visible.contains(far)) << "the far button was scrolled into view";
  clickTarget();
  ASSERT_TRUE(waitForStep(2));
  EXPECT_EQ(overlay()->window(), host->second) << "the overlay went over to the second window";
  clickTarget();
  ASSERT_TRUE(waitUntil([this] { return !player->isPlaying(); }));
  EXPECT_THAT(listener->heard, ElementsAre("show 0", "show 1", "show 2", "complete"));
}

TEST_F(PlaybackTest, AMissingTargetIsSkipped)
{
  player->playGuide(guideFor({"save", "nobody", "apply"}));
  ASSERT_TRUE(waitForStep(0));
  clickTarget();
  ASSERT_TRUE(waitForStep(2));
  EXPECT_THAT(listener->heard, ElementsAre("show 0", "show 1", "show 2"));
}

TEST_F(PlaybackTest, AClickElsewhereIsHeldBackAndContinueStaysOnTheStep)
{
  player->playGuide(guideFor({"save", "apply"}));
  ASSERT_TRUE(waitForStep(0));
  answerNextAlert(QStringLiteral("Continue Tutorial"));
  click(*host->other);
  ASSERT_TRUE(waitUntil([this] { return !alertText.isEmpty() && !player->showingExitPrompt(); }));
  EXPECT_TRUE(alertText.contains(QStringLiteral("Exit Tutorial?")));
  EXPECT_EQ(host->others, 0);
  EXPECT_TRUE(player->isPlaying());
  EXPECT_EQ(player->currentStepIndex(), 0U);
}

TEST_F(PlaybackTest, RightClicksAndKeysReachTheProgramAndNeitherAdvanceNorAsk)
{
  player->playGuide(guideFor({"save", "apply"}));
  ASSERT_TRUE(waitForStep(0));
  answerNextAlert(QStringLiteral("Exit"));
  QWindow* const window = host->main->windowHandle();
  for (const QWidget* widget : {host->save.data(), host->other.data()}) {
    const QPoint at = widget->mapTo(host->main.data(), widget->rect().center());
    QTest::mouseClick(window, Qt::RightButton, {}, at);
    QTest::mouseClick(window, Qt::MiddleButton, {}, at);
  }
  host->other->setFocus();
  QTest::keyClick(window, Qt::Key_Space);
  QTest::keyClick(window, Qt::Key_Escape);
  QTest::qWait(300);
  EXPECT_EQ(host->others, 1) << "by the space bar";
  EXPECT_TRUE(player->isPlaying());
  EXPECT_EQ(player->currentStepIndex(), 0U);
  EXPECT_TRUE(alertText.isEmpty());
}

TEST_F(PlaybackTest, AClickElsewhereAndExitEndsTheGuide)
{
  player->playGuide(guideFor({"save", "apply"}));
  ASSERT_TRUE(waitForStep(0));
  answerNextAlert(QStringLiteral("Exit"));
  click(*host->other);
  ASSERT_TRUE(waitUntil([this] { return !player->isPlaying(); }));
  EXPECT_EQ(host->others, 0);
  EXPECT_THAT(listener->heard, ElementsAre("show 0", "skip 0"));
}

TEST_F(PlaybackTest, AClickElsewhereOnTheLastStepEndsTheGuideAndReachesTheProgram)
{
  player->playGuide(guideFor({"save"}));
  ASSERT_TRUE(waitForStep(0));
  click(*host->other);
  EXPECT_FALSE(player->isPlaying());
  EXPECT_EQ(host->others, 1);
}

TEST_F(PlaybackTest, AClickOnADisabledTargetStillCounts)
{
  host->save->setEnabled(false);
  player->playGuide(guideFor({"save", "other"}));
  ASSERT_TRUE(waitForStep(0));
  clickTarget();
  EXPECT_TRUE(waitForStep(1));
}

TEST_F(PlaybackTest, ADrawnTableCellIsHighlightedAlone)
{
  auto guide = std::make_shared<WVGuide>("Tour");
  WVTargetDescriptor target;
  target.tableIdentifier = "table";
  target.tableRow = 30;
  target.tableColumn = 0;
  guide->steps.push_back(WVStep::stepWithTarget(target, "This cell"));
  player->playGuide(guide);
  ASSERT_TRUE(waitForStep(0));
  const QRect cell = host->table->visualItemRect(host->table->item(30, 0));
  EXPECT_TRUE(host->table->viewport()->rect().contains(cell)) << "the row was scrolled into view";
  EXPECT_EQ(player->currentTargetScreenRect().width, cell.width());
  EXPECT_EQ(player->currentTargetScreenRect().height, cell.height());
}

TEST_F(PlaybackTest, TheOverlayFollowsTheSizeOfItsWindow)
{
  player->playGuide(guideFor({"save"}));
  ASSERT_TRUE(waitForStep(0));
  host->main->resize(1000, 700);
  EXPECT_TRUE(waitUntil([this] { return overlay()->size() == host->main->size(); }));
}

TEST_F(PlaybackTest, MarkupInAGuideIsShownAsText)
{
  player->playGuide(guideFor({"save"}));
  ASSERT_TRUE(waitForStep(0));
  EXPECT_EQ(player->currentBubble()->messageLabel()->stringValue(), "Do <b>this</b>");
}

TEST_F(PlaybackTest, NothingIsPaintedWhileAStepWaitsForItsClick)
{
  player->playGuide(guideFor({"save"}));
  ASSERT_TRUE(waitForStep(0));
  QTest::qWait(2500);

  struct Paints : QObject {
    int count = 0;

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
      count += event->type() == QEvent::Paint;
      return false;
    }
  } paints;

  overlay()->installEventFilter(&paints);
  QTest::qWait(300);
  EXPECT_EQ(paints.count, 0);
}

TEST_F(PlaybackTest, ClosingTheWholeProgramDuringAStepLeavesThePlayerAbleToStop)
{
  player->playGuide(guideFor({"save", "apply"}));
  ASSERT_TRUE(waitForStep(0));
  delete host->main;
  QTest::qWait(50);
  player->stop();
  EXPECT_FALSE(player->isPlaying());
}

} // namespace
} // namespace wayvane::qt::test
