#include <tests/conformance/Conformance.h>

namespace wayvane::conformance {

namespace {

class Geometry : public Conformance {
protected:
  [[nodiscard]] ViewHandle hit(Point inWindow) const { return window()->frameView()->hitTest(inWindow); }
};

TEST_F(Geometry, AnElementCoversItsPlaceInTheWindow)
{
  const auto view = stage().addPlain(window(), {.frame = {40, 60, 120, 30}});
  EXPECT_EQ(placeOf(view), (Rect{40, 60, 120, 30}));
  EXPECT_EQ(view->bounds().size(), (Size{120, 30}));
}

TEST_F(Geometry, ANestedElementCoversItsPlaceInTheWindow)
{
  const auto parent = stage().addPlain(window(), {.frame = {30, 20, 300, 200}});
  const auto child = stage().addPlain(window(), {.frame = {40, 60, 120, 30}, .inside = parent});
  EXPECT_EQ(placeOf(child), (Rect{40, 60, 120, 30}));
}

TEST_F(Geometry, WindowCoordinatesGrowUpwards)
{
  const auto low = stage().addButton(window(), {.frame = {10, 10, 90, 30}}, {.title = "Low"});
  const auto high = stage().addButton(window(), {.frame = {10, 200, 90, 30}}, {.title = "High"});
  EXPECT_LT(placeOf(low).y, placeOf(high).y);
  EXPECT_LT(stage().screenCenter(low).y, stage().screenCenter(high).y);
}

TEST_F(Geometry, APartOfAnElementLiesInsideIt)
{
  const auto view = stage().addPlain(window(), {.frame = {40, 60, 120, 30}});
  const Rect own = view->bounds();
  const Rect part{own.x + 10, own.y + 5, 20, 10};
  const Rect placed = view->convertRectToWindow(part);
  EXPECT_EQ(placed.size(), part.size());
  EXPECT_EQ(placed.x, 50);
  EXPECT_TRUE(placeOf(view).contains(placed));
}

TEST_F(Geometry, PointsComeBackFromTheWindow)
{
  const auto parent = stage().addPlain(window(), {.frame = {30, 20, 300, 200}});
  const auto child = stage().addPlain(window(), {.frame = {40, 60, 120, 30}, .inside = parent});
  EXPECT_EQ(child->convertPointFromWindow({100, 75}), child->bounds().center());
  const Point near = child->convertPointFromWindow({41, 61});
  EXPECT_TRUE(child->bounds().contains(near));
  EXPECT_EQ(near.x, child->bounds().x + 1);
  const Rect around = child->convertRectToWindow({near.x - 0.5, near.y - 0.5, 1, 1});
  EXPECT_EQ(around, (Rect{40.5, 60.5, 1, 1}));
}

TEST_F(Geometry, AnAncestorSeesAnElementWhereTheWindowDoes)
{
  const auto parent = stage().addPlain(window(), {.frame = {30, 20, 300, 200}});
  const auto middle = stage().addPlain(window(), {.frame = {35, 25, 200, 150}, .inside = parent});
  const auto child = stage().addPlain(window(), {.frame = {40, 60, 120, 30}, .inside = middle});
  const Rect inParent = child->convertRectToAncestor(child->bounds(), *parent);
  EXPECT_EQ(parent->convertRectToWindow(inParent), (Rect{40, 60, 120, 30}));
  EXPECT_EQ(child->convertRectToAncestor(child->bounds(), *child), child->bounds());
}

TEST_F(Geometry, AHiddenElementIsNowhere)
{
  const auto view = stage().addPlain(window(), {.frame = {40, 60, 120, 30}});
  stage().hide(view);
  EXPECT_EQ(placeOf(view), Rect{});
  EXPECT_TRUE(view->isAlive());
}

TEST_F(Geometry, AnElementInsideAHiddenOneIsNowhere)
{
  const auto parent = stage().addPlain(window(), {.frame = {30, 20, 300, 200}});
  const auto child = stage().addPlain(window(), {.frame = {40, 60, 120, 30}, .inside = parent});
  stage().hide(parent);
  EXPECT_EQ(placeOf(child), Rect{});
}

TEST_F(Geometry, AHitFindsTheDeepestElement)
{
  const auto parent = stage().addPlain(window(), {.frame = {30, 20, 300, 200}});
  const auto child = stage().addPlain(window(), {.frame = {40, 60, 120, 30}, .inside = parent});
  EXPECT_THAT(hit({100, 75}), IsSameView(child));
  EXPECT_THAT(hit({200, 180}), IsSameView(parent));
}

TEST_F(Geometry, AHitFindsTheElementInFront)
{
  const auto back = stage().addPlain(window(), {.frame = {30, 20, 100, 100}});
  const auto front = stage().addPlain(window(), {.frame = {80, 20, 100, 100}});
  EXPECT_THAT(hit({100, 75}), IsSameView(front));
  EXPECT_THAT(hit({50, 75}), IsSameView(back));
}

TEST_F(Geometry, AHitGoesThroughWhatIsHidden)
{
  const auto back = stage().addPlain(window(), {.frame = {30, 20, 100, 100}});
  const auto front = stage().addPlain(window(), {.frame = {30, 20, 100, 100}});
  stage().hide(front);
  EXPECT_THAT(hit({75, 75}), IsSameView(back));
}

TEST_F(Geometry, AHitOutsideFindsNothing)
{
  const auto view = stage().addPlain(window(), {.frame = {40, 60, 120, 30}});
  EXPECT_THAT(view->hitTest({39, 70}), IsNull());
  EXPECT_THAT(view->hitTest({161, 70}), IsNull());
  EXPECT_THAT(hit({-1, 10}), IsNull());
  EXPECT_THAT(hit({10, kWindowFrame.height + 1}), IsNull());
}

TEST_F(Geometry, AHitFindsTheControlAndNotItsParts)
{
  const auto field = stage().addField(window(), {.frame = {10, 10, 150, 30}}, {.value = "Alps"});
  const auto button = stage().addButton(window(), {.frame = {10, 50, 150, 30}}, {.title = "Plan"});
  const auto popUp = stage().addPopUp(window(), {.frame = {10, 90, 150, 30}}, {.items = {"Easy", "Hard"}});
  EXPECT_THAT(hit({30, 25}), IsSameView(field));
  EXPECT_THAT(hit({30, 65}), IsSameView(button));
  EXPECT_THAT(hit({30, 105}), IsSameView(popUp));
}

TEST_F(Geometry, ScreenCoordinatesStartAtTheBottomLeftOfTheScreen)
{
  const auto view = stage().addPlain(window(), {.frame = {40, 60, 120, 30}});
  const Rect onScreen = window()->convertRectToScreen(placeOf(view));
  EXPECT_EQ(onScreen, (Rect{kWindowFrame.x + 40, kWindowFrame.y + 60, 120, 30}));
  EXPECT_EQ(window()->convertRectFromScreen(onScreen), placeOf(view));
}

} // namespace

} // namespace wayvane::conformance
