#include "RecorderFixture.h"

namespace wayvane {
namespace {

using platform::Rect;
using testing::ElementsAre;
using testing::IsEmpty;

using RecorderClick = RecorderFixture;

TEST_F(RecorderClick, AClickIsAnnotatedAndBecomesAStep)
{
  start();
  recordClick(save, "Save", "Click Save");
  ASSERT_EQ(steps().size(), 1u);
  EXPECT_EQ(steps()[0].title, "Save");
  EXPECT_EQ(steps()[0].message, "Click Save");
  EXPECT_EQ(steps()[0].target.accessibilityIdentifier, "save");
  EXPECT_EQ(steps()[0].target.action, "save:");
  EXPECT_THAT(delegate->calls, ElementsAre("step 0"));
}

TEST_F(RecorderClick, TheClickStillDoesItsWorkInTheProgram)
{
  start();
  desktop.clickView(save);
  EXPECT_EQ(save.clickCount(), 1);
  EXPECT_THAT(desktop.sentActionNames(), ElementsAre("save:"));
}

TEST_F(RecorderClick, ThePopoverComesATenthOfASecondLater)
{
  start();
  desktop.clickView(save);
  EXPECT_TRUE(recorder->capturingAnnotation());
  desktop.advance(0.099);
  EXPECT_EQ(desktop.popover(), nullptr);
  desktop.advance(0.001);
  EXPECT_NE(desktop.popover(), nullptr);
}

TEST_F(RecorderClick, ThePopoverIsAnchoredAtTheView)
{
  start();
  clickAndWait(save);
  ASSERT_NE(desktop.popover(), nullptr);
  EXPECT_EQ(desktop.popover()->anchor(), (Rect{300, 300, 80, 24}));
  EXPECT_EQ(desktop.popover()->hostWindow(), window);
}

TEST_F(RecorderClick, TheClickIsLogged)
{
  start();
  desktop.clearLog();
  desktop.clickView(save);
  EXPECT_THAT(desktop.log(), ElementsAre("WVRecorder: click hit=NSButton in Main → " +
                                         WVTargetDescriptor::descriptorForView(save).displayDescription()));
}

TEST_F(RecorderClick, AClickWhileThePopoverIsOpenReachesTheProgramAndIsNotRecorded)
{
  start();
  clickAndWait(save);
  sim::Button& open = window->content().addButton({.title = "Open", .action = "open:"});
  clickAndWait(open);
  EXPECT_EQ(open.clickCount(), 1);
  EXPECT_EQ(desktop.popover(), nullptr);
  EXPECT_THAT(steps(), IsEmpty());
}

TEST_F(RecorderClick, AClickBeforeThePopoverComesIsNotRecordedEither)
{
  start();
  desktop.clickView(save);
  desktop.clickView(save);
  desktop.advance(0.1);
  addStep();
  desktop.advance(1);
  EXPECT_EQ(desktop.popover(), nullptr);
  EXPECT_EQ(steps().size(), 1u);
}

TEST_F(RecorderClick, CancellingLeavesTheStepCountUnchanged)
{
  start();
  recordClick(save);
  clickAndWait(save);
  desktop.popover()->pressButton("Cancel");
  EXPECT_EQ(steps().size(), 1u);
  EXPECT_FALSE(recorder->capturingAnnotation());
  EXPECT_THAT(delegate->calls, ElementsAre("step 0"));
}

TEST_F(RecorderClick, AStepWithoutATitleHasNone)
{
  start();
  recordClick(save);
  EXPECT_EQ(steps()[0].title, std::nullopt);
  EXPECT_EQ(steps()[0].message, "Click here");
}

TEST_F(RecorderClick, WhereNoPopoverCanBeShownTheStepIsKeptWithAnEmptyMessage)
{
  desktop.setRefusesPopovers(true);
  start();
  clickAndWait(save);
  ASSERT_EQ(steps().size(), 1u);
  EXPECT_EQ(steps()[0].title, std::nullopt);
  EXPECT_EQ(steps()[0].message, "");
  EXPECT_FALSE(recorder->capturingAnnotation());
}

TEST_F(RecorderClick, EveryStepIsCountedAndReported)
{
  start();
  recordClick(save);
  EXPECT_EQ(badgeText(), "1 steps");
  recordClick(save);
  EXPECT_EQ(badgeText(), "2 steps");
  EXPECT_THAT(delegate->calls, ElementsAre("step 0", "step 1"));
}

TEST_F(RecorderClick, TheRowAndColumnBelowTheClickAreRecorded)
{
  sim::TableView& table = window->content().addTableView(
      {.frame = {0, 0, 200, 100}, .columns = {{"name", 100, {}}, {"size", 100, {}}}, .viewBased = false});
  table.addRow({"Anna", "1"});
  table.addRow({"Bert", "2"});
  start();
  desktop.click(table.screenCenterOfCell(1, 1));
  desktop.advance(0.1);
  addStep();
  ASSERT_EQ(steps().size(), 1u);
  EXPECT_EQ(steps()[0].target.tableRow, 1);
  EXPECT_EQ(steps()[0].target.tableColumnIdentifier, "size");
}

TEST_F(RecorderClick, AToolBarButtonIsRecordedAlthoughItIsNotInTheContent)
{
  sim::Button& share = window->toolbarView().addButton({.frame = {300, 2, 60, 24}});
  window->addToolbarItem({.identifier = "share", .label = "Share", .view = &share});
  start();
  recordClick(share);
  ASSERT_EQ(steps().size(), 1u);
  EXPECT_EQ(steps()[0].target.toolbarItemIdentifier, "share");
}

TEST_F(RecorderClick, AClickIntoAUtilityPanelIsIgnored)
{
  const auto tools = desktop.addUtilityPanel("Tools", {1000, 500, 100, 100});
  sim::Button& brush = tools->content().addButton({.frame = {10, 10, 50, 24}});
  start();
  desktop.clickView(brush);
  EXPECT_FALSE(recorder->capturingAnnotation());
  EXPECT_EQ(brush.clickCount(), 1);
}

TEST_F(RecorderClick, TheBadgeIsIgnoredAlsoWhereItIsNoUtilityPanel)
{
  start();
  std::static_pointer_cast<sim::Window>(recorder->badge()->window())->setUtilityPanel(false);
  desktop.moveMouse(save.screenCenter());
  desktop.clickPanelButton(badgePanel(), "Undo");
  EXPECT_FALSE(recorder->capturingAnnotation());
}

TEST_F(RecorderClick, APressInAMenuIsNoClickOnWhatLiesBelow)
{
  start();
  desktop.pressInMenu(save.screenCenter());
  EXPECT_FALSE(recorder->capturingAnnotation());
}

TEST_F(RecorderClick, AClickThatHitsNothingFallsBackToWhatTheHoverDisplayShowed)
{
  start();
  desktop.moveMouse(save.screenCenter());
  desktop.pressWithoutWindow({5, 5});
  desktop.advance(0.1);
  addStep();
  ASSERT_EQ(steps().size(), 1u);
  EXPECT_EQ(steps()[0].target.accessibilityIdentifier, "save");
}

TEST_F(RecorderClick, TheFallbackIsLoggedWithoutAWindow)
{
  start();
  desktop.moveMouse(save.screenCenter());
  desktop.clearLog();
  desktop.pressWithoutWindow({5, 5});
  ASSERT_EQ(desktop.log().size(), 1u);
  EXPECT_THAT(desktop.log()[0], testing::StartsWith("WVRecorder: click hit=NSButton in (null) → "));
}

TEST_F(RecorderClick, AClickThatHitsNothingIsIgnoredWhenTheViewShownIsGone)
{
  start();
  desktop.moveMouse(save.screenCenter());
  save.destroy();
  desktop.pressWithoutWindow({5, 5});
  EXPECT_FALSE(recorder->capturingAnnotation());
}

TEST_F(RecorderClick, OnlyTheProgramsOwnLeftClicksCount)
{
  start();
  desktop.rightClick(save.screenCenter());
  desktop.keyPress("Return");
  EXPECT_FALSE(recorder->capturingAnnotation());
}

} // namespace
} // namespace wayvane
