#include <tests/desktop/Desktop.h>

#include <gmock/gmock.h>

namespace wayvane::sim {
namespace {

using platform::Rect;
using platform::WindowHandle;
using testing::ElementsAre;

std::vector<std::string> titlesInOrder(Desktop& desktop)
{
  std::vector<std::string> titles;
  for (const WindowHandle& window : desktop.application().orderedWindows())
    titles.push_back(window->title());
  return titles;
}

TEST(SimWindow, TheNewestWindowIsInFrontAndMainAndKey)
{
  Desktop desktop;
  desktop.addWindow("First");
  const auto second = desktop.addWindow("Second");
  EXPECT_THAT(titlesInOrder(desktop), ElementsAre("Second", "First"));
  EXPECT_EQ(desktop.application().mainWindow(), second);
  EXPECT_EQ(desktop.application().keyWindow(), second);
}

TEST(SimWindow, OrderFrontChangesTheOrder)
{
  Desktop desktop;
  const auto first = desktop.addWindow("First");
  desktop.addWindow("Second");
  first->orderFront();
  EXPECT_THAT(titlesInOrder(desktop), ElementsAre("First", "Second"));
}

TEST(SimWindow, AnOrderedOutWindowIsNotAmongTheOrderedOnes)
{
  Desktop desktop;
  const auto first = desktop.addWindow("First");
  first->orderOut();
  EXPECT_TRUE(titlesInOrder(desktop).empty());
  EXPECT_EQ(desktop.application().windows().size(), 1u);
}

TEST(SimWindow, AUtilityPanelLiesInFrontAndIsNeitherMainNorKey)
{
  Desktop desktop;
  const auto main = desktop.addWindow("Main");
  desktop.addUtilityPanel("Tools", {0, 0, 100, 100});
  main->orderFront();
  EXPECT_THAT(titlesInOrder(desktop), ElementsAre("Tools", "Main"));
  EXPECT_EQ(desktop.application().mainWindow(), main);
}

TEST(SimWindow, AClosedWindowAnswersNothing)
{
  Desktop desktop;
  const auto window = desktop.addWindow("Main");
  const WindowHandle handle = window;
  window->close();
  EXPECT_FALSE(handle->isAlive());
  EXPECT_EQ(handle->title(), "");
  EXPECT_EQ(handle->frame(), Rect{});
  EXPECT_EQ(handle->contentView(), nullptr);
  EXPECT_EQ(handle->frameView(), nullptr);
  EXPECT_FALSE(isSameWindow(handle, handle));
}

TEST(SimWindow, ClosingTheMainWindowMakesTheNextOneMain)
{
  Desktop desktop;
  const auto first = desktop.addWindow("First");
  desktop.addWindow("Second")->close();
  EXPECT_EQ(desktop.application().mainWindow(), first);
  first->close();
  EXPECT_EQ(desktop.application().mainWindow(), nullptr);
}

TEST(SimWindow, TheContentFillsTheFrameBelowTheTitleBar)
{
  Desktop desktop;
  const auto window = desktop.addWindow("Main", {100, 100, 800, 600});
  EXPECT_EQ(window->content().screenFrame(), (Rect{100, 100, 800, 572}));
  EXPECT_EQ(window->toolbarView().screenFrame(), (Rect{100, 672, 800, 28}));
  EXPECT_EQ(window->frameView()->className(), "NSThemeFrame");
}

TEST(SimWindow, ResizingTellsTheObserversAndMovingDoesNot)
{
  Desktop desktop;
  const auto window = desktop.addWindow("Main", {100, 100, 800, 600});
  int calls = 0;
  const auto token = desktop.events().observeWindowResize([&](const WindowHandle& resized) {
    EXPECT_TRUE(isSameWindow(resized, window));
    ++calls;
  });
  window->setFrame({0, 0, 800, 600});
  EXPECT_EQ(calls, 0);
  window->setFrame({0, 0, 900, 600});
  EXPECT_EQ(calls, 1);
}

TEST(SimWindow, AWindowWithoutContentViewHasStillAFrameView)
{
  Desktop desktop;
  const auto window = desktop.addWindow("Main");
  window->removeContentView();
  EXPECT_EQ(window->contentView(), nullptr);
  EXPECT_NE(window->frameView(), nullptr);
}

TEST(SimWindow, ToolbarItemsComeInOrderWithTheirViews)
{
  Desktop desktop;
  const auto window = desktop.addWindow("Main");
  Button& share = window->toolbarView().addButton({.title = "Share"});
  window->addToolbarItem({.identifier = "space"});
  window->addToolbarItem({.identifier = "share", .label = "Share", .view = &share});
  const auto items = window->toolbarItems();
  ASSERT_EQ(items.size(), 2u);
  EXPECT_EQ(items[0].view, nullptr);
  EXPECT_EQ(items[1].label, "Share");
  EXPECT_TRUE(isSameView(items[1].view, share.handle()));
}

} // namespace
} // namespace wayvane::sim
