#include <tests/desktop/Desktop.h>
#include <wayvane/recording/WVRecordingBadge.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace wayvane {
namespace {

using platform::Animation;
using platform::Rect;
using platform::SurfaceView;

class RecordingBadge : public testing::Test {
protected:
  [[nodiscard]] sim::FloatingPanel& panel() const { return *desktop.floatingPanels().front(); }

  [[nodiscard]] const SurfaceView& dot() const { return *panel().contentView().subviews().front(); }

  sim::Desktop desktop;
  std::shared_ptr<sim::Window> window = desktop.addWindow("Main");
};

TEST_F(RecordingBadge, AFreshBadgeReadsZeroSteps)
{
  WVRecordingBadge badge;
  EXPECT_EQ(badge.stepCountLabel().stringValue(), "0 steps");
  EXPECT_EQ(badge.stepCountLabel().frame(), (Rect{28, 14, 60, 16}));
}

TEST_F(RecordingBadge, IsNotShownUntilItIsOrderedFront)
{
  WVRecordingBadge badge;
  EXPECT_FALSE(badge.isVisible());
  badge.orderFront();
  EXPECT_TRUE(badge.isVisible());
  badge.orderOut();
  EXPECT_FALSE(badge.isVisible());
}

TEST_F(RecordingBadge, FloatsAndCanBeDragged)
{
  WVRecordingBadge badge;
  const platform::FloatingPanelSpec& spec = panel().spec();
  EXPECT_EQ(spec.level, 3);
  EXPECT_EQ(spec.background, platform::Color::controlBackground());
  EXPECT_EQ(spec.cornerRadius, 10);
  EXPECT_TRUE(spec.hasShadow);
  EXPECT_TRUE(spec.movable);
  EXPECT_FALSE(spec.ignoresMouse);
}

TEST_F(RecordingBadge, TheCounterIsSetInMonospacedDigits)
{
  WVRecordingBadge badge;
  const platform::Font& font = badge.stepCountLabel().font();
  EXPECT_EQ(font.face, platform::Font::Face::MonospacedDigits);
  EXPECT_EQ(font.weight, platform::Font::Weight::Medium);
  EXPECT_EQ(font.size, 11);
}

TEST_F(RecordingBadge, TheDotIsRoundAndRed)
{
  WVRecordingBadge badge;
  EXPECT_EQ(dot().frame(), (Rect{10, 16, 12, 12}));
  EXPECT_EQ(dot().layer()->cornerRadius(), 6);
  EXPECT_EQ(dot().layer()->backgroundColor(), platform::Color::systemRed());
}

TEST_F(RecordingBadge, TheDotPulsesForever)
{
  WVRecordingBadge badge;
  const platform::RunningAnimation* running = dot().layer()->animationForKey("pulse");
  ASSERT_NE(running, nullptr);
  const Animation& pulse = running->animation;
  EXPECT_EQ(pulse.keyPath, platform::KeyPath::Opacity);
  EXPECT_EQ(pulse.from, platform::AnimatedValue(1.0));
  EXPECT_EQ(pulse.to, platform::AnimatedValue(0.3));
  EXPECT_EQ(pulse.duration, 0.8);
  EXPECT_TRUE(pulse.autoreverses);
  EXPECT_EQ(pulse.repeatCount, Animation::kForever);
  EXPECT_EQ(pulse.timing, platform::TimingCurve::linear());
}

TEST_F(RecordingBadge, TheButtonsTakeTheSizesThatFitThem)
{
  WVRecordingBadge badge;
  // The simulated buttons are 22 high; "Undo" and "Done" take 42 each.
  EXPECT_EQ(badge.undoButton().frame(), (Rect{96, 11, 42, 22}));
  EXPECT_EQ(badge.doneButton().frame(), (Rect{144, 11, 42, 22}));
  EXPECT_TRUE(panel().button("Undo")->spec().isInline);
  EXPECT_FALSE(panel().button("Done")->spec().isInline);
}

TEST_F(RecordingBadge, EndsTenPointsFromTheRightEdgeOfTheFreeScreen)
{
  WVRecordingBadge badge;
  EXPECT_EQ(badge.frame(), (Rect{1440 - 196 - 10, 875 - 54, 196, 44}));
}

TEST_F(RecordingBadge, RespectsAScreenThatDoesNotBeginAtZero)
{
  desktop.setScreen({0, 0, 1000, 800}, {60, 40, 900, 700});
  WVRecordingBadge badge;
  EXPECT_EQ(badge.frame(), (Rect{960 - 196 - 10, 740 - 54, 196, 44}));
}

TEST_F(RecordingBadge, WithoutAScreenTheFreeAreaCountsAsZero)
{
  desktop.removeScreen();
  WVRecordingBadge badge;
  EXPECT_EQ(badge.frame(), (Rect{-206, -54, 196, 44}));
}

TEST_F(RecordingBadge, ItsButtonsDoWhatTheyWereGiven)
{
  WVRecordingBadge badge;
  std::vector<std::string> done;
  badge.setOnUndo([&] { done.push_back("undo"); });
  badge.setOnDone([&] { done.push_back("done"); });
  badge.orderFront();
  desktop.clickPanelButton(panel(), "Undo");
  desktop.clickPanelButton(panel(), "Done");
  EXPECT_THAT(done, testing::ElementsAre("undo", "done"));
}

TEST_F(RecordingBadge, ClickingDoneWithNothingSetDoesNothing)
{
  WVRecordingBadge badge;
  badge.orderFront();
  EXPECT_TRUE(desktop.clickPanelButton(panel(), "Done"));
  EXPECT_TRUE(desktop.clickPanelButton(panel(), "Undo"));
  EXPECT_TRUE(badge.isVisible());
}

TEST_F(RecordingBadge, NeverBecomesTheKeyWindow)
{
  WVRecordingBadge badge;
  badge.orderFront();
  desktop.clickPanelButton(panel(), "Undo");
  desktop.click(badge.frame().center());
  EXPECT_EQ(desktop.application().keyWindow(), window);
}

} // namespace
} // namespace wayvane
