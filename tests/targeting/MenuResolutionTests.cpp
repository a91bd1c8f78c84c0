#include <tests/targeting/Support.h>

namespace wayvane {

class MenuResolution : public Targeting {
protected:
  [[nodiscard]] std::string titleFound() const
  {
    const auto item = descriptor.resolveMenuItem();
    return item ? item->title() : "nothing";
  }

  sim::Menu& bar = desktop.mainMenu();
  sim::Menu& file = bar.menu("File");
  WVTargetDescriptor descriptor;
};

// By action

TEST_F(MenuResolution, CommandIsFoundByItsAction)
{
  file.item("Open…", "openDocument:");
  file.item("Save", "save:");
  descriptor.menuAction = "save:";
  EXPECT_EQ(titleFound(), "Save");
}

TEST_F(MenuResolution, CommandIsFoundInASubmenu)
{
  file.menu("Export").item("PDF…", "exportPdf:");
  descriptor.menuAction = "exportPdf:";
  EXPECT_EQ(titleFound(), "PDF…");
}

TEST_F(MenuResolution, SubmenuIsSearchedBeforeTheNextEntry)
{
  file.menu("Export").item("Deep", "go:");
  file.item("Shallow", "go:");
  descriptor.menuAction = "go:";
  EXPECT_EQ(titleFound(), "Deep");
}

TEST_F(MenuResolution, EntryItselfIsTakenBeforeItsSubmenu)
{
  file.menu("Export").item("Deep", "go:");
  file.find("Export")->setAction("go:");
  descriptor.menuAction = "go:";
  EXPECT_EQ(titleFound(), "Export");
}

TEST_F(MenuResolution, EarlierMenuIsSearchedFirst)
{
  file.item("First", "go:");
  bar.menu("Edit").item("Second", "go:");
  descriptor.menuAction = "go:";
  EXPECT_EQ(titleFound(), "First");
}

TEST_F(MenuResolution, ActionWinsOverThePath)
{
  file.item("Open…", "openDocument:");
  file.item("Save", "save:");
  descriptor.menuAction = "save:";
  descriptor.menuPath = "File > Open…";
  EXPECT_EQ(titleFound(), "Save");
}

TEST_F(MenuResolution, PathServesWhenTheActionIsGone)
{
  file.item("Open…", "openDocument:");
  descriptor.menuAction = "gone:";
  descriptor.menuPath = "File > Open…";
  EXPECT_EQ(titleFound(), "Open…");
}

TEST_F(MenuResolution, UnknownActionFindsNothing)
{
  file.item("Open…", "openDocument:");
  descriptor.menuAction = "gone:";
  EXPECT_EQ(titleFound(), "nothing");
}

// By path

TEST_F(MenuResolution, PathLeadsThroughSubmenus)
{
  file.menu("Export").item("PDF…", "exportPdf:");
  descriptor.menuPath = "File > Export > PDF…";
  EXPECT_EQ(titleFound(), "PDF…");
}

TEST_F(MenuResolution, PathMayEndAtASubmenu)
{
  file.menu("Export").item("PDF…");
  descriptor.menuPath = "File > Export";
  EXPECT_EQ(titleFound(), "Export");
}

TEST_F(MenuResolution, PathOfOnePartFindsNothing)
{
  descriptor.menuPath = "File";
  EXPECT_EQ(titleFound(), "nothing");
}

TEST_F(MenuResolution, BlanksAroundPartsDoNotCount)
{
  file.item("Open…");
  descriptor.menuPath = " File\t >   Open…  ";
  EXPECT_EQ(titleFound(), "Open…");
}

TEST_F(MenuResolution, BlanksOfEveryScriptDoNotCount)
{
  file.item("Open…");
  descriptor.menuPath = "\u00A0File\u3000 > \u2003Open…\u202F";
  EXPECT_EQ(titleFound(), "Open…");
}

TEST_F(MenuResolution, FirstOfTwoEntriesWithTheTitleIsTaken)
{
  auto& first = file.item("Open…", "first:");
  file.item("Open…", "second:");
  descriptor.menuPath = "File > Open…";
  const auto item = descriptor.resolveMenuItem();
  ASSERT_NE(item, nullptr);
  EXPECT_TRUE(item->isSame(first));
}

TEST_F(MenuResolution, PathsThatLeadNowhereFindNothing)
{
  file.item("Open…");
  for (const std::string& path :
       {std::string("Edit > Open…"), std::string("File > Close"), std::string("File > Open… > More"),
        std::string("File>Open…"), std::string("File > "), std::string(" > "), std::string(),
        std::string("File > Open\xff"), repeated("File > ", 150'000)}) {
    descriptor.menuPath = path;
    EXPECT_EQ(titleFound(), "nothing") << path.substr(0, 40);
  }
}

// Hosts without menus, menus that are odd or gone

TEST_F(MenuResolution, DescriptorWithoutMenuCluesFindsNothing)
{
  file.item("Open…");
  EXPECT_EQ(titleFound(), "nothing");
}

TEST_F(MenuResolution, HostWithoutMenuBarFindsNothing)
{
  file.item("Open…", "openDocument:");
  desktop.removeMainMenu();
  descriptor.menuAction = "openDocument:";
  descriptor.menuPath = "File > Open…";
  EXPECT_EQ(titleFound(), "nothing");
}

TEST_F(MenuResolution, DestroyedMenuFindsNothing)
{
  file.item("Open…", "openDocument:");
  const auto keep = file.self();
  file.destroy();
  descriptor.menuAction = "openDocument:";
  descriptor.menuPath = "File > Open…";
  EXPECT_EQ(titleFound(), "nothing");
}

TEST_F(MenuResolution, MenusThatAreOpenedByManyEntriesAreSearchedOnce)
{
  // One way in doubles with every level: a search that took them all would not end.
  sim::Menu* menu = &file;
  for (int level = 0; level < 64; ++level) {
    sim::Menu& below = menu->menu("Left");
    menu->item("Right").setSubmenu(below.self());
    menu = &below;
  }
  menu->item("Deep", "go:");
  descriptor.menuAction = "gone:";
  EXPECT_EQ(titleFound(), "nothing");
  descriptor.menuAction = "go:";
  EXPECT_EQ(titleFound(), "Deep");
}

TEST_F(MenuResolution, MenuThatOpensItselfIsSearchedOnce)
{
  auto& again = file.item("Again");
  again.setSubmenu(file.self());
  file.item("Open…", "openDocument:");
  descriptor.menuAction = "gone:";
  EXPECT_EQ(titleFound(), "nothing");
  descriptor.menuAction = "openDocument:";
  EXPECT_EQ(titleFound(), "Open…");
  again.setSubmenu(nullptr);
}

} // namespace wayvane
