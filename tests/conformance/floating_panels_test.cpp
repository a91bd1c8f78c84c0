#include <tests/conformance/Conformance.h>

namespace wayvane::conformance {

namespace {

/// A panel of 200 x 60 with one button, shown at (760, 200) on the screen, beside the window.
class FloatingPanels : public Conformance {
protected:
  void SetUp() override
  {
    Conformance::SetUp();
    platform::FloatingPanelSpec spec;
    spec.size = {200, 60};
    spec.level = 25;
    panel_ = platform().panels.makeFloatingPanel(spec);
    button_ = &addButton("Finish", [this] { ++clicks_; });
    button_->setFrame({100, 10, 90, 30});
    panel_->setFrame({760, 200, 200, 60});
    panel_->orderFront();
    stage().pass(0.02);
  }

  void TearDown() override { panel_.reset(); }

  [[nodiscard]] platform::FloatingPanel& panel() { return *panel_; }

  [[nodiscard]] platform::PanelButton& button() { return *button_; }

  [[nodiscard]] int clicks() const { return clicks_; }

  platform::PanelButton& addButton(const std::string& title, std::function<void()> onClick)
  {
    return panel_->addButton({.title = title, .onClick = std::move(onClick)});
  }

  void endPanel() { panel_.reset(); }

  void pressButton()
  {
    const Rect place = button().frame().movedBy(panel().frame().x, panel().frame().y);
    stage().press(place.center());
  }

private:
  std::unique_ptr<platform::FloatingPanel> panel_;
  platform::PanelButton* button_ = nullptr;
  int clicks_ = 0;
};

TEST_F(FloatingPanels, APanelIsWhereItIsPut)
{
  EXPECT_EQ(panel().frame(), (Rect{760, 200, 200, 60}));
  EXPECT_EQ(panel().contentView().bounds(), (Rect{0, 0, 200, 60}));
  EXPECT_TRUE(panel().isVisible());
  panel().setFrame({700, 260, 240, 80});
  stage().pass(0.02);
  EXPECT_EQ(panel().frame(), (Rect{700, 260, 240, 80}));
  EXPECT_EQ(panel().contentView().bounds(), (Rect{0, 0, 240, 80}));
}

TEST_F(FloatingPanels, APanelIsAUtilityPanelOfOurs)
{
  ASSERT_THAT(panel().window(), NotNull());
  EXPECT_TRUE(panel().window()->isUtilityPanel());
  EXPECT_THAT(panel().window()->className(), testing::StartsWith("WV"));
  EXPECT_EQ(panel().window()->frame(), panel().frame());
}

TEST_F(FloatingPanels, APanelStandsInTheOrderOfWindowsWhileShown)
{
  const auto isListed = [&] {
    for (const auto& listed : platform().application.orderedWindows())
      if (isSameWindow(listed, panel().window())) return true;
    return false;
  };
  EXPECT_TRUE(isListed());
  panel().orderOut();
  EXPECT_FALSE(panel().isVisible());
  EXPECT_FALSE(isListed());
}

TEST_F(FloatingPanels, AButtonFitsItsTitle)
{
  EXPECT_EQ(button().title(), "Finish");
  EXPECT_EQ(button().frame(), (Rect{100, 10, 90, 30}));
  auto& longer = addButton("Finish Recording This Guide", {});
  EXPECT_GT(button().fittingSize().width, 10);
  EXPECT_GT(button().fittingSize().height, 10);
  EXPECT_GT(longer.fittingSize().width, button().fittingSize().width);
}

TEST_F(FloatingPanels, AButtonIsClicked)
{
  pressButton();
  EXPECT_EQ(clicks(), 1);
}

TEST_F(FloatingPanels, APanelNeverTakesTheKeyboard)
{
  EXPECT_THAT(platform().application.keyWindow(), IsSameWindow(window()));
  pressButton();
  stage().pass(0.02);
  EXPECT_THAT(platform().application.keyWindow(), IsSameWindow(window()));
  EXPECT_THAT(platform().application.mainWindow(), IsSameWindow(window()));
}

TEST_F(FloatingPanels, AMonitorSeesThePressOnAButtonInThePanelsWindow)
{
  std::vector<platform::MouseEvent> seen;
  const auto monitor =
      platform().events.addLocalMonitor(platform::MouseEvent::Type::LeftMouseDown, [&](const auto& event) {
        seen.push_back(event);
        return platform::EventVerdict::PassOn;
      });
  pressButton();
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_THAT(seen[0].window, IsSameWindow(panel().window()));
  EXPECT_EQ(seen[0].locationInWindow, (Point{145, 25}));
}

TEST_F(FloatingPanels, AButtonWorksWhileTheProgramShowsAModalAlert)
{
  stage().answerNextAlert("OK", {}, [&] { pressButton(); });
  platform::AlertSpec alert;
  alert.messageText = "Discard the tour?";
  alert.buttons = {"OK"};
  EXPECT_EQ(platform().panels.runAlert(alert).button, 0);
  EXPECT_EQ(clicks(), 1);
}

TEST_F(FloatingPanels, APanelThatIgnoresTheMouseLetsPressesThrough)
{
  const auto beneath = stage().addButton(window(), {.frame = {40, 60, 120, 30}}, {.title = "Plan"});
  platform::FloatingPanelSpec spec;
  spec.size = {300, 100};
  spec.ignoresMouse = true;
  const auto hint = platform().panels.makeFloatingPanel(spec);
  hint->setFrame({kWindowFrame.x + 20, kWindowFrame.y + 40, 300, 100});
  hint->orderFront();
  stage().pass(0.02);
  stage().pressView(beneath);
  EXPECT_EQ(stage().pressesReceived(beneath), 1);
}

TEST_F(FloatingPanels, APanelOutlivesTheProgramsWindows)
{
  const auto other = stage().makeWindow("Packing list", {300, 150, 300, 300});
  stage().closeWindow(window());
  EXPECT_TRUE(panel().isVisible());
  pressButton();
  EXPECT_EQ(clicks(), 1);
}

TEST_F(FloatingPanels, APanelThatEndsIsGone)
{
  const auto was = panel().window();
  endPanel();
  EXPECT_FALSE(was->isVisible());
  EXPECT_TRUE(stage().waitUntil([&] { return !was->isAlive(); }));
  EXPECT_THAT(platform().application.keyWindow(), IsSameWindow(window()));
}

TEST_F(FloatingPanels, APanelMayEndInItsOwnButton)
{
  bool clicked = false;
  auto& end = addButton("Close", [&] {
    clicked = true;
    endPanel();
  });
  end.setFrame({5, 10, 90, 30});
  stage().pass(0.02);
  stage().press({panel().frame().x + 50, panel().frame().y + 25});
  EXPECT_TRUE(clicked);
}

} // namespace

} // namespace wayvane::conformance
