#include "RecorderFixture.h"

namespace wayvane {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

/// What programs and delegates may do at the worst moment.
class HostileRecording : public RecorderFixture {
protected:
  sim::MenuItem& open = desktop.mainMenu().menu("File").item("Open…", "openDocument:");
};

TEST_F(HostileRecording, TheWindowClosesBetweenClickAndPopover)
{
  start();
  desktop.clickView(save);
  window->close();
  desktop.advance(0.1);
  ASSERT_EQ(steps().size(), 1u);
  EXPECT_EQ(steps()[0].message, "");
  EXPECT_EQ(desktop.popover(), nullptr);
}

TEST_F(HostileRecording, TheWindowLosesItsContentBetweenClickAndPopover)
{
  start();
  desktop.clickView(save);
  window->removeContentView();
  desktop.advance(0.1);
  EXPECT_EQ(steps().size(), 1u);
}

TEST_F(HostileRecording, TheClickClosesItsOwnWindow)
{
  save.setOnClick([&] { window->close(); });
  start();
  clickAndWait(save);
  ASSERT_EQ(steps().size(), 1u);
  EXPECT_EQ(steps()[0].target.accessibilityIdentifier, "save");
}

TEST_F(HostileRecording, TheViewIsDestroyedBetweenClickAndPopover)
{
  start();
  desktop.clickView(save);
  save.destroy();
  desktop.advance(0.1);
  ASSERT_NE(desktop.popover(), nullptr);
  EXPECT_EQ(desktop.popover()->anchor(), (platform::Rect{300, 300, 80, 24}));
  addStep();
  EXPECT_EQ(steps()[0].target.accessibilityIdentifier, "save");
}

TEST_F(HostileRecording, TheWindowClosesWhileThePopoverIsUp)
{
  start();
  clickAndWait(save);
  window->close();
  EXPECT_THAT(steps(), IsEmpty());
  EXPECT_FALSE(recorder->capturingAnnotation());
}

TEST_F(HostileRecording, TheRecordingEndsWhileTheClicksPopoverIsUp)
{
  start();
  clickAndWait(save);
  const auto guide = recorder->stopRecording();
  addStep("Too late");
  EXPECT_THAT(guide->steps, IsEmpty());
  EXPECT_FALSE(recorder->capturingAnnotation());
  EXPECT_THAT(delegate->calls, ElementsAre("finished Tour"));
}

TEST_F(HostileRecording, AnAnswerOfTheLastRecordingLeavesTheNextOneAlone)
{
  start();
  clickAndWait(save);
  recorder->stopRecording();
  start("Second");
  desktop.chooseItem(open);
  ASSERT_TRUE(recorder->capturingAnnotation());
  sim::Popover* const old = desktop.panels().popovers.front();
  old->pressButton("Add Step");
  EXPECT_TRUE(recorder->capturingAnnotation());
  EXPECT_THAT(steps(), IsEmpty());
  addStep();
  EXPECT_EQ(steps().size(), 1u);
}

TEST_F(HostileRecording, DoneWhileThePopoverIsUpCancelsTheAnnotationFirst)
{
  start();
  clickAndWait(save);
  desktop.clickPanelButton(badgePanel(), "Done");
  EXPECT_THAT(recorder->guide()->steps, IsEmpty());
  EXPECT_FALSE(recorder->capturingAnnotation());
  EXPECT_THAT(delegate->calls, ElementsAre("finished Tour"));
}

TEST_F(HostileRecording, TheRecorderIsDestroyedBetweenClickAndPopover)
{
  start();
  desktop.clickView(save);
  recorder.reset();
  desktop.advance(0.1);
  EXPECT_EQ(desktop.popover(), nullptr);
}

TEST_F(HostileRecording, TheRecorderIsDestroyedWhileThePopoverIsUp)
{
  start();
  clickAndWait(save);
  const auto guide = recorder->guide();
  recorder.reset();
  addStep();
  EXPECT_THAT(guide->steps, IsEmpty());
}

TEST_F(HostileRecording, TheRecorderIsDestroyedWhileItsMenuCommandIsAnnotated)
{
  start();
  desktop.chooseItem(open);
  const auto guide = recorder->guide();
  recorder.reset();
  addStep();
  EXPECT_THAT(guide->steps, IsEmpty());
}

TEST_F(HostileRecording, TheDelegateDestroysTheRecorderOnAStep)
{
  delegate->onStep = [&] { recorder.reset(); };
  start();
  recordClick(save);
  desktop.advance(1);
  EXPECT_EQ(recorder, nullptr);
  EXPECT_THAT(delegate->calls, ElementsAre("step 0"));
}

TEST_F(HostileRecording, TheDelegateDestroysTheRecorderAtTheEnd)
{
  delegate->onFinish = [&] { recorder.reset(); };
  start();
  recordClick(save);
  const auto guide = recorder->stopRecording();
  EXPECT_EQ(recorder, nullptr);
  EXPECT_EQ(guide->steps.size(), 1u);
}

TEST_F(HostileRecording, TheDelegateDestroysTheRecorderFromTheBadgesButton)
{
  delegate->onFinish = [&] { recorder.reset(); };
  start();
  desktop.clickPanelButton(badgePanel(), "Done");
  desktop.runPending();
  EXPECT_EQ(recorder, nullptr);
  EXPECT_THAT(desktop.floatingPanels(), IsEmpty());
}

TEST_F(HostileRecording, TheDelegateStopsOnAStep)
{
  delegate->onStep = [&] { recorder->stopRecording(); };
  start();
  recordClick(save);
  EXPECT_FALSE(recorder->isRecording());
  EXPECT_THAT(delegate->calls, ElementsAre("step 0", "finished Tour"));
}

TEST_F(HostileRecording, TheDelegateUndoesEveryStep)
{
  delegate->onStep = [&] { recorder->undoLastStep(); };
  start();
  recordClick(save);
  EXPECT_THAT(steps(), IsEmpty());
  EXPECT_EQ(badgeText(), "0 steps");
}

TEST_F(HostileRecording, TheDelegateStopsAgainWhileItIsToldOfTheEnd)
{
  delegate->onFinish = [&] { recorder->stopRecording(); };
  start();
  recorder->stopRecording();
  EXPECT_THAT(delegate->calls, ElementsAre("finished Tour"));
}

TEST_F(HostileRecording, TheDelegateBeginsTheNextRecordingAtTheEnd)
{
  delegate->onFinish = [&] {
    delegate->onFinish = nullptr;
    start("Second");
  };
  start("First");
  const auto first = recorder->stopRecording();
  EXPECT_EQ(first->name, "First");
  EXPECT_TRUE(recorder->isRecording());
  recordClick(save);
  EXPECT_EQ(recorder->stopRecording()->steps.size(), 1u);
  EXPECT_THAT(delegate->calls, ElementsAre("finished First", "step 0", "finished Second"));
}

TEST_F(HostileRecording, ARecordingThatBeginsAndEndsWithinTheNoticeIsReported)
{
  delegate->onFinish = [&] {
    delegate->onFinish = nullptr;
    start("Second");
    recorder->stopRecording();
  };
  start("First");
  recorder->stopRecording();
  EXPECT_THAT(delegate->calls, ElementsAre("finished First", "finished Second"));
}

TEST_F(HostileRecording, AMonitorOfTheHostsSwallowsTheClick)
{
  start();
  const auto jealous = desktop.events().addLocalMonitor(
      platform::MouseEvent::Type::LeftMouseDown,
      [](const platform::MouseEvent&) { return platform::EventVerdict::Swallow; });
  clickAndWait(save);
  EXPECT_EQ(desktop.popover(), nullptr);
}

TEST_F(HostileRecording, TheDesktopGoesAwayInTheMiddleOfAnAnnotation)
{
  WVRecorder other;
  {
    sim::Desktop second;
    sim::Button& button = second.addWindow("Second")->content().addButton({.title = "Go"});
    other.startRecordingGuide("Tour");
    second.clickView(button);
    second.advance(0.1);
    ASSERT_NE(second.popover(), nullptr);
  }
  EXPECT_THAT(other.stopRecording()->steps, IsEmpty());
}

TEST_F(HostileRecording, AnAnswerOfAMegabyteIsKeptWhole)
{
  start();
  recordClick(save, std::string(1 << 20, 't'), std::string(1 << 20, 'm'));
  EXPECT_EQ(steps()[0].title->size(), std::size_t{1} << 20);
  EXPECT_EQ(steps()[0].message->size(), std::size_t{1} << 20);
}

} // namespace
} // namespace wayvane
