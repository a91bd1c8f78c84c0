#include <tests/conformance/Conformance.h>

namespace wayvane::conformance {

namespace {

using platform::MenuHandle;
using platform::MenuItemHandle;
using platform::MenuItemSpec;
using platform::SymbolImage;

class Menus : public Conformance {
protected:
  [[nodiscard]] static MenuItemSpec titled(const std::string& title, std::function<void()> onChosen = {})
  {
    MenuItemSpec spec;
    spec.title = title;
    spec.onChosen = std::move(onChosen);
    return spec;
  }

  void SetUp() override
  {
    Conformance::SetUp();
    stage().addMenuEntry(window(), {"File", "New Tour"}, "newTour:");
    stage().addMenuEntry(window(), {"File", "-"}, {});
    stage().addMenuEntry(window(), {"File", "Export", "As Text…"}, "exportText:");
    stage().addMenuEntry(window(), {"File", "Export", "As Picture…"}, "exportPicture:");
    stage().addMenuEntry(window(), {"Help", "Manual"}, "showManual:");
  }

  [[nodiscard]] static std::vector<std::string> titlesOf(const MenuHandle& menu)
  {
    std::vector<std::string> titles;
    if (menu)
      for (const auto& item : menu->items())
        titles.push_back(item->isSeparator() ? "-" : item->title());
    return titles;
  }

  /// The entry reached by those titles; null when there is none.
  [[nodiscard]] MenuItemHandle entry(const MenuPath& path)
  {
    MenuHandle menu = platform().application.mainMenu();
    MenuItemHandle found;
    for (const auto& title : path) {
      found = nullptr;
      if (menu)
        for (const auto& item : menu->items())
          if (item->title() == title) found = item;
      menu = found ? found->submenu() : nullptr;
    }
    return found;
  }

  [[nodiscard]] MenuHandle menu(const MenuPath& path)
  {
    const auto item = entry(path);
    return item ? item->submenu() : nullptr;
  }
};

TEST_F(Menus, TheMenuBarListsItsMenus)
{
  const auto bar = platform().application.mainMenu();
  ASSERT_THAT(bar, NotNull());
  EXPECT_THAT(titlesOf(bar), ElementsAre("File", "Help"));
  EXPECT_THAT(bar->supermenu(), IsNull());
}

TEST_F(Menus, AMenuListsItsEntriesInOrder)
{
  EXPECT_THAT(titlesOf(menu({"File"})), ElementsAre("New Tour", "-", "Export"));
  EXPECT_THAT(titlesOf(menu({"File", "Export"})), ElementsAre("As Text…", "As Picture…"));
}

TEST_F(Menus, AnEntryHasTitleAndAction)
{
  const auto item = entry({"File", "New Tour"});
  ASSERT_THAT(item, NotNull());
  EXPECT_EQ(item->title(), "New Tour");
  EXPECT_THAT(item->action(), Optional(std::string("newTour:")));
  EXPECT_FALSE(item->isSeparator());
  EXPECT_FALSE(item->toolTip());
  EXPECT_EQ(item->image(), SymbolImage::None);
  EXPECT_THAT(item->submenu(), IsNull());
}

TEST_F(Menus, EntriesAndMenusKnowWhereTheyAre)
{
  const auto file = menu({"File"}), exporting = menu({"File", "Export"});
  ASSERT_THAT(exporting, NotNull());
  ASSERT_THAT(exporting->supermenu(), NotNull());
  EXPECT_TRUE(exporting->supermenu()->isSame(*file));
  ASSERT_THAT(file->supermenu(), NotNull());
  EXPECT_TRUE(file->supermenu()->isSame(*platform().application.mainMenu()));
  const auto item = entry({"File", "Export", "As Text…"});
  ASSERT_THAT(item->menu(), NotNull());
  EXPECT_TRUE(item->menu()->isSame(*exporting));
  EXPECT_FALSE(item->menu()->isSame(*file));
}

TEST_F(Menus, AnEntryIsItselfAndNoOther)
{
  const auto item = entry({"File", "New Tour"});
  EXPECT_TRUE(item->isSame(*item));
  EXPECT_TRUE(item->isSame(*entry({"File", "New Tour"})));
  EXPECT_FALSE(item->isSame(*entry({"File", "Export"})));
}

TEST_F(Menus, TheHelpMenuIsTheOneTheProgramDeclares)
{
  const auto help = platform().application.helpMenu();
  ASSERT_THAT(help, NotNull());
  EXPECT_TRUE(help->isSame(*menu({"Help"})));
}

TEST_F(Menus, AnIndexIsThatInTheListOfEntries)
{
  const auto file = menu({"File"});
  EXPECT_EQ(file->indexOfItem(*entry({"File", "New Tour"})), 0);
  EXPECT_EQ(file->indexOfItem(*entry({"File", "Export"})), 2);
  EXPECT_EQ(file->indexOfItem(*entry({"File", "Export", "As Text…"})), -1);
}

TEST_F(Menus, AnEntryOfOursGoesWhereItIsPut)
{
  const auto help = platform().application.helpMenu();
  MenuItemSpec guides = titled("Guides"), record = titled("Record");
  guides.toolTip = "Tours of this program";
  record.image = SymbolImage::Record;
  record.action = "_record:";
  const auto first = help->insertItem(guides, 0);
  const auto last = help->insertItem(record, 99);
  const auto end = help->insertItem(titled("Stop"), -1);
  ASSERT_THAT(first, NotNull());
  ASSERT_THAT(last, NotNull());
  EXPECT_THAT(titlesOf(help), ElementsAre("Guides", "Manual", "Record", "Stop"));
  EXPECT_EQ(help->indexOfItem(*first), 0);
  EXPECT_EQ(help->indexOfItem(*last), 2);
  EXPECT_EQ(help->indexOfItem(*end), 3);
  EXPECT_THAT(first->toolTip(), Optional(std::string("Tours of this program")));
  EXPECT_EQ(last->image(), SymbolImage::Record);
  EXPECT_THAT(last->action(), Optional(std::string("_record:")));
}

TEST_F(Menus, ASeparatorOfOursIsOne)
{
  const auto help = platform().application.helpMenu();
  MenuItemSpec spec;
  spec.separator = true;
  const auto separator = help->insertItem(spec, 1);
  ASSERT_THAT(separator, NotNull());
  EXPECT_TRUE(separator->isSeparator());
  EXPECT_THAT(titlesOf(help), ElementsAre("Manual", "-"));
}

TEST_F(Menus, AnEntryOfOursIsRenamed)
{
  const auto help = platform().application.helpMenu();
  MenuItemSpec spec = titled("Huts & Peaks");
  spec.image = SymbolImage::Record;
  const auto item = help->insertItem(spec, -1);
  EXPECT_EQ(item->title(), "Huts & Peaks");
  item->setTitle("Stop & Save");
  item->setImage(SymbolImage::Stop);
  EXPECT_EQ(item->title(), "Stop & Save");
  EXPECT_EQ(item->image(), SymbolImage::Stop);
}

TEST_F(Menus, AnEntryOfTheHostsKeepsItsName)
{
  const auto item = entry({"Help", "Manual"});
  item->setTitle("Ours now");
  item->setImage(SymbolImage::Play);
  EXPECT_EQ(item->title(), "Manual");
  EXPECT_EQ(item->image(), SymbolImage::None);
}

TEST_F(Menus, OnlyEntriesOfOursAreRemoved)
{
  const auto help = platform().application.helpMenu();
  const auto ours = help->insertItem(titled("Guides"), 0);
  help->removeItem(*entry({"Help", "Manual"}));
  EXPECT_THAT(titlesOf(help), ElementsAre("Guides", "Manual"));
  help->removeItem(*ours);
  EXPECT_THAT(titlesOf(help), ElementsAre("Manual"));
  EXPECT_EQ(help->indexOfItem(*ours), -1);
  EXPECT_THAT(ours->menu(), IsNull());
}

TEST_F(Menus, ARemovedEntryAnswersNothing)
{
  const auto help = platform().application.helpMenu();
  MenuItemSpec spec = titled("Guides");
  spec.toolTip = "Tours";
  spec.action = "_guides:";
  const auto ours = help->insertItem(spec, 0);
  help->removeItem(*ours);
  EXPECT_EQ(ours->title(), "");
  EXPECT_FALSE(ours->action());
  EXPECT_FALSE(ours->toolTip());
  EXPECT_THAT(ours->submenu(), IsNull());
  ours->setTitle("Again");
  EXPECT_EQ(ours->title(), "");
}

TEST_F(Menus, AMenuThatIsGoneIsEmptyAndTakesNothing)
{
  const auto exporting = menu({"File", "Export"});
  const auto item = entry({"File", "Export", "As Text…"});
  stage().removeMenu({"File", "Export"});
  EXPECT_THAT(exporting->items(), IsEmpty());
  EXPECT_THAT(exporting->supermenu(), IsNull());
  EXPECT_THAT(exporting->insertItem(titled("Guides"), 0), IsNull());
  EXPECT_EQ(exporting->indexOfItem(*item), -1);
  EXPECT_EQ(item->title(), "");
  EXPECT_THAT(item->menu(), IsNull());
}

TEST_F(Menus, OpeningIsToldBeforeTheMenuIsLaidOut)
{
  const auto help = platform().application.helpMenu();
  int openings = 0;
  const auto observer = help->observeOpening([&] {
    if (++openings == 1) std::ignore = help->insertItem(titled("Guides"), 0);
  });
  EXPECT_THAT(stage().openMenu({"Help"}), ElementsAre("Guides", "Manual"));
  stage().closeMenus();
  EXPECT_EQ(openings, 1);
  stage().openMenu({"Help"});
  stage().closeMenus();
  EXPECT_EQ(openings, 2) << "each time";
}

TEST_F(Menus, OpeningAnotherMenuIsNotTold)
{
  int openings = 0;
  const auto observer = platform().application.helpMenu()->observeOpening([&] { ++openings; });
  stage().openMenu({"File"});
  stage().closeMenus();
  EXPECT_EQ(openings, 0);
}

TEST_F(Menus, AnOpeningObserverMayEndItselfWhileItHears)
{
  int openings = 0;
  Registration observer = platform().application.helpMenu()->observeOpening([&] {
    ++openings;
    observer.reset();
  });
  stage().openMenu({"Help"});
  stage().closeMenus();
  stage().openMenu({"Help"});
  stage().closeMenus();
  EXPECT_EQ(openings, 1);
}

TEST_F(Menus, ChoosingAnEntryOfOursRunsIt)
{
  int chosen = 0;
  const auto help = platform().application.helpMenu();
  const auto item = help->insertItem(titled("Guides", [&] { ++chosen; }), 0);
  stage().chooseMenuEntry({"Help", "Guides"});
  EXPECT_TRUE(stage().waitUntil([&] { return chosen > 0; }));
  stage().pass(0.02);
  EXPECT_EQ(chosen, 1);
}

TEST_F(Menus, AnEntryMayRemoveItselfWhileItIsChosen)
{
  const auto help = platform().application.helpMenu();
  MenuItemHandle item;
  item = help->insertItem(titled("Guides", [&] { help->removeItem(*item); }), 0);
  stage().chooseMenuEntry({"Help", "Guides"});
  EXPECT_TRUE(stage().waitUntil([&] { return titlesOf(help).size() == 1; }));
  EXPECT_THAT(titlesOf(help), ElementsAre("Manual"));
}

TEST_F(Menus, ACommandIsToldOnce)
{
  std::vector<std::string> titles;
  const auto observer = platform().events.observeMenuCommands([&](const MenuItemHandle& item) {
    titles.push_back(item->title() + "/" + item->action().value_or("-"));
  });
  stage().chooseMenuEntry({"File", "New Tour"});
  EXPECT_TRUE(stage().waitUntil([&] { return !titles.empty(); }));
  stage().pass(0.02);
  EXPECT_THAT(titles, ElementsAre("New Tour/newTour:"));
}

TEST_F(Menus, ACommandInASubmenuIsToldOnce)
{
  std::vector<std::string> titles;
  const auto observer = platform().events.observeMenuCommands(
      [&](const MenuItemHandle& item) { titles.push_back(item->title()); });
  stage().chooseMenuEntry({"File", "Export", "As Text…"});
  EXPECT_TRUE(stage().waitUntil([&] { return !titles.empty(); }));
  stage().pass(0.02);
  EXPECT_THAT(titles, ElementsAre("As Text…"));
}

TEST_F(Menus, ACommandOfOursIsToldToo)
{
  std::vector<std::string> titles;
  const auto observer = platform().events.observeMenuCommands(
      [&](const MenuItemHandle& item) { titles.push_back(item->title()); });
  const auto item = platform().application.helpMenu()->insertItem(titled("Guides", [] {}), 0);
  stage().chooseMenuEntry({"Help", "Guides"});
  EXPECT_TRUE(stage().waitUntil([&] { return !titles.empty(); }));
  stage().pass(0.02);
  EXPECT_THAT(titles, ElementsAre("Guides"));
}

TEST_F(Menus, EveryObserverHearsACommandAlsoWhenOneEnds)
{
  int first = 0, second = 0;
  Registration observer = platform().events.observeMenuCommands([&](const MenuItemHandle&) {
    ++first;
    observer.reset();
  });
  const auto other = platform().events.observeMenuCommands([&](const MenuItemHandle&) { ++second; });
  stage().chooseMenuEntry({"File", "New Tour"});
  EXPECT_TRUE(stage().waitUntil([&] { return second == 1; }));
  stage().chooseMenuEntry({"File", "New Tour"});
  EXPECT_TRUE(stage().waitUntil([&] { return second == 2; }));
  EXPECT_EQ(first, 1);
}

TEST_F(Menus, APressOnAnEntryIsSeenOnceAsOneInAMenu)
{
  std::vector<platform::MouseEvent> seen;
  const auto monitor =
      platform().events.addLocalMonitor(platform::MouseEvent::Type::LeftMouseDown, [&](const auto& event) {
        seen.push_back(event);
        return platform::EventVerdict::PassOn;
      });
  stage().chooseMenuEntry({"File", "New Tour"});
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_TRUE(seen[0].inMenu);
}

TEST_F(Menus, ASwallowedPressOnAnEntryChoosesNothing)
{
  int chosen = 0, commands = 0;
  const auto item = platform().application.helpMenu()->insertItem(titled("Guides", [&] { ++chosen; }), 0);
  const auto observer = platform().events.observeMenuCommands([&](const MenuItemHandle&) { ++commands; });
  const auto monitor = platform().events.addLocalMonitor(
      platform::MouseEvent::Type::LeftMouseDown, [](const auto&) { return platform::EventVerdict::Swallow; });
  stage().chooseMenuEntry({"Help", "Guides"});
  stage().pass(0.02);
  EXPECT_EQ(chosen, 0);
  EXPECT_EQ(commands, 0);
}

TEST_F(Menus, OpeningAMenuIsNoCommand)
{
  int commands = 0;
  const auto observer = platform().events.observeMenuCommands([&](const MenuItemHandle&) { ++commands; });
  stage().openMenu({"File"});
  stage().closeMenus();
  stage().pass(0.02);
  EXPECT_EQ(commands, 0);
}

class NoMenus : public Conformance {};

TEST_F(NoMenus, AProgramWithoutHelpMenuHasNone)
{
  stage().addMenuEntry(window(), {"File", "New Tour"}, "newTour:");
  EXPECT_THAT(platform().application.helpMenu(), IsNull());
}

} // namespace

} // namespace wayvane::conformance
