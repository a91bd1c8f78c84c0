#include "ShellTest.h"

#include <wayvane/platform/qt/QtPlatform.h>

#include <gmock/gmock.h>

#include <thread>

namespace wayvane::qt::test {
namespace {

class InstallPlatform : public ShellTest {};

TEST_F(InstallPlatform, SecondCallChangesNothing)
{
  const platform::Platform* before = platform::Platform::current();
  EXPECT_TRUE(installPlatform());
  EXPECT_EQ(platform::Platform::current(), before);
}

TEST_F(InstallPlatform, RefusesAnotherThread)
{
  bool installed = true;
  std::thread([&] { installed = installPlatform(); }).join();
  EXPECT_FALSE(installed);
  EXPECT_EQ(takeLog(),
            QStringList{QStringLiteral("wayvane:Wayvane: not installed (not on the main thread)")});
}

TEST_F(InstallPlatform, LogLinesAreOneHarmlessLineEach)
{
  wayvane().log.write("WVPlayer: a\nb\x1B[31m \xC3\xA4 \xFF");
  EXPECT_EQ(takeLog(), QStringList{QStringLiteral("wayvane:WVPlayer: a\\u000ab\\u001b[31m \u00E4 \uFFFD")});
}

TEST_F(InstallPlatform, ScreenIsThePrimaryOneWithItsOriginAtTheBottomLeft)
{
  const QRect geometry = QGuiApplication::primaryScreen()->geometry();
  EXPECT_EQ(*wayvane().screen.mainScreenFrame(),
            (platform::Rect{0, 0, double(geometry.width()), double(geometry.height())}));
  EXPECT_TRUE(wayvane().screen.mainScreenFrame()->contains(*wayvane().screen.mainScreenVisibleFrame()));
}

} // namespace
} // namespace wayvane::qt::test
