#include <tests/conformance/Conformance.h>

namespace wayvane::conformance {

namespace {

class Windows : public Conformance {
protected:
  [[nodiscard]] platform::Application& application() { return platform().application; }

  /// Where the window stands in a list; -1 when it is not there.
  [[nodiscard]] static int placeIn(const std::vector<WindowHandle>& windows, const WindowHandle& wanted)
  {
    for (std::size_t i = 0; i < windows.size(); ++i)
      if (isSameWindow(windows[i], wanted)) return static_cast<int>(i);
    return -1;
  }
};

TEST_F(Windows, AWindowIsItselfAndNoOther)
{
  const auto other = stage().makeWindow("Packing list", {300, 150, 300, 300});
  EXPECT_TRUE(window()->isAlive());
  EXPECT_TRUE(window()->isSame(*window()));
  EXPECT_FALSE(window()->isSame(*other));
}

TEST_F(Windows, AWindowHasTitleClassAndFrame)
{
  EXPECT_EQ(window()->title(), "Trails");
  EXPECT_NE(window()->className(), "");
  EXPECT_EQ(window()->frame(), kWindowFrame);
  EXPECT_TRUE(window()->isVisible());
  EXPECT_FALSE(window()->isUtilityPanel());
}

TEST_F(Windows, TheContentFillsTheWindowUpToItsBars)
{
  const Rect content = placeOf(window()->contentView());
  const Rect all{0, 0, kWindowFrame.width, kWindowFrame.height};
  EXPECT_TRUE(all.contains(content)) << platform::stringFromRect(content);
  EXPECT_TRUE(content.contains(Rect{0, 0, kWindowFrame.width, 300})) << platform::stringFromRect(content);
}

TEST_F(Windows, TheFrameViewCoversTheFrame)
{
  EXPECT_EQ(placeOf(window()->frameView()), (Rect{0, 0, kWindowFrame.width, kWindowFrame.height}));
  EXPECT_THAT(window()->frameView()->superview(), IsNull());
}

TEST_F(Windows, PointsComeBackFromTheScreen)
{
  const Point onScreen = window()->convertPointToScreen({30, 40});
  EXPECT_EQ(onScreen, (Point{kWindowFrame.x + 30, kWindowFrame.y + 40}));
  EXPECT_EQ(window()->convertPointFromScreen(onScreen), (Point{30, 40}));
}

TEST_F(Windows, AMovedWindowSaysWhereItIs)
{
  stage().setFrame(window(), {150, 180, 600, 420});
  EXPECT_EQ(window()->frame(), (Rect{150, 180, 600, 420}));
}

TEST_F(Windows, TheNewestWindowIsInFront)
{
  const auto other = stage().makeWindow("Packing list", {300, 150, 300, 300});
  const auto ordered = application().orderedWindows();
  ASSERT_GE(placeIn(ordered, other), 0);
  ASSERT_GE(placeIn(ordered, window()), 0);
  EXPECT_LT(placeIn(ordered, other), placeIn(ordered, window()));
}

TEST_F(Windows, ARaisedWindowIsInFront)
{
  const auto other = stage().makeWindow("Packing list", {300, 150, 300, 300});
  stage().raise(window());
  const auto ordered = application().orderedWindows();
  EXPECT_LT(placeIn(ordered, window()), placeIn(ordered, other));
}

TEST_F(Windows, AllWindowsAreListedInTheOrderOfTheirMaking)
{
  const auto other = stage().makeWindow("Packing list", {300, 150, 300, 300});
  stage().raise(window());
  const auto all = application().windows();
  ASSERT_GE(placeIn(all, window()), 0);
  EXPECT_LT(placeIn(all, window()), placeIn(all, other));
}

TEST_F(Windows, AWindowOrderedOutIsInNoOrder)
{
  const auto other = stage().makeWindow("Packing list", {300, 150, 300, 300});
  stage().orderOut(other);
  EXPECT_FALSE(other->isVisible());
  EXPECT_TRUE(other->isAlive());
  EXPECT_EQ(placeIn(application().orderedWindows(), other), -1);
  EXPECT_GE(placeIn(application().orderedWindows(), window()), 0);
  EXPECT_GE(placeIn(application().windows(), other), 0);
}

TEST_F(Windows, AClosedWindowIsInNoList)
{
  const auto other = stage().makeWindow("Packing list", {300, 150, 300, 300});
  stage().closeWindow(other);
  EXPECT_FALSE(other->isAlive());
  for (const auto& listed : application().orderedWindows())
    EXPECT_TRUE(listed->isAlive());
  EXPECT_EQ(placeIn(application().windows(), other), -1);
  EXPECT_GE(placeIn(application().windows(), window()), 0);
}

TEST_F(Windows, TheWindowUsedLastIsMainAndKey)
{
  EXPECT_THAT(application().mainWindow(), IsSameWindow(window()));
  EXPECT_THAT(application().keyWindow(), IsSameWindow(window()));
  const auto other = stage().makeWindow("Packing list", {300, 150, 300, 300});
  EXPECT_THAT(application().mainWindow(), IsSameWindow(other));
  EXPECT_THAT(application().keyWindow(), IsSameWindow(other));
}

TEST_F(Windows, AfterAWindowClosedAnotherIsMain)
{
  const auto other = stage().makeWindow("Packing list", {300, 150, 300, 300});
  stage().closeWindow(other);
  EXPECT_TRUE(stage().waitUntil([&] { return isSameWindow(application().mainWindow(), window()); }));
}

TEST_F(Windows, AResizeIsToldOnceItHappened)
{
  std::vector<Rect> frames;
  std::vector<WindowHandle> resized;
  const auto observer = platform().events.observeWindowResize([&](const WindowHandle& which) {
    frames.push_back(which->frame());
    resized.push_back(which);
  });
  stage().setFrame(window(), {100, 100, 640, 440});
  ASSERT_TRUE(stage().waitUntil([&] { return !frames.empty(); }));
  EXPECT_EQ(frames.back().size(), (Size{640, 440}));
  EXPECT_THAT(resized.back(), IsSameWindow(window()));
}

TEST_F(Windows, AMoveIsNoResize)
{
  int resizes = 0;
  const auto observer = platform().events.observeWindowResize([&](const WindowHandle&) { ++resizes; });
  stage().setFrame(window(), {140, 130, 600, 420});
  stage().pass(0.05);
  EXPECT_EQ(resizes, 0);
}

TEST_F(Windows, AResizeObserverThatEndedHearsNothing)
{
  int resizes = 0;
  auto observer = platform().events.observeWindowResize([&](const WindowHandle&) { ++resizes; });
  observer.reset();
  stage().setFrame(window(), {100, 100, 640, 440});
  stage().pass(0.05);
  EXPECT_EQ(resizes, 0);
}

TEST_F(Windows, AResizeObserverMayEndItselfWhileItHears)
{
  int resizes = 0;
  Registration observer = platform().events.observeWindowResize([&](const WindowHandle&) {
    ++resizes;
    observer.reset();
  });
  stage().setFrame(window(), {100, 100, 640, 440});
  stage().pass(0.05);
  stage().setFrame(window(), {100, 100, 620, 430});
  stage().pass(0.05);
  EXPECT_EQ(resizes, 1);
}

TEST_F(Windows, AToolBarListsItsEntriesInOrder)
{
  stage().addToolbarItem(window(), {.identifier = "newTour", .label = "New", .toolTip = "Begin a tour"});
  stage().addToolbarItem(window(), {.identifier = "share", .label = "Share", .toolTip = {}});
  const auto items = window()->toolbarItems();
  ASSERT_EQ(items.size(), 2U);
  EXPECT_THAT(items[0].itemIdentifier, Optional(std::string("newTour")));
  EXPECT_THAT(items[0].label, Optional(std::string("New")));
  EXPECT_THAT(items[0].toolTip, Optional(std::string("Begin a tour")));
  EXPECT_THAT(items[1].itemIdentifier, Optional(std::string("share")));
  EXPECT_THAT(items[1].label, Optional(std::string("Share")));
}

TEST_F(Windows, AnEntryOfAToolBarHasAViewInTheWindow)
{
  stage().addToolbarItem(window(), {.identifier = "newTour", .label = "New", .toolTip = {}});
  const auto items = window()->toolbarItems();
  ASSERT_EQ(items.size(), 1U);
  ASSERT_THAT(items[0].view, NotNull());
  EXPECT_THAT(items[0].view->window(), IsSameWindow(window()));
  const Rect place = placeOf(items[0].view);
  EXPECT_GT(place.y, 300) << "the upper part of the window";
  EXPECT_THAT(window()->frameView()->hitTest(place.center()), IsSameView(items[0].view));
}

TEST_F(Windows, AnEntryWithoutIdentifierHasNone)
{
  stage().addToolbarItem(window(), {.identifier = {}, .label = "New", .toolTip = {}});
  const auto items = window()->toolbarItems();
  ASSERT_EQ(items.size(), 1U);
  EXPECT_FALSE(items[0].itemIdentifier);
}

TEST_F(Windows, AWindowWithoutToolBarHasNoEntries)
{
  EXPECT_THAT(window()->toolbarItems(), IsEmpty());
}

TEST_F(Windows, DrawingNowChangesNothingElse)
{
  const auto view = stage().addPlain(window(), {.frame = {40, 60, 120, 30}});
  window()->displayIfNeeded();
  EXPECT_EQ(window()->frame(), kWindowFrame);
  EXPECT_EQ(placeOf(view), (Rect{40, 60, 120, 30}));
}

} // namespace

} // namespace wayvane::conformance
