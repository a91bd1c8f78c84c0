#include <tests/playback/PlayerFixture.h>

namespace wayvane {
namespace {

using platform::Rect;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

class PlayerPresenting : public PlayerFixture {
protected:
  /// The side that a step leaves to the player, for a target of 80 x 24 in a window of that size.
  std::int64_t automaticPosition(platform::Size windowSize, platform::Point target)
  {
    window->setFrame({100, 100, windowSize.width, windowSize.height});
    addButton("save", {target.x, target.y, 80, 24});
    playAndShow({"save"});
    return player->currentBubble()->pointerDirection();
  }

  static WVStep positionedStep(std::int64_t position)
  {
    WVStep step = stepFor("save");
    step.position = position;
    return step;
  }

  static WVStep styledStep(std::int64_t style)
  {
    WVStep step = stepFor("save");
    step.highlightStyle = style;
    return step;
  }
};

TEST_F(PlayerPresenting, ShowsAVisibleTargetAfterThreeTenthsOfASecond)
{
  addButton("save");
  play({"save"});
  desktop.advance(0.29);
  EXPECT_EQ(player->currentBubble(), nullptr);
  EXPECT_EQ(player->currentTargetScreenRect(), Rect{});
  desktop.advance(0.02);
  EXPECT_NE(player->currentBubble(), nullptr);
  EXPECT_EQ(player->currentTargetScreenRect(), (Rect{400, 400, 80, 24}));
  EXPECT_EQ(player->overlayWindow()->targetScreenRect(), (Rect{400, 400, 80, 24}));
}

TEST_F(PlayerPresenting, DoesNotScrollATargetThatIsAlreadyInSight)
{
  sim::ScrollView& scroll =
      window->content().addScrollView({.frame = {50, 50, 300, 200}, .documentSize = {300, 2000}});
  scroll.document().addButton({.frame = {10, 20, 80, 24}, .identifier = "near"});
  playAndShow({"near"});
  EXPECT_NE(player->currentBubble(), nullptr);
  EXPECT_THAT(scroll.requests(), IsEmpty());
}

TEST_F(PlayerPresenting, ScrollsAFarTargetIntoSightAndShowsWhereItCameToLie)
{
  sim::ScrollView& scroll =
      window->content().addScrollView({.frame = {50, 50, 300, 200}, .documentSize = {300, 2000}});
  const sim::Button& far = scroll.document().addButton({.frame = {10, 1000, 80, 24}, .identifier = "far"});
  play({"far"});
  desktop.advance(1.79);
  EXPECT_EQ(player->currentBubble(), nullptr);
  desktop.advance(0.02);
  EXPECT_NE(player->currentBubble(), nullptr);
  EXPECT_EQ(player->currentTargetScreenRect(), far.screenFrame());
  EXPECT_EQ(player->currentTargetScreenRect().y, 100 + 50 + 200 - (1000 - 912) - 24);
}

TEST_F(PlayerPresenting, ShowsAFarTableRowAfterItsOwnScroll)
{
  sim::ScrollView& scroll =
      window->content().addScrollView({.frame = {50, 50, 300, 200}, .documentSize = {300, 2000}});
  sim::TableView& table = scroll.addTableDocument({.columns = {{.identifier = "name"}}, .viewBased = false});
  for (int row = 0; row < 50; ++row)
    table.addRow({"row"});
  WVStep step;
  step.target.tableRow = 40;
  step.target.tableColumn = 0;
  playStep(step);
  desktop.advance(1.49);
  EXPECT_EQ(player->currentBubble(), nullptr);
  desktop.advance(0.02);
  EXPECT_NE(player->currentBubble(), nullptr);
  EXPECT_THAT(table.scrolledRows(), ElementsAre(40));
}

TEST_F(PlayerPresenting, SkipsAHiddenTargetSilently)
{
  addButton("save").setHidden(true);
  addButton("open", {100, 100, 80, 24});
  play({"save", "open"});
  desktop.clearLog();
  waitForHighlight();
  EXPECT_THAT(desktop.log(),
              ElementsAre("WVPlayer: step 1 target=ID: open resolved=<NSButton> class=NSButton"));
  EXPECT_THAT(delegate->calls, ElementsAre("show 0", "show 1"));
  EXPECT_EQ(player->currentTargetScreenRect(), Rect{});
}

TEST_F(PlayerPresenting, SkipsATargetWithoutSizeSilently)
{
  addButton("save", {300, 300, 0, 24});
  play({"save"});
  desktop.clearLog();
  waitForHighlight();
  EXPECT_THAT(desktop.log(), IsEmpty());
  EXPECT_THAT(delegate->calls, ElementsAre("show 0"));
  expectIdle();
}

TEST_F(PlayerPresenting, SkipsATargetThatDiedDuringTheWait)
{
  sim::Button& save = addButton("save");
  play({"save"});
  save.destroy();
  waitForHighlight();
  EXPECT_EQ(player->currentStepIndex(), 1U);
  expectIdle();
}

TEST_F(PlayerPresenting, ShowsTheTargetThatTookTheFirstOnesPlaceDuringTheWait)
{
  sim::Button& save = addButton("save");
  play({"save"});
  save.destroy();
  addButton("save", {100, 200, 80, 24});
  waitForHighlight();
  EXPECT_EQ(player->currentTargetScreenRect(), (Rect{200, 300, 80, 24}));
}

TEST_F(PlayerPresenting, KeepsTheViewFoundFirstWhenItCannotBeFoundAgain)
{
  sim::Button& save = addButton("save");
  play({"save"});
  save.setIdentifier("renamed");
  waitForHighlight();
  EXPECT_EQ(player->currentTargetScreenRect(), (Rect{400, 400, 80, 24}));
}

TEST_F(PlayerPresenting, MeasuresTheTargetAfterTheWait)
{
  sim::Button& save = addButton("save");
  play({"save"});
  save.setFrame({310, 320, 100, 30});
  waitForHighlight();
  EXPECT_EQ(player->currentTargetScreenRect(), (Rect{410, 420, 100, 30}));
}

TEST_F(PlayerPresenting, HoleAndRingTakePaddingAndRadiusOfTheTarget)
{
  addButton("save");
  player->setShowsCircle(true);
  playAndShow({"save"});
  EXPECT_EQ(player->circleView()->frame(), (Rect{296, 296, 88, 32}));
  EXPECT_EQ(player->circleView()->cornerRadius(), 5.0);
  EXPECT_EQ(player->spotlightView()->cornerRadius(), 5.0);

  WVSpotlightView expected({0, 0, 800, 600});
  expected.setCornerRadius(5);
  expected.animateToRect({296, 296, 88, 32});
  EXPECT_EQ(player->spotlightView()->maskLayer()->path(), expected.maskLayer()->path());
}

TEST_F(PlayerPresenting, HoleMovesWithinHalfASecond)
{
  addButton("save");
  playAndShow({"save"});
  const platform::RunningAnimation* const move =
      player->spotlightView()->maskLayer()->animationForKey("path");
  ASSERT_NE(move, nullptr);
  EXPECT_EQ(move->animation.duration, 0.5);
  EXPECT_EQ(move->animation.timing, platform::TimingCurve::easeInEaseOut());
}

TEST_F(PlayerPresenting, StyleZeroDimsLightlyAndHidesTheRingUnlessTheHostWantsIt)
{
  addButton("save");
  playAndShowStep(styledStep(0));
  EXPECT_EQ(player->spotlightView()->dimAlpha(), 0.15);
  EXPECT_FALSE(player->spotlightView()->isHidden());
  EXPECT_TRUE(player->circleView()->isHidden());
  EXPECT_TRUE(player->circleView()->isAnimating());
}

TEST_F(PlayerPresenting, StyleZeroShowsTheRingWhenTheHostWantsIt)
{
  addButton("save");
  player->setShowsCircle(true);
  playAndShowStep(styledStep(0));
  EXPECT_FALSE(player->circleView()->isHidden());
}

TEST_F(PlayerPresenting, StyleOneDimsStronglyWithoutRingWhateverTheHostWants)
{
  addButton("save");
  player->setShowsCircle(true);
  playAndShowStep(styledStep(1));
  EXPECT_EQ(player->spotlightView()->dimAlpha(), 0.4);
  EXPECT_TRUE(player->circleView()->isHidden());
}

TEST_F(PlayerPresenting, StyleTwoDimsLightlyWithoutRingWhateverTheHostWants)
{
  addButton("save");
  player->setShowsCircle(true);
  player->playGuide(guideOf({styledStep(1), styledStep(2)}));
  waitForHighlight();
  player->advanceToNextStep();
  waitForHighlight();
  EXPECT_EQ(player->spotlightView()->dimAlpha(), 0.15);
  EXPECT_TRUE(player->circleView()->isHidden());
}

TEST_F(PlayerPresenting, StyleOneStopsTheRingOfTheStepBefore)
{
  addButton("save");
  player->setShowsCircle(true);
  player->playGuide(guideOf({styledStep(0), styledStep(1)}));
  waitForHighlight();
  ASSERT_TRUE(player->circleView()->isAnimating());
  player->advanceToNextStep();
  waitForHighlight();
  EXPECT_FALSE(player->circleView()->isAnimating());
}

TEST_F(PlayerPresenting, UnknownStyleLeavesDimmingAndRingAsTheyWere)
{
  addButton("save");
  player->setShowsCircle(true);
  player->playGuide(guideOf({styledStep(0), styledStep(1), styledStep(9)}));
  waitForHighlight();
  player->advanceToNextStep();
  waitForHighlight();
  player->advanceToNextStep();
  waitForHighlight();
  EXPECT_EQ(player->spotlightView()->dimAlpha(), 0.4);
  EXPECT_TRUE(player->circleView()->isHidden());
  EXPECT_NE(player->currentBubble(), nullptr);
}

TEST_F(PlayerPresenting, BubbleTellsTheStepAndAimsAtTheMiddleOfTheTarget)
{
  addButton("save");
  addButton("open");
  player->playGuide(guideFor({"open", "save", "open"}), 1);
  waitForHighlight();
  const WVBubbleView& bubble = *player->currentBubble();
  EXPECT_EQ(bubble.messageLabel()->stringValue(), "Click save");
  EXPECT_EQ(bubble.stepLabel()->stringValue(), "2 of 3");
  EXPECT_EQ(bubble.pointerTip(), (platform::Point{340, 312}));
  EXPECT_EQ(bubble.superview(), &desktop.overlay()->contentView());
}

TEST_F(PlayerPresenting, BubbleStandsOffTheTargetAndNotOffItsPadding)
{
  addButton("save").setHostNumber(platform::HostProperty::GuidePadding, 30);
  playAndShowStep(positionedStep(1));
  const Rect frame = player->currentBubble()->frame();
  EXPECT_EQ(frame.y, 300 + 24 + 16);
  EXPECT_EQ(frame.x, 340 - 140);
  EXPECT_EQ(frame.width, 280);
}

TEST_F(PlayerPresenting, BubbleIsPlacedByTheHeightThatItsTextNeeds)
{
  addButton("save");
  WVStep step = positionedStep(2);
  step.message = std::string(250, 'x');
  playAndShowStep(step);
  const Rect frame = player->currentBubble()->frame();
  EXPECT_GT(frame.height, 100);
  EXPECT_EQ(frame.maxY(), 300 - 16);
}

TEST_F(PlayerPresenting, PointersTipIgnoresThatTheBubbleWasMovedOffTheEdge)
{
  addButton("save", {0, 300, 80, 24});
  playAndShowStep(positionedStep(2));
  EXPECT_EQ(player->currentBubble()->frame().x, 10);
  EXPECT_EQ(player->currentBubble()->pointerTip(), (platform::Point{40, 312}));
}

TEST_F(PlayerPresenting, StepsPositionBecomesThePointersDirection)
{
  addButton("save");
  player->playGuide(guideOf({positionedStep(1), positionedStep(2), positionedStep(3), positionedStep(4)}));
  for (const std::int64_t position : {1, 2, 3, 4}) {
    waitForHighlight();
    EXPECT_EQ(player->currentBubble()->pointerDirection(), position);
    player->advanceToNextStep();
  }
}

TEST_F(PlayerPresenting, PositionSevenIsPlacedBelowAndPassedOn)
{
  addButton("save");
  playAndShowStep(positionedStep(7));
  EXPECT_EQ(player->currentBubble()->pointerDirection(), 7);
  EXPECT_EQ(player->currentBubble()->frame().maxY(), 300 - 16);
}

TEST_F(PlayerPresenting, AutomaticPositionIsBelowWhereThereIsRoom)
{
  EXPECT_EQ(automaticPosition({800, 600}, {300, 116}), 2);
}

TEST_F(PlayerPresenting, AutomaticPositionNearTheBottomOfATallWindowIsAbove)
{
  EXPECT_EQ(automaticPosition({800, 600}, {300, 20}), 1);
}

TEST_F(PlayerPresenting, AutomaticPositionInAShortWindowIsRight)
{
  EXPECT_EQ(automaticPosition({800, 200}, {300, 100}), 4);
}

TEST_F(PlayerPresenting, AutomaticPositionAtTheRightEdgeOfAShortWindowIsLeft)
{
  EXPECT_EQ(automaticPosition({800, 200}, {600, 100}), 3);
}

TEST_F(PlayerPresenting, AutomaticPositionInASmallWindowIsBelowAndClamped)
{
  EXPECT_EQ(automaticPosition({400, 190}, {150, 75}), 2);
  EXPECT_EQ(player->currentBubble()->frame().y, 10);
}

TEST_F(PlayerPresenting, AutomaticPositionDoesNotLookAtTheBubblesRealHeight)
{
  addButton("save", {300, 116, 80, 24});
  WVStep step = stepFor("save");
  step.message = std::string(900, 'x');
  playAndShowStep(step);
  ASSERT_GT(player->currentBubble()->frame().height, 100);
  EXPECT_EQ(player->currentBubble()->pointerDirection(), 2);
  EXPECT_EQ(player->currentBubble()->frame().y, 10);
}

TEST_F(PlayerPresenting, WakesTheTargetAsIfThePointerCameToIt)
{
  const sim::Button& save = addButton("save");
  playAndShow({"save"});
  ASSERT_THAT(save.hoverEvents(), SizeIs(1));
  EXPECT_EQ(save.hoverEvents()[0].type, platform::HoverEvent::Type::Entered);
  EXPECT_EQ(save.hoverEvents()[0].locationInWindow, (platform::Point{340, 312}));
}

TEST_F(PlayerPresenting, LetsTheWindowDrawATenthOfASecondAfterTheHover)
{
  addButton("save");
  playAndShow({"save"});
  desktop.advance(0.09);
  EXPECT_EQ(window->displayCount(), 0);
  desktop.advance(0.02);
  EXPECT_EQ(window->displayCount(), 1);
  desktop.advance(5);
  EXPECT_EQ(window->displayCount(), 1);
}

TEST_F(PlayerPresenting, AnnouncesTheBubbleWhileItIsThere)
{
  addButton("save");
  WVStep step = stepFor("save");
  step.title = "Saving";
  player->playGuide(guideOf({step, stepFor("save")}));
  waitForHighlight();
  const auto& alert = desktop.overlay()->accessibleAlert();
  ASSERT_TRUE(alert.has_value());
  EXPECT_EQ(alert->title, "Saving");
  EXPECT_EQ(alert->message, "Click save");
  EXPECT_EQ(alert->counter, "1 of 2");
  EXPECT_EQ(alert->frame, player->currentBubble()->frame());
  player->advanceToNextStep();
  EXPECT_FALSE(desktop.overlay()->accessibleAlert().has_value());
  waitForHighlight();
  EXPECT_THAT(desktop.overlay()->announcements(), SizeIs(2));
}

TEST_F(PlayerPresenting, WithdrawsTheAnnouncementWhenTheTargetIsHit)
{
  const sim::Button& save = addButton("save");
  playAndShow({"save", "save"});
  desktop.clickView(save);
  EXPECT_FALSE(desktop.overlay()->accessibleAlert().has_value());
}

/// A table of three rows and two columns at (100, 200), rows 20 high.
class PlayerTable : public PlayerFixture {
protected:
  sim::TableView& addTable(sim::Window& where, bool viewBased)
  {
    sim::TableView& table =
        where.content().addTableView({.frame = {100, 200, 200, 200},
                                      .columns = {{.identifier = "name"}, {.identifier = "size"}},
                                      .viewBased = viewBased,
                                      .identifier = "list"});
    for (int row = 0; row < 3; ++row)
      table.addRow({"name", "size"});
    return table;
  }

  static WVStep rowStep(std::int64_t row, std::int64_t column)
  {
    WVStep step = stepFor("list");
    step.target.tableRow = row;
    step.target.tableColumn = column;
    return step;
  }

  static Rect onScreen(const sim::TableView& table, const Rect& rect)
  {
    return table.window()->convertRectToScreen(table.convertRectToWindow(rect));
  }
};

TEST_F(PlayerTable, DrawnCellIsHighlightedAlone)
{
  const sim::TableView& table = addTable(*window, false);
  playAndShowStep(rowStep(2, 1));
  EXPECT_EQ(player->currentTargetScreenRect(), onScreen(table, {100, 40, 100, 20}));
}

TEST_F(PlayerTable, WithoutAColumnTheWholeRowIsHighlighted)
{
  const sim::TableView& table = addTable(*window, false);
  playAndShowStep(rowStep(2, -1));
  EXPECT_EQ(player->currentTargetScreenRect(), onScreen(table, table.rectOfRow(2)));
}

TEST_F(PlayerTable, RowPastTheEndHighlightsTheWholeTable)
{
  const sim::TableView& table = addTable(*window, false);
  playAndShowStep(rowStep(3, 1));
  EXPECT_EQ(player->currentTargetScreenRect(), table.screenFrame());
}

TEST_F(PlayerTable, RowPastTheEndScrollsByTheTablesRectangle)
{
  sim::ScrollView& scroll =
      window->content().addScrollView({.frame = {50, 50, 300, 200}, .documentSize = {300, 2000}});
  sim::TableView& table = scroll.addTableDocument(
      {.columns = {{.identifier = "name"}}, .viewBased = false, .identifier = "list"});
  for (int row = 0; row < 50; ++row)
    table.addRow({"row"});
  playStep(rowStep(50, 0));
  EXPECT_THAT(table.scrolledRows(), IsEmpty());
  EXPECT_THAT(scroll.requests(), SizeIs(1));
  desktop.advance(1.81);
  EXPECT_EQ(player->currentTargetScreenRect().height, table.contentHeight());
}

TEST_F(PlayerTable, WithoutARowTheWholeTableIsHighlighted)
{
  const sim::TableView& table = addTable(*window, false);
  playAndShowStep(rowStep(-1, 1));
  EXPECT_EQ(player->currentTargetScreenRect(), table.screenFrame());
}

TEST_F(PlayerTable, CellThatIsAViewKeepsTheWholeRowHighlighted)
{
  // The cell's view comes to be only after the table itself was found, and by then the window is out of
  // reach.
  const auto second = desktop.addWindow("Second", {950, 200, 400, 500});
  sim::TableView& table = addTable(*second, true);
  bool makesCells = false;
  table.setCellMaker([&](sim::View& rowView, const Rect& frame, int column, int row) -> sim::View* {
    return makesCells ? &table.makeCellView(rowView, frame, column, row) : nullptr;
  });
  playStep(rowStep(2, 1));
  makesCells = true;
  ASSERT_NE(table.cellAt(1, 2), nullptr);
  second->orderOut();
  waitForHighlight();
  EXPECT_EQ(player->currentTargetScreenRect(), onScreen(table, table.rectOfRow(2)));
}

TEST_F(PlayerTable, MeasuringARowMakesNoCellViews)
{
  sim::TableView& table = addTable(*window, true);
  table.setCellMaker([](sim::View&, const Rect&, int, int) -> sim::View* { return nullptr; });
  playAndShowStep(rowStep(2, 1));
  EXPECT_EQ(player->currentTargetScreenRect(), onScreen(table, {100, 40, 100, 20}));
  EXPECT_EQ(table.cellsMade(), 0);
}

TEST_F(PlayerTable, TargetThatIsACellViewIsHighlightedItself)
{
  sim::TableView& table = addTable(*window, true);
  playAndShowStep(rowStep(2, 1));
  EXPECT_EQ(player->currentTargetScreenRect(), table.cellAt(1, 2)->screenFrame());
}

} // namespace
} // namespace wayvane
