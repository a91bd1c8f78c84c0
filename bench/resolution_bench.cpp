// How long finding and describing an element takes, as a multiple of a bare walk over the same views. The
// column to read is "walks": 1 is the bare walk, which asks every view for its subviews. On this desktop a
// step of the walk costs no more than a call or two, so each question put to every view shows.

#include <tests/desktop/Desktop.h>
#include <wayvane/model/WVTargetDescriptor.h>
#include <wayvane/targeting/ViewFinding.h>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>

namespace wayvane {
namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start)
{
  return std::chrono::duration<double>(Clock::now() - start).count();
}

void walk(const platform::View& view)
{
  view.visitSubviews([](const platform::View& subview) {
    walk(subview);
    return true;
  });
}

double secondsOfBareWalk(const platform::View& root)
{
  double best = 1e9;
  for (int attempt = 0; attempt < 15; ++attempt) {
    const auto start = Clock::now();
    walk(root);
    best = std::min(best, secondsSince(start));
  }
  return best;
}

/// A window of many views: groups of ten, in which every kind of element comes up, ten groups to a group.
class Tree {
public:
  explicit Tree(std::int64_t views)
  {
    desktop.defineClass("GaugeView");
    fill(window->content(), views);
    auto& last = window->content().addButton({.title = "Last title",
                                              .action = "last:",
                                              .accessibilityIdentifier = "last",
                                              .className = "NSButton"});
    last.setBinding("value", "last.value");
    target = last.handle();
    window->content().addView("GaugeView");
    auto& table = window->content().addTableView({.columns = {{.identifier = "name"}}});
    for (int row = 0; row < 100; ++row) {
      table.addRow({"row"}, sim::makeModel({{"id", sim::numberValue(std::to_string(row))}}));
    }
  }

  sim::Desktop desktop;
  std::shared_ptr<sim::Window> window = desktop.addWindow("Main");
  platform::ViewHandle target;

private:
  void fill(sim::View& parent, std::int64_t views)
  {
    if (views > 10) {
      for (int part = 0; part < 10; ++part)
        fill(parent.addView("NSView"), views / 10 - 1);
      return;
    }
    for (std::int64_t i = 0; i < views; ++i)
      addElement(parent, made_++);
  }

  static void addElement(sim::View& parent, int number)
  {
    const auto text = std::to_string(number);
    switch (number % 5) {
    case 0:
      parent.addButton({.title = "Title " + text, .action = "action" + text + ":"});
      break;
    case 1:
      parent.addTextField({.value = text, .valueBinding = "model.value" + text});
      break;
    case 2:
      parent.addView("NSView", {.accessibilityIdentifier = "view" + text});
      break;
    case 3:
      parent.addTextField({.value = "Label " + text, .accessibilityLabel = "label " + text});
      break;
    default:
      parent.addPopUpButton({.items = {"One", "Two"}, .action = "choose" + text + ":"});
      break;
    }
  }

  int made_ = 0;
};

Tree& treeOf(std::int64_t views)
{
  static std::map<std::int64_t, std::unique_ptr<Tree>> trees;
  auto& tree = trees[views];
  if (!tree) tree = std::make_unique<Tree>(views);
  platform::Platform::setCurrent(&tree->desktop.platform());
  return *tree;
}

template <class Work>
void measureInWalks(benchmark::State& state, const Tree& tree, Work work)
{
  const double bare = secondsOfBareWalk(*tree.window->contentView());
  double best = 1e9;
  for ([[maybe_unused]] auto _ : state) {
    const auto start = Clock::now();
    work();
    best = std::min(best, secondsSince(start));
  }
  state.counters["walks"] = best / bare;
}

void resolve(benchmark::State& state, const WVTargetDescriptor& descriptor, bool hits)
{
  const Tree& tree = treeOf(state.range(0));
  if ((descriptor.resolveInWindow(tree.window) != nullptr) != hits) state.SkipWithError("wrong answer");
  measureInWalks(state, tree, [&] { benchmark::DoNotOptimize(descriptor.resolveInWindow(tree.window)); });
}

using Clue = std::optional<std::string> WVTargetDescriptor::*;

void searchFor(const std::string& name, Clue clue, const std::string& hit, const std::string& miss)
{
  for (const bool hits : {true, false}) {
    WVTargetDescriptor descriptor;
    descriptor.*clue = hits ? hit : miss;
    benchmark::RegisterBenchmark((name + (hits ? "/hit" : "/miss")).c_str(),
                                 [=](benchmark::State& state) { resolve(state, descriptor, hits); })
        ->RangeMultiplier(10)
        ->Range(1'000, 100'000);
  }
}

void searchForRow(const std::string& name, std::int64_t row, const std::string& objectIdentifier)
{
  WVTargetDescriptor descriptor;
  descriptor.tableRow = row;
  if (!objectIdentifier.empty()) descriptor.objectIdentifier = objectIdentifier;
  const bool hits = row < 100;
  benchmark::RegisterBenchmark(name.c_str(),
                               [=](benchmark::State& state) { resolve(state, descriptor, hits); })
      ->RangeMultiplier(10)
      ->Range(1'000, 100'000);
}

void searchForActionOfClass()
{
  WVTargetDescriptor descriptor;
  descriptor.action = "last:";
  descriptor.className = "GaugeView";
  benchmark::RegisterBenchmark("action of another class/hit",
                               [=](benchmark::State& state) { resolve(state, descriptor, true); })
      ->RangeMultiplier(10)
      ->Range(1'000, 100'000);
}

void capture(benchmark::State& state)
{
  const Tree& tree = treeOf(state.range(0));
  const platform::Point location{5, 5};
  measureInWalks(state, tree, [&] {
    benchmark::DoNotOptimize(WVTargetDescriptor::descriptorForView(*tree.target, location));
  });
}

void registerAll()
{
  benchmark::RegisterBenchmark("search that asks nothing",
                               [](benchmark::State& state) {
                                 const Tree& tree = treeOf(state.range(0));
                                 const auto content = tree.window->contentView();
                                 measureInWalks(state, tree, [&] {
                                   benchmark::DoNotOptimize(
                                       firstView(*content, [](const platform::View&) { return false; }));
                                 });
                               })
      ->RangeMultiplier(10)
      ->Range(1'000, 100'000);
  searchFor("identifier", &WVTargetDescriptor::accessibilityIdentifier, "last", "gone");
  searchFor("bound identifier", &WVTargetDescriptor::accessibilityIdentifier, "binding:value:model.value1",
            "binding:value:model.gone");
  searchFor("path", &WVTargetDescriptor::hierarchyPath, "NSSplitView[0]/NSButton[0]", "NSSplitView[0]");
  searchFor("binding", &WVTargetDescriptor::bindingInfo, "value:last.value", "value:model.gone");
  searchFor("action", &WVTargetDescriptor::action, "last:", "gone:");
  searchFor("title", &WVTargetDescriptor::title, "Last title", "Gone");
  searchFor("class", &WVTargetDescriptor::className, "GaugeView", "NSSplitView");
  searchForActionOfClass();
  searchForRow("table row/hit", 50, {});
  searchForRow("table row/miss", 100, {});
  searchForRow("table row by object/hit", 3, "id:50");
  benchmark::RegisterBenchmark("capture", capture)->RangeMultiplier(10)->Range(1'000, 100'000);
}

} // namespace
} // namespace wayvane

int main(int argc, char** argv)
{
  benchmark::Initialize(&argc, argv);
  wayvane::registerAll();
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
