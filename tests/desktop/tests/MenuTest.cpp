#include <tests/desktop/Desktop.h>

#include <gmock/gmock.h>

namespace wayvane::sim {
namespace {

using platform::MenuItemHandle;
using platform::MenuItemSpec;
using testing::ElementsAre;

MenuItemSpec entry(const std::string& title, std::function<void()> onChosen = {})
{
  MenuItemSpec spec;
  spec.title = title;
  spec.action = "_" + title + ":";
  spec.onChosen = std::move(onChosen);
  return spec;
}

TEST(SimMenu, MenusAreBuiltByChaining)
{
  Desktop desktop;
  Menu& file = desktop.mainMenu().menu("File");
  file.item("Open…", "openDocument:");
  file.separator();
  file.menu("Export").item("PDF…", "exportPDF:");
  EXPECT_THAT(desktop.mainMenu().menu("File").titles(), ElementsAre("Open…", "-", "Export"));
  EXPECT_EQ(desktop.mainMenu().find("PDF…")->action(), "exportPDF:");
  EXPECT_EQ(desktop.mainMenu().find("Print"), nullptr);
}

TEST(SimMenu, ASubmenuKnowsTheMenuItOpensFrom)
{
  Desktop desktop;
  Menu& file = desktop.mainMenu().menu("File");
  Menu& exports = file.menu("Export");
  MenuItem& pdf = exports.item("PDF…");
  EXPECT_EQ(pdf.menu(), exports.self());
  EXPECT_EQ(exports.supermenu(), file.self());
  EXPECT_EQ(file.supermenu(), desktop.mainMenu().self());
  EXPECT_EQ(desktop.mainMenu().supermenu(), nullptr);
  EXPECT_EQ(desktop.makeContextMenu().supermenu(), nullptr);
}

TEST(SimMenu, AChosenEntryDoesItsWorkBeforeTheObserversHear)
{
  Desktop desktop;
  std::vector<std::string> order;
  MenuItem& open = desktop.mainMenu().menu("File").item("Open…", "open:", [&] { order.push_back("work"); });
  const auto token = desktop.events().observeMenuCommands(
      [&](const MenuItemHandle& item) { order.push_back("heard " + item->title()); });
  desktop.chooseItem(open);
  EXPECT_THAT(order, ElementsAre("work", "heard Open…"));
  EXPECT_THAT(desktop.sentActionNames(), ElementsAre("open:"));
  EXPECT_EQ(open.timesChosen(), 1);
}

TEST(SimMenu, EntriesOfOursAreInsertedWhereAsked)
{
  Desktop desktop;
  Menu& help = desktop.mainMenu().menu("Help");
  help.item("Search");
  help.insertItem(entry("Guide"), 0);
  help.insertItem(entry("Record"), 99);
  EXPECT_THAT(help.titles(), ElementsAre("Guide", "Search", "Record"));
}

TEST(SimMenu, OnlyEntriesOfOursCanBeChangedAndRemoved)
{
  Desktop desktop;
  Menu& help = desktop.mainMenu().menu("Help");
  MenuItem& search = help.item("Search");
  const MenuItemHandle guide = help.insertItem(entry("Guide"), 0);
  search.setTitle("Changed");
  guide->setTitle("Tour");
  EXPECT_THAT(help.titles(), ElementsAre("Tour", "Search"));
  static_cast<platform::Menu&>(help).removeItem(search);
  static_cast<platform::Menu&>(help).removeItem(*guide);
  EXPECT_THAT(help.titles(), ElementsAre("Search"));
}

TEST(SimMenu, ARemovedEntryAnswersNothing)
{
  Desktop desktop;
  Menu& help = desktop.mainMenu().menu("Help");
  const MenuItemHandle guide = help.insertItem(entry("Guide"), 0);
  help.removeItem(*guide);
  EXPECT_EQ(guide->title(), "");
  EXPECT_EQ(guide->action(), std::nullopt);
  EXPECT_EQ(guide->menu(), nullptr);
}

TEST(SimMenu, ADestroyedMenuIsEmptyAndTakesNoEntries)
{
  Desktop desktop;
  Menu& file = desktop.mainMenu().menu("File");
  file.item("Open…");
  const auto handle = file.self();
  handle->destroy();
  EXPECT_TRUE(handle->items().empty());
  EXPECT_EQ(handle->insertItem(entry("Guide"), 0), nullptr);
}

TEST(SimMenu, OpeningTellsTheObserversEachTime)
{
  Desktop desktop;
  Menu& help = desktop.mainMenu().menu("Help");
  int openings = 0;
  auto token = help.observeOpening([&] { ++openings; });
  desktop.openMenu(help);
  desktop.openMenu(help);
  token.reset();
  desktop.openMenu(help);
  EXPECT_EQ(openings, 2);
}

TEST(SimMenu, TheHelpMenuIsTheOneThatTheProgramDeclares)
{
  Desktop desktop;
  EXPECT_EQ(desktop.application().helpMenu(), nullptr);
  Menu& help = desktop.mainMenu().menu("Help");
  desktop.setHelpMenu(help);
  EXPECT_EQ(desktop.application().helpMenu(), help.self());
  desktop.removeMainMenu();
  EXPECT_EQ(desktop.application().mainMenu(), nullptr);
}

} // namespace
} // namespace wayvane::sim
