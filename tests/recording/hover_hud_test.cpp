#include <tests/desktop/Desktop.h>
#include <wayvane/recording/HoverText.h>
#include <wayvane/recording/WVHoverHUD.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace wayvane {
namespace {

using platform::Point;
using platform::Rect;

class HoverHUD : public testing::Test {
protected:
  [[nodiscard]] std::string text() const { return hud.infoLabel() ? hud.infoLabel()->stringValue() : ""; }

  sim::TableView& addTable(bool viewBased)
  {
    sim::TableView& table = window->content().addTableView({.frame = {0, 0, 300, 200},
                                                            .columns = {{"name", 100, {}}, {"size", 100, {}}},
                                                            .viewBased = viewBased,
                                                            .className = "NSTableView"});
    table.addRow({"Anna", "1"}, sim::makeModel({{"uuid", sim::textValue("A1")}}));
    table.addRow({"Bert", "2"}, sim::makeModel({{"uuid", sim::textValue("B2")}}));
    return table;
  }

  sim::Desktop desktop;
  std::shared_ptr<sim::Window> window = desktop.addWindow("Main", {100, 100, 800, 600});
  WVHoverHUD hud;
};

TEST_F(HoverHUD, AViewWithoutCluesShowsOnlyItsClassInTheSmallestPanel)
{
  hud.updateForView(window->content().addView("NSView", {.frame = {0, 0, 50, 50}}).handle(), {110, 400});
  EXPECT_EQ(text(), "NSView");
  EXPECT_TRUE(hud.isVisible());
  EXPECT_EQ(hud.frame().width, 200);
  EXPECT_EQ(hud.frame().height, 30);
}

TEST_F(HoverHUD, ClicksPassThroughItAboveOtherPanels)
{
  hud.updateForView(window->content().handle(), {110, 400});
  const platform::FloatingPanelSpec& spec = desktop.floatingPanels().front()->spec();
  EXPECT_EQ(spec.level, 25);
  EXPECT_TRUE(spec.ignoresMouse);
  EXPECT_TRUE(spec.hasShadow);
  EXPECT_EQ(spec.cornerRadius, 6);
  EXPECT_EQ(spec.background, platform::Color::white(0.1, 0.9));
}

TEST_F(HoverHUD, ItsTextIsWhiteAndMonospaced)
{
  hud.updateForView(window->content().handle(), {110, 400});
  EXPECT_EQ(hud.infoLabel()->font().face, platform::Font::Face::Monospaced);
  EXPECT_EQ(hud.infoLabel()->font().size, 10);
  EXPECT_EQ(hud.infoLabel()->textColor(), platform::Color::white(1));
}

TEST_F(HoverHUD, TheCluesComeInTheirOrder)
{
  sim::Button& save =
      window->toolbarView().addButton({.title = "Save", .action = "save:", .identifier = "saveButton"});
  save.setBinding("enabled", "document.edited");
  window->addToolbarItem({.identifier = "saveItem", .view = &save});
  hud.updateForView(save.handle(), save.screenCenter());
  EXPECT_EQ(text(), "NSButton\nBinding: enabled:document.edited\nID: saveButton\nAction: save:\n"
                    "Title: \"Save\"\nToolbar: saveItem");
}

TEST_F(HoverHUD, ATitleIsShownBetweenQuotes)
{
  hud.updateForView(window->content().addButton({.title = "Open"}).handle(), {110, 110});
  EXPECT_EQ(text(), "NSButton\nTitle: \"Open\"");
}

TEST_F(HoverHUD, AnEmptyClueCountsAsPresent)
{
  sim::TextField& field = window->content().addTextField({.editable = true, .identifier = ""});
  hud.updateForView(field.handle(), {110, 110});
  EXPECT_EQ(text(), "NSTextField\nID: ");
}

TEST_F(HoverHUD, WithoutATableRowThereAreNoTableLines)
{
  hud.updateForView(window->content().addButton({.title = "Open"}).handle(), {110, 110});
  EXPECT_EQ(hud.lastDescriptor()->tableRow, -1);
  EXPECT_THAT(text(), testing::Not(testing::HasSubstr("Table row")));
  EXPECT_THAT(text(), testing::Not(testing::HasSubstr("Cell")));
  EXPECT_THAT(text(), testing::Not(testing::HasSubstr("Object")));
}

TEST(HoverText, OutsideATableRowCellAndObjectAreNotShownEvenWhenTheyAreKnown)
{
  WVTargetDescriptor descriptor;
  descriptor.accessibilityIdentifier = "list";
  descriptor.tableColumnIdentifier = "size";
  descriptor.cellIdentifier = "cell";
  descriptor.objectIdentifier = "uuid:B2";
  EXPECT_EQ(hoverTextFor("NSView", descriptor), "NSView\nID: list");
  descriptor.tableRow = 0;
  EXPECT_EQ(hoverTextFor("NSView", descriptor),
            "NSView\nID: list\nTable row: 0 col: size\nCell: cell\nObject: uuid:B2");
}

TEST_F(HoverHUD, ATableRowShowsColumnCellAndObject)
{
  sim::TableView& table = addTable(true);
  sim::View* cell = table.cellAt(1, 1);
  hud.updateForView(cell->handle(), cell->screenCenter());
  EXPECT_THAT(text(), testing::EndsWith("\nTable row: 1 col: size\nCell: size\nObject: uuid:B2"));
}

TEST_F(HoverHUD, LiesBelowAndToTheRightOfThePointer)
{
  hud.updateForView(window->content().handle(), {500, 400});
  EXPECT_EQ(hud.frame(), (Rect{516, 400 - 30 - 16, 200, 30}));
}

TEST_F(HoverHUD, JumpsToTheLeftNearTheRightEdge)
{
  hud.updateForView(window->content().handle(), {1300, 400});
  EXPECT_EQ(hud.frame().x, 1300 - 200 - 16);
}

TEST_F(HoverHUD, JumpsTwentyPointsAboveNearTheBottom)
{
  hud.updateForView(window->content().handle(), {500, 40});
  EXPECT_EQ(hud.frame().y, 60);
}

TEST_F(HoverHUD, StaysBelowWhenItJustFits)
{
  hud.updateForView(window->content().handle(), {1224, 46});
  EXPECT_EQ(hud.frame().origin(), (Point{1240, 0}));
}

TEST_F(HoverHUD, WithoutAScreenTheFreeAreaCountsAsZero)
{
  desktop.removeScreen();
  hud.updateForView(window->content().handle(), {500, 400});
  EXPECT_EQ(hud.frame(), (Rect{284, 354, 200, 30}));
}

TEST_F(HoverHUD, GrowsWithItsText)
{
  // 57 characters of 5 points fit into a line of 304, but not behind "Title: ".
  const std::string title(55, 'x');
  hud.updateForView(window->content().addButton({.title = title}).handle(), {500, 400});
  EXPECT_EQ(hud.frame().height, 3 * 12 + 12);
  EXPECT_LE(hud.frame().width, 320);
  EXPECT_GT(hud.frame().width, 300);
  EXPECT_EQ(hud.infoLabel()->frame(), (Rect{8, 6, hud.frame().width - 16, hud.frame().height - 12}));
}

TEST_F(HoverHUD, NoViewHidesItAndLeavesWhatItRemembers)
{
  sim::Button& open = window->content().addButton({.title = "Open"});
  hud.updateForView(open.handle(), {110, 110});
  hud.updateForView(nullptr, {5, 5});
  EXPECT_FALSE(hud.isVisible());
  EXPECT_TRUE(isSameView(hud.lastView(), open.handle()));
  ASSERT_TRUE(hud.lastDescriptor().has_value());
  EXPECT_EQ(hud.lastDescriptor()->title, "Open");
}

TEST_F(HoverHUD, ADeadViewCountsAsNone)
{
  sim::Button& open = window->content().addButton({.title = "Open"});
  const platform::ViewHandle handle = open.handle();
  hud.updateForView(handle, {110, 110});
  open.destroy();
  hud.updateForView(handle, {110, 110});
  EXPECT_FALSE(hud.isVisible());
  EXPECT_EQ(hud.lastView(), nullptr);
}

TEST_F(HoverHUD, FollowsThePointerWithoutDescribingTheSameElementAgain)
{
  sim::Button& open = window->content().addButton({.title = "Open"});
  hud.updateForView(open.handle(), {500, 400});
  open.setTitle("Changed");
  hud.updateForView(open.handle(), {510, 400});
  EXPECT_EQ(text(), "NSButton\nTitle: \"Open\"");
  EXPECT_EQ(hud.frame().x, 526);
}

TEST_F(HoverHUD, DescribesAnElementAnewWhenThePointerComesBackToIt)
{
  sim::Button& open = window->content().addButton({.title = "Open"});
  hud.updateForView(open.handle(), {500, 400});
  open.setTitle("Changed");
  hud.updateForView(window->content().handle(), {510, 400});
  hud.updateForView(open.handle(), {500, 400});
  EXPECT_EQ(text(), "NSButton\nTitle: \"Changed\"");
}

TEST_F(HoverHUD, DescribesAnElementAnewWhenThePanelWasHidden)
{
  sim::Button& open = window->content().addButton({.title = "Open"});
  hud.updateForView(open.handle(), {500, 400});
  open.setTitle("Changed");
  hud.orderOut();
  hud.updateForView(open.handle(), {500, 400});
  EXPECT_EQ(text(), "NSButton\nTitle: \"Changed\"");
}

TEST_F(HoverHUD, DescribesATableAnewInEveryRowAndColumn)
{
  sim::TableView& table = addTable(false);
  hud.updateForView(table.handle(), table.screenCenterOfCell(0, 0));
  EXPECT_THAT(text(), testing::HasSubstr("Table row: 0 col: name"));
  hud.updateForView(table.handle(), table.screenCenterOfCell(0, 1));
  EXPECT_THAT(text(), testing::HasSubstr("Table row: 1 col: name"));
  hud.updateForView(table.handle(), table.screenCenterOfCell(1, 1));
  EXPECT_THAT(text(), testing::HasSubstr("Table row: 1 col: size"));
}

TEST_F(HoverHUD, DescribesACellOfATableOnce)
{
  sim::TableView& table = addTable(false);
  hud.updateForView(table.handle(), table.screenCenterOfCell(0, 0));
  const std::string before = text();
  table.row(0).cells[0].stringValue = "Changed";
  Point nearby = table.screenCenterOfCell(0, 0);
  nearby.x += 3;
  hud.updateForView(table.handle(), nearby);
  EXPECT_EQ(text(), before);
}

TEST_F(HoverHUD, AMegabyteOfTitleIsCut)
{
  sim::Button& huge = window->content().addButton({.title = std::string(1 << 20, 'x')});
  hud.updateForView(huge.handle(), {500, 400});
  EXPECT_EQ(text(), "NSButton\nTitle: \"" + std::string(1000, 'x') + "…\"");
  EXPECT_EQ(hud.lastDescriptor()->title->size(), std::size_t{1} << 20);
}

TEST_F(HoverHUD, CutsBetweenCharactersAndNotInside)
{
  std::string title;
  for (int i = 0; i < 1001; ++i)
    title += "ä";
  hud.updateForView(window->content().addButton({.title = title}).handle(), {500, 400});
  EXPECT_EQ(text(), "NSButton\nTitle: \"" + title.substr(0, 2000) + "…\"");
}

TEST_F(HoverHUD, AThousandCharactersAreShownWhole)
{
  const std::string title(1000, 'x');
  hud.updateForView(window->content().addButton({.title = title}).handle(), {500, 400});
  EXPECT_EQ(text(), "NSButton\nTitle: \"" + title + "\"");
}

TEST_F(HoverHUD, ATitleOfManyLinesIsCutAfterTwenty)
{
  std::string twenty = "0";
  for (int line = 1; line < 20; ++line)
    twenty += "\n" + std::to_string(line);
  sim::Button& tall = window->content().addButton({.title = twenty + "\n20\n21"});
  hud.updateForView(tall.handle(), {500, 400});
  EXPECT_EQ(text(), "NSButton\nTitle: \"" + twenty + "…\"");
}

TEST_F(HoverHUD, OneInstanceServesTheProcess)
{
  EXPECT_EQ(&WVHoverHUD::shared(), &WVHoverHUD::shared());
}

TEST(HoverHUDAcrossPlatforms, MakesItsPanelAnewWhenThePlatformWasReplaced)
{
  WVHoverHUD hud;
  {
    sim::Desktop first;
    hud.updateForView(first.addWindow("First")->content().handle(), {500, 400});
    EXPECT_TRUE(hud.isVisible());
  }
  EXPECT_FALSE(hud.isVisible());
  EXPECT_EQ(hud.lastView(), nullptr);
  sim::Desktop second;
  hud.updateForView(second.addWindow("Second")->content().handle(), {500, 400});
  EXPECT_TRUE(hud.isVisible());
  EXPECT_EQ(second.floatingPanels().size(), 1u);
}

TEST(HoverHUDAcrossPlatforms, ShowsNothingWithoutOne)
{
  platform::ViewHandle view;
  WVHoverHUD hud;
  {
    sim::Desktop desktop;
    view = desktop.addWindow("Main")->content().handle();
  }
  hud.updateForView(view, {});
  hud.orderOut();
  EXPECT_FALSE(hud.isVisible());
  EXPECT_EQ(hud.window(), nullptr);
}

} // namespace
} // namespace wayvane
