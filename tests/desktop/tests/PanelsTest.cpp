#include <tests/desktop/Desktop.h>

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>

namespace wayvane::sim {
namespace {

using platform::AlertSpec;
using platform::EventVerdict;
using platform::MouseEvent;
using platform::Rect;
using testing::ElementsAre;

platform::FloatingPanelSpec panelOfLevel(int level)
{
  platform::FloatingPanelSpec spec;
  spec.size = {200, 44};
  spec.level = level;
  return spec;
}

class SimPanels : public testing::Test {
protected:
  platform::Panels& panels() { return desktop.platform().panels; }

  Desktop desktop;
  std::shared_ptr<Window> window = desktop.addWindow("Main", {100, 100, 800, 600});
};

TEST_F(SimPanels, AnOverlayLiesOverItsWindowAndLetsPressesThrough)
{
  const auto overlay = panels().makeOverlayPanel(window->frame(), 10);
  overlay->attachToWindow(window);
  overlay->orderFront();
  EXPECT_EQ(desktop.overlay(), overlay.get());
  const auto order = desktop.application().orderedWindows();
  ASSERT_EQ(order.size(), 2u);
  EXPECT_EQ(order[0]->className(), "WVPlayerWindow");
  Button& save = window->content().addButton();
  desktop.clickView(save);
  EXPECT_EQ(save.clickCount(), 1);
}

TEST_F(SimPanels, AnOverlayMovesWithItsWindowButKeepsItsSize)
{
  const auto overlay = panels().makeOverlayPanel(window->frame(), 10);
  overlay->attachToWindow(window);
  window->setFrame({150, 120, 900, 600});
  EXPECT_EQ(overlay->frame(), (Rect{150, 120, 800, 600}));
}

TEST_F(SimPanels, AnOverlayStaysRightAboveItsWindow)
{
  const auto overlay = panels().makeOverlayPanel(window->frame(), 10);
  overlay->attachToWindow(window);
  desktop.addWindow("Other");
  EXPECT_EQ(desktop.application().orderedWindows()[1], overlay->window());
  window->orderFront();
  EXPECT_EQ(desktop.application().orderedWindows()[0], overlay->window());
}

TEST_F(SimPanels, AnOverlayGoesWithItsWindowAndCanBeAttachedAgain)
{
  const auto overlay = panels().makeOverlayPanel(window->frame(), 10);
  overlay->attachToWindow(window);
  window->close();
  EXPECT_EQ(overlay->parentWindow(), nullptr);
  EXPECT_FALSE(overlay->isVisible());
  const auto other = desktop.addWindow("Other");
  overlay->attachToWindow(other);
  EXPECT_TRUE(overlay->isVisible());
  EXPECT_EQ(overlay->parentWindow(), other);
}

TEST_F(SimPanels, APanelThatIsGoneIsNoLongerKnown)
{
  panels().makeOverlayPanel(window->frame(), 10).reset();
  panels().makeFloatingPanel({}).reset();
  EXPECT_EQ(desktop.overlay(), nullptr);
  EXPECT_TRUE(desktop.floatingPanels().empty());
  EXPECT_EQ(desktop.application().windows().size(), 1u);
}

TEST_F(SimPanels, APanelMayOutliveTheDesktop)
{
  std::unique_ptr<platform::FloatingPanel> floating;
  std::unique_ptr<platform::OverlayPanel> overlay;
  std::unique_ptr<platform::Popover> popover;
  {
    Desktop other;
    const auto host = other.addWindow("Other");
    floating = other.panels().makeFloatingPanel({});
    overlay = other.panels().makeOverlayPanel({}, 0);
    overlay->attachToWindow(host);
    popover = other.panels().makePopover({});
    popover->show(host, {});
  }
  floating->orderFront();
  overlay->orderFront();
  EXPECT_FALSE(floating->isVisible());
  EXPECT_FALSE(overlay->isVisible());
  EXPECT_FALSE(popover->isShown());
}

TEST_F(SimPanels, APanelButtonIsPressedThroughTheMonitors)
{
  int pressed = 0, seen = 0;
  const auto panel = panels().makeFloatingPanel(panelOfLevel(3));
  panel->addButton({"Done", false, [&] { ++pressed; }});
  panel->orderFront();
  const auto token =
      desktop.events().addLocalMonitor(MouseEvent::Type::LeftMouseDown, [&](const MouseEvent& event) {
        seen += event.window == panel->window() ? 1 : 0;
        return EventVerdict::PassOn;
      });
  EXPECT_TRUE(desktop.clickPanelButton(*desktop.floatingPanels().front(), "Done"));
  EXPECT_EQ(pressed, 1);
  EXPECT_EQ(seen, 1);
  EXPECT_EQ(desktop.application().keyWindow(), window);
  EXPECT_FALSE(desktop.clickPanelButton(*desktop.floatingPanels().front(), "Other"));
}

TEST_F(SimPanels, HigherPanelsStayInFront)
{
  const auto high = panels().makeFloatingPanel(panelOfLevel(25));
  const auto low = panels().makeFloatingPanel(panelOfLevel(3));
  high->orderFront();
  low->orderFront();
  EXPECT_EQ(desktop.application().orderedWindows()[0], high->window());
  EXPECT_TRUE(high->window()->isUtilityPanel());
}

class SimPopover : public SimPanels {
protected:
  std::unique_ptr<platform::Popover> makePopover()
  {
    platform::PopoverSpec spec;
    spec.contentSize = {260, 100};
    spec.fields = {{"title", {}, "Title", 12}};
    spec.buttons = {
        {"Cancel", {}, platform::PopoverButton::Key::Escape, [this] { said.push_back("cancel"); }},
        {"Add", {}, platform::PopoverButton::Key::Return, [this] { said.push_back("add"); }}};
    spec.onClose = [this] { said.push_back("closed"); };
    return panels().makePopover(spec);
  }

  std::vector<std::string> said;
};

TEST_F(SimPopover, AButtonWorksBeforeThePopoverCloses)
{
  const auto popover = makePopover();
  ASSERT_TRUE(popover->show(window, {10, 10, 50, 20}));
  EXPECT_TRUE(desktop.popover()->pressButton("Add"));
  EXPECT_THAT(said, ElementsAre("add", "closed"));
  EXPECT_FALSE(popover->isShown());
  EXPECT_EQ(desktop.popover(), nullptr);
}

TEST_F(SimPopover, KeysPressItsButtons)
{
  const auto popover = makePopover();
  ASSERT_TRUE(popover->show(window, {}));
  desktop.keyPress("Escape");
  EXPECT_THAT(said, ElementsAre("cancel", "closed"));
}

TEST_F(SimPopover, APressOutsideClosesItAndReachesTheProgram)
{
  Button& save = window->content().addButton();
  const auto popover = makePopover();
  ASSERT_TRUE(popover->show(window, {10, 10, 50, 20}));
  desktop.clickView(save);
  EXPECT_THAT(said, ElementsAre("closed"));
  EXPECT_EQ(save.clickCount(), 1);
}

TEST_F(SimPopover, APressInsideLeavesItOpen)
{
  const auto popover = makePopover();
  ASSERT_TRUE(popover->show(window, {300, 300, 50, 20}));
  desktop.click(popover->window()->frame().center());
  EXPECT_TRUE(popover->isShown());
}

TEST_F(SimPopover, ItClosesWithItsWindow)
{
  const auto popover = makePopover();
  ASSERT_TRUE(popover->show(window, {}));
  window->close();
  EXPECT_THAT(said, ElementsAre("closed"));
}

TEST_F(SimPopover, ItsTextCanBeReadWhenItCloses)
{
  std::unique_ptr<platform::Popover> popover;
  std::string text;
  platform::PopoverSpec spec;
  spec.fields = {{"title", {}, "Title", 12}};
  spec.onClose = [&] { text = popover->text("title"); };
  popover = panels().makePopover(spec);
  ASSERT_TRUE(popover->show(window, {}));
  EXPECT_TRUE(desktop.popover()->typeText("title", "Hello"));
  EXPECT_FALSE(desktop.popover()->typeText("nothing", "Hello"));
  popover->close();
  EXPECT_EQ(text, "Hello");
}

TEST_F(SimPopover, AButtonMayEndThePopover)
{
  std::unique_ptr<platform::Popover> popover;
  platform::PopoverSpec spec;
  spec.buttons = {{"End", {}, platform::PopoverButton::Key::None, [&] { popover.reset(); }}};
  popover = panels().makePopover(spec);
  ASSERT_TRUE(popover->show(window, {}));
  EXPECT_TRUE(desktop.popover()->pressButton("End"));
  EXPECT_EQ(desktop.popover(), nullptr);
}

TEST_F(SimPopover, ShowingCanBeImpossible)
{
  desktop.setRefusesPopovers(true);
  const auto popover = makePopover();
  EXPECT_FALSE(popover->show(window, {}));
  desktop.setRefusesPopovers(false);
  EXPECT_FALSE(popover->show(nullptr, {}));
  window->close();
  EXPECT_FALSE(popover->show(window, {}));
  EXPECT_TRUE(said.empty());
}

TEST_F(SimPanels, AlertsAreAnsweredInOrderAndRemembered)
{
  desktop.answerNextAlert(1);
  desktop.answerNextAlert(0, "Tour");
  AlertSpec ask;
  ask.messageText = "Name?";
  ask.field = platform::AlertField{{200, 24}, "Untitled", ""};
  EXPECT_EQ(panels().runAlert(ask).fieldText, "Untitled");
  EXPECT_EQ(panels().runAlert(ask).fieldText, "Tour");
  ASSERT_EQ(desktop.alerts().size(), 2u);
  EXPECT_EQ(desktop.alerts()[0].messageText, "Name?");
}

TEST_F(SimPanels, ThingsHappenWhileAnAlertIsUp)
{
  desktop.setOnAlert([&](const AlertSpec&) {
    window->close();
    desktop.answerNextAlert(1);
  });
  EXPECT_EQ(panels().runAlert({}).button, 1);
  EXPECT_FALSE(window->isAlive());
}

TEST_F(SimPanels, AnAlertThatNobodyAnswersFailsTheTest)
{
  int button = 0;
  EXPECT_NONFATAL_FAILURE(button = panels().runAlert({}).button, "nobody answers the alert");
  EXPECT_EQ(button, -1);
}

} // namespace
} // namespace wayvane::sim
