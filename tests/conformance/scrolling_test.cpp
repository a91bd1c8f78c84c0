#include <tests/conformance/Conformance.h>

namespace wayvane::conformance {

namespace {

/// A document of 400 x 900 in an area of 200 x 200.
class Scrolling : public Conformance {
protected:
  void SetUp() override
  {
    Conformance::SetUp();
    area_ = stage().addScrollArea(window(), {.frame = {50, 50, 200, 200}}, {400, 900});
  }

  [[nodiscard]] const ViewHandle& area() const { return area_; }

  [[nodiscard]] const platform::ScrollView& scroll() const { return *area_->as<platform::ScrollView>(); }

private:
  ViewHandle area_;
};

TEST_F(Scrolling, TheDocumentLiesInsideTheArea)
{
  const auto document = scroll().documentView();
  ASSERT_THAT(document, NotNull());
  auto above = document->superview();
  while (above && !isSameView(above, area()))
    above = above->superview();
  EXPECT_THAT(above, IsSameView(area()));
  EXPECT_EQ(scroll().documentBounds(), document->bounds());
  EXPECT_EQ(document->bounds().size(), (Size{400, 900}));
}

TEST_F(Scrolling, AnAreaWithoutDocumentHasNone)
{
  const auto empty = stage().addScrollArea(window(), {.frame = {300, 50, 100, 100}}, {});
  const auto* role = empty->as<platform::ScrollView>();
  ASSERT_THAT(role, NotNull());
  EXPECT_THAT(role->documentView(), IsNull());
  EXPECT_EQ(role->documentBounds(), Rect{});
}

TEST_F(Scrolling, TheVisiblePartIsThatBehindTheArea)
{
  const Rect visible = scroll().documentVisibleRect();
  EXPECT_GT(visible.width, 100);
  EXPECT_GT(visible.height, 100);
  EXPECT_TRUE(scroll().documentBounds().contains(visible));
  const Rect inWindow = scroll().documentView()->convertRectToWindow(visible);
  EXPECT_TRUE((Rect{50, 50, 200, 200}).contains(inWindow)) << platform::stringFromRect(inWindow);
}

TEST_F(Scrolling, AJumpMovesTheVisiblePartAtOnce)
{
  int completions = 0;
  scroll().scrollToOrigin({30, 400}, {.duration = 0, .completion = [&] { ++completions; }});
  EXPECT_EQ(completions, 1) << "before the function returns";
  EXPECT_EQ(scroll().documentVisibleRect().origin(), (Point{30, 400}));
}

TEST_F(Scrolling, ElementsOfTheDocumentMoveInTheWindow)
{
  const auto item =
      stage().addPlain(window(), {.frame = {60, -100, 50, 20}, .inside = scroll().documentView()});
  ASSERT_EQ(placeOf(item), (Rect{60, -100, 50, 20})) << "below the window's lower edge";
  const Rect inDocument = item->convertRectToAncestor(item->bounds(), *scroll().documentView());
  const Rect before = scroll().documentVisibleRect();
  scroll().scrollToOrigin({before.x, before.y + 250}, {});
  EXPECT_EQ(placeOf(item), (Rect{60, 150, 50, 20}));
  EXPECT_EQ(item->convertRectToAncestor(item->bounds(), *scroll().documentView()), inDocument)
      << "the document's coordinates stay";
  EXPECT_THAT(window()->frameView()->hitTest({80, 160}), IsSameView(item));
}

TEST_F(Scrolling, AnAnimationReachesItsEndAndSaysSoOnce)
{
  int completions = 0;
  scroll().scrollToOrigin({0, 500}, {.duration = 0.1, .completion = [&] { ++completions; }});
  EXPECT_EQ(completions, 0) << "never before the function returns";
  ASSERT_TRUE(stage().waitUntil([&] { return completions > 0; }));
  EXPECT_EQ(scroll().documentVisibleRect().y, 500);
  stage().pass(0.05);
  EXPECT_EQ(completions, 1);
}

TEST_F(Scrolling, AnAnimationTakesItsTime)
{
  const double start = platform().mainQueue.now();
  double end = 0;
  scroll().scrollToOrigin({0, 500},
                          {.duration = 0.15, .completion = [&] { end = platform().mainQueue.now(); }});
  ASSERT_TRUE(stage().waitUntil([&] { return end > 0; }));
  EXPECT_GE(end - start, 0.14);
}

TEST_F(Scrolling, AnAnimationPassesThroughWhatIsBetween)
{
  bool done = false;
  scroll().scrollToOrigin({0, 500}, {.duration = 0.3, .completion = [&] { done = true; }});
  bool wasBetween = false;
  ASSERT_TRUE(stage().waitUntil([&] {
    const double y = scroll().documentVisibleRect().y;
    wasBetween = wasBetween || (y > 20 && y < 480);
    return done;
  }));
  EXPECT_TRUE(wasBetween);
}

TEST_F(Scrolling, AScrollThatIsReplacedCompletesOnce)
{
  int first = 0, second = 0;
  scroll().scrollToOrigin({0, 500}, {.duration = 0.3, .completion = [&] { ++first; }});
  stage().pass(0.03);
  scroll().scrollToOrigin({0, 100}, {.duration = 0.05, .completion = [&] { ++second; }});
  ASSERT_TRUE(stage().waitUntil([&] { return first > 0 && second > 0; }));
  stage().pass(0.35);
  EXPECT_EQ(first, 1);
  EXPECT_EQ(second, 1);
  EXPECT_EQ(scroll().documentVisibleRect().y, 100) << "the later one wins";
}

TEST_F(Scrolling, AnAreaThatEndsDuringTheAnimationCompletesOnce)
{
  int completions = 0;
  scroll().scrollToOrigin({0, 500}, {.duration = 0.2, .completion = [&] { ++completions; }});
  stage().pass(0.03);
  stage().destroy(area());
  ASSERT_TRUE(stage().waitUntil([&] { return completions > 0; }));
  stage().pass(0.25);
  EXPECT_EQ(completions, 1);
}

TEST_F(Scrolling, AWindowThatClosesDuringTheAnimationCompletesOnce)
{
  int completions = 0;
  const auto other = stage().makeWindow("Packing list", {200, 200, 300, 400});
  scroll().scrollToOrigin({0, 500}, {.duration = 0.2, .completion = [&] { ++completions; }});
  stage().pass(0.03);
  stage().closeWindow(window());
  ASSERT_TRUE(stage().waitUntil([&] { return completions > 0; }));
  stage().pass(0.25);
  EXPECT_EQ(completions, 1);
}

TEST_F(Scrolling, AnAreaMayEndInItsOwnCompletion)
{
  bool done = false;
  scroll().scrollToOrigin({0, 500}, {.duration = 0.05, .completion = [&] {
                                       stage().destroy(area());
                                       done = true;
                                     }});
  ASSERT_TRUE(stage().waitUntil([&] { return done; }));
  EXPECT_FALSE(area()->isAlive());
}

TEST_F(Scrolling, AScrollWithoutCompletionIsFine)
{
  scroll().scrollToOrigin({0, 300}, {.duration = 0.03, .completion = {}});
  EXPECT_TRUE(stage().waitUntil([&] { return scroll().documentVisibleRect().y == 300; }));
}

} // namespace

} // namespace wayvane::conformance
