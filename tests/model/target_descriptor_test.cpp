#include <wayvane/model/WVTargetDescriptor.h>

#include <gtest/gtest.h>

namespace wayvane {
namespace {

TEST(TargetDescriptor, KnowsNothingWhenFresh)
{
  const WVTargetDescriptor target;
  EXPECT_EQ(target.title, std::nullopt);
  EXPECT_EQ(target.titleLocalizations, std::nullopt);
  EXPECT_EQ(target.tableRow, -1);
  EXPECT_EQ(target.tableColumn, -1);
}

TEST(TargetDescriptor, ForAMenuPathKnowsOnlyThat)
{
  const auto target = WVTargetDescriptor::descriptorForMenuPath("File > Save");
  WVTargetDescriptor expected;
  expected.menuPath = "File > Save";
  EXPECT_EQ(target, expected);
}

TEST(TargetDescription, OfAFreshDescriptorIsUnknown)
{
  EXPECT_EQ(WVTargetDescriptor().displayDescription(), "Unknown");
}

TEST(TargetDescription, IsTheClassNameWhenNothingElseIsKnown)
{
  WVTargetDescriptor target;
  target.className = "NSButton";
  EXPECT_EQ(target.displayDescription(), "NSButton");
}

TEST(TargetDescription, DropsTheClassNameOnceThereIsATitle)
{
  WVTargetDescriptor target;
  target.className = "NSButton";
  target.title = "OK";
  EXPECT_EQ(target.displayDescription(), "\"OK\"");
}

TEST(TargetDescription, PrefersTheToolbarItemToTheIdentifier)
{
  WVTargetDescriptor target;
  target.accessibilityIdentifier = "save";
  target.toolbarItemIdentifier = "tb.save";
  target.action = "save:";
  EXPECT_EQ(target.displayDescription(), "Toolbar: tb.save · Action: save:");
}

TEST(TargetDescription, ShowsTheIdentifierWithoutAToolbarItem)
{
  WVTargetDescriptor target;
  target.accessibilityIdentifier = "save";
  EXPECT_EQ(target.displayDescription(), "ID: save");
}

TEST(TargetDescription, ShowsRowColumnCellAndObjectAsOnePart)
{
  WVTargetDescriptor target;
  target.tableRow = 3;
  target.tableColumnIdentifier = "name";
  target.cellIdentifier = "cell";
  target.objectIdentifier = "42";
  EXPECT_EQ(target.displayDescription(), "Row 3, Col: name Cell: cell (42)");
}

TEST(TargetDescription, CountsRowZeroAsARow)
{
  WVTargetDescriptor target;
  target.tableRow = 0;
  EXPECT_EQ(target.displayDescription(), "Row 0");
}

TEST(TargetDescription, HasNoRowPartWithoutARow)
{
  WVTargetDescriptor target;
  target.tableColumnIdentifier = "name";
  EXPECT_EQ(target.displayDescription(), "Unknown");
}

TEST(TargetDescription, JoinsAllPartsInOrder)
{
  WVTargetDescriptor target;
  target.tableRow = 7;
  target.menuPath = "File > Save";
  target.title = "Save";
  target.action = "save:";
  target.accessibilityIdentifier = "save";
  target.bindingInfo = "value:selection.name";
  EXPECT_EQ(target.displayDescription(),
            "Binding: value:selection.name · ID: save · Action: save: · \"Save\" · "
            "Menu: File > Save · Row 7");
}

TEST(TargetDescription, NeverShowsWindowPathToolTipColumnOrTable)
{
  WVTargetDescriptor target;
  target.windowTitle = "Main";
  target.hierarchyPath = "NSView[0]";
  target.toolTip = "Saves";
  target.tableColumn = 2;
  target.tableIdentifier = "people";
  EXPECT_EQ(target.displayDescription(), "Unknown");
}

TEST(TargetDescription, ShowsPlaceholdersInTextsAsTheyStand)
{
  WVTargetDescriptor target;
  target.title = "100 %@ of %ld";
  EXPECT_EQ(target.displayDescription(), "\"100 %@ of %ld\"");
}

TEST(TargetDescriptor, CopyIsEqualAndIndependent)
{
  WVTargetDescriptor source;
  source.title = "OK";
  source.titleLocalizations = LocalizationDictionary{{"de", "Ja"}};
  source.tableRow = 4;
  WVTargetDescriptor copy = source;
  EXPECT_EQ(copy, source);
  copy.title = "Cancel";
  EXPECT_EQ(source.title, "OK");
}

WVTargetDescriptor everyFieldSet()
{
  WVTargetDescriptor target;
  target.accessibilityIdentifier = "id";
  target.menuPath = "File > Save";
  target.menuAction = "saveDocument:";
  target.className = "NSButton";
  target.hierarchyPath = "NSView[0]/NSButton[1]";
  target.title = "Größe \"x\" \\ \n\t\x01";
  target.titleLocalizations = LocalizationDictionary{{"de", "Größe"}, {"en", ""}};
  target.action = "save:";
  target.toolTip = "";
  target.toolTipLocalizations = LocalizationDictionary{};
  target.toolbarItemIdentifier = "tb";
  target.bindingInfo = "value:name";
  target.tableRow = 3;
  target.tableColumnIdentifier = "col";
  target.tableColumn = 5;
  target.tableIdentifier = "table";
  target.cellIdentifier = "cell";
  target.objectIdentifier = "42";
  target.windowTitle = "Main";
  return target;
}

TEST(TargetArchive, KeepsEveryField)
{
  EXPECT_EQ(WVTargetDescriptor::unarchived(everyFieldSet().archivedData()), everyFieldSet());
}

TEST(TargetArchive, KeepsAFreshDescriptor)
{
  EXPECT_EQ(WVTargetDescriptor::unarchived(WVTargetDescriptor().archivedData()), WVTargetDescriptor());
}

TEST(TargetArchive, WithoutARowHasRowZero)
{
  const auto target = WVTargetDescriptor::unarchived(R"({"title": "OK", "tableColumn": 2})");
  ASSERT_TRUE(target);
  EXPECT_EQ(target->tableRow, 0);
}

TEST(TargetArchive, WithoutAColumnHasNoColumn)
{
  const auto target = WVTargetDescriptor::unarchived(R"({"title": "OK", "tableRow": 2})");
  ASSERT_TRUE(target);
  EXPECT_EQ(target->tableColumn, -1);
}

TEST(TargetArchive, OfForeignBytesIsNothing)
{
  EXPECT_EQ(WVTargetDescriptor::unarchived("not an archive"), std::nullopt);
}

} // namespace
} // namespace wayvane
