#include <tests/live/elements/Elements.h>
#include <wayvane/platform/qt/QtApplication.h>
#include <wayvane/platform/qt/QtMenu.h>
#include <wayvane/platform/qt/QtMenuItem.h>
#include <wayvane/platform/qt/QtSymbols.h>

#include <QApplication>
#include <QMenu>
#include <QMenuBar>

namespace wayvane::qt {

namespace {

using platform::MenuHandle;
using platform::SymbolImage;

platform::MenuItemSpec entry(const std::string& title, SymbolImage image = SymbolImage::None)
{
  platform::MenuItemSpec spec;
  spec.title = title;
  spec.image = image;
  return spec;
}

/// File (New, -, Export (As Text)), Help (Manual).
class Menus : public Elements {
protected:
  void SetUp() override
  {
    Elements::SetUp();
    file_ = window().menuBar()->addMenu(QStringLiteral("&File"));
    file_->addAction(QStringLiteral("&New\tCtrl+N"))->setObjectName(QStringLiteral("newTour"));
    file_->addSeparator();
    exporting_ = file_->addMenu(QStringLiteral("&Export"));
    exporting_->addAction(QStringLiteral("As &Text\u2026"));
    help_ = window().menuBar()->addMenu(QStringLiteral("&Help"));
    help_->addAction(QStringLiteral("Manual"));
  }

  void TearDown() override
  {
    qApp->setProperty("wv_helpMenu", QVariant());
    Elements::TearDown();
  }

  [[nodiscard]] QMenu& file() { return *file_; }

  [[nodiscard]] QMenu& exporting() { return *exporting_; }

  [[nodiscard]] QMenu& help() { return *help_; }

  [[nodiscard]] const QtApplication& application() const { return application_; }

  [[nodiscard]] static std::vector<std::string> titlesOf(const MenuHandle& menu)
  {
    std::vector<std::string> titles;
    for (const auto& item : menu->items())
      titles.push_back(item->isSeparator() ? "-" : item->title());
    return titles;
  }

private:
  QtApplication application_;
  QMenu* file_ = nullptr;
  QMenu* exporting_ = nullptr;
  QMenu* help_ = nullptr;
};

TEST_F(Menus, TheMenuBarOfTheMainWindowIsTheMainMenu)
{
  const auto bar = application().mainMenu();
  ASSERT_THAT(bar, NotNull());
  EXPECT_THAT(titlesOf(bar), ElementsAre("File", "Help"));
  EXPECT_THAT(bar->supermenu(), IsNull());
}

TEST_F(Menus, AWindowWithoutMenuBarIsNotGivenOne)
{
  delete window().menuBar();
  EXPECT_THAT(application().mainMenu(), IsNull());
  EXPECT_EQ(window().menuWidget(), nullptr);
}

TEST_F(Menus, EntriesAreReadWithoutMnemonicAndShortcut)
{
  const auto items = menuForWidget(&file())->items();
  ASSERT_EQ(items.size(), 3U);
  EXPECT_EQ(items[0]->title(), "New");
  EXPECT_TRUE(items[1]->isSeparator());
  EXPECT_EQ(items[2]->title(), "Export");
  EXPECT_TRUE(items[2]->submenu()->isSame(*menuForWidget(&exporting())));
}

TEST_F(Menus, AnActionIsKnownByWhatTheHostSaysElseByNameElseByItsTitles)
{
  QAction* action = exporting().actions().first();
  const auto item = menuItemForAction(action);
  EXPECT_THAT(item->action(), Optional(std::string("File > Export > As Text\u2026")));
  action->setObjectName(QStringLiteral("exportText"));
  EXPECT_THAT(item->action(), Optional(std::string("exportText")));
  action->setProperty("wv_action", QStringLiteral("exportText:"));
  EXPECT_THAT(item->action(), Optional(std::string("exportText:")));
}

TEST_F(Menus, SeparatorsAndMenusSendNoAction)
{
  const auto items = menuForWidget(&file())->items();
  EXPECT_FALSE(items[1]->action());
  EXPECT_FALSE(items[2]->action());
}

TEST_F(Menus, EntriesAndMenusKnowWhereTheyAre)
{
  const auto exportMenu = menuForWidget(&exporting());
  ASSERT_THAT(exportMenu->supermenu(), NotNull());
  EXPECT_TRUE(exportMenu->supermenu()->isSame(*menuForWidget(&file())));
  EXPECT_TRUE(exportMenu->supermenu()->supermenu()->isSame(*application().mainMenu()));
  const auto item = menuItemForAction(exporting().actions().first());
  ASSERT_THAT(item->menu(), NotNull());
  EXPECT_TRUE(item->menu()->isSame(*exportMenu));
  EXPECT_EQ(exportMenu->indexOfItem(*item), 0);
  EXPECT_EQ(menuForWidget(&file())->indexOfItem(*item), -1);
}

TEST_F(Menus, AContextMenuIsBelowNoOther)
{
  QMenu context;
  EXPECT_THAT(menuForWidget(&context)->supermenu(), IsNull());
}

TEST_F(Menus, OtherWidgetsAreNoMenus)
{
  EXPECT_THAT(menuForWidget(&window()), IsNull());
  EXPECT_THAT(menuForWidget(nullptr), IsNull());
  EXPECT_THAT(menuItemForAction(nullptr), IsNull());
}

// The Help menu

TEST_F(Menus, ThereIsNoHelpMenuUnlessTheProgramSaysSo)
{
  EXPECT_THAT(application().helpMenu(), IsNull());
}

TEST_F(Menus, AProgramNamesItsHelpMenu)
{
  const auto isHelp = [&] { return application().helpMenu()->isSame(*menuForWidget(&help())); };
  qApp->setProperty("wv_helpMenu", QVariant::fromValue<QObject*>(&help()));
  EXPECT_TRUE(isHelp());
  qApp->setProperty("wv_helpMenu", QVariant::fromValue<QMenu*>(&help()));
  EXPECT_TRUE(isHelp());
  qApp->setProperty("wv_helpMenu", QStringLiteral("Help"));
  EXPECT_TRUE(isHelp()) << "by title";
  help().setObjectName(QStringLiteral("menuHelp"));
  qApp->setProperty("wv_helpMenu", QStringLiteral("menuHelp"));
  EXPECT_TRUE(isHelp()) << "by name";
  qApp->setProperty("wv_helpMenu", QStringLiteral("elsewhere"));
  EXPECT_THAT(application().helpMenu(), IsNull());
}

// Entries of ours

TEST_F(Menus, AnEntryGoesWhereItIsPut)
{
  const auto menu = menuForWidget(&help());
  platform::MenuItemSpec guides = entry("Guides && Co"), separator,
                         record = entry("Record", SymbolImage::Record);
  guides.toolTip = "Tours";
  separator.separator = true;
  record.action = "_record:";
  const auto first = menu->insertItem(guides, 0);
  menu->insertItem(separator, 99);
  menu->insertItem(record, -1);
  EXPECT_THAT(titlesOf(menu), ElementsAre("Guides && Co", "Manual", "-", "Record"));
  EXPECT_THAT(first->toolTip(), Optional(std::string("Tours")));
  EXPECT_EQ(menu->items()[3]->image(), SymbolImage::Record);
  EXPECT_THAT(menu->items()[3]->action(), Optional(std::string("_record:")));
  EXPECT_FALSE(help().actions()[3]->icon().isNull());
}

TEST_F(Menus, AnEntryIsRenamedAndRedrawn)
{
  const auto menu = menuForWidget(&help());
  const auto item = menu->insertItem(entry("Record", SymbolImage::Record), -1);
  item->setTitle("Stop & Save");
  item->setImage(SymbolImage::None);
  EXPECT_EQ(item->title(), "Stop & Save");
  EXPECT_EQ(help().actions().last()->text(), QStringLiteral("Stop && Save"));
  EXPECT_TRUE(help().actions().last()->icon().isNull());
}

TEST_F(Menus, EntriesOfTheHostsStayAsTheyAre)
{
  const auto menu = menuForWidget(&help());
  const auto item = menu->items()[0];
  item->setTitle("Ours");
  item->setImage(SymbolImage::Play);
  menu->removeItem(*item);
  EXPECT_THAT(titlesOf(menu), ElementsAre("Manual"));
  EXPECT_EQ(item->image(), SymbolImage::None);
}

TEST_F(Menus, AnEntryMayRemoveItselfWhileItIsChosen)
{
  const auto menu = menuForWidget(&help());
  int chosen = 0;
  platform::MenuItemHandle item;
  platform::MenuItemSpec spec = entry("Guides");
  spec.onChosen = [&] {
    menu->removeItem(*item);
    ++chosen;
  };
  item = menu->insertItem(spec, 0);
  help().actions().first()->trigger();
  EXPECT_EQ(chosen, 1);
  EXPECT_THAT(titlesOf(menu), ElementsAre("Manual"));
  EXPECT_EQ(item->title(), "") << "though it is deleted only later";
  EXPECT_THAT(item->menu(), IsNull());
  EXPECT_FALSE(item->isSame(*item));
  item->setTitle("Again");
  EXPECT_EQ(item->title(), "");
}

TEST_F(Menus, AMenuTellsBeforeItOpens)
{
  int openings = 0;
  auto registration = menuForWidget(&help())->observeOpening([&] { ++openings; });
  emit help().aboutToShow();
  emit file().aboutToShow();
  EXPECT_EQ(openings, 1);
  registration.reset();
  emit help().aboutToShow();
  EXPECT_EQ(openings, 1);
}

TEST_F(Menus, AnObserverMayEndItselfAndOutliveTheMenu)
{
  int openings = 0;
  platform::Registration registration;
  registration = menuForWidget(&help())->observeOpening([&] {
    ++openings;
    registration.reset();
  });
  emit help().aboutToShow();
  emit help().aboutToShow();
  EXPECT_EQ(openings, 1);
  registration = menuForWidget(&help())->observeOpening([&] { ++openings; });
  closeWindow();
  registration.reset();
  EXPECT_EQ(openings, 1);
}

TEST_F(Menus, AMenuThatIsGoneIsEmpty)
{
  const auto menu = menuForWidget(&exporting());
  const auto item = menu->items()[0];
  delete &exporting();
  EXPECT_THAT(menu->items(), IsEmpty());
  EXPECT_THAT(menu->supermenu(), IsNull());
  EXPECT_THAT(menu->insertItem(entry("Guides"), 0), IsNull());
  EXPECT_EQ(menu->indexOfItem(*item), -1);
  EXPECT_EQ(item->title(), "");
  EXPECT_FALSE(item->action());
  EXPECT_FALSE(menu->observeOpening([] {}).isActive());
}

TEST_F(Menus, EverySymbolIsDrawn)
{
  EXPECT_TRUE(symbolIcon(SymbolImage::None).isNull());
  std::vector<QImage> pictures;
  for (const auto symbol : {SymbolImage::Play, SymbolImage::Record, SymbolImage::Stop})
    pictures.push_back(symbolIcon(symbol).pixmap(16, 16).toImage());
  for (const QImage& picture : pictures)
    EXPECT_GT(qAlpha(picture.pixel(8, 8)), 0) << "its middle is painted";
  EXPECT_NE(pictures[0], pictures[1]);
  EXPECT_NE(pictures[1], pictures[2]);
}

} // namespace

} // namespace wayvane::qt
