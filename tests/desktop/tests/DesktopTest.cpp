#include <tests/desktop/Desktop.h>

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>

namespace wayvane::sim {
namespace {

using platform::Platform;
using platform::Rect;
using testing::ElementsAre;

TEST(SimDesktop, IsTheCurrentPlatformWhileItLives)
{
  {
    Desktop desktop;
    EXPECT_EQ(Platform::current(), &desktop.platform());
  }
  EXPECT_EQ(Platform::current(), nullptr);
}

TEST(SimDesktop, TheLogKeepsItsLinesUntilItIsCleared)
{
  Desktop desktop;
  Platform::current()->log.write("one");
  Platform::current()->log.write("two");
  EXPECT_THAT(desktop.log(), ElementsAre("one", "two"));
  desktop.clearLog();
  EXPECT_TRUE(desktop.log().empty());
}

TEST(SimDesktop, TheLogKeepsALineOneLine)
{
  Desktop desktop;
  Platform::current()->log.write("one\ntwo\x7f");
  EXPECT_THAT(desktop.log(), ElementsAre("one\\u000atwo\\u007f"));
}

TEST(SimDesktop, TheScreenCanBeChangedAndTakenAway)
{
  Desktop desktop;
  desktop.setScreen({0, 0, 800, 600}, {0, 0, 800, 580});
  EXPECT_EQ(desktop.platform().screen.mainScreenVisibleFrame(), (Rect{0, 0, 800, 580}));
  desktop.removeScreen();
  EXPECT_EQ(desktop.platform().screen.mainScreenFrame(), std::nullopt);
}

TEST(SimDesktop, TheProgramTellsItsIdentityOrDoesNot)
{
  Desktop desktop;
  EXPECT_EQ(desktop.platform().application.bundleIdentifier(), "org.example.Notes");
  desktop.setBundle(std::nullopt, std::nullopt, "7");
  EXPECT_EQ(desktop.platform().application.bundleIdentifier(), std::nullopt);
  EXPECT_EQ(desktop.platform().application.shortVersion(), std::nullopt);
  EXPECT_EQ(desktop.platform().application.bundleVersion(), "7");
}

TEST(SimDesktop, AClassThatDoesNotFitTheRoleFailsTheTest)
{
  Desktop desktop;
  View& content = desktop.addWindow("Main")->content();
  EXPECT_NONFATAL_FAILURE(content.addButton({.className = "NSTextField"}), "NSTextField is no NSButton");
}

TEST(SimDesktop, ClickingWhatIsOutOfSightFailsTheTest)
{
  Desktop desktop;
  Button& button = desktop.addWindow("Main")->content().addButton();
  button.setHidden(true);
  EXPECT_NONFATAL_FAILURE(desktop.clickView(button), "not in sight");
}

} // namespace
} // namespace wayvane::sim
