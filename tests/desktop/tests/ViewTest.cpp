#include <tests/desktop/Desktop.h>

#include <gmock/gmock.h>

namespace wayvane::sim {
namespace {

using platform::Point;
using platform::Rect;
using platform::ViewHandle;
using platform::ViewKind;
using testing::ElementsAre;

class SimView : public testing::Test {
protected:
  Desktop desktop;
  std::shared_ptr<Window> window = desktop.addWindow("Main", {100, 100, 800, 600});
};

TEST_F(SimView, AHandleOutlivesItsViewAndAnswersNothing)
{
  Button& save = window->content().addButton({.title = "Save", .action = "save:", .identifier = "save"});
  const ViewHandle handle = save.handle();
  save.destroy();
  EXPECT_FALSE(handle->isAlive());
  EXPECT_EQ(handle->handle(), nullptr);
  EXPECT_EQ(handle->className(), "");
  EXPECT_EQ(handle->identifier(), std::nullopt);
  EXPECT_EQ(handle->as<platform::Button>(), nullptr);
  EXPECT_FALSE(handle->isKind(ViewKind::Button));
  EXPECT_EQ(handle->window(), nullptr);
  EXPECT_EQ(handle->bounds(), Rect{});
  EXPECT_FALSE(isSameView(handle, handle));
}

TEST_F(SimView, ARolePointerAnswersNothingAfterTheViewIsGone)
{
  Button& save = window->content().addButton({.title = "Save", .action = "save:"});
  const ViewHandle handle = save.handle();
  const auto* button = handle->as<platform::Button>();
  const auto* control = handle->as<platform::Control>();
  save.destroy();
  EXPECT_EQ(button->title(), "");
  EXPECT_EQ(control->action(), std::nullopt);
}

TEST_F(SimView, DestroyingAViewEndsWhatIsBelowIt)
{
  View& group = window->content().addView("NSView", {.frame = {0, 0, 200, 200}});
  const ViewHandle inner = group.addButton({.title = "Inner"}).handle();
  group.destroy();
  EXPECT_FALSE(inner->isAlive());
  EXPECT_EQ(window->content().children().size(), 0u);
}

TEST_F(SimView, AHandleSurvivesTheDesktop)
{
  ViewHandle handle;
  {
    Desktop other;
    handle = other.addWindow("Other")->content().addButton({.title = "Late"}).handle();
  }
  EXPECT_FALSE(handle->isAlive());
  EXPECT_EQ(handle->window(), nullptr);
}

TEST_F(SimView, ARemovedViewLivesOnWithoutWindow)
{
  Button& save = window->content().addButton({.title = "Save"});
  save.removeFromSuperview();
  EXPECT_TRUE(save.isAlive());
  EXPECT_EQ(save.window(), nullptr);
  EXPECT_EQ(save.superview(), nullptr);
  EXPECT_EQ(save.convertRectToWindow(save.bounds()), Rect{});
}

TEST_F(SimView, ClassesKnowTheirAncestry)
{
  PopUpButton& popUp = window->content().addPopUpButton({.items = {"A"}});
  EXPECT_TRUE(popUp.isKind(ViewKind::PopUpButton));
  EXPECT_TRUE(popUp.isKind(ViewKind::Button));
  EXPECT_TRUE(popUp.isKind(ViewKind::Control));
  EXPECT_FALSE(popUp.isKind(ViewKind::TextField));
  EXPECT_TRUE(popUp.isOfClass(*desktop.application().classNamed("NSButton")));
  EXPECT_NE(static_cast<const platform::View&>(popUp).as<platform::Button>(), nullptr);
}

TEST_F(SimView, ATokenFieldIsATextFieldAndATextViewIsAText)
{
  EXPECT_TRUE(window->content().addTokenField().isKind(ViewKind::TextField));
  EXPECT_TRUE(window->content().addTokenField().isKind(ViewKind::TokenField));
  EXPECT_TRUE(window->content().addTextView().isKind(ViewKind::Text));
  EXPECT_FALSE(window->content().addTextField().isKind(ViewKind::TokenField));
}

TEST_F(SimView, HostClassesAreThoseWithoutThePrefixesOfTheToolkit)
{
  desktop.defineClass("MyCanvas");
  EXPECT_TRUE(window->content().addView("MyCanvas").isOfHostClass());
  EXPECT_FALSE(window->content().addView("NSSplitView").isOfHostClass());
  EXPECT_FALSE(window->content().addView("_NSPrivate").isOfHostClass());
}

TEST_F(SimView, AnUndefinedClassHasANameButCannotBeLookedUp)
{
  View& old = window->content().addView("MyOldView");
  EXPECT_TRUE(old.classNameEquals("MyOldView"));
  EXPECT_EQ(desktop.application().classNamed("MyOldView"), std::nullopt);
  EXPECT_TRUE(old.isOfClass(*desktop.application().classNamed("NSView")));
}

TEST_F(SimView, ADefinedClassIsFoundAndInherits)
{
  desktop.defineClass("MyButton", "NSButton");
  Button& mine = window->content().addButton({.className = "MyButton"});
  EXPECT_TRUE(mine.isKind(ViewKind::Button));
  EXPECT_EQ(mine.viewClass(), desktop.application().classNamed("MyButton"));
}

TEST_F(SimView, SubviewsAreVisitedBackToFrontUntilTheVisitorStops)
{
  window->content().addButton({.title = "A"});
  window->content().addButton({.title = "B"});
  window->content().addButton({.title = "C"});
  std::vector<std::string> seen;
  const bool all = window->content().visitSubviews([&](const platform::View& view) {
    seen.push_back(view.as<platform::Button>()->title());
    return seen.size() < 2;
  });
  EXPECT_FALSE(all);
  EXPECT_THAT(seen, ElementsAre("A", "B"));
}

TEST_F(SimView, TheInterfaceIdentifierIsTheAccessibilityIdentifierUnlessOneIsGiven)
{
  View& plain = window->content().addView("NSView", {.identifier = "a"});
  View& both = window->content().addView("NSView", {.identifier = "a", .accessibilityIdentifier = "b"});
  EXPECT_EQ(plain.accessibilityIdentifier(), "a");
  EXPECT_EQ(both.accessibilityIdentifier(), "b");
  EXPECT_EQ(both.identifier(), "a");
  EXPECT_TRUE(both.accessibilityIdentifierEquals(platform::SearchText("b")));
}

TEST_F(SimView, AHiddenAncestorTakesTheGeometryAway)
{
  View& group = window->content().addView("NSView", {.frame = {10, 10, 200, 200}});
  Button& inner = group.addButton({.frame = {5, 5, 50, 20}});
  EXPECT_EQ(inner.convertRectToWindow(inner.bounds()), (Rect{15, 15, 50, 20}));
  group.setHidden(true);
  EXPECT_EQ(inner.convertRectToWindow(inner.bounds()), Rect{});
}

TEST_F(SimView, AFlippedViewCountsDownward)
{
  View& flipped = window->content().addView("NSView", {.frame = {100, 50, 200, 300}, .flipped = true});
  Button& inner = flipped.addButton({.frame = {10, 20, 50, 30}});
  EXPECT_EQ(inner.convertRectToWindow(inner.bounds()), (Rect{110, 300, 50, 30}));
  EXPECT_EQ(flipped.convertPointFromWindow({110, 330}), (Point{10, 20}));
  EXPECT_EQ(inner.convertRectToAncestor(inner.bounds(), flipped), (Rect{10, 20, 50, 30}));
  EXPECT_EQ(inner.convertRectToAncestor(inner.bounds(), window->content()), (Rect{110, 300, 50, 30}));
}

TEST_F(SimView, ConversionToAViewThatIsNoAncestorGivesNothing)
{
  Button& a = window->content().addButton();
  Button& b = window->content().addButton();
  EXPECT_EQ(a.convertRectToAncestor(a.bounds(), b), Rect{});
}

TEST_F(SimView, HitTestFindsTheDeepestVisibleViewInFront)
{
  View& group = window->content().addView("NSView", {.frame = {0, 0, 400, 400}});
  Button& below = group.addButton({.frame = {10, 10, 100, 50}});
  Button& above = group.addButton({.frame = {50, 10, 100, 50}});
  const ViewHandle root = window->frameView();
  EXPECT_TRUE(isSameView(root->hitTest({60, 20}), above.handle()));
  EXPECT_TRUE(isSameView(root->hitTest({20, 20}), below.handle()));
  above.setHidden(true);
  EXPECT_TRUE(isSameView(root->hitTest({60, 20}), below.handle()));
  EXPECT_TRUE(isSameView(root->hitTest({300, 300}), group.handle()));
  EXPECT_EQ(root->hitTest({-1, 20}), nullptr);
}

TEST_F(SimView, HostAnswersAreGivenBack)
{
  View& view = window->content().addView("NSView");
  view.setHostString(platform::HostProperty::DisplayString, "Canvas");
  view.setHostNumber(platform::HostProperty::GuidePadding, 4);
  EXPECT_EQ(view.hostString(platform::HostProperty::DisplayString), "Canvas");
  EXPECT_EQ(view.hostNumber(platform::HostProperty::GuidePadding), 4.0);
  EXPECT_EQ(view.hostNumber(platform::HostProperty::GuideCornerRadius), std::nullopt);
}

TEST_F(SimView, HoverReachesTheViewAndTheOwnersOfItsAreas)
{
  View& view = window->content().addView("NSView");
  TrackingRecord& area = view.addTrackingArea({.rect = {0, 0, 10, 10}});
  TrackingRecord& deaf = view.addTrackingArea({.ownerListens = false});
  view.sendHover({platform::HoverEvent::Type::Entered, {1, 2}, 3});
  ASSERT_EQ(view.trackingAreas().size(), 2u);
  view.trackingAreas()[0].mouseEntered({platform::HoverEvent::Type::Entered, {4, 5}, 6});
  EXPECT_FALSE(view.trackingAreas()[1].mouseEntered);
  ASSERT_EQ(view.hoverEvents().size(), 1u);
  EXPECT_EQ(view.hoverEvents()[0].locationInWindow, (Point{1, 2}));
  EXPECT_EQ(area.events.size(), 1u);
  EXPECT_EQ(deaf.events.size(), 0u);
}

} // namespace
} // namespace wayvane::sim
