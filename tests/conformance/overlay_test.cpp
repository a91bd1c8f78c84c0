#include <tests/conformance/Conformance.h>

#include <cmath>

namespace wayvane::conformance {

namespace {

using platform::Color;
using platform::Layer;
using platform::LayerHandle;
using platform::LayerKind;
using platform::OverlayPanel;

/// An overlay over the window, shown.
class Overlay : public Conformance {
protected:
  void SetUp() override
  {
    Conformance::SetUp();
    overlay_ = platform().panels.makeOverlayPanel(window()->frame(), 10);
    overlay_->attachToWindow(window());
    overlay_->orderFront();
    stage().pass(0.02);
  }

  void TearDown() override { overlay_.reset(); }

  [[nodiscard]] OverlayPanel& overlay() { return *overlay_; }

  void endOverlay() { overlay_.reset(); }

  /// Dims everything but the hole, as a spotlight does.
  LayerHandle dimAround(const Rect& hole)
  {
    const auto dim = Layer::make(LayerKind::Shape);
    const Rect all = overlay().contentView().bounds();
    platform::Path path;
    path.addRect(all);
    path.addRect(hole);
    dim->setFrame(all);
    dim->setPath(path);
    dim->setFillRule(platform::FillRule::EvenOdd);
    dim->setFillColor(Color::rgba(0, 0, 0, 0.5));
    overlay().contentView().layer()->addSublayer(dim);
    stage().pass(0.05);
    return dim;
  }

  [[nodiscard]] double brightnessAt(Point point) { return stage().picture(window())(point).brightness(); }

private:
  std::unique_ptr<OverlayPanel> overlay_;
};

TEST_F(Overlay, ItCoversTheWindowItIsAttachedTo)
{
  EXPECT_EQ(overlay().frame(), window()->frame());
  EXPECT_EQ(overlay().contentView().bounds(), (Rect{0, 0, kWindowFrame.width, kWindowFrame.height}));
  EXPECT_THAT(overlay().parentWindow(), IsSameWindow(window()));
  EXPECT_TRUE(overlay().isVisible());
}

TEST_F(Overlay, ItMovesWithItsWindow)
{
  stage().setFrame(window(), {170, 140, kWindowFrame.width, kWindowFrame.height});
  EXPECT_TRUE(stage().waitUntil([&] { return overlay().frame() == window()->frame(); }));
}

TEST_F(Overlay, ItFollowsAResizeWhenToldTo)
{
  const auto observer = platform().events.observeWindowResize([&](const WindowHandle& resized) {
    if (isSameWindow(resized, overlay().parentWindow())) overlay().setFrame(resized->frame());
  });
  stage().setFrame(window(), {120, 90, 680, 460});
  EXPECT_TRUE(stage().waitUntil([&] { return overlay().frame() == (Rect{120, 90, 680, 460}); }));
  EXPECT_EQ(overlay().frame(), window()->frame());
  EXPECT_EQ(overlay().contentView().bounds().size(), (Size{680, 460}));
}

TEST_F(Overlay, APressPassesThroughIt)
{
  const auto button = stage().addButton(window(), {.frame = {40, 60, 120, 30}}, {.title = "Plan"});
  dimAround({200, 200, 50, 50});
  stage().pressView(button);
  EXPECT_EQ(stage().pressesReceived(button), 1);
}

TEST_F(Overlay, APressThroughItIsSeenOnceInTheProgramsWindow)
{
  const auto button = stage().addButton(window(), {.frame = {40, 60, 120, 30}}, {.title = "Plan"});
  std::vector<platform::MouseEvent> seen;
  const auto monitor =
      platform().events.addLocalMonitor(platform::MouseEvent::Type::LeftMouseDown, [&](const auto& event) {
        seen.push_back(event);
        return platform::EventVerdict::PassOn;
      });
  stage().pressView(button);
  ASSERT_EQ(seen.size(), 1U);
  EXPECT_THAT(seen[0].window, IsSameWindow(window()));
  EXPECT_EQ(seen[0].locationInWindow, (Point{100, 75}));
}

TEST_F(Overlay, AHitPassesThroughIt)
{
  const auto button = stage().addButton(window(), {.frame = {40, 60, 120, 30}}, {.title = "Plan"});
  EXPECT_THAT(window()->frameView()->hitTest({100, 75}), IsSameView(button));
}

TEST_F(Overlay, AWalkThroughTheWindowDoesNotMeetIt)
{
  std::vector<std::string> classes;
  const std::function<bool(const platform::View&)> visit = [&](const platform::View& view) {
    classes.push_back(view.className());
    return view.visitSubviews(visit);
  };
  visit(*window()->contentView());
  EXPECT_THAT(classes, testing::Each(testing::Not(testing::StartsWith("WV"))));
}

TEST_F(Overlay, ItNeverTakesTheKeyboard)
{
  EXPECT_THAT(platform().application.keyWindow(), IsSameWindow(window()));
  EXPECT_THAT(platform().application.mainWindow(), IsSameWindow(window()));
}

TEST_F(Overlay, ItComesAndGoes)
{
  overlay().orderOut();
  EXPECT_FALSE(overlay().isVisible());
  overlay().orderFront();
  EXPECT_TRUE(overlay().isVisible());
}

TEST_F(Overlay, ItDiesQuietlyWithItsWindow)
{
  const auto other = stage().makeWindow("Packing list", {300, 150, 300, 300});
  stage().closeWindow(window());
  EXPECT_THAT(overlay().parentWindow(), IsNull());
  EXPECT_FALSE(overlay().isVisible());
  overlay().contentView().layer()->setOpacity(0.5);
  overlay().setFrame({0, 0, 10, 10});
  overlay().hideAccessibleAlert();
}

TEST_F(Overlay, AfterItsWindowItLivesOnOverAnother)
{
  const auto other = stage().makeWindow("Packing list", {300, 150, 300, 300});
  const auto button = stage().addButton(other, {.frame = {40, 60, 120, 30}}, {.title = "Pack"});
  const auto content = overlay().contentView().shared_from_this();
  stage().closeWindow(window());
  overlay().setFrame(other->frame());
  overlay().attachToWindow(other);
  overlay().orderFront();
  EXPECT_TRUE(overlay().isVisible());
  EXPECT_EQ(overlay().frame(), other->frame());
  EXPECT_EQ(&overlay().contentView(), content.get()) << "with what it shows";
  EXPECT_THAT(overlay().parentWindow(), IsSameWindow(other));
  stage().pass(0.02);
  stage().pressView(button);
  EXPECT_EQ(stage().pressesReceived(button), 1);
}

TEST_F(Overlay, ItMovesFromOneLivingWindowToAnother)
{
  const auto other = stage().makeWindow("Packing list", {300, 150, 300, 300});
  overlay().attachToWindow(nullptr);
  EXPECT_THAT(overlay().parentWindow(), IsNull());
  overlay().setFrame(other->frame());
  overlay().attachToWindow(other);
  overlay().orderFront();
  EXPECT_EQ(overlay().frame(), other->frame());
  EXPECT_THAT(overlay().parentWindow(), IsSameWindow(other));
  stage().closeWindow(window());
  EXPECT_TRUE(overlay().isVisible());
}

TEST_F(Overlay, ItMayEndAfterItsWindow)
{
  const auto other = stage().makeWindow("Packing list", {300, 150, 300, 300});
  stage().closeWindow(window());
  endOverlay();
  EXPECT_TRUE(other->isAlive());
}

TEST_F(Overlay, ItsHoleShowsTheProgramUndimmed)
{
  const Rect hole{200, 100, 100, 80};
  const Picture before = stage().picture(window());
  ASSERT_GT(before(hole.center()).brightness(), 0.3) << "something bright to dim";
  dimAround(hole);
  const Picture after = stage().picture(window());
  EXPECT_NEAR(after(hole.center()).brightness(), before(hole.center()).brightness(), 0.01);
  EXPECT_NEAR(after({50, 50}).brightness(), before({50, 50}).brightness() / 2, 0.03);
}

TEST_F(Overlay, ItLiesOverTheBarsOfTheWindowToo)
{
  stage().addToolbarItem(window(), {.identifier = "newTour", .label = "New", .toolTip = {}});
  const Point inBars{kWindowFrame.width - 20, kWindowFrame.height - 8};
  const double before = brightnessAt(inBars);
  dimAround({200, 100, 100, 80});
  EXPECT_NEAR(brightnessAt(inBars), before / 2, 0.03);
}

TEST_F(Overlay, ItLiesOverElementsAddedLater)
{
  dimAround({200, 100, 100, 80});
  stage().addPlain(window(), {.frame = {200, 100, 300, 80}});
  stage().pass(0.05);
  const Picture picture = stage().picture(window());
  EXPECT_NEAR(picture({450, 140}).brightness(), picture({250, 140}).brightness() / 2, 0.03);
}

TEST_F(Overlay, AChangedLayerIsShown)
{
  const auto dim = dimAround({200, 100, 100, 80});
  const double dimmed = brightnessAt({50, 50});
  dim->setOpacity(0);
  stage().pass(0.05);
  EXPECT_GT(brightnessAt({50, 50}), dimmed + 0.1);
}

TEST_F(Overlay, AnAnimationIsShownWhileTimePasses)
{
  const auto dim = dimAround({200, 100, 100, 80});
  const double dimmed = brightnessAt({50, 50});
  platform::Animation fade;
  fade.keyPath = platform::KeyPath::Opacity;
  fade.from = 1.0;
  fade.to = 0.0;
  fade.duration = 0.4;
  fade.fillForwards = true;
  fade.removedOnCompletion = false;
  dim->addAnimation(fade, "fade");
  stage().pass(0.15);
  const double between = brightnessAt({50, 50});
  stage().pass(0.35);
  EXPECT_GT(between, dimmed + 0.02);
  EXPECT_GT(brightnessAt({50, 50}), between + 0.02);
  EXPECT_NEAR(brightnessAt({50, 50}), 2 * dimmed, 0.03);
}

TEST_F(Overlay, NothingIsRedrawnWhileNothingMoves)
{
  const auto plain = stage().addPlain(window(), {.frame = {40, 60, 120, 80}});
  dimAround({200, 100, 100, 80});
  stage().pass(0.1);
  const int before = stage().timesDrawn(plain);
  stage().pass(0.2);
  EXPECT_EQ(stage().timesDrawn(plain), before);
}

TEST_F(Overlay, AnAnimationElsewhereRedrawsNothingHere)
{
  const auto plain = stage().addPlain(window(), {.frame = {40, 60, 120, 80}});
  const auto mark = Layer::make();
  mark->setFrame({400, 200, 40, 40});
  mark->setBackgroundColor(Color::rgba(1, 0, 0));
  overlay().contentView().layer()->addSublayer(mark);
  stage().pass(0.1);
  const int before = stage().timesDrawn(plain);
  platform::Animation pulse;
  pulse.keyPath = platform::KeyPath::Opacity;
  pulse.from = 1.0;
  pulse.to = 0.2;
  pulse.duration = 0.05;
  pulse.autoreverses = true;
  pulse.repeatCount = platform::Animation::kForever;
  mark->addAnimation(pulse, "pulse");
  stage().pass(0.25);
  EXPECT_EQ(stage().timesDrawn(plain), before);
}

TEST_F(Overlay, AssistiveTechnologyReadsItsAlert)
{
  EXPECT_FALSE(stage().spokenAlert(overlay()));
  overlay().showAccessibleAlert(
      {.title = "Click here", .message = "Plan a tour", .counter = "2 of 5", .frame = {20, 20, 200, 80}});
  const auto spoken = stage().spokenAlert(overlay());
  ASSERT_TRUE(spoken);
  EXPECT_THAT(*spoken, testing::HasSubstr("Click here"));
  EXPECT_THAT(*spoken, testing::HasSubstr("Plan a tour"));
  EXPECT_THAT(*spoken, testing::HasSubstr("2 of 5"));
}

TEST_F(Overlay, ALaterAlertTakesTheEarlierOnesPlace)
{
  overlay().showAccessibleAlert(
      {.title = "Click here", .message = "Plan a tour", .counter = "2 of 5", .frame = {}});
  overlay().showAccessibleAlert(
      {.title = "Type here", .message = "Name it", .counter = "3 of 5", .frame = {}});
  const auto spoken = stage().spokenAlert(overlay());
  ASSERT_TRUE(spoken);
  EXPECT_THAT(*spoken, testing::HasSubstr("Type here"));
  EXPECT_THAT(*spoken, testing::Not(testing::HasSubstr("Click here")));
}

TEST_F(Overlay, AHiddenAlertIsNotRead)
{
  overlay().showAccessibleAlert(
      {.title = "Click here", .message = "Plan a tour", .counter = "2 of 5", .frame = {}});
  overlay().hideAccessibleAlert();
  EXPECT_FALSE(stage().spokenAlert(overlay()));
}

} // namespace

} // namespace wayvane::conformance
