#include <wayvane/model/WVGuide.h>
#include <wayvane/platform/qt/QtFiles.h>

#include <QCoreApplication>
#include <QDir>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>

#include <gmock/gmock.h>

#include <algorithm>
#include <cstring>
#include <random>

namespace wayvane::qt::test {
namespace {

constexpr int kKills = 300;
constexpr const char* kSaveForever = "--save-forever";

/// A guide whose every step says the same number, so that a mixture of two saves would show.
WVGuide guideOfGeneration(int generation)
{
  WVGuide guide("Killed");
  for (int step = 0; step < 400; ++step)
    guide.addStepWithAccessibilityIdentifier("button", "generation " + std::to_string(generation));
  return guide;
}

int saveForever(const std::string& path)
{
  QtFiles files;
  for (int generation = 1;; ++generation) {
    const auto bytes = guideOfGeneration(generation).jsonDataWithError(nullptr);
    if (!bytes || !files.writeAtomically(path, *bytes, nullptr)) return 1;
    if (generation == 1) std::puts("saving"), std::fflush(stdout);
  }
}

bool isWhole(const WVGuide& guide)
{
  return guide.steps.size() == 400 &&
         std::all_of(guide.steps.begin(), guide.steps.end(),
                     [&guide](const WVStep& step) { return step.message == guide.steps.front().message; });
}

TEST(SavingKilled, ThreeHundredTimesNeverLeavesABrokenGuide)
{
  const QTemporaryDir folder;
  const std::string path = folder.filePath(QStringLiteral("Killed.wayvane")).toStdString();
  std::mt19937 random(7);
  QtFiles files;
  for (int kill = 0; kill < kKills; ++kill) {
    QProcess saver;
    saver.start(QCoreApplication::applicationFilePath(),
                {QString::fromLatin1(kSaveForever), QString::fromStdString(path)});
    ASSERT_TRUE(saver.waitForReadyRead());
    QThread::usleep(random() % 15000);
    saver.kill();
    ASSERT_TRUE(saver.waitForFinished());
    ASSERT_EQ(saver.exitStatus(), QProcess::CrashExit) << "it was killed while it saved";

    const auto bytes = files.read(path, 1U << 30U, nullptr);
    ASSERT_TRUE(bytes) << "after kill " << kill;
    const auto guide = WVGuide::guideWithJSONData(*bytes);
    ASSERT_TRUE(guide) << "after kill " << kill;
    ASSERT_TRUE(isWhole(*guide)) << "after kill " << kill;
  }
  EXPECT_EQ(QDir(folder.path()).entryList({QStringLiteral("*.wayvane")}, QDir::Files).size(), 1)
      << "what a killed save left behind is no guide";
}

} // namespace
} // namespace wayvane::qt::test

int main(int argc, char** argv)
{
  if (argc == 3 && std::strcmp(argv[1], wayvane::qt::test::kSaveForever) == 0)
    return wayvane::qt::test::saveForever(argv[2]);
  testing::InitGoogleMock(&argc, argv);
  const QCoreApplication app(argc, argv);
  return RUN_ALL_TESTS();
}
