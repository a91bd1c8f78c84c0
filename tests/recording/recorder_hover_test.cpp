#include "RecorderFixture.h"

namespace wayvane {
namespace {

using platform::EventVerdict;
using platform::Point;
using platform::Rect;

class RecorderHover : public RecorderFixture {
protected:
  WVHoverHUD& hud = WVHoverHUD::shared();
};

TEST_F(RecorderHover, TheHoverDisplayTellsWhatIsBelowThePointer)
{
  start();
  EXPECT_EQ(desktop.moveMouse(save.screenCenter()), EventVerdict::PassOn);
  EXPECT_TRUE(hud.isVisible());
  EXPECT_TRUE(isSameView(hud.lastView(), save.handle()));
  EXPECT_EQ(hud.lastDescriptor()->accessibilityIdentifier, "save");
}

TEST_F(RecorderHover, ItFollowsThePointerAndNotTheEvent)
{
  start();
  desktop.moveMouse(save.screenCenter());
  const Rect frame = hud.frame();
  EXPECT_EQ((Point{frame.x, frame.maxY()}), (Point{save.screenCenter().x + 16, save.screenCenter().y - 16}));
}

TEST_F(RecorderHover, IsHiddenWhereNoViewIs)
{
  start();
  desktop.moveMouse(save.screenCenter());
  desktop.moveMouse({5, 5});
  EXPECT_FALSE(hud.isVisible());
  EXPECT_TRUE(isSameView(hud.lastView(), save.handle()));
}

TEST_F(RecorderHover, StaysAsItIsOverTheBadge)
{
  start();
  desktop.moveMouse(save.screenCenter());
  const Rect before = hud.frame();
  desktop.moveMouse(recorder->badge()->frame().center());
  EXPECT_TRUE(hud.isVisible());
  EXPECT_EQ(hud.frame(), before);
}

TEST_F(RecorderHover, IsHiddenWhileAnAnnotationIsOpen)
{
  start();
  desktop.moveMouse(save.screenCenter());
  desktop.clickView(save);
  desktop.moveMouse(save.screenCenter());
  EXPECT_FALSE(hud.isVisible());
}

TEST_F(RecorderHover, GoesWhenTheAnnotationComesAlsoWithoutAMovement)
{
  start();
  desktop.moveMouse(save.screenCenter());
  desktop.clickView(save);
  EXPECT_TRUE(hud.isVisible());
  desktop.advance(0.1);
  EXPECT_FALSE(hud.isVisible());
}

TEST_F(RecorderHover, IsHiddenWhenTheRecordingEnds)
{
  start();
  desktop.moveMouse(save.screenCenter());
  recorder->stopRecording();
  EXPECT_FALSE(hud.isVisible());
}

TEST_F(RecorderHover, IsHiddenWhenTheRecorderIsDestroyed)
{
  start();
  desktop.moveMouse(save.screenCenter());
  recorder.reset();
  EXPECT_FALSE(hud.isVisible());
}

TEST_F(RecorderHover, ShowsNothingWhileNothingIsRecorded)
{
  desktop.moveMouse(save.screenCenter());
  EXPECT_FALSE(hud.isVisible());
}

TEST_F(RecorderHover, StaysAsItIsWhenAMovementNamesItsOwnPanel)
{
  start();
  desktop.moveMouse(save.screenCenter());
  const Rect before = hud.frame();
  desktop.events().setMouseLocation({5, 5});
  desktop.events().send({platform::MouseEvent::Type::MouseMoved, hud.window(), {1, 1}, false});
  EXPECT_TRUE(hud.isVisible());
  EXPECT_EQ(hud.frame(), before);
}

TEST_F(RecorderHover, ItsOwnPanelIsNoWindowToRecord)
{
  start();
  desktop.moveMouse(save.screenCenter());
  EXPECT_EQ(desktop.application().windowAt(hud.frame().center()), window);
}

} // namespace
} // namespace wayvane
