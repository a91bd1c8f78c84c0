// What a search costs on real widgets, against the bare walk that no search can do without and against the
// toolkit's own search. Ten rows of fields and buttons in a frame, as programs have them; the search misses,
// which is its longest way.

#include <wayvane/model/WVTargetDescriptor.h>
#include <wayvane/platform/qt/QtPlatform.h>
#include <wayvane/platform/qt/QtView.h>
#include <wayvane/platform/qt/QtWindow.h>
#include <wayvane/targeting/ViewFinding.h>

#include <QApplication>
#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <benchmark/benchmark.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace {

constexpr int kWidgetsInAFrame = 41;

void fillFrame(QWidget* frame)
{
  for (int row = 0; row < 10; ++row) {
    auto* field = new QLineEdit(frame);
    auto* label = new QLabel(QStringLiteral("Name:"), frame);
    label->setBuddy(field);
    // One in four has a name, as in programs at large.
    auto* button = new QPushButton(QStringLiteral("Plan"), frame);
    button->setObjectName(QStringLiteral("planButton%1").arg(row));
    new QCheckBox(QStringLiteral("Shared"), frame);
  }
}

std::unique_ptr<QWidget> makeWindow(std::int64_t widgets)
{
  auto window = std::make_unique<QWidget>();
  for (std::int64_t made = 0; made < widgets; made += kWidgetsInAFrame)
    fillFrame(new QFrame(window.get()));
  return window;
}

int countWidgets(const QWidget& widget)
{
  int count = 1;
  for (const QObject* child : widget.children()) {
    if (!child->isWidgetType()) continue;
    const auto* childWidget = static_cast<const QWidget*>(child);
    if (!childWidget->isWindow()) count += countWidgets(*childWidget);
  }
  return count;
}

/// The walk over all widgets that looks at their names and does nothing else.
const QWidget* findByName(const QWidget& widget, QStringView name)
{
  if (widget.objectName() == name) return &widget;
  for (const QObject* child : widget.children()) {
    if (!child->isWidgetType()) continue;
    const auto* childWidget = static_cast<const QWidget*>(child);
    if (childWidget->isWindow()) continue;
    if (const QWidget* found = findByName(*childWidget, name)) return found;
  }
  return nullptr;
}

template <class Search>
void searchWindow(benchmark::State& state, Search search)
{
  const auto window = makeWindow(state.range(0));
  for (auto _ : state)
    benchmark::DoNotOptimize(search(*window));
  state.SetItemsProcessed(state.iterations() * countWidgets(*window));
}

void BareWalk(benchmark::State& state)
{
  searchWindow(state, [](const QWidget& window) { return findByName(window, u"nowhere"); });
}

void ToolkitsFindChild(benchmark::State& state)
{
  const QString name = QStringLiteral("nowhere");
  searchWindow(state, [&](const QWidget& window) { return window.findChild<QWidget*>(name); });
}

/// What every search pays before it asks its first question.
void SearchThatAsksNothing(benchmark::State& state)
{
  searchWindow(state, [](QWidget& window) {
    return wayvane::firstView(*wayvane::qt::viewForWidget(&window),
                              [](const wayvane::platform::View&) { return false; });
  });
}

/// A search of a window for an element that has a clue, as a guide's step makes it.
void searchFor(benchmark::State& state, const wayvane::WVTargetDescriptor& descriptor)
{
  searchWindow(state, [&](QWidget& window) {
    return descriptor.resolveInWindow(wayvane::qt::windowForWidget(&window));
  });
}

void searchFor(benchmark::State& state, std::optional<std::string> wayvane::WVTargetDescriptor::*clue,
               const char* text)
{
  wayvane::WVTargetDescriptor descriptor;
  descriptor.*clue = text;
  searchFor(state, descriptor);
}

void SearchByIdentifier(benchmark::State& state)
{
  searchFor(state, &wayvane::WVTargetDescriptor::accessibilityIdentifier, "nowhere");
}

void SearchByBoundIdentifier(benchmark::State& state)
{
  searchFor(state, &wayvane::WVTargetDescriptor::accessibilityIdentifier, "binding:value:nowhere");
}

void SearchByBinding(benchmark::State& state)
{
  searchFor(state, &wayvane::WVTargetDescriptor::bindingInfo, "value:nowhere");
}

void SearchByAction(benchmark::State& state)
{
  searchFor(state, &wayvane::WVTargetDescriptor::action, "nowhere:");
}

void SearchByTitle(benchmark::State& state)
{
  searchFor(state, &wayvane::WVTargetDescriptor::title, "Nowhere");
}

void SearchByClass(benchmark::State& state)
{
  searchFor(state, &wayvane::WVTargetDescriptor::className, "QSlider");
}

void SearchForTableRow(benchmark::State& state)
{
  wayvane::WVTargetDescriptor descriptor;
  descriptor.tableRow = 3;
  searchFor(state, descriptor);
}

BENCHMARK(BareWalk)->Arg(1000)->Arg(10000);
BENCHMARK(ToolkitsFindChild)->Arg(1000)->Arg(10000);
BENCHMARK(SearchThatAsksNothing)->Arg(1000)->Arg(10000);
BENCHMARK(SearchByIdentifier)->Arg(1000)->Arg(10000);
BENCHMARK(SearchByBoundIdentifier)->Arg(1000)->Arg(10000);
BENCHMARK(SearchByBinding)->Arg(1000)->Arg(10000);
BENCHMARK(SearchByAction)->Arg(1000)->Arg(10000);
BENCHMARK(SearchByTitle)->Arg(1000)->Arg(10000);
BENCHMARK(SearchByClass)->Arg(1000)->Arg(10000);
BENCHMARK(SearchForTableRow)->Arg(1000)->Arg(10000);

} // namespace

int main(int argc, char** argv)
{
  QApplication application(argc, argv);
  if (!wayvane::qt::installPlatform()) return 1;
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
