#include <tests/targeting/Support.h>
#include <wayvane/targeting/ViewFinding.h>

namespace wayvane {

using platform::HostProperty;
using platform::SearchText;
using platform::ViewKind;

class ViewFinding : public Targeting {
protected:
  platform::ViewClass classOf(std::string_view name)
  {
    return desktop.application().classNamed(name).value_or(platform::ViewClass{});
  }

  sim::View& chainOfViews(int levels)
  {
    sim::View* view = &content;
    for (int level = 0; level < levels; ++level)
      view = &view->addView("NSView");
    return *view;
  }
};

TEST_F(ViewFinding, VisitsEachViewBeforeItsSubviewsAndThoseInOrder)
{
  auto& first = content.addView("NSView", {.identifier = "1"});
  first.addView("NSView", {.identifier = "2"}).addView("NSView", {.identifier = "3"});
  first.addView("NSView", {.identifier = "4"});
  content.addView("NSView", {.identifier = "5"});
  std::string order;
  PreOrderWalk([&order](const platform::View& view) {
    order += view.identifier().value_or("content");
    return true;
  }).run(content);
  EXPECT_EQ(order, "content12345");
}

TEST_F(ViewFinding, WalkEndsAtTheMatch)
{
  content.addView("NSView");
  content.addView("NSView");
  int visited = 0;
  EXPECT_TRUE(isView(firstView(content, [&visited](const platform::View&) { return ++visited == 2; }),
                     *content.children()[0]));
  EXPECT_EQ(visited, 2);
}

TEST_F(ViewFinding, ReceiverItselfCanBeTheMatch)
{
  auto& view = content.addView("NSView", {.accessibilityIdentifier = "map"});
  EXPECT_TRUE(isView(wv_viewWithAccessibilityIdentifier(view, SearchText("map")), view));
}

TEST_F(ViewFinding, WalkKeepsItsOrderBelowTheLevelsThatAreNested)
{
  auto& deep = chainOfViews(kMostNestedVisits + 3);
  deep.addView("NSView", {.identifier = "1"}).addView("NSView", {.identifier = "2"});
  deep.addView("NSView", {.identifier = "3"});
  content.addView("NSView", {.identifier = "4"});
  std::string order;
  PreOrderWalk([&order](const platform::View& view) {
    order += view.identifier().value_or("");
    return true;
  }).run(content);
  EXPECT_EQ(order, "1234");
}

TEST_F(ViewFinding, MatchBelowTheNestedLevelsEndsTheWalk)
{
  auto& deep = chainOfViews(kMostNestedVisits + 3);
  auto& target = deep.addButton({.action = "save:"});
  deep.addButton({.action = "save:"});
  content.addButton({.action = "save:"});
  EXPECT_TRUE(isView(wv_viewWithAction(content, SearchText("save:")), target));
}

TEST_F(ViewFinding, FindsTheDeepestOfVeryManyLevels)
{
  auto& deepest = chainOfViews(5000).addView("NSView", {.accessibilityIdentifier = "deepest"});
  EXPECT_TRUE(isView(wv_viewWithAccessibilityIdentifier(content, SearchText("deepest")), deepest));
}

// By identifier

TEST_F(ViewFinding, FindsAViewByItsAccessibilityIdentifier)
{
  content.addView("NSView", {.accessibilityIdentifier = "other"});
  auto& map = content.addView("NSView").addView("NSView", {.accessibilityIdentifier = "map"});
  EXPECT_TRUE(isView(wv_viewWithAccessibilityIdentifier(content, SearchText("map")), map));
}

TEST_F(ViewFinding, FindsATextFieldByItsBinding)
{
  auto& field = content.addTextField({.valueBinding = "selection.name", .accessibilityIdentifier = "name"});
  EXPECT_TRUE(
      isView(wv_viewWithAccessibilityIdentifier(content, SearchText("binding:value:selection.name")), field));
}

TEST_F(ViewFinding, FindsAViewByTheNameThatTheHostGivesIt)
{
  auto& view = content.addView("NSView");
  view.setHostString(HostProperty::GuideIdentifier, "compass");
  EXPECT_TRUE(isView(wv_viewWithAccessibilityIdentifier(content, SearchText("compass")), view));
}

TEST_F(ViewFinding, UnknownIdentifierGivesNothing)
{
  content.addView("NSView", {.accessibilityIdentifier = "map"});
  EXPECT_TRUE(isNothing(wv_viewWithAccessibilityIdentifier(content, SearchText("chart"))));
}

// By class

TEST_F(ViewFinding, FindsTheFirstViewOfAClass)
{
  content.addTextField();
  auto& button = content.addButton();
  content.addButton();
  EXPECT_TRUE(isView(wv_viewOfClass(content, classOf("NSButton")), button));
}

TEST_F(ViewFinding, FindsAViewOfASubclass)
{
  auto& popUp = content.addPopUpButton();
  EXPECT_TRUE(isView(wv_viewOfClass(content, classOf("NSButton")), popUp));
}

TEST_F(ViewFinding, ClassWithoutViewGivesNothing)
{
  content.addButton();
  EXPECT_TRUE(isNothing(wv_viewOfClass(content, classOf("NSPopUpButton"))));
}

TEST_F(ViewFinding, FindsTheFirstViewOfAKind)
{
  content.addButton();
  auto& table = content.addTableView({.className = "NSOutlineView"});
  EXPECT_TRUE(isView(wv_viewOfKind(content, ViewKind::TableView), table));
  EXPECT_TRUE(isNothing(wv_viewOfKind(content, ViewKind::Box)));
}

// By action

TEST_F(ViewFinding, FindsTheFirstControlWithAnAction)
{
  content.addButton({.action = "open:"});
  auto& save = content.addButton({.action = "save:"});
  content.addButton({.action = "save:"});
  EXPECT_TRUE(isView(wv_viewWithAction(content, SearchText("save:")), save));
}

TEST_F(ViewFinding, UnknownActionGivesNothing)
{
  content.addButton({.action = "save:"});
  EXPECT_TRUE(isNothing(wv_viewWithAction(content, SearchText("save"))));
}

TEST_F(ViewFinding, CollectsEveryControlWithAnActionInOrder)
{
  auto& first = content.addView("NSView").addButton({.action = "save:"});
  content.addButton({.action = "open:"});
  auto& second = content.addPopUpButton({.action = "save:"});
  std::vector<platform::ViewHandle> found;
  collectViewsWithAction(content, SearchText("save:"), found);
  ASSERT_EQ(found.size(), 2U);
  EXPECT_TRUE(isView(found[0], first));
  EXPECT_TRUE(isView(found[1], second));
}

// By title

TEST_F(ViewFinding, FindsAButtonByItsTitle)
{
  auto& save = content.addButton({.title = "Save"});
  EXPECT_TRUE(isView(wv_viewWithTitle(content, SearchText("Save")), save));
}

TEST_F(ViewFinding, FindsAnyViewByItsAccessibilityLabel)
{
  auto& map = content.addView("NSView", {.accessibilityLabel = "Map"});
  EXPECT_TRUE(isView(wv_viewWithTitle(content, SearchText("Map")), map));
}

TEST_F(ViewFinding, FindsAButtonByItsLabelWhenItsTitleIsAnother)
{
  auto& save = content.addButton({.title = "Save", .accessibilityLabel = "Save the tour"});
  EXPECT_TRUE(isView(wv_viewWithTitle(content, SearchText("Save the tour")), save));
}

TEST_F(ViewFinding, TextOfALabelIsNoTitle)
{
  content.addTextField({.value = "Save"});
  EXPECT_TRUE(isNothing(wv_viewWithTitle(content, SearchText("Save"))));
}

TEST_F(ViewFinding, TitleThatIsNoUtf8GivesNothing)
{
  content.addButton({.title = "Save"});
  EXPECT_TRUE(isNothing(wv_viewWithTitle(content, SearchText("Save\xff"))));
}

// Destroyed trees

TEST_F(ViewFinding, DestroyedViewsAreNotFound)
{
  auto& save = content.addButton({.title = "Save"});
  save.destroy();
  EXPECT_TRUE(isNothing(wv_viewWithTitle(content, SearchText("Save"))));
}

TEST_F(ViewFinding, SearchBelowADestroyedViewGivesNothing)
{
  auto& group = content.addView("NSView");
  group.addButton({.title = "Save", .action = "save:", .accessibilityIdentifier = "save"});
  const auto handle = group.handle();
  group.destroy();
  EXPECT_TRUE(isNothing(wv_viewWithTitle(*handle, SearchText("Save"))));
  EXPECT_TRUE(isNothing(wv_viewWithAction(*handle, SearchText("save:"))));
  EXPECT_TRUE(isNothing(wv_viewWithAccessibilityIdentifier(*handle, SearchText("save"))));
  EXPECT_TRUE(isNothing(wv_viewOfClass(*handle, classOf("NSView"))));
  EXPECT_TRUE(isNothing(wv_viewAtHierarchyPath(*handle, "NSButton[0]")));
}

} // namespace wayvane
