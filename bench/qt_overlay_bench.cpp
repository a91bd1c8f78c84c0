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
#include <QScrollArea>
#include <QSlider>
#include <QSpinBox>
#include <QStatusBar>
#include <QStyle>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolBar>
#include <QTreeWidget>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

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

QWidget* control(int kind, const QString& title)
{
  switch (kind) {
  case 0:
    return new QPushButton(title);
  case 1:
    return new QLineEdit(title);
  case 2:
    return new QCheckBox(title);
  case 3:
    return new QLabel(title);
  case 4:
    return new QSpinBox;
  case 5:
    return new QSlider(Qt::Horizontal);
  default:
    return new QComboBox;
  }
}

QWidget* controls(int rows, int columns)
{
  auto* page = new QWidget;
  auto* grid = new QGridLayout(page);
  grid->setSpacing(4);
  for (int row = 0; row < rows; ++row)
    for (int column = 0; column < columns; ++column) {
      QWidget* made = control((row + column) % 7, QStringLiteral("Item %1.%2").arg(row).arg(column));
      made->setMaximumHeight(24);
      grid->addWidget(made, row, column);
    }
  return page;
}

QWidget* tree()
{
  auto* tree = new QTreeWidget;
  tree->setHeaderLabels({QStringLiteral("Name"), QStringLiteral("Value")});
  for (int i = 0; i < 30; ++i) {
    auto* node = new QTreeWidgetItem(tree, {QStringLiteral("Node %1").arg(i), QString::number(i * 7)});
    for (int leaf = 0; leaf < 3; ++leaf)
      new QTreeWidgetItem(node, {QStringLiteral("Leaf %1").arg(leaf), QStringLiteral("x")});
    node->setExpanded(true);
  }
  return tree;
}

QWidget* table()
{
  auto* table = new QTableWidget(200, 8);
  for (int row = 0; row < table->rowCount(); ++row)
    for (int column = 0; column < table->columnCount(); ++column)
      table->setItem(row, column, new QTableWidgetItem(QStringLiteral("r%1 c%2").arg(row).arg(column)));
  return table;
}

void fillBusily(QMainWindow& window)
{
  window.menuBar()->setNativeMenuBar(false);
  for (const char* title : {"File", "Edit", "View", "Help"})
    window.menuBar()->addMenu(QString::fromLatin1(title))->addAction(QStringLiteral("Entry"));
  QToolBar* bar = window.addToolBar(QStringLiteral("Main"));
  for (int i = 0; i < 12; ++i)
    bar->addAction(window.style()->standardIcon(QStyle::SP_DirHomeIcon), QStringLiteral("Tool %1").arg(i));
  auto* dock = new QDockWidget(QStringLiteral("Inspector"));
  dock->setWidget(tree());
  window.addDockWidget(Qt::LeftDockWidgetArea, dock);
  auto* tabs = new QTabWidget;
  tabs->addTab(table(), QStringLiteral("Table"));
  auto* form = new QScrollArea;
  form->setWidget(controls(40, 4));
  form->setWidgetResizable(true);
  auto* center = new QWidget;
  auto* split = new QHBoxLayout(center);
  split->addWidget(tabs, 2);
  split->addWidget(form, 2);
  split->addWidget(controls(34, 6), 3);
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
  /// Around a button in the middle of the window, y up.
  Rect target;

  Stage()
  {
    fillBusily(window);
    window.setGeometry(20, 40, 1600, 1000);
    window.show();
    QCoreApplication::processEvents();
    panel = std::make_unique<qt::QtOverlayPanel>(Rect{}, 10, clock);
    panel->attachToWindow(qt::windowForWidget(&window));
    panel->orderFront();
    target = aroundAButton();
    addDimming();
    addRing();
    QCoreApplication::processEvents();
  }

  [[nodiscard]] Rect aroundAButton() const
  {
    const QList<QPushButton*> buttons = window.findChildren<QPushButton*>();
    const QPushButton* button = buttons.at(buttons.size() / 2);
    const QPoint corner = button->mapTo(&window, QPoint());
    return Rect{double(corner.x()), double(1000 - corner.y() - button->height()), double(button->width()),
                double(button->height())}
        .grownBy(8);
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
    mask->setPath(withHole(target));
    dim->setMask(mask);
    panel->contentView().layer()->addSublayer(dim);
  }

  void addRing()
  {
    ring->setFrame(target);
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
  move.from = Stage::withHole(stage.target);
  move.to = Stage::withHole({300, 200, 220, 60});
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

BENCHMARK(fullRepaint)->Unit(benchmark::kMillisecond)->MinTime(0.3)->Repetitions(7);
BENCHMARK(movingHole)->Unit(benchmark::kMillisecond)->MinTime(0.3)->Repetitions(7);
BENCHMARK(ringPulse)->Unit(benchmark::kMillisecond)->MinTime(0.3)->Repetitions(7);
BENCHMARK(appearingBubble)->Unit(benchmark::kMillisecond)->MinTime(0.3)->Repetitions(7);

class Reporter final : public benchmark::ConsoleReporter {
public:
  void ReportRuns(const std::vector<Run>& runs) override
  {
    for (const Run& run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      // Of the repetitions the one that was least disturbed by others on the machine.
      const auto [known, isFirst] = times.try_emplace(run.run_name.function_name, run.GetAdjustedRealTime());
      if (!isFirst) known->second = std::min(known->second, run.GetAdjustedRealTime());
    }
    ConsoleReporter::ReportRuns(runs);
  }

  void printRatios() const
  {
    const auto full = times.find("fullRepaint");
    if (full == times.end()) return;
    for (const auto& [name, time] : times)
      if (name != full->first)
        std::printf("%s: %.3f ms, 1/%.0f of a full repaint (%.2f ms)\n", name.c_str(), time,
                    full->second / time, full->second);
  }

  std::map<std::string, double> times;
};

} // namespace

int main(int argc, char** argv)
{
  std::vector<char*> arguments(argv, argv + argc);
  // All of them in turns, so that a busy minute disturbs all alike.
  std::string inTurns = "--benchmark_enable_random_interleaving=true";
  arguments.push_back(inTurns.data());
  int count = static_cast<int>(arguments.size());
  benchmark::Initialize(&count, arguments.data());
  QApplication app(argc, argv);
  if (!qt::installPlatform()) return 1;
  Reporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  reporter.printRatios();
  return 0;
}
