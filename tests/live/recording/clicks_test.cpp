#include "RecordingTest.h"

#include <QApplication>
#include <QCheckBox>
#include <QListWidget>
#include <QSlider>
#include <QTest>

namespace wayvane::qt::test {
namespace {

using Clicks = RecordingTest;

TEST_F(Clicks, AClickBecomesAStepAndPressesTheButton)
{
  click(*save);
  EXPECT_THAT(acts, ElementsAre("Save"));
  ASSERT_TRUE(annotate());
  EXPECT_THAT(steps(), ElementsAre("QPushButton#save 'Save' @Main: Here | Press it."));
  EXPECT_EQ(counter(), "1 steps");
  EXPECT_THAT(takeLog(),
              ElementsAre("WVRecorder: click hit=QPushButton in Main → ID: save · Action: save · \"Save\""));
  EXPECT_TRUE(finishes());
}

TEST_F(Clicks, TheGuideIsStampedWithTheProgram)
{
  const WVGuide& guide = *recorder->guide();
  EXPECT_EQ(guide.appBundleIdentifier, "example.recording.recording-tests");
  EXPECT_EQ(guide.appBundleVersion, "2.5");
}

TEST_F(Clicks, CancelledOnesAreNoStepsAndUndoneOnesAreNoneAnyMore)
{
  click(*save);
  ASSERT_TRUE(cancel());
  EXPECT_EQ(counter(), "0 steps");
  click(*save);
  ASSERT_TRUE(annotate());
  click(*apply);
  ASSERT_TRUE(annotate());
  EXPECT_EQ(counter(), "2 steps");
  click(*panelButton(QStringLiteral("Undo")));
  EXPECT_EQ(counter(), "1 steps");
  EXPECT_THAT(steps(), ElementsAre("QPushButton#save 'Save' @Main: Here | Press it."));
  EXPECT_THAT(listener->captured, ElementsAre(0, 1));
  EXPECT_TRUE(finishes());
}

TEST_F(Clicks, OneWhileTheAnnotationIsOpenWorksAndIsNotRecorded)
{
  click(*save);
  ASSERT_TRUE(waitUntil([] { return popover() != nullptr; }));
  click(*apply);
  EXPECT_THAT(acts, ElementsAre("Save", "Apply"));
  EXPECT_TRUE(waitUntil([] { return !popover(); })) << "a press outside closes it";
  EXPECT_TRUE(nothingIsAsked());
  EXPECT_THAT(steps(), IsEmpty());
}

TEST_F(Clicks, TheBadgesBackgroundCanBeDraggedWithoutAStep)
{
  QWidget& badge = *panelButton(QStringLiteral("Done"))->window();
  const QPoint before = badge.pos();
  drag(badge, {16, 22}, {6, 42});
  EXPECT_EQ(badge.pos(), before + QPoint(-10, 20));
  EXPECT_TRUE(nothingIsAsked());
  EXPECT_THAT(steps(), IsEmpty());
}

TEST_F(Clicks, RightClicksAndKeysAreNoSteps)
{
  click(*save, save->rect().center(), Qt::RightButton);
  click(*save, save->rect().center(), Qt::MiddleButton);
  save->setFocus();
  press(*window, Qt::Key_Space);
  EXPECT_THAT(acts, ElementsAre("Save")) << "by the space bar";
  EXPECT_TRUE(nothingIsAsked());
}

// Not the plain single click

/// A list that notes which entries are double-clicked.
class DoubleClicks : public RecordingTest {
protected:
  DoubleClicks()
  {
    list->setObjectName(QStringLiteral("list"));
    list->addItems({QStringLiteral("one"), QStringLiteral("two")});
    list->setGeometry(40, 120, 200, 120);
    list->show();
    QObject::connect(list, &QListWidget::itemDoubleClicked, list, [&](const QListWidgetItem* item) {
      acts.push_back("double " + item->text().toStdString());
    });
  }

  void doubleClickSecondEntry(int pause)
  {
    doubleClick(*list->viewport(), list->visualItemRect(list->item(1)).center(), pause);
  }

  QListWidget* list = new QListWidget(window);
};

TEST_F(DoubleClicks, AreOneStepAndStayDoubleClicks)
{
  doubleClickSecondEntry(0);
  EXPECT_THAT(acts, ElementsAre("double two"));
  ASSERT_TRUE(annotate());
  EXPECT_TRUE(nothingIsAsked());
  EXPECT_THAT(steps(), ElementsAre("QListWidget#list 'two' @Main row 1: Here | Press it."));
}

TEST_F(DoubleClicks, AreOneStepAlsoWhenTheAnnotationComesBetweenTheirClicks)
{
  doubleClickSecondEntry(200);
  EXPECT_THAT(acts, ElementsAre("double two"));
  ASSERT_TRUE(popover());
  ASSERT_TRUE(annotate());
  EXPECT_TRUE(nothingIsAsked());
  EXPECT_THAT(steps(), ElementsAre("QListWidget#list 'two' @Main row 1: Here | Press it."));
}

TEST_F(DoubleClicks, AreAskedAboutWhenTheirFirstClickHasClosedAnAnnotation)
{
  click(*save);
  ASSERT_TRUE(waitUntil([] { return popover() != nullptr; }));
  doubleClickSecondEntry(50);
  EXPECT_THAT(acts, ElementsAre("Save", "double two"));
  ASSERT_TRUE(annotate());
  EXPECT_TRUE(nothingIsAsked());
  EXPECT_THAT(steps(), ElementsAre("QListWidget#list 'two' @Main row 1: Here | Press it."));
}

TEST_F(Clicks, ADoubleClickOnAButtonPressesItTwice)
{
  doubleClick(*save, {60, 16});
  EXPECT_THAT(acts, ElementsAre("Save", "Save"));
  ASSERT_TRUE(annotate());
  EXPECT_TRUE(nothingIsAsked());
  EXPECT_THAT(steps(), ElementsAre("QPushButton#save 'Save' @Main: Here | Press it."));
}

TEST_F(Clicks, ADragIsTheStepOfItsPressAndStillDrags)
{
  auto* const slider = new QSlider(Qt::Horizontal, window);
  slider->setObjectName(QStringLiteral("volume"));
  slider->setGeometry(40, 120, 200, 30);
  slider->show();
  drag(*slider, {6, 15}, {190, 15});
  EXPECT_GT(slider->value(), 80);
  ASSERT_TRUE(annotate());
  EXPECT_THAT(steps(), ElementsAre("QSlider#volume '-' @Main: Here | Press it."));
}

TEST_F(Clicks, ADragThatLastsUntilTheAnnotationIsOpenGoesOn)
{
  auto* const slider = new QSlider(Qt::Horizontal, window);
  slider->setObjectName(QStringLiteral("volume"));
  slider->setGeometry(40, 120, 200, 30);
  slider->show();
  QWindow* const native = window->windowHandle();
  QTest::mousePress(native, Qt::LeftButton, {}, slider->mapTo(window, QPoint(6, 15)));
  ASSERT_TRUE(waitUntil([] { return popover() != nullptr; }));
  QTest::mouseMove(native, slider->mapTo(window, QPoint(100, 15)));
  QTest::mouseMove(native, slider->mapTo(window, QPoint(190, 15)));
  QTest::mouseRelease(native, Qt::LeftButton, {}, slider->mapTo(window, QPoint(190, 15)));
  EXPECT_GT(slider->value(), 80);
  ASSERT_TRUE(annotate());
  EXPECT_THAT(steps(), ElementsAre("QSlider#volume '-' @Main: Here | Press it."));
}

TEST_F(Clicks, ATapIsOneStepAndPressesTheButton)
{
  tap(*save);
  EXPECT_TRUE(waitUntil([this] { return !acts.empty(); }));
  ASSERT_TRUE(annotate());
  EXPECT_TRUE(nothingIsAsked());
  EXPECT_THAT(acts, ElementsAre("Save"));
  EXPECT_THAT(steps(), ElementsAre("QPushButton#save 'Save' @Main: Here | Press it."));
}

TEST_F(Clicks, ADisabledElementIsAStepAndStaysIdle)
{
  save->setEnabled(false);
  click(*save);
  ASSERT_TRUE(annotate());
  EXPECT_THAT(acts, IsEmpty());
  EXPECT_THAT(steps(), ElementsAre("QPushButton#save 'Save' @Main: Here | Press it."));
}

TEST_F(Clicks, AClickWithModifiersIsAStep)
{
  auto* const box = new QCheckBox(QStringLiteral("Loud"), window);
  box->setObjectName(QStringLiteral("loud"));
  box->setGeometry(40, 120, 120, 30);
  box->show();
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::ControlModifier | Qt::ShiftModifier,
                    box->mapTo(window, QPoint(10, 15)));
  EXPECT_TRUE(box->isChecked());
  ASSERT_TRUE(annotate());
  EXPECT_THAT(steps(), ElementsAre("QCheckBox#loud 'Loud' @Main: Here | Press it."));
}

} // namespace
} // namespace wayvane::qt::test
