#include <tests/overlay/Bubble.h>

using namespace wayvane;
using namespace wayvane::platform;

namespace {

class BubbleAppearance : public wayvane::tests::BubbleTest {
protected:
  /// Where the bubble is drawn now, in the overlay.
  [[nodiscard]] Rect drawnFrame() const
  {
    return transformToRoot(*bubble->layer(), desktop.now()).apply(bubble->bounds());
  }

  [[nodiscard]] double opacity() const { return opacityOf(*bubble->layer()); }

  double settling = Spring{1, 200, 12, 5}.settlingDuration();
};

void expectNear(const Rect& a, const Rect& b)
{
  EXPECT_NEAR(a.x, b.x, 1e-9);
  EXPECT_NEAR(a.y, b.y, 1e-9);
  EXPECT_NEAR(a.width, b.width, 1e-9);
  EXPECT_NEAR(a.height, b.height, 1e-9);
}

} // namespace

TEST_F(BubbleAppearance, WaitsUnseenForHalfASecond)
{
  bubble->appearAtPoint({30, 40}, content());
  EXPECT_EQ(bubble->superview(), &content());
  EXPECT_EQ(bubble->frame(), (Rect{30, 40, 280, 100}));
  EXPECT_EQ(opacity(), 0);
  desktop.advance(0.49);
  EXPECT_EQ(opacity(), 0);
  EXPECT_FALSE(somethingMoves());
}

TEST_F(BubbleAppearance, StartsAtSeventyPerCentAboutItsTip)
{
  bubble->setPointerTip({130, 40});
  bubble->appearAtPoint({30, 40}, content());
  desktop.advance(0.5);
  expectNear(drawnFrame(), {30 + 100 * 0.3, 40, 280 * 0.7, 100 * 0.7});
  EXPECT_TRUE(somethingMoves());
}

TEST_F(BubbleAppearance, StartsAboutItsCentreWithoutATip)
{
  bubble->appearAtPoint({30, 40}, content());
  desktop.advance(0.5);
  expectNear(drawnFrame(), {30 + 140 * 0.3, 40 + 50 * 0.3, 280 * 0.7, 100 * 0.7});
}

TEST_F(BubbleAppearance, StartsAboutTheNearestPointOfItsEdgeForATipOutside)
{
  bubble->setPointerTip({1000, 10});
  bubble->appearAtPoint({30, 40}, content());
  desktop.advance(0.5);
  expectNear(drawnFrame(), {30 + 280 * 0.3, 40, 280 * 0.7, 100 * 0.7});
}

TEST_F(BubbleAppearance, MeasuresTheTipFromItsBottomLeftThoughItIsFlipped)
{
  bubble->setPointerTip({30, 140});
  bubble->appearAtPoint({30, 40}, content());
  desktop.advance(0.5);
  expectNear(drawnFrame(), {30, 40 + 100 * 0.3, 280 * 0.7, 100 * 0.7});
}

TEST_F(BubbleAppearance, OvershootsAndComesToRest)
{
  bubble->appearAtPoint({30, 40}, content());
  desktop.advance(0.5);
  double widest = 0;
  for (int i = 0; i < 100; ++i) {
    desktop.advance(settling / 100);
    widest = std::max(widest, drawnFrame().width);
  }
  EXPECT_GT(widest, 285);
  expectNear(drawnFrame(), {30, 40, 280, 100});
  EXPECT_FALSE(somethingMoves());
}

TEST_F(BubbleAppearance, FadesInAtTheSameTime)
{
  bubble->appearAtPoint({30, 40}, content());
  desktop.advance(0.5);
  EXPECT_EQ(opacity(), 0);
  desktop.advance(0.05);
  EXPECT_GT(opacity(), 0.2);
  EXPECT_LT(opacity(), 1);
  desktop.advance(0.2);
  EXPECT_EQ(opacity(), 1);
}

TEST_F(BubbleAppearance, GroupsSpringAndFadeUnderOneKey)
{
  bubble->appearAtPoint({30, 40}, content());
  desktop.advance(0.5);
  const RunningAnimation* running = bubble->layer()->animationForKey("keynoteAppear");
  ASSERT_NE(running, nullptr);
  const Animation& group = running->animation;
  ASSERT_EQ(group.members.size(), 2U);
  EXPECT_EQ(group.members[0].spring, (Spring{1, 200, 12, 5}));
  EXPECT_EQ(group.members[0].duration, settling);
  EXPECT_EQ(group.members[1].duration, 0.2);
  EXPECT_EQ(group.duration, settling);
  EXPECT_EQ(group.timing, TimingCurve::easeOut());
  EXPECT_TRUE(group.fillForwards);
  EXPECT_FALSE(group.removedOnCompletion);
}

TEST_F(BubbleAppearance, ReportsWhenTheSpringIsAtRest)
{
  int reports = 0;
  bubble->appearAtPoint({30, 40}, content(), [&] { ++reports; });
  desktop.advance(0.5 + settling - 0.01);
  EXPECT_EQ(reports, 0);
  desktop.advance(0.02);
  EXPECT_EQ(reports, 1);
}

TEST_F(BubbleAppearance, DrawsItsPointerForThePlaceWhereItAppears)
{
  bubble->setPointerDirection(WVBubblePointerDown);
  bubble->setPointerTip({130, 20});
  bubble->appearAtPoint({30, 40}, content());
  bool pointsAtTip = false;
  for (const Path::Element& element : bubble->bodyLayer()->path()->elements())
    pointsAtTip |= element.points[0] == Point{100, 100};
  EXPECT_TRUE(pointsAtTip);
}

TEST_F(BubbleAppearance, FadesOutAndLeavesWithoutABlock)
{
  bubble->appearAtPoint({30, 40}, content());
  desktop.advance(5);
  bubble->disappearWithCompletion();
  EXPECT_EQ(opacity(), 1);
  desktop.advance(0.075);
  EXPECT_NEAR(opacity(), 0.5, 1e-6);
  EXPECT_NE(bubble->superview(), nullptr);
  desktop.advance(0.075);
  EXPECT_EQ(bubble->superview(), nullptr);
  EXPECT_TRUE(content().subviews().empty());
}

TEST_F(BubbleAppearance, ReportsItsDisappearanceAfterItLeft)
{
  bool hadLeft = false;
  bubble->appearAtPoint({30, 40}, content());
  bubble->disappearWithCompletion([&] { hadLeft = bubble->superview() == nullptr; });
  desktop.advance(0.14);
  EXPECT_FALSE(hadLeft);
  desktop.advance(0.02);
  EXPECT_TRUE(hadLeft);
}

TEST_F(BubbleAppearance, FadesOutThoughNobodyHoldsItAnyMore)
{
  bool reported = false;
  bubble->appearAtPoint({30, 40}, content());
  desktop.advance(5);
  bubble->disappearWithCompletion([&] { reported = true; });
  bubble.reset();
  desktop.advance(0.1);
  EXPECT_EQ(content().subviews().size(), 1U);
  desktop.advance(0.1);
  EXPECT_TRUE(content().subviews().empty());
  EXPECT_TRUE(reported);
}

TEST_F(BubbleAppearance, ReportsItsDisappearanceThoughThePanelIsGone)
{
  bool reported = false;
  bubble->appearAtPoint({30, 40}, content());
  bubble->disappearWithCompletion([&] { reported = true; });
  closePanel();
  desktop.advance(1);
  EXPECT_TRUE(reported);
}

TEST_F(BubbleAppearance, StaysAwayWhenDismissedBeforeItAppeared)
{
  bool appeared = false;
  bubble->appearAtPoint({30, 40}, content(), [&] { appeared = true; });
  desktop.advance(0.4);
  bubble->disappearWithCompletion();
  desktop.advance(0.1);
  EXPECT_EQ(opacity(), 0);
  EXPECT_EQ(bubble->layer()->animationForKey("keynoteAppear"), nullptr);
  desktop.advance(5);
  EXPECT_EQ(opacity(), 0);
  EXPECT_FALSE(appeared);
}

TEST_F(BubbleAppearance, StaysAwayWhenItsPanelWentMeanwhile)
{
  bubble->appearAtPoint({30, 40}, content());
  closePanel();
  desktop.advance(1);
  EXPECT_EQ(opacity(), 0);
}

TEST_F(BubbleAppearance, FadesOutFromWhereItsFadeInWas)
{
  bubble->appearAtPoint({30, 40}, content());
  desktop.advance(0.55);
  const double before = opacity();
  bubble->disappearWithCompletion();
  EXPECT_DOUBLE_EQ(opacity(), before);
  desktop.advance(0.14);
  EXPECT_LT(opacity(), 0.1) << "the fade-in under way does not win";
}

TEST_F(BubbleAppearance, IsGoneAfterADismissalAtTheVeryStartOfItsSpring)
{
  bubble->appearAtPoint({30, 40}, content());
  desktop.advance(0.5);
  bubble->disappearWithCompletion();
  desktop.advance(0.16);
  EXPECT_EQ(opacity(), 0) << "its fade-in is over as well";
}
