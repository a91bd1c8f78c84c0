#include "RecorderFixture.h"

#include <stdexcept>

namespace wayvane {
namespace {

using platform::MouseEvent;
using testing::ElementsAre;
using testing::IsEmpty;

using RecorderRun = RecorderFixture;

TEST_F(RecorderRun, TheGuideIsStampedWithTheProgram)
{
  start("Tour");
  EXPECT_TRUE(recorder->isRecording());
  EXPECT_EQ(recorder->guide()->name, "Tour");
  EXPECT_TRUE(recorder->guide()->identifier.has_value());
  EXPECT_EQ(recorder->guide()->appBundleIdentifier, "org.example.Notes");
  EXPECT_EQ(recorder->guide()->appBundleVersion, "1.4");
}

TEST_F(RecorderRun, WithoutAShownVersionTheBuildsIsTaken)
{
  desktop.setBundle(std::nullopt, std::nullopt, "140");
  start();
  EXPECT_EQ(recorder->guide()->appBundleIdentifier, std::nullopt);
  EXPECT_EQ(recorder->guide()->appBundleVersion, "140");
}

TEST_F(RecorderRun, AProgramThatTellsNoVersionLeavesItOut)
{
  desktop.setBundle("org.example.Notes", std::nullopt, std::nullopt);
  start();
  EXPECT_EQ(recorder->guide()->appBundleVersion, std::nullopt);
}

TEST_F(RecorderRun, TheBadgeIsShownWhileRecording)
{
  EXPECT_EQ(recorder->badge(), nullptr);
  start();
  ASSERT_NE(recorder->badge(), nullptr);
  EXPECT_TRUE(recorder->badge()->isVisible());
  EXPECT_EQ(badgeText(), "0 steps");
  const auto badge = recorder->badge();
  recorder->stopRecording();
  EXPECT_EQ(recorder->badge(), nullptr);
  EXPECT_FALSE(badge->isVisible());
}

TEST_F(RecorderRun, WatchesTheProgramOnlyWhileRecording)
{
  start();
  EXPECT_TRUE(recorder->eventMonitor().isActive());
  EXPECT_TRUE(recorder->moveMonitor().isActive());
  EXPECT_TRUE(recorder->menuObserver().isActive());
  recorder->stopRecording();
  EXPECT_FALSE(recorder->eventMonitor().isActive());
  EXPECT_EQ(desktop.events().monitorCount(MouseEvent::Type::LeftMouseDown), 0u);
  EXPECT_EQ(desktop.events().monitorCount(MouseEvent::Type::MouseMoved), 0u);
  EXPECT_EQ(desktop.events().menuObserverCount(), 0u);
}

TEST_F(RecorderRun, StartingWhileRecordingChangesNothing)
{
  start("First");
  const auto guide = recorder->guide();
  start("Second");
  EXPECT_EQ(recorder->guide(), guide);
  EXPECT_EQ(desktop.events().monitorCount(MouseEvent::Type::LeftMouseDown), 1u);
}

TEST_F(RecorderRun, StoppingAnswersTheGuideAndTellsTheDelegate)
{
  start();
  recordClick(save);
  const auto guide = recorder->stopRecording();
  ASSERT_NE(guide, nullptr);
  EXPECT_EQ(guide->steps.size(), 1u);
  EXPECT_FALSE(recorder->isRecording());
  EXPECT_THAT(delegate->calls, ElementsAre("step 0", "finished Tour"));
}

TEST_F(RecorderRun, TheGuideIsKeptAfterTheEnd)
{
  start();
  const auto guide = recorder->stopRecording();
  EXPECT_EQ(recorder->guide(), guide);
}

TEST_F(RecorderRun, StoppingWithoutARecordingTellsTheDelegateAllTheSame)
{
  EXPECT_EQ(recorder->stopRecording(), nullptr);
  EXPECT_THAT(delegate->calls, ElementsAre("finished nothing"));
}

TEST_F(RecorderRun, DoneOnTheBadgeEndsTheRecordingAndIsNoStep)
{
  start();
  EXPECT_TRUE(desktop.clickPanelButton(badgePanel(), "Done"));
  EXPECT_FALSE(recorder->isRecording());
  EXPECT_THAT(recorder->guide()->steps, IsEmpty());
  EXPECT_THAT(delegate->calls, ElementsAre("finished Tour"));
}

TEST_F(RecorderRun, TheBadgeIsReleasedAfterItsButtonsPressIsOver)
{
  start();
  desktop.clickPanelButton(badgePanel(), "Done");
  EXPECT_EQ(desktop.floatingPanels().size(), 1u);
  desktop.runPending();
  EXPECT_THAT(desktop.floatingPanels(), IsEmpty());
}

TEST_F(RecorderRun, UndoOnTheBadgeDropsTheLastStepAndIsNoStep)
{
  start();
  recordClick(save, "First");
  recordClick(save, "Second");
  EXPECT_TRUE(desktop.clickPanelButton(badgePanel(), "Undo"));
  ASSERT_EQ(steps().size(), 1u);
  EXPECT_EQ(steps()[0].title, "First");
  EXPECT_EQ(badgeText(), "1 steps");
  EXPECT_FALSE(recorder->capturingAnnotation());
  EXPECT_THAT(delegate->calls, ElementsAre("step 0", "step 1"));
}

TEST_F(RecorderRun, UndoWithoutStepsDoesNothing)
{
  recorder->undoLastStep();
  start();
  recorder->undoLastStep();
  EXPECT_THAT(steps(), IsEmpty());
  EXPECT_EQ(badgeText(), "0 steps");
}

TEST_F(RecorderRun, UndoAfterTheEndStillDropsAStep)
{
  start();
  recordClick(save);
  recorder->stopRecording();
  recorder->undoLastStep();
  EXPECT_THAT(recorder->guide()->steps, IsEmpty());
}

TEST_F(RecorderRun, AClickAcceptedJustBeforeDoneIsDropped)
{
  start();
  desktop.clickView(save);
  recorder->stopRecording();
  desktop.advance(0.1);
  EXPECT_EQ(desktop.popover(), nullptr);
  EXPECT_THAT(recorder->guide()->steps, IsEmpty());
  EXPECT_TRUE(recorder->capturingAnnotation());
}

TEST_F(RecorderRun, ANewRecordingForgetsAnUnfinishedAnnotation)
{
  start();
  desktop.clickView(save);
  recorder->stopRecording();
  start("Second");
  EXPECT_FALSE(recorder->capturingAnnotation());
  desktop.advance(0.1);
  EXPECT_EQ(desktop.popover(), nullptr);
  recordClick(save);
  EXPECT_EQ(steps().size(), 1u);
}

TEST_F(RecorderRun, WorksWithoutADelegate)
{
  recorder->setDelegate({});
  start();
  recordClick(save);
  EXPECT_NE(recorder->stopRecording(), nullptr);
}

TEST_F(RecorderRun, ADelegateMayOverrideNothing)
{
  const auto deaf = std::make_shared<WVRecorderDelegate>();
  recorder->setDelegate(deaf);
  start();
  recordClick(save);
  EXPECT_EQ(recorder->stopRecording()->steps.size(), 1u);
}

TEST_F(RecorderRun, ADelegateThatThrowsHoldsNothingUp)
{
  delegate->onStep = delegate->onFinish = [] { throw std::runtime_error("out of order"); };
  start();
  recordClick(save);
  EXPECT_EQ(recorder->stopRecording()->steps.size(), 1u);
  EXPECT_FALSE(recorder->isRecording());
  start();
  EXPECT_TRUE(recorder->isRecording());
  EXPECT_THAT(desktop.log(), testing::Contains("WVRecorder: the host threw: out of order").Times(2));
}

TEST_F(RecorderRun, TheDelegateIsNotKeptAlive)
{
  delegate.reset();
  EXPECT_EQ(recorder->delegate(), nullptr);
}

TEST_F(RecorderRun, OneRecorderServesTheProcess)
{
  EXPECT_EQ(&WVRecorder::sharedRecorder(), &WVRecorder::sharedRecorder());
}

TEST(RecorderWithoutPlatform, DoesNotBegin)
{
  WVRecorder recorder;
  recorder.startRecordingGuide("Tour");
  EXPECT_FALSE(recorder.isRecording());
  EXPECT_EQ(recorder.stopRecording(), nullptr);
}

} // namespace
} // namespace wayvane
