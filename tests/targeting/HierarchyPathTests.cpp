#include <tests/targeting/Support.h>
#include <wayvane/targeting/HierarchyPath.h>
#include <wayvane/targeting/ViewFinding.h>

namespace wayvane {

using HierarchyPathBelowContent = Targeting;

TEST_F(HierarchyPathBelowContent, LeadsThroughOneLevelPerComponent)
{
  content.addView("NSView");
  auto& second = content.addView("NSView");
  second.addButton();
  auto& target = second.addButton();
  EXPECT_TRUE(isView(wv_viewAtHierarchyPath(content, "NSView[1]/NSButton[1]"), target));
}

TEST_F(HierarchyPathBelowContent, CountsOnlySubviewsOfTheClass)
{
  content.addButton();
  content.addTextField();
  auto& second = content.addButton();
  EXPECT_TRUE(isView(wv_viewAtHierarchyPath(content, "NSButton[1]"), second));
}

TEST_F(HierarchyPathBelowContent, CountsSubclassesToo)
{
  content.addPopUpButton();
  auto& button = content.addButton();
  EXPECT_TRUE(isView(wv_viewAtHierarchyPath(content, "NSButton[1]"), button));
}

TEST_F(HierarchyPathBelowContent, ComponentWithoutIndexIsTheFirst)
{
  auto& first = content.addButton();
  content.addButton();
  EXPECT_TRUE(isView(wv_viewAtHierarchyPath(content, "NSButton"), first));
}

TEST_F(HierarchyPathBelowContent, UnknownClassIsMatchedByItsExactName)
{
  content.addView("MyOldView");
  content.addView("NSView");
  auto& second = content.addView("MyOldView");
  ASSERT_FALSE(desktop.application().classNamed("MyOldView"));
  EXPECT_TRUE(isView(wv_viewAtHierarchyPath(content, "MyOldView[1]"), second));
  EXPECT_TRUE(isNothing(wv_viewAtHierarchyPath(content, "MyOld[0]")));
}

TEST_F(HierarchyPathBelowContent, IndexBehindTheLastLeadsNowhere)
{
  content.addButton();
  EXPECT_TRUE(isNothing(wv_viewAtHierarchyPath(content, "NSButton[1]")));
}

TEST_F(HierarchyPathBelowContent, DoesNotSkipLevels)
{
  content.addView("NSView").addButton();
  EXPECT_TRUE(isNothing(wv_viewAtHierarchyPath(content, "NSButton[0]")));
}

TEST_F(HierarchyPathBelowContent, LastCharacterOfAComponentIsTakenForItsBracket)
{
  content.addButton();
  auto& second = content.addButton();
  EXPECT_TRUE(isView(wv_viewAtHierarchyPath(content, "NSButton[1)"), second));
}

TEST_F(HierarchyPathBelowContent, PathsThatCannotBeReadLeadNowhere)
{
  content.addView("NSView").addButton();
  for (const std::string_view path : {"",
                                      "/",
                                      "[",
                                      "]",
                                      "[]",
                                      "[0]",
                                      "[0",
                                      "NSView[",
                                      "NSView[]",
                                      "NSView[x]",
                                      "NSView[-1]",
                                      "NSView[+0]",
                                      "NSView[ 0]",
                                      "NSView[0x0]",
                                      "NSView[99999999999999999999]",
                                      "NSView[9223372036854775807]",
                                      "NSView[0]/",
                                      "/NSView[0]",
                                      "NSView[0]//NSButton[0]",
                                      "a//b",
                                      "NSView[0][0]",
                                      "NS\xffView[0]"}) {
    EXPECT_TRUE(isNothing(wv_viewAtHierarchyPath(content, path))) << path;
  }
}

TEST_F(HierarchyPathBelowContent, TextWithZeroBytesLeadsNowhere)
{
  content.addView("NSView");
  EXPECT_TRUE(isNothing(wv_viewAtHierarchyPath(content, std::string_view("NSView\0[0]", 10))));
}

TEST_F(HierarchyPathBelowContent, PathOfOneMegabyteLeadsNowhere)
{
  content.addView("NSView").addView("NSView");
  for (const auto& path : {repeated("NSView[0]/", 100'000), repeated("/", 1'000'000),
                           std::string(1'000'000, '['), std::string(1'000'000, 'x')}) {
    EXPECT_TRUE(isNothing(wv_viewAtHierarchyPath(content, path)));
    EXPECT_TRUE(isNothing(HierarchyPath(path).viewNear(content)));
  }
}

TEST_F(HierarchyPathBelowContent, PathOfTheMostLevelsIsStillFollowed)
{
  sim::View* deepest = &content;
  for (std::size_t level = 0; level < HierarchyPath::kMostLevels; ++level) {
    deepest = &deepest->addView("NSView");
  }
  deepest->addView("NSView");
  auto path = repeated("NSView/", HierarchyPath::kMostLevels);
  path.pop_back();
  EXPECT_TRUE(isView(wv_viewAtHierarchyPath(content, path), *deepest));
  EXPECT_TRUE(isNothing(wv_viewAtHierarchyPath(content, "NSView/" + path)));
}

// Near

TEST_F(HierarchyPathBelowContent, NearPrefersTheWholePath)
{
  auto& whole = content.addView("NSSplitView").addView("NSView").addButton();
  content.addView("NSView").addButton();
  EXPECT_TRUE(isView(HierarchyPath("NSSplitView[0]/NSView[0]/NSButton[0]").viewNear(content), whole));
}

TEST_F(HierarchyPathBelowContent, NearFindsTheViewWhenTheTopLevelIsGone)
{
  content.addView("NSView");
  auto& button = content.addView("NSView").addButton();
  EXPECT_TRUE(isView(HierarchyPath("NSSplitView[0]/NSView[1]/NSButton[0]").viewNear(content), button));
}

TEST_F(HierarchyPathBelowContent, NearFindsTheViewWhenOnlyTheLastLevelIsLeft)
{
  auto& button = content.addButton();
  EXPECT_TRUE(isView(HierarchyPath("NSSplitView[0]/NSView[1]/NSButton[0]").viewNear(content), button));
}

TEST_F(HierarchyPathBelowContent, NearTakesTheLongestEndThatLeadsSomewhere)
{
  content.addButton();
  auto& inner = content.addView("NSBox").addButton();
  EXPECT_TRUE(isView(HierarchyPath("NSSplitView[3]/NSBox[0]/NSButton[0]").viewNear(content), inner));
}

TEST_F(HierarchyPathBelowContent, NearGivesNothingWhenNoEndLeadsSomewhere)
{
  content.addView("NSView");
  EXPECT_TRUE(isNothing(HierarchyPath("NSView[0]/NSButton[0]").viewNear(content)));
}

// Tables in a path

TEST_F(HierarchyPathBelowContent, EndsAtTheFirstTable)
{
  auto& table = content.addView("NSScrollView").addTableView({.className = "NSOutlineView"});
  const auto path =
      HierarchyPath("NSScrollView[0]/NSOutlineView[0]/NSTableRowView[0]/NSTableView[5]").upToFirstTable();
  ASSERT_TRUE(path);
  EXPECT_TRUE(isView(path->viewBelow(content), table));
}

TEST_F(HierarchyPathBelowContent, HasNoTableWithoutAComponentOfATableClass)
{
  EXPECT_FALSE(HierarchyPath("NSView[0]/NSTableRowView[0]/MyTable[0]").upToFirstTable());
}

} // namespace wayvane
