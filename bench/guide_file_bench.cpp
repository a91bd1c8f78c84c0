#include <wayvane/model/WVGuide.h>

#include <benchmark/benchmark.h>
#include <nlohmann/json.hpp>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>

// Reading and writing guide files beside the bare parser and serialiser on the same bytes. The ratios at the
// end are what to look at: the framework promises to read in at most twice the time of the bare parse.

namespace {

using wayvane::WVGuide;
using wayvane::WVStep;

WVStep typicalStep(int number)
{
  wayvane::WVTargetDescriptor target;
  target.accessibilityIdentifier = "toolbar.resize." + std::to_string(number);
  target.className = "QPushButton";
  target.hierarchyPath = "QWidget[0]/QSplitter[1]/QScrollArea[0]/QPushButton[3]";
  target.title = "Größe ändern";
  target.titleLocalizations = wayvane::LocalizationDictionary{{"de", "Größe ändern"}, {"en", "Resize"}};
  target.action = "resizeImage";
  target.tableRow = number;
  target.windowTitle = "Untitled";
  WVStep step = WVStep::stepWithTarget(target, "Click \"Resize\" and choose\na new size.");
  step.messageLocalizations = wayvane::LocalizationDictionary{{"de", "Klicken Sie auf „Größe ändern“."}};
  step.delay = 0.5;
  return step;
}

const std::string& guideOfSteps(int steps)
{
  static std::map<int, std::string> made;
  std::string& bytes = made[steps];
  if (bytes.empty()) {
    WVGuide guide("Resizing");
    for (int i = 0; i < steps; ++i)
      guide.steps.push_back(typicalStep(i));
    bytes = guide.jsonDataWithError().value();
  }
  return bytes;
}

/// The least that a file can say for each step it asks for. A step takes its kilobyte of memory however
/// little is said about it, which is why such a file costs more than its parse, and why the number of steps
/// has a limit.
const std::string& guideOfBlankSteps()
{
  static const std::string bytes = [] {
    std::string steps = "{}";
    for (int i = 1; i < 50'000; ++i)
      steps += ",{}";
    return "{\"steps\":[" + steps + "]}";
  }();
  return bytes;
}

void read(benchmark::State& state)
{
  const std::string& bytes = guideOfSteps(static_cast<int>(state.range(0)));
  for (auto _ : state)
    benchmark::DoNotOptimize(WVGuide::guideWithJSONData(bytes));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(bytes.size()));
}

void write(benchmark::State& state)
{
  const auto guide = WVGuide::guideWithJSONData(guideOfSteps(static_cast<int>(state.range(0))));
  for (auto _ : state)
    benchmark::DoNotOptimize(guide->jsonDataWithError());
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(guideOfSteps(1).size()) *
                          state.range(0));
}

double bestSeconds(const std::function<void()>& work)
{
  double best = 1e9;
  for (int round = 0; round < 15; ++round) {
    const auto start = std::chrono::steady_clock::now();
    work();
    best = std::min(best, std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count());
  }
  return best;
}

void printRatios(const char* name, const std::string& bytes)
{
  const auto guide = WVGuide::guideWithJSONData(bytes);
  const auto document = nlohmann::ordered_json::parse(guide->jsonDataWithError().value());
  const double parse = bestSeconds([&] { benchmark::DoNotOptimize(nlohmann::json::parse(bytes)); });
  const double read = bestSeconds([&] { benchmark::DoNotOptimize(WVGuide::guideWithJSONData(bytes)); });
  const double dump = bestSeconds([&] { benchmark::DoNotOptimize(document.dump(2)); });
  const double write = bestSeconds([&] { benchmark::DoNotOptimize(guide->jsonDataWithError()); });
  std::printf("%-22s %9zu bytes  read/parse %.2f  write/dump %.2f\n", name, bytes.size(), read / parse,
              write / dump);
}

} // namespace

BENCHMARK(read)->Arg(10)->Arg(1000);
BENCHMARK(write)->Arg(10)->Arg(1000);

int main(int argc, char** argv)
{
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  printRatios("10 steps", guideOfSteps(10));
  printRatios("5000 steps", guideOfSteps(5000));
  printRatios("50000 blank steps", guideOfBlankSteps());
  printRatios("one text of 10 MB", "{\"name\":\"" + std::string(10'000'000, 'x') + "\"}");
}
