#include <tests/desktop/Table.h>
#include <tests/overlay/Bubble.h>

using namespace wayvane;
using namespace wayvane::platform;

namespace {

class BubbleMessage : public wayvane::tests::BubbleTest {
protected:
  sim::View& content() { return window->content(); }

  [[nodiscard]] std::string messageFor(const WVStep& step)
  {
    configure(step);
    return bubble->messageLabel()->stringValue();
  }

  [[nodiscard]] const std::vector<AttributedText::Run>& runs() const
  {
    return bubble->messageLabel()->attributedStringValue().runs;
  }

  /// The view of a table's only cell, as the target.
  sim::View& addCell()
  {
    sim::TableView& table = content().addTableView({.columns = {{.identifier = "name"}}});
    table.addRow({"Tour"});
    sim::View& cell = *table.cellAt(0, 0);
    cell.setIdentifier("target");
    return cell;
  }

  sim::Button& addIconButton(const sim::Text& toolTip)
  {
    return content().addButton(
        {.identifier = "target", .toolTip = toolTip, .imageOnly = true, .image = sim::makeImage()});
  }
};

} // namespace

TEST_F(BubbleMessage, IsTheStepsOwn)
{
  content().addButton({.title = "Save", .identifier = "target"});
  EXPECT_EQ(messageFor(stepAtTarget("Store your work")), "Store your work");
}

TEST_F(BubbleMessage, NamesTheButtonInPlaceOfAStockText)
{
  content().addButton({.title = "Save", .identifier = "target"});
  for (const char* stock :
       {"Click here", "Hier klicken", "Cliquez ici", "Clicca qui", "Haga clic aquí", "Klik hier"})
    EXPECT_EQ(messageFor(stepAtTarget(stock)), "Click on \"Save\" button");
}

TEST_F(BubbleMessage, NamesTheButtonInPlaceOfNothing)
{
  content().addButton({.title = "Save", .identifier = "target"});
  EXPECT_EQ(messageFor(stepAtTarget()), "Click on \"Save\" button");
  EXPECT_EQ(messageFor(stepAtTarget("")), "Click on \"Save\" button");
}

TEST_F(BubbleMessage, ComparesStockTextsExactly)
{
  content().addButton({.title = "Save", .identifier = "target"});
  EXPECT_EQ(messageFor(stepAtTarget("click here")), "click here");
  EXPECT_EQ(messageFor(stepAtTarget("Click here.")), "Click here.");
}

TEST_F(BubbleMessage, AsksForTheFieldsPlaceholderInLowerCase)
{
  content().addTextField({.editable = true, .placeholder = "Your Name", .identifier = "target"});
  EXPECT_EQ(messageFor(stepAtTarget()), "Enter your name");
}

TEST_F(BubbleMessage, PutsPlaceholdersOfOtherAlphabetsInLowerCase)
{
  sim::TextField& field = content().addTextField(
      {.editable = true, .placeholder = "ÜBER ŻÓŁĆ ΑΒΓ ИМЯ 東京 ẞ ŸÉ", .identifier = "target"});
  EXPECT_EQ(messageFor(stepAtTarget()), "Enter über żółć αβγ имя 東京 ß ÿé");
  field.destroy();
  content().addTextField({.editable = true, .placeholder = "A\xFF\xC3", .identifier = "target"});
  EXPECT_EQ(messageFor(stepAtTarget()), "Enter a\xFF\xC3") << "broken text stays as it is";
}

TEST_F(BubbleMessage, AsksForTextWithoutAPlaceholder)
{
  content().addTextField({.value = "typed", .editable = true, .identifier = "target"});
  EXPECT_EQ(messageFor(stepAtTarget()), "Enter text");
}

TEST_F(BubbleMessage, NamesTheTextOfALabel)
{
  content().addTextField({.value = "Total", .identifier = "target"});
  EXPECT_EQ(messageFor(stepAtTarget()), "Click on \"Total\"");
}

TEST_F(BubbleMessage, ChoosesFromThePopUpsCurrentItem)
{
  content().addPopUpButton({.items = {"Small", "Large"}, .selected = 1, .identifier = "target"});
  EXPECT_EQ(messageFor(stepAtTarget()), "Choose from \"Large\"");
}

TEST_F(BubbleMessage, SelectsAnOptionOfASegmentedControl)
{
  content().addSegmentedControl({.labels = {"Day", "Week"}, .identifier = "target"});
  EXPECT_EQ(messageFor(stepAtTarget()), "Select an option");
}

TEST_F(BubbleMessage, SelectsARowOfATable)
{
  content().addTableView({.columns = {{.identifier = "name"}}, .identifier = "target"});
  EXPECT_EQ(messageFor(stepAtTarget()), "Select a row");
}

TEST_F(BubbleMessage, ClicksOnARowWhoseCellHasNoName)
{
  addCell();
  EXPECT_EQ(messageFor(stepAtTarget()), "Click on row");
}

TEST_F(BubbleMessage, ClicksOnANamedCell)
{
  addCell().setAccessibilityLabel("Alps");
  EXPECT_EQ(messageFor(stepAtTarget()), "Click on \"Alps\"");
}

TEST_F(BubbleMessage, JustContinuesAtAViewWithoutAName)
{
  content().addView("NSView", {.identifier = "target"});
  EXPECT_EQ(messageFor(stepAtTarget()), "Click to continue");
}

TEST_F(BubbleMessage, NamesAnyOtherView)
{
  content().addView("NSView", {.identifier = "target", .accessibilityLabel = "Map"});
  EXPECT_EQ(messageFor(stepAtTarget()), "Click on \"Map\"");
}

TEST_F(BubbleMessage, StaysEmptyForATargetThatIsNotFound)
{
  EXPECT_EQ(messageFor(stepAtTarget()), "");
  EXPECT_TRUE(bubble->messageLabel()->attributedStringValue().isEmpty());
  EXPECT_EQ(messageFor(stepAtTarget("Klik hier")), "Klik hier") << "as does a stock text";
}

TEST_F(BubbleMessage, SpeaksTheUsersLanguage)
{
  content().addButton({.title = "Sichern", .identifier = "target"});
  desktop.setFrameworkTable("de", {{"WV.Message.ClickOnButton", "Auf „%@“ klicken"}});
  desktop.setLanguage("de");
  EXPECT_EQ(messageFor(stepAtTarget()), "Auf „Sichern“ klicken");
}

TEST_F(BubbleMessage, ShowsAButtonThatIsOnlyAPictureAsThatPicture)
{
  const sim::Button& button = addIconButton("Bold (Cmd-B)");
  configure(stepAtTarget());
  ASSERT_EQ(runs().size(), 3U);
  EXPECT_EQ(runs()[0].text, "Click on ");
  EXPECT_EQ(runs()[1].attachment, button.image());
  EXPECT_EQ(runs()[1].attachmentBounds, (Rect{0, -2, 14, 14}));
  EXPECT_EQ(runs()[2].text, " (Bold)");
  EXPECT_EQ(runs()[2].color, Color::secondaryLabel());
  EXPECT_EQ(runs()[2].font, Font::system(12));
}

TEST_F(BubbleMessage, ShowsADrawnCellThatHasAPictureAsThatPicture)
{
  sim::TableView& table = content().addTableView(
      {.columns = {{.identifier = "kind"}}, .viewBased = false, .identifier = "target"});
  platform::TableCell cell;
  cell.image = sim::makeImage();
  table.addRow({.cells = {cell}});
  for (const char* own : {"", "Press [ICON:button] now"}) {
    WVStep step = stepAtTarget(own);
    step.target.tableRow = 0;
    step.target.tableColumn = 0;
    configure(step);
    ASSERT_EQ(runs().size(), 2U) << own;
    EXPECT_EQ(runs()[0].text, "Click on ");
    EXPECT_EQ(runs()[0].font, Font::system(12));
    EXPECT_EQ(runs()[1].attachment, table.row(0).cells[0].image);
  }
}

TEST_F(BubbleMessage, AddsEmptyParenthesesForAToolTipOfNothingButAShortcut)
{
  addIconButton(" (x)");
  configure(stepAtTarget());
  EXPECT_EQ(runs().back().text, " ()");
}

TEST_F(BubbleMessage, CutsAToolTipAtItsLastParenthesis)
{
  addIconButton("A (x) (y)");
  configure(stepAtTarget());
  EXPECT_EQ(runs().back().text, " (A (x))");
}

TEST_F(BubbleMessage, AddsNothingWithoutAToolTip)
{
  addIconButton({});
  configure(stepAtTarget());
  ASSERT_EQ(runs().size(), 2U);
  EXPECT_TRUE(runs()[1].attachment);
}

TEST_F(BubbleMessage, DropsTheWordsAroundTheIcon)
{
  content().addButton(
      {.title = "Save", .identifier = "target", .toolTip = "Saves", .image = sim::makeImage()});
  configure(stepAtTarget("Press [ICON:button] now"));
  EXPECT_EQ(bubble->messageLabel()->stringValue(), "Click on  (Saves)");
  EXPECT_EQ(runs().size(), 3U);
}

TEST_F(BubbleMessage, KeepsATokenThatItDoesNotKnow)
{
  addIconButton("Bold");
  EXPECT_EQ(messageFor(stepAtTarget("Open [ICON:menu]")), "Open [ICON:menu]");
}

TEST_F(BubbleMessage, KeepsTheTokenWhenThereIsNoIcon)
{
  content().addButton({.title = "Save", .identifier = "target"});
  EXPECT_EQ(messageFor(stepAtTarget("Press [ICON:button] now")), "Press [ICON:button] now");
  EXPECT_EQ(messageFor(step("[ICON:button]")), "[ICON:button]");
}

TEST_F(BubbleMessage, KeepsTheTokenWhenTheTranslationHasNoPlaceForTheIcon)
{
  addIconButton("Bold");
  desktop.setFrameworkTable("en", {{"WV.Message.ClickOnIcon", "Click on the picture"}});
  configure(stepAtTarget("[ICON:button]"));
  EXPECT_EQ(bubble->messageLabel()->stringValue(), "[ICON:button]");
}

TEST_F(BubbleMessage, PutsTheIconWhereTheTranslationWantsIt)
{
  addIconButton({});
  desktop.setFrameworkTable("en", {{"WV.Message.ClickOnIcon", "%@ is to be clicked, %@"}});
  configure(stepAtTarget());
  ASSERT_EQ(runs().size(), 2U);
  EXPECT_TRUE(runs()[0].attachment);
  EXPECT_EQ(runs()[1].text, " is to be clicked, %@");
}

TEST_F(BubbleMessage, IsAsHighAsItsStyledTextNeeds)
{
  addIconButton("A tool tip so long that it needs another line of the message");
  configure(stepAtTarget());
  EXPECT_EQ(bubble->messageLabel()->frame().height, 30);
}

TEST_F(BubbleMessage, SaysTheButtonsNameInPlaceOfItsIcon)
{
  addIconButton("Bold (Cmd-B)");
  configure(stepAtTarget());
  EXPECT_EQ(bubble->accessibleAlert().message, "Click on Bold");
}

TEST_F(BubbleMessage, SaysTheToolTipToAButtonOfAnotherName)
{
  content().addButton(
      {.title = "Save", .identifier = "target", .toolTip = "Stores your work", .image = sim::makeImage()});
  configure(stepAtTarget("[ICON:button]"));
  EXPECT_EQ(bubble->accessibleAlert().message, "Click on Save (Stores your work)");
}

TEST_F(BubbleMessage, SaysToContinueAtAnIconWithoutAName)
{
  addIconButton({});
  configure(stepAtTarget());
  EXPECT_EQ(bubble->accessibleAlert().message, "Click to continue");
}

TEST_F(BubbleMessage, SaysWhatIsShownWhenATokenStays)
{
  configure(step("Open [ICON:menu]"));
  EXPECT_EQ(bubble->accessibleAlert().message, "Open [ICON:menu]");
}

TEST_F(BubbleMessage, SurvivesATargetThatIsGone)
{
  sim::Button& button = content().addButton({.title = "Save", .identifier = "target"});
  configure(stepAtTarget());
  button.destroy();
  EXPECT_EQ(messageFor(stepAtTarget()), "");
}
