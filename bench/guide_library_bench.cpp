#include <tests/desktop/Desktop.h>
#include <wayvane/manager/WVGuideManager.h>
#include <wayvane/playback/WVPlayer.h>
#include <wayvane/recording/WVRecorder.h>

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

// Loading a library of 1,000 guides, which is promised to take at most 1.5x the bare parse of the same bytes,
// and loading it again when the Help menu opens and nothing has changed, at most a twentieth of the first
// time.

namespace {

using namespace wayvane;

constexpr int kGuides = 1000;
constexpr int kSteps = 20;

std::string guideFile(int number)
{
  WVGuide guide("Guide " + std::to_string(number));
  guide.appBundleIdentifier = "org.example.Notes";
  guide.appBundleVersion = "1.4";
  for (int step = 0; step < kSteps; ++step) {
    guide.addStepWithAccessibilityIdentifier("toolbar.button." + std::to_string(step), "Click on the button");
    WVTargetDescriptor& target = guide.steps.back().target;
    target.className = "QPushButton";
    target.hierarchyPath = "QWidget[0]/QSplitter[1]/QScrollArea[0]/QPushButton[3]";
    target.titleLocalizations = LocalizationDictionary{{"de", "Größe ändern"}, {"en", "Resize"}};
  }
  return guide.jsonDataWithError().value();
}

/// A program with an installed manager and its guides in the folder.
struct Program {
  Program()
  {
    desktop.setBundle("org.example.Notes", "1.9", {});
    desktop.mainMenu().menu("Help");
    manager.install();
    for (int number = 0; number < kGuides; ++number)
      desktop.files().put(manager.guidesDirectory() + "/" + std::to_string(number) + ".wayvane",
                          guideFile(number));
  }

  sim::Desktop desktop;
  WVPlayer player;
  WVRecorder recorder;
  WVGuideManager manager{player, recorder};
};

double secondsOf(const std::function<void()>& work)
{
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void parseAll(const std::vector<std::string>& files)
{
  for (const std::string& bytes : files)
    benchmark::DoNotOptimize(nlohmann::json::parse(bytes));
}

void reloadUnchanged(benchmark::State& state)
{
  Program program;
  program.manager.reloadGuides();
  for (auto _ : state)
    program.manager.reloadGuides();
}

} // namespace

BENCHMARK(reloadUnchanged)->Unit(benchmark::kMicrosecond);

int main(int argc, char** argv)
{
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  std::vector<std::string> files;
  for (int number = 0; number < kGuides; ++number)
    files.push_back(guideFile(number));
  double parse = 1e9, first = 1e9, again = 1e9;
  for (int round = 0; round < 7; ++round) {
    Program program;
    const auto reload = [&program] { program.manager.reloadGuides(); };
    parse = std::min(parse, secondsOf([&files] { parseAll(files); }));
    first = std::min(first, secondsOf(reload));
    for (int repeat = 0; repeat < 5; ++repeat)
      again = std::min(again, secondsOf(reload));
  }
  std::printf("first load of %d guides of %d steps %.2f ms, %.2fx the bare parse; unchanged reload %.3f ms, "
              "ratio 1/%.0f\n",
              kGuides, kSteps, first * 1e3, first / parse, again * 1e3, first / again);
}
