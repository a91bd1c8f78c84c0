#include <tests/desktop/Desktop.h>
#include <wayvane/recording/WVAnnotationPopover.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace wayvane {
namespace {

using platform::PopoverButton;
using platform::Rect;
using testing::ElementsAre;

class AnnotationPopover : public testing::Test {
protected:
  WVAnnotationPopover::Completion completion()
  {
    return [this](const std::optional<std::string>& title, const std::optional<std::string>& message) {
      answers.push_back(title.value_or("nothing") + " | " + message.value_or("nothing"));
    };
  }

  sim::Popover* show(const Rect& rect = {300, 300, 80, 24})
  {
    WVAnnotationPopover::showAtScreenRect(rect, window, completion());
    return desktop.popover();
  }

  // Outlives the desktop, whose end closes what is still open.
  std::vector<std::string> answers;
  sim::Desktop desktop;
  std::shared_ptr<sim::Window> window = desktop.addWindow("Main", {100, 100, 800, 628});
};

TEST_F(AnnotationPopover, HasATitleAMessageAndTwoButtons)
{
  const platform::PopoverSpec& spec = show()->spec();
  EXPECT_EQ(spec.contentSize, (platform::Size{260, 100}));
  ASSERT_EQ(spec.fields.size(), 2u);
  EXPECT_EQ(spec.fields[0].identifier, "titleField");
  EXPECT_EQ(spec.fields[0].frame, (Rect{10, 66, 240, 24}));
  EXPECT_EQ(spec.fields[0].placeholder, "Step title (optional)");
  EXPECT_EQ(spec.fields[0].fontSize, 12);
  EXPECT_EQ(spec.fields[1].identifier, "msgField");
  EXPECT_EQ(spec.fields[1].frame, (Rect{10, 36, 240, 24}));
  EXPECT_EQ(spec.fields[1].placeholder, "Describe this step…");
  EXPECT_EQ(spec.fields[1].fontSize, 12);
}

TEST_F(AnnotationPopover, CancelIsEscapeAndAddStepIsReturn)
{
  const platform::PopoverSpec& spec = show()->spec();
  ASSERT_EQ(spec.buttons.size(), 2u);
  EXPECT_EQ(spec.buttons[0].title, "Cancel");
  EXPECT_EQ(spec.buttons[0].frame, (Rect{85, 6, 70, 24}));
  EXPECT_EQ(spec.buttons[0].key, PopoverButton::Key::Escape);
  EXPECT_EQ(spec.buttons[1].title, "Add Step");
  EXPECT_EQ(spec.buttons[1].frame, (Rect{170, 6, 80, 24}));
  EXPECT_EQ(spec.buttons[1].key, PopoverButton::Key::Return);
}

TEST_F(AnnotationPopover, AddStepGivesWhatWasTyped)
{
  sim::Popover* popover = show();
  popover->typeText("titleField", "Save it");
  popover->typeText("msgField", "Click Save");
  popover->pressButton("Add Step");
  EXPECT_THAT(answers, ElementsAre("Save it | Click Save"));
}

TEST_F(AnnotationPopover, AddStepWithBothFieldsEmptyGivesClickHere)
{
  show()->pressButton("Add Step");
  EXPECT_THAT(answers, ElementsAre("nothing | Click here"));
}

TEST_F(AnnotationPopover, AddStepWithOnlyATitleGivesTheTitleAndClickHere)
{
  sim::Popover* popover = show();
  popover->typeText("titleField", "Save it");
  popover->pressButton("Add Step");
  EXPECT_THAT(answers, ElementsAre("Save it | Click here"));
}

TEST_F(AnnotationPopover, ReturnCountsAsAddStep)
{
  show();
  desktop.keyPress("Return");
  EXPECT_THAT(answers, ElementsAre("nothing | Click here"));
}

TEST_F(AnnotationPopover, CancelGivesNeither)
{
  sim::Popover* popover = show();
  popover->typeText("msgField", "Click Save");
  popover->pressButton("Cancel");
  EXPECT_THAT(answers, ElementsAre("nothing | nothing"));
}

TEST_F(AnnotationPopover, EscapeGivesNeither)
{
  show();
  desktop.keyPress("Escape");
  EXPECT_THAT(answers, ElementsAre("nothing | nothing"));
}

TEST_F(AnnotationPopover, APressOutsideGivesNeither)
{
  sim::Popover* popover = show();
  popover->typeText("titleField", "Typed in vain");
  desktop.click({120, 120});
  EXPECT_THAT(answers, ElementsAre("nothing | nothing"));
}

TEST_F(AnnotationPopover, TheEndOfItsWindowGivesNeither)
{
  show();
  window->close();
  EXPECT_THAT(answers, ElementsAre("nothing | nothing"));
}

TEST_F(AnnotationPopover, WithoutAWindowItGivesAnEmptyMessageAtOnce)
{
  WVAnnotationPopover::showAtScreenRect({300, 300, 80, 24}, nullptr, completion());
  EXPECT_THAT(answers, ElementsAre("nothing | "));
  EXPECT_EQ(desktop.popover(), nullptr);
}

TEST_F(AnnotationPopover, WithoutAContentViewItGivesAnEmptyMessageAtOnce)
{
  window->removeContentView();
  EXPECT_EQ(show(), nullptr);
  EXPECT_THAT(answers, ElementsAre("nothing | "));
}

TEST_F(AnnotationPopover, WhenItCannotBeShownItGivesAnEmptyMessageAtOnce)
{
  desktop.setRefusesPopovers(true);
  EXPECT_EQ(show(), nullptr);
  EXPECT_THAT(answers, ElementsAre("nothing | "));
  desktop.runPending();
  EXPECT_TRUE(desktop.panels().popovers.empty());
}

TEST_F(AnnotationPopover, TheTitleFieldTakesTheKeyboardInTheNextTurn)
{
  const sim::Popover* popover = show();
  EXPECT_EQ(popover->focusedField(), "");
  desktop.runTurn();
  EXPECT_EQ(popover->focusedField(), "titleField");
}

TEST_F(AnnotationPopover, APopoverAnsweredBeforeThatTurnHarmsNothing)
{
  show()->pressButton("Add Step");
  desktop.runPending();
  EXPECT_EQ(answers.size(), 1u);
}

TEST_F(AnnotationPopover, IsReleasedOnceItIsClosed)
{
  show()->pressButton("Cancel");
  desktop.runPending();
  EXPECT_TRUE(desktop.panels().popovers.empty());
}

TEST_F(AnnotationPopover, IsReleasedAlsoWithoutACompletion)
{
  WVAnnotationPopover::showAtScreenRect({300, 300, 80, 24}, window, nullptr);
  ASSERT_NE(desktop.popover(), nullptr);
  desktop.popover()->pressButton("Add Step");
  desktop.runPending();
  EXPECT_TRUE(desktop.panels().popovers.empty());
}

TEST_F(AnnotationPopover, TheAnchorIsTheRectangleInTheWindow)
{
  EXPECT_EQ(show({300, 250, 80, 24})->anchor(), (Rect{200, 150, 80, 24}));
}

TEST_F(AnnotationPopover, ARectangleAboveTheContentIsMovedToItsTopEdge)
{
  EXPECT_EQ(show({300, 870, 200, 22})->anchor(), (Rect{200, 578, 200, 22}));
}

TEST_F(AnnotationPopover, ARectangleToTheLeftBelowIsMovedToTheCorner)
{
  EXPECT_EQ(show({-50, -50, 20, 10})->anchor(), (Rect{0, 0, 20, 10}));
}

TEST_F(AnnotationPopover, ARectangleTooLargeToFitBeginsWhereTheContentBegins)
{
  EXPECT_EQ(show({2000, 300, 900, 22})->anchor(), (Rect{0, 200, 900, 22}));
}

TEST_F(AnnotationPopover, ARectangleThatOverlapsTheContentStaysWhereItIs)
{
  EXPECT_EQ(show({80, 300, 80, 24})->anchor(), (Rect{-20, 200, 80, 24}));
}

TEST_F(AnnotationPopover, ForAViewItAnchorsAtTheView)
{
  sim::Button& button = window->content().addButton({.frame = {40, 50, 80, 24}});
  WVAnnotationPopover::showForView(button.handle(), completion());
  ASSERT_NE(desktop.popover(), nullptr);
  EXPECT_EQ(desktop.popover()->anchor(), (Rect{40, 50, 80, 24}));
}

TEST_F(AnnotationPopover, ForNoViewItGivesAnEmptyMessageAtOnce)
{
  WVAnnotationPopover::showForView(nullptr, completion());
  sim::Button& button = window->content().addButton();
  button.removeFromSuperview();
  WVAnnotationPopover::showForView(button.handle(), completion());
  EXPECT_THAT(answers, ElementsAre("nothing | ", "nothing | "));
}

TEST_F(AnnotationPopover, TheCompletionMayShowTheNextOne)
{
  WVAnnotationPopover::showAtScreenRect({300, 300, 80, 24}, window, [&](const auto&, const auto&) {
    WVAnnotationPopover::showAtScreenRect({400, 300, 80, 24}, window, completion());
  });
  desktop.popover()->pressButton("Cancel");
  desktop.runPending();
  ASSERT_NE(desktop.popover(), nullptr);
  EXPECT_EQ(desktop.popover()->anchor().x, 300);
}

TEST(AnnotationPopoverWithoutPlatform, GivesAnEmptyMessageAtOnce)
{
  std::optional<std::string> got;
  WVAnnotationPopover::showAtScreenRect({}, nullptr,
                                        [&](const auto&, const auto& message) { got = message; });
  EXPECT_EQ(got, "");
}

} // namespace
} // namespace wayvane
