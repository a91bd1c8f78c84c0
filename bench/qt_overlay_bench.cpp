// What the overlay costs: one frame of a moving hole, one of a pulsing ring and one of an appearing bubble,
// beside a full repaint of the busy window below. The ratios at the end are what counts; they hold on any
// machine.

#include <wayvane/platform/Platform.h>
#include <wayvane/platform/qt/QtOverlayPanel.h>
#include <wayvane/platform/qt/QtPlatform.h>
#include <wayvane/platform/qt/QtWindow.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDockWidget>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTableWidget>
#include <QToolBar>
#include <QTreeWidget>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>

namespace {

using namespace wayvane;
using platform::Animation;
using platform::Color;
using platform::Layer;
using platform::LayerHandle;
using platform::LayerKind;
using platform::Path;
using platform::Rect;

constexpr double kFrame = 1.0 / 60;

/// Time that passes when the benchmark says so.
class Clock final : public platform::MainQueue {
public:
  [[nodiscard]] double now() const override { return time; }

  void async(std::function<void()>) override {}

  void after(double, std::function<void()>) override {}

  double time = 0;
};

QWidget* controls(int rows, int columns)
{
  auto* page = new QWidget;
  auto* grid = new QGridLayout(page);
  grid->setSpacing(2);
  for (int row = 0; row < rows; ++row)
    for (int column = 0; column < columns; ++column) {
      QWidget* control = nullptr;
      switch ((row + column) % 5) {
      case 0:
        control = new QPushButton(QStringLiteral("Button %1.%2").arg(row).arg(column));
        break;
      case 1:
        control = new QLineEdit(QStringLiteral("text"));
        break;
      case 2:
        control = new QCheckBox(QStringLiteral("check"));
        break;
      case 3:
        control = new QLabel(QStringLiteral("label"));
        break;
      default:
        control = new QComboBox;
        break;
      }
      control->setMaximumHeight(24);
      grid->addWidget(control, row, column);
    }
  return page;
}

void fillBusily(QMainWindow& window)
{
  window.menuBar()->setNativeMenuBar(false);
  for (const char* title : {"File", "Edit", "View", "Help"})
    window.menuBar()->addMenu(QString::fromLatin1(title))->addAction(QStringLiteral("Entry"));
  QToolBar* bar = window.addToolBar(QStringLiteral("Main"));
  for (int i = 0; i < 12; ++i)
    bar->addAction(QStringLiteral("Tool %1").arg(i));
  auto* tree = new QTreeWidget;
  for (int i = 0; i < 60; ++i)
    new QTreeWidgetItem(tree, {QStringLiteral("Node %1").arg(i)});
  auto* dock = new QDockWidget(QStringLiteral("Inspector"));
  dock->setWidget(tree);
  window.addDockWidget(Qt::LeftDockWidgetArea, dock);
  auto* table = new QTableWidget(60, 6);
  for (int row = 0; row < 60; ++row)
    for (int column = 0; column < 6; ++column)
      table->setItem(row, column, new QTableWidgetItem(QStringLiteral("r%1 c%2").arg(row).arg(column)));
  auto* center = new QWidget;
  auto* split = new QHBoxLayout(center);
  split->addWidget(table, 2);
  split->addWidget(controls(34, 9), 3);
  window.setCentralWidget(center);
  window.statusBar()->showMessage(QStringLiteral("Ready"));
}

/// The busy window with an overlay as the player builds it.
struct Stage {
  QMainWindow window;
  Clock clock;
  std::unique_ptr<qt::QtOverlayPanel> panel;
  LayerHandle mask = Layer::make(LayerKind::Shape);
  LayerHandle ring = Layer::make(LayerKind::Shape);
  LayerHandle bubble = Layer::make(LayerKind::Shape);

  Stage()
  {
    fillBusily(window);
    window.setGeometry(20, 40, 1600, 1000);
    window.show();
    QCoreApplication::processEvents();
    panel = std::make_unique<qt::QtOverlayPanel>(Rect{}, 10, clock);
    panel->attachToWindow(qt::windowForWidget(&window));
    panel->orderFront();
    addDimming();
    addRing();
    QCoreApplication::processEvents();
  }

  [[nodiscard]] static Path withHole(const Rect& hole)
  {
    Path path;
    path.addRect({0, 0, 1600, 1000});
    path.addRoundedRect(hole, 6);
    return path;
  }

  void addDimming()
  {
    const LayerHandle dim = Layer::make();
    dim->setFrame({0, 0, 1600, 1000});
    dim->setBackgroundColor(Color::white(0, 0.15));
    mask->setFrame(dim->frame());
    mask->setFillRule(platform::FillRule::EvenOdd);
    mask->setFillColor(Color::white(1));
    mask->setPath(withHole({400, 500, 160, 40}));
    dim->setMask(mask);
    panel->contentView().layer()->addSublayer(dim);
  }

  void addRing()
  {
    ring->setFrame({400, 500, 160, 40});
    ring->setFillColor(Color::clear());
    ring->setStrokeColor(Color::systemBlue());
    ring->setLineWidth(2);
    Path outline;
    outline.addRoundedRect(ring->bounds(), 6);
    ring->setPath(outline);
    panel->contentView().layer()->addSublayer(ring);
  }

  void addBubble()
  {
    bubble->setFrame({600, 300, 280, 100});
    bubble->setFillColor(Color::controlBackground());
    bubble->setShadow(platform::Shadow{Color::white(0, 0.3), {0, -2}, 12});
    Path outline;
    outline.addRoundedRect(bubble->bounds(), 10);
    bubble->setPath(outline);
    const LayerHandle text = Layer::make(LayerKind::Text);
    text->setFrame({14, 30, 252, 60});
    text->setText(
        {{{"Click Save to keep the note", platform::Font::system(12), Color::label(), nullptr, {}}}});
    bubble->addSublayer(text);
    panel->contentView().layer()->addSublayer(bubble);
  }

  /// Shows the next moment.
  void step()
  {
    clock.time += kFrame;
    panel->window()->displayIfNeeded();
  }

  void start(const LayerHandle& layer, const Animation& animation)
  {
    layer->addAnimation(animation, "bench");
    clock.time = layer->animationForKey("bench")->beginTime;
  }
};

void fullRepaint(benchmark::State& state)
{
  Stage stage;
  stage.panel.reset();
  QCoreApplication::processEvents();
  for (auto _ : state)
    stage.window.repaint();
}

void movingHole(benchmark::State& state)
{
  Stage stage;
  stage.ring->setHidden(true);
  Animation move;
  move.keyPath = platform::KeyPath::Path;
  move.from = Stage::withHole({400, 500, 160, 40});
  move.to = Stage::withHole({900, 200, 220, 60});
  move.duration = 0.5;
  move.autoreverses = true;
  move.repeatCount = Animation::kForever;
  move.timing = platform::TimingCurve::easeInEaseOut();
  stage.start(stage.mask, move);
  for (auto _ : state)
    stage.step();
}

void ringPulse(benchmark::State& state)
{
  Stage stage;
  Animation pulse;
  pulse.from = 1.0;
  pulse.to = 0.2;
  pulse.duration = 0.9;
  pulse.autoreverses = true;
  pulse.repeatCount = Animation::kForever;
  stage.start(stage.ring, pulse);
  for (auto _ : state)
    stage.step();
}

void appearingBubble(benchmark::State& state)
{
  Stage stage;
  stage.ring->setHidden(true);
  stage.addBubble();
  Animation grow;
  grow.keyPath = platform::KeyPath::Transform;
  grow.from = platform::Transform::translation(42, 15).then(platform::Transform::scale(0.7, 0.7));
  grow.to = platform::Transform();
  grow.duration = 0.5;
  grow.autoreverses = true;
  grow.repeatCount = Animation::kForever;
  stage.start(stage.bubble, grow);
  for (auto _ : state)
    stage.step();
}

BENCHMARK(fullRepaint)->Unit(benchmark::kMillisecond);
BENCHMARK(movingHole)->Unit(benchmark::kMillisecond);
BENCHMARK(ringPulse)->Unit(benchmark::kMillisecond);
BENCHMARK(appearingBubble)->Unit(benchmark::kMillisecond);

class Reporter final : public benchmark::ConsoleReporter {
public:
  void ReportRuns(const std::vector<Run>& runs) override
  {
    for (const Run& run : runs)
      if (run.run_type == Run::RT_Iteration) times[run.benchmark_name()] = run.GetAdjustedCPUTime();
    ConsoleReporter::ReportRuns(runs);
  }

  void printRatios() const
  {
    const auto full = times.find("fullRepaint");
    if (full == times.end()) return;
    for (const auto& [name, time] : times)
      if (name != full->first)
        std::printf("%s: 1/%.0f of a full repaint\n", name.c_str(), full->second / time);
  }

  std::map<std::string, double> times;
};

} // namespace

int main(int argc, char** argv)
{
  benchmark::Initialize(&argc, argv);
  QApplication app(argc, argv);
  if (!qt::installPlatform()) return 1;
  Reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  reporter.printRatios();
  return 0;
}
