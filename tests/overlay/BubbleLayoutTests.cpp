#include <tests/overlay/Bubble.h>

using namespace wayvane;
using namespace wayvane::platform;

namespace {

using BubbleLayout = wayvane::tests::BubbleTest;

} // namespace

TEST_F(BubbleLayout, WritesEachTextInItsFont)
{
  EXPECT_EQ(bubble->titleLabel()->font(), Font::boldSystem(13));
  EXPECT_EQ(bubble->messageLabel()->font(), Font::system(12));
  EXPECT_EQ(bubble->stepLabel()->font(), Font::system(10));
  EXPECT_EQ(bubble->stepLabel()->textColor(), Color::secondaryLabel());
  EXPECT_TRUE(bubble->messageLabel()->layer()->wrapsText());
  EXPECT_FALSE(bubble->stepLabel()->layer()->wrapsText());
}

TEST_F(BubbleLayout, StacksTitleMessageAndCounterFromTheTop)
{
  EXPECT_TRUE(bubble->isFlipped());
  configure(step("Press it", "First"));
  EXPECT_EQ(bubble->titleLabel()->frame(), (Rect{14, 12, 252, 16}));
  EXPECT_EQ(bubble->messageLabel()->frame(), (Rect{14, 32, 252, 15}));
  EXPECT_EQ(bubble->stepLabel()->frame(), (Rect{14, 55, 252, 14}));
  EXPECT_EQ(bubble->frame(), (Rect{0, 0, 280, 77}));
}

TEST_F(BubbleLayout, HidesAnAbsentOrEmptyTitleAndStartsWithTheMessage)
{
  configure(step("Press it", "First"));
  for (const auto& title : {std::optional<std::string>(), std::optional<std::string>("")}) {
    configure(step("Press it", title));
    EXPECT_TRUE(bubble->titleLabel()->isHidden());
    EXPECT_EQ(bubble->messageLabel()->frame().y, 12);
    EXPECT_EQ(bubble->titleLabel()->stringValue(), "First") << "left as it was, out of sight";
  }
  configure(step("Press it", "Second"));
  EXPECT_FALSE(bubble->titleLabel()->isHidden());
}

TEST_F(BubbleLayout, StartsLowerBelowAnUpwardPointer)
{
  bubble->setPointerDirection(WVBubblePointerUp);
  configure(step("Press it"));
  EXPECT_EQ(bubble->messageLabel()->frame(), (Rect{14, 22, 252, 15}));
}

TEST_F(BubbleLayout, NarrowsTheColumnBesideASidePointer)
{
  bubble->setPointerDirection(WVBubblePointerRight);
  configure(step("Press it"));
  EXPECT_EQ(bubble->messageLabel()->frame(), (Rect{14, 12, 242, 15}));
  bubble->setPointerDirection(WVBubblePointerLeft);
  configure(step("Press it"));
  EXPECT_EQ(bubble->messageLabel()->frame(), (Rect{24, 12, 242, 15}));
}

TEST_F(BubbleLayout, LaysOutAnUnknownDirectionAsNone)
{
  bubble->setPointerDirection(7);
  configure(step("Press it"));
  EXPECT_EQ(bubble->messageLabel()->frame(), (Rect{14, 12, 252, 15}));
  EXPECT_EQ(bubble->frame().height, 57);
}

TEST_F(BubbleLayout, IsFiftyPointsHighAtLeast)
{
  configure(step(""));
  EXPECT_EQ(bubble->messageLabel()->frame().height, 0);
  EXPECT_EQ(bubble->frame().height, 50);
}

TEST_F(BubbleLayout, LeavesEightPointsAroundTheCounter)
{
  configure(step("Press it"));
  const Rect message = bubble->messageLabel()->frame(), counter = bubble->stepLabel()->frame();
  EXPECT_EQ(counter.y - message.maxY(), 8);
  EXPECT_EQ(bubble->frame().height - counter.maxY(), 8);
}

TEST_F(BubbleLayout, LeavesEighteenPointsBelowTheCounterOverADownwardPointer)
{
  bubble->setPointerDirection(WVBubblePointerDown);
  configure(step("Press it"));
  EXPECT_EQ(bubble->frame().height - bubble->stepLabel()->frame().maxY(), 18);
}

TEST_F(BubbleLayout, GrowsWithAMessageOfSeveralLines)
{
  configure(step("one two three four five six seven eight nine ten eleven twelve"));
  EXPECT_EQ(bubble->messageLabel()->frame().height, 30);
}

TEST_F(BubbleLayout, KeepsItsOriginAndWidth)
{
  bubble->setFrame({30, 40, 250, 10});
  configure(step("Press it"));
  EXPECT_EQ(bubble->frame(), (Rect{30, 40, 250, 57}));
}

TEST_F(BubbleLayout, CountsStepsFromOne)
{
  bubble->configureWithStep(step("Press it"), 0, 5);
  EXPECT_EQ(bubble->stepLabel()->stringValue(), "1 of 5");
}

TEST_F(BubbleLayout, CountsInTheUsersLanguage)
{
  desktop.setFrameworkTable("de", {{"WV.Step.Format", "Von %2$lu: %1$lu"}});
  desktop.setLanguage("de");
  bubble->configureWithStep(step("Press it"), 1, 5);
  EXPECT_EQ(bubble->stepLabel()->stringValue(), "Von 5: 2");
}

TEST_F(BubbleLayout, ShowsTitleAndMessageInTheUsersLanguage)
{
  WVStep translated = step("Press it", "First");
  translated.titleLocalizations = LocalizationDictionary{{"de", "Zuerst"}};
  translated.messageLocalizations = LocalizationDictionary{{"de", "Drück drauf"}};
  desktop.setLanguage("de");
  configure(translated);
  EXPECT_EQ(bubble->titleLabel()->stringValue(), "Zuerst");
  EXPECT_EQ(bubble->messageLabel()->stringValue(), "Drück drauf");
}

TEST_F(BubbleLayout, TellsAScreenReaderWhatItShows)
{
  configure(step("Press it", "First"));
  bubble->setFrameOrigin({20, 30});
  EXPECT_EQ(bubble->accessibleAlert(), (AccessibleAlert{"First", "Press it", "1 of 5", {20, 30, 280, 77}}));
  configure(step("Press it"));
  EXPECT_EQ(bubble->accessibleAlert().title, "");
}

TEST_F(BubbleLayout, NeverCallsTheCompletionItKeepsForItsOwner)
{
  bool called = false;
  bubble->setDismissCompletion([&] { called = true; });
  bubble->appearAtPoint({0, 0}, content());
  bubble->disappearWithCompletion();
  desktop.advance(5);
  EXPECT_FALSE(called);
  EXPECT_TRUE(bubble->dismissCompletion());
}
