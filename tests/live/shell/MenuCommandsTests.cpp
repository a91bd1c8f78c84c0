#include "ShellTest.h"

#include <QDialog>
#include <QMenu>
#include <QMenuBar>
#include <QTimer>
#include <QToolBar>
#include <QToolButton>

namespace wayvane::qt::test {
namespace {

using platform::MenuItemHandle;
using platform::Registration;

class QtMenuCommands : public ShellTest {
protected:
  QtMenuCommands()
  {
    window->menuBar()->setNativeMenuBar(false);
    file = window->menuBar()->addMenu(QStringLiteral("&File"));
    save = file->addAction(QStringLiteral("&Save"));
    save->setShortcut(QKeySequence(QStringLiteral("Ctrl+S")));
    recent = file->addMenu(QStringLiteral("Recent"));
    first = recent->addAction(QStringLiteral("First"));
    observer = wayvane().events.observeMenuCommands([this](const MenuItemHandle& item) {
      told.push_back(item);
      toldWhenRun.push_back(runs);
    });
    QObject::connect(save, &QAction::triggered, save, [this] { ++runs; });
    spin();
  }

  void open(QMenu* menu)
  {
    menu->popup(window->mapToGlobal(QPoint(20, 60)));
    ASSERT_TRUE(QTest::qWaitForWindowExposed(menu));
  }

  /// A menu ignores a release where it was opened, so the pointer moves first.
  void choose(QMenu* menu, QAction* action)
  {
    const QPoint at = menu->actionGeometry(action).center();
    QTest::mouseMove(menu->windowHandle(), at + QPoint(8, 1));
    QTest::mouseMove(menu->windowHandle(), at);
    click(*menu, at);
    spin();
  }

  [[nodiscard]] static std::string pathOf(const MenuItemHandle& chosen)
  {
    std::string path = chosen->title();
    for (platform::MenuHandle menu = chosen->menu(); menu && menu->supermenu(); menu = menu->supermenu())
      for (const MenuItemHandle& item : menu->supermenu()->items())
        if (item->submenu() && item->submenu()->isSame(*menu)) path = item->title() + " > " + path;
    return path;
  }

  QMenu* file = nullptr;
  QMenu* recent = nullptr;
  QAction* save = nullptr;
  QAction* first = nullptr;
  int runs = 0;
  std::vector<MenuItemHandle> told;
  std::vector<int> toldWhenRun;
  Registration observer;
};

TEST_F(QtMenuCommands, ChoiceByMouseIsToldOnce)
{
  open(file);
  choose(file, save);
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(runs, 1);
  EXPECT_EQ(pathOf(told[0]), "File > Save");
}

TEST_F(QtMenuCommands, ChoiceByReturnIsTold)
{
  open(file);
  file->setActiveAction(save);
  QTest::keyClick(file, Qt::Key_Return);
  spin();
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(pathOf(told[0]), "File > Save");
}

TEST_F(QtMenuCommands, ChoiceByMnemonicIsTold)
{
  open(file);
  QTest::keyClick(file, Qt::Key_S);
  spin();
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(runs, 1);
}

TEST_F(QtMenuCommands, ChoiceByShortcutIsTold)
{
  QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
  spin();
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(runs, 1);
  EXPECT_EQ(pathOf(told[0]), "File > Save");
}

TEST_F(QtMenuCommands, ChoiceInASubmenuNamesTheWholeWay)
{
  open(file);
  file->setActiveAction(recent->menuAction());
  QTest::keyClick(file, Qt::Key_Right);
  ASSERT_TRUE(waitUntil([&] { return recent->isVisible(); }));
  choose(recent, first);
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(pathOf(told[0]), "File > Recent > First");
}

TEST_F(QtMenuCommands, ChoiceInAContextMenuIsTold)
{
  QMenu context(window.get());
  QAction* copy = context.addAction(QStringLiteral("Copy"));
  open(&context);
  choose(&context, copy);
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(pathOf(told[0]), "Copy");
}

TEST_F(QtMenuCommands, ProgrammaticTriggerIsNoCommand)
{
  save->trigger();
  spin();
  EXPECT_TRUE(told.empty());
  EXPECT_EQ(runs, 1);
}

TEST_F(QtMenuCommands, ToolButtonIsNoCommand)
{
  QToolBar* bar = window->addToolBar(QStringLiteral("Main"));
  bar->addAction(save);
  spin();
  click(*bar->widgetForAction(save));
  spin();
  EXPECT_EQ(runs, 1);
  EXPECT_TRUE(told.empty());
}

TEST_F(QtMenuCommands, DismissedMenuTellsNothing)
{
  open(file);
  QTest::keyClick(file, Qt::Key_Escape);
  spin();
  EXPECT_TRUE(told.empty());
}

TEST_F(QtMenuCommands, DisabledEntryTellsNothing)
{
  save->setEnabled(false);
  open(file);
  choose(file, save);
  EXPECT_TRUE(told.empty());
  file->close();
}

TEST_F(QtMenuCommands, CommandThatDeletesItsMenuIsStillTold)
{
  QObject::connect(save, &QAction::triggered, window.get(), [this] { delete std::exchange(file, nullptr); });
  QTest::keyClick(window.get(), Qt::Key_S, Qt::ControlModifier);
  spin();
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(pathOf(told[0]), "File > Save");
}

TEST_F(QtMenuCommands, CommandIsToldWhileItsModalDialogIsOpen)
{
  std::size_t toldInDialog = 0;
  QObject::connect(save, &QAction::triggered, window.get(), [&] {
    QDialog dialog(window.get());
    QTimer::singleShot(50, &dialog, [&] {
      toldInDialog = told.size();
      dialog.accept();
    });
    dialog.exec();
  });
  open(file);
  choose(file, save);
  EXPECT_EQ(toldInDialog, 1U);
  EXPECT_EQ(told.size(), 1U);
}

TEST_F(QtMenuCommands, TitleIsTheOneTheUserChose)
{
  QObject::connect(save, &QAction::triggered, window.get(),
                   [this] { save->setText(QStringLiteral("Saved")); });
  open(file);
  choose(file, save);
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(told[0]->title(), "Save");
}

TEST_F(QtMenuCommands, EndedObserverIsNotTold)
{
  observer.reset();
  open(file);
  choose(file, save);
  EXPECT_TRUE(told.empty());
  EXPECT_EQ(runs, 1);
}

TEST_F(QtMenuCommands, ReleaseWithoutChoiceTellsNothing)
{
  open(file);
  click(*window, QPoint(380, 280));
  spin();
  EXPECT_TRUE(told.empty());
  EXPECT_EQ(runs, 0);
}

} // namespace
} // namespace wayvane::qt::test
