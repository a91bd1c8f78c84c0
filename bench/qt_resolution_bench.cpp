// What a search costs on real widgets, against the bare walk that no search can do without and against the
// toolkit's own search. Ten rows of fields and buttons in a frame, as programs have them; the search misses,
// which is its longest way.

#include <wayvane/platform/qt/QtView.h>
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

namespace {

using wayvane::platform::SearchText;

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

void SearchByIdentifier(benchmark::State& state)
{
  const SearchText text("nowhere");
  searchWindow(state, [&](QWidget& window) {
    const auto view = wayvane::qt::viewForWidget(&window);
    return wayvane::wv_viewWithAccessibilityIdentifier(*view, text);
  });
}

void SearchByAction(benchmark::State& state)
{
  const SearchText text("nowhere:");
  searchWindow(state, [&](QWidget& window) {
    return wayvane::wv_viewWithAction(*wayvane::qt::viewForWidget(&window), text);
  });
}

void SearchByTitle(benchmark::State& state)
{
  const SearchText text("Nowhere");
  searchWindow(state, [&](QWidget& window) {
    return wayvane::wv_viewWithTitle(*wayvane::qt::viewForWidget(&window), text);
  });
}

BENCHMARK(BareWalk)->Arg(1000)->Arg(10000);
BENCHMARK(ToolkitsFindChild)->Arg(1000)->Arg(10000);
BENCHMARK(SearchThatAsksNothing)->Arg(1000)->Arg(10000);
BENCHMARK(SearchByIdentifier)->Arg(1000)->Arg(10000);
BENCHMARK(SearchByAction)->Arg(1000)->Arg(10000);
BENCHMARK(SearchByTitle)->Arg(1000)->Arg(10000);

} // namespace

int main(int argc, char** argv)
{
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
