#include "RecorderFixture.h"

namespace wayvane {
namespace {

using platform::Rect;
using testing::ElementsAre;
using testing::IsEmpty;

class RecorderMenu : public RecorderFixture {
protected:
  sim::MenuItem& open = desktop.mainMenu().menu("File").item("Open…", "openDocument:");
};

TEST_F(RecorderMenu, ACommandIsAnnotatedAtOnceAndBecomesAStep)
{
  start();
  desktop.chooseItem(open);
  EXPECT_TRUE(recorder->capturingAnnotation());
  addStep("", "Choose Open");
  ASSERT_EQ(steps().size(), 1u);
  EXPECT_EQ(steps()[0].target.menuPath, "File > Open…");
  EXPECT_EQ(steps()[0].target.menuAction, "openDocument:");
  EXPECT_EQ(steps()[0].title, "Open…");
  EXPECT_EQ(steps()[0].message, "Choose Open");
  EXPECT_EQ(badgeText(), "1 steps");
  EXPECT_THAT(delegate->calls, ElementsAre("step 0"));
}

TEST_F(RecorderMenu, ATitleOfTheAuthorsReplacesTheCommands)
{
  start();
  desktop.chooseItem(open);
  addStep("First of all");
  EXPECT_EQ(steps()[0].title, "First of all");
}

TEST_F(RecorderMenu, ThePathNamesEveryMenuOnTheWay)
{
  sim::MenuItem& pdf = desktop.mainMenu().menu("File").menu("Export").item("PDF…", "exportPDF:");
  start();
  desktop.chooseItem(pdf);
  addStep();
  EXPECT_EQ(steps()[0].target.menuPath, "File > Export > PDF…");
}

TEST_F(RecorderMenu, AMenuWithoutATitleHasItsPlaceInThePath)
{
  sim::MenuItem& quit = desktop.mainMenu().menu("").item("Quit", "quit:");
  start();
  desktop.chooseItem(quit);
  addStep();
  EXPECT_EQ(steps()[0].target.menuPath, " > Quit");
}

TEST_F(RecorderMenu, ACommandWithoutActionIsRecordedWithoutOne)
{
  sim::MenuItem& plain = desktop.mainMenu().menu("File").item("Plain");
  start();
  desktop.chooseItem(plain);
  addStep();
  EXPECT_EQ(steps()[0].target.menuAction, std::nullopt);
}

TEST_F(RecorderMenu, AContextMenuHasAPathOfOneTitleAndIsIgnored)
{
  sim::MenuItem& copy = desktop.makeContextMenu().item("Copy", "copy:");
  start();
  desktop.chooseItem(copy);
  EXPECT_FALSE(recorder->capturingAnnotation());
  EXPECT_EQ(desktop.popover(), nullptr);
}

TEST_F(RecorderMenu, TheFrameworksOwnStopItemRecordsNothing)
{
  sim::MenuItem& stop = desktop.mainMenu().menu("Help").item("Stop Recording", "_toggleRecording:");
  start();
  desktop.chooseItem(stop);
  EXPECT_FALSE(recorder->capturingAnnotation());
  EXPECT_THAT(steps(), IsEmpty());
}

TEST_F(RecorderMenu, ThePopoverIsAnchoredAtAStripBelowTheMenuBar)
{
  const auto tall = desktop.addWindow("Tall", {0, 0, 1440, 900});
  start();
  desktop.chooseItem(open);
  ASSERT_NE(desktop.popover(), nullptr);
  EXPECT_EQ(desktop.popover()->hostWindow(), tall);
  EXPECT_EQ(desktop.popover()->anchor(), (Rect{100, 870, 200, 22}));
}

TEST_F(RecorderMenu, InALowWindowTheStripIsMovedToTheContentsTopEdge)
{
  start();
  desktop.chooseItem(open);
  EXPECT_EQ(desktop.popover()->anchor(), (Rect{0, 572 - 22, 200, 22}));
}

TEST_F(RecorderMenu, WithoutAScreenTheStripLiesBelowZero)
{
  desktop.removeScreen();
  const auto low = desktop.addWindow("Low", {0, -100, 800, 600});
  start();
  desktop.chooseItem(open);
  EXPECT_EQ(desktop.popover()->anchor(), (Rect{100, 70, 200, 22}));
}

TEST_F(RecorderMenu, WithoutAKeyWindowTheMainWindowIsTaken)
{
  desktop.setKeyWindow(nullptr);
  start();
  desktop.chooseItem(open);
  ASSERT_NE(desktop.popover(), nullptr);
  EXPECT_EQ(desktop.popover()->hostWindow(), window);
}

TEST_F(RecorderMenu, WithoutAnyWindowTheStepIsKeptWithAnEmptyMessage)
{
  window->close();
  start();
  desktop.chooseItem(open);
  ASSERT_EQ(steps().size(), 1u);
  EXPECT_EQ(steps()[0].title, "Open…");
  EXPECT_EQ(steps()[0].message, "");
  EXPECT_FALSE(recorder->capturingAnnotation());
}

TEST_F(RecorderMenu, CancellingDropsTheStep)
{
  start();
  desktop.chooseItem(open);
  desktop.keyPress("Escape");
  EXPECT_THAT(steps(), IsEmpty());
  EXPECT_FALSE(recorder->capturingAnnotation());
}

TEST_F(RecorderMenu, ACommandWhileAnAnnotationIsOpenIsIgnored)
{
  start();
  clickAndWait(save);
  desktop.chooseItem(open);
  addStep();
  EXPECT_EQ(steps().size(), 1u);
  EXPECT_EQ(steps()[0].target.menuPath, std::nullopt);
  EXPECT_EQ(desktop.popover(), nullptr);
}

TEST_F(RecorderMenu, ACommandAnsweredAfterTheEndStillCounts)
{
  start();
  desktop.chooseItem(open);
  const auto guide = recorder->stopRecording();
  addStep();
  EXPECT_EQ(guide->steps.size(), 1u);
  EXPECT_THAT(delegate->calls, ElementsAre("finished Tour", "step 0"));
}

TEST_F(RecorderMenu, ACommandAnsweredInTheNextRecordingDoesNotComeIntoIt)
{
  start();
  desktop.chooseItem(open);
  recorder->stopRecording();
  start("Second");
  addStep();
  EXPECT_THAT(steps(), IsEmpty());
}

TEST_F(RecorderMenu, CommandsAreIgnoredWhileNothingIsRecorded)
{
  desktop.chooseItem(open);
  start();
  recorder->stopRecording();
  desktop.chooseItem(open);
  EXPECT_EQ(desktop.popover(), nullptr);
  EXPECT_EQ(desktop.events().menuObserverCount(), 0u);
}

TEST_F(RecorderMenu, AnEntryThatTheCommandItselfRemovedIsIgnored)
{
  sim::Menu& file = desktop.mainMenu().menu("File");
  sim::MenuItem& recent = file.item("Clear", "clear:");
  recent.setOnChosen([&] { file.removeHostItem(recent); });
  start();
  desktop.chooseItem(recent);
  EXPECT_FALSE(recorder->capturingAnnotation());
}

TEST_F(RecorderMenu, MenusThatContainThemselvesDoNotHoldUs)
{
  sim::Menu& file = desktop.mainMenu().menu("File");
  sim::Menu& loop = file.menu("Loop");
  loop.item("Again", "again:").setSubmenu(loop.self());
  start();
  desktop.chooseItem(*loop.find("Again"));
  EXPECT_TRUE(recorder->capturingAnnotation());
  loop.destroy();
}

} // namespace
} // namespace wayvane
