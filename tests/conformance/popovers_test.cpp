#include <tests/conformance/Conformance.h>

namespace wayvane::conformance {

namespace {

using Key = platform::PopoverButton::Key;

/// A form with two fields and two buttons, shown at a button of the window.
class Popovers : public Conformance {
protected:
  void SetUp() override
  {
    Conformance::SetUp();
    anchor_ = stage().addButton(window(), {.frame = {40, 230, 120, 30}}, {.title = "Plan"});
    popover_ = makePopover();
  }

  void TearDown() override { popover_.reset(); }

  [[nodiscard]] std::unique_ptr<platform::Popover> makePopover()
  {
    platform::PopoverSpec spec;
    spec.contentSize = {280, 130};
    spec.fields = {{.identifier = "title", .frame = {10, 90, 260, 24}, .placeholder = "Title"},
                   {.identifier = "message", .frame = {10, 55, 260, 24}, .placeholder = "Message"}};
    spec.buttons = {
        {.title = "Save", .frame = {190, 10, 80, 28}, .key = Key::Return, .onClick = noting("save")},
        {.title = "Cancel", .frame = {100, 10, 80, 28}, .key = Key::Escape, .onClick = noting("cancel")}};
    spec.onClose = [this] {
      events_.emplace_back("close");
      titleAtClose_ = popover_ ? popover_->text("title") : "";
    };
    return platform().panels.makePopover(std::move(spec));
  }

  void show()
  {
    ASSERT_TRUE(popover().show(window(), placeOf(anchor_)));
    ASSERT_TRUE(stage().waitUntil([&] { return popover().isShown(); }));
    stage().pass(0.02);
  }

  [[nodiscard]] platform::Popover& popover() { return *popover_; }

  void endPopover() { popover_.reset(); }

  [[nodiscard]] const std::vector<std::string>& events() const { return events_; }

  [[nodiscard]] const std::string& titleAtClose() const { return titleAtClose_; }

private:
  [[nodiscard]] std::function<void()> noting(const char* name)
  {
    return [this, name] { events_.emplace_back(name); };
  }

  ViewHandle anchor_;
  std::unique_ptr<platform::Popover> popover_;
  std::vector<std::string> events_;
  std::string titleAtClose_;
};

TEST_F(Popovers, APopoverIsShownOnDemand)
{
  EXPECT_FALSE(popover().isShown());
  show();
  EXPECT_TRUE(popover().isShown());
  ASSERT_THAT(popover().window(), NotNull());
  EXPECT_TRUE(popover().window()->isVisible());
  EXPECT_THAT(events(), IsEmpty());
}

TEST_F(Popovers, APopoverLeavesItsAnchorInSight)
{
  show();
  const Rect anchor = window()->convertRectToScreen({40, 230, 120, 30});
  EXPECT_FALSE(popover().window()->frame().intersects(anchor.grownBy(-3)))
      << platform::stringFromRect(popover().window()->frame());
}

TEST_F(Popovers, AFieldTakesText)
{
  show();
  EXPECT_EQ(popover().text("title"), "");
  stage().typeIntoPopover(popover(), "title", "Plan a tour");
  stage().typeIntoPopover(popover(), "message", "Click here");
  EXPECT_EQ(popover().text("title"), "Plan a tour");
  EXPECT_EQ(popover().text("message"), "Click here");
  EXPECT_EQ(popover().text("colour"), "") << "no such field";
}

TEST_F(Popovers, AButtonActsBeforeThePopoverCloses)
{
  show();
  stage().typeIntoPopover(popover(), "title", "Plan a tour");
  stage().clickPopoverButton(popover(), "Save");
  EXPECT_TRUE(stage().waitUntil([&] { return events().size() >= 2; }));
  EXPECT_THAT(events(), ElementsAre("save", "close"));
  EXPECT_FALSE(popover().isShown());
  EXPECT_EQ(titleAtClose(), "Plan a tour") << "the fields can still be read";
}

TEST_F(Popovers, ReturnPressesItsButton)
{
  show();
  popover().focusField("title");
  stage().pressKeyInPopover(popover(), Key::Return);
  EXPECT_TRUE(stage().waitUntil([&] { return events().size() >= 2; }));
  EXPECT_THAT(events(), ElementsAre("save", "close"));
}

TEST_F(Popovers, EscapePressesItsButton)
{
  show();
  popover().focusField("title");
  stage().pressKeyInPopover(popover(), Key::Escape);
  EXPECT_TRUE(stage().waitUntil([&] { return events().size() >= 2; }));
  EXPECT_THAT(events(), ElementsAre("cancel", "close"));
}

TEST_F(Popovers, APressInsideLeavesItOpen)
{
  show();
  const Rect frame = popover().window()->frame();
  stage().press({frame.center().x, frame.maxY() - 4});
  EXPECT_TRUE(popover().isShown());
  EXPECT_THAT(events(), IsEmpty());
}

TEST_F(Popovers, APressOutsideClosesItAndReachesTheProgram)
{
  const auto outside = stage().addButton(window(), {.frame = {460, 20, 120, 30}}, {.title = "Elsewhere"});
  show();
  stage().pressView(outside);
  EXPECT_TRUE(stage().waitUntil([&] { return !popover().isShown(); }));
  stage().pass(0.02);
  EXPECT_THAT(events(), ElementsAre("close"));
  EXPECT_EQ(stage().pressesReceived(outside), 1);
}

TEST_F(Popovers, ClosingSaysSoOnce)
{
  show();
  popover().close();
  EXPECT_FALSE(popover().isShown());
  popover().close();
  stage().pass(0.02);
  EXPECT_THAT(events(), ElementsAre("close"));
}

TEST_F(Popovers, ClosingWhatWasNeverShownSaysNothing)
{
  popover().close();
  stage().pass(0.02);
  EXPECT_THAT(events(), IsEmpty());
}

TEST_F(Popovers, ThePopoverClosesWithItsWindow)
{
  const auto other = stage().makeWindow("Packing list", {720, 150, 300, 300});
  stage().raise(window());
  show();
  stage().closeWindow(window());
  EXPECT_TRUE(stage().waitUntil([&] { return !popover().isShown(); }));
  stage().pass(0.02);
  EXPECT_THAT(events(), ElementsAre("close"));
}

TEST_F(Popovers, APopoverForADeadWindowIsNotShown)
{
  const auto other = stage().makeWindow("Packing list", {720, 150, 300, 300});
  stage().closeWindow(window());
  EXPECT_FALSE(popover().show(window(), {40, 230, 120, 30}));
  EXPECT_FALSE(popover().show(nullptr, {40, 230, 120, 30}));
  EXPECT_FALSE(popover().isShown());
  EXPECT_THAT(events(), IsEmpty());
}

TEST_F(Popovers, APopoverThatEndsIsGone)
{
  show();
  const auto was = popover().window();
  endPopover();
  stage().pass(0.02);
  EXPECT_FALSE(was->isVisible());
  stage().raise(window());
  EXPECT_THAT(platform().application.mainWindow(), IsSameWindow(window()));
}

TEST_F(Popovers, TheProgramsMainWindowStaysMain)
{
  show();
  EXPECT_THAT(platform().application.mainWindow(), IsSameWindow(window()));
}

} // namespace

} // namespace wayvane::conformance
