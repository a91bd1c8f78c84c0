// What recording costs while the pointer moves over a window of many widgets: describing the element below
// it, and one update of the hover display. Each row is over thousands of positions; the 99th percentile is
// what the author of a guide would feel, against the 16 ms that a frame lasts.

#include <wayvane/model/WVTargetDescriptor.h>
#include <wayvane/platform/qt/QtPlatform.h>
#include <wayvane/platform/qt/QtView.h>
#include <wayvane/platform/qt/QtWindow.h>
#include <wayvane/recording/WVHitTestEvent.h>
#include <wayvane/recording/WVHoverHUD.h>

#include <QApplication>
#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <memory>
#include <random>
#include <vector>

namespace {

using namespace wayvane;
using Milliseconds = std::chrono::duration<double, std::milli>;

constexpr int kPositions = 2500;
constexpr QSize kWindow{1600, 1000};
constexpr int kWidgetsInAFrame = 40;

/// A window full of small fields, labels, buttons and boxes.
struct Page {
  std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
  std::vector<QWidget*> elements;
};

QWidget* makeElement(int number, QWidget* parent, QWidget* before)
{
  switch (number % 4) {
  case 0:
    return new QLabel(QStringLiteral("&Name %1:").arg(number), parent);
  case 1: {
    auto* field = new QLineEdit(parent);
    qobject_cast<QLabel*>(before)->setBuddy(field);
    return field;
  }
  case 2: {
    auto* button = new QPushButton(QStringLiteral("Plan %1").arg(number), parent);
    button->setObjectName(QStringLiteral("planButton%1").arg(number));
    button->setToolTip(QStringLiteral("Plan the tour (Ctrl+P)"));
    return button;
  }
  default:
    return new QCheckBox(QStringLiteral("Shared"), parent);
  }
}

/// In frames of forty, as programs have them, or all beside each other, as no program should.
Page makePage(int widgets, bool inFrames)
{
  Page page;
  page.window->setWindowTitle(QStringLiteral("Tours"));
  page.window->resize(kWindow);
  const int columns = widgets > 1000 ? 160 : 40;
  const QSize cell(kWindow.width() / columns, kWindow.height() * columns / widgets);
  QWidget* parent = page.window.get();
  QWidget* before = nullptr;
  for (int i = 0; i < widgets; ++i) {
    const QPoint place(i % columns * cell.width(), i / columns * cell.height());
    if (inFrames && i % kWidgetsInAFrame == 0) {
      parent = new QFrame(page.window.get());
      parent->setGeometry(QRect(place, QSize(kWidgetsInAFrame * cell.width(), cell.height())));
    }
    before = makeElement(i, parent, before);
    before->setGeometry(QRect(inFrames ? place - parent->pos() : place, cell));
    page.elements.push_back(before);
  }
  page.window->show();
  QApplication::processEvents();
  return page;
}

/// The pointer over a widget, in its middle or a little beside.
struct Position {
  platform::MouseEvent event;
  platform::Point onScreen;
};

Position positionOver(QWidget* element, double beside)
{
  const auto view = qt::viewForWidget(element);
  Position position;
  position.event.type = platform::MouseEvent::Type::MouseMoved;
  position.event.window = view->window();
  position.event.locationInWindow = view->convertRectToWindow(view->bounds()).center();
  position.event.locationInWindow.x += beside;
  position.onScreen = position.event.window->convertPointToScreen(position.event.locationInWindow);
  return position;
}

std::vector<Position> positionsOverAll(const Page& page)
{
  std::mt19937 random(1);
  std::vector<Position> positions;
  while (positions.size() < kPositions)
    positions.push_back(positionOver(page.elements[random() % page.elements.size()], 0));
  return positions;
}

std::vector<Position> positionsOverOne(const Page& page)
{
  std::vector<Position> positions;
  while (positions.size() < kPositions)
    positions.push_back(
        positionOver(page.elements[page.elements.size() / 2], positions.size() % 2 == 0 ? 0 : 1));
  return positions;
}

void measure(const char* what, const std::vector<Position>& positions,
             const std::function<void(const Position&)>& work)
{
  std::vector<double> times;
  for (const Position& position : positions) {
    const auto start = std::chrono::steady_clock::now();
    work(position);
    times.push_back(Milliseconds(std::chrono::steady_clock::now() - start).count());
  }
  std::sort(times.begin(), times.end());
  std::printf("  %-28s median %7.3f ms   99th percentile %7.3f ms   longest %7.3f ms\n", what,
              times[times.size() / 2], times[times.size() * 99 / 100], times.back());
}

void describe(const Position& position)
{
  const auto view = WVHitTestEvent(position.event);
  if (view)
    benchmark::DoNotOptimize(WVTargetDescriptor::descriptorForView(*view, position.event.locationInWindow));
}

/// With the painting that follows.
void hover(const Position& position)
{
  WVHoverHUD::shared().updateForView(WVHitTestEvent(position.event), position.onScreen);
  QApplication::processEvents();
}

void measurePage(int widgets, bool inFrames)
{
  const Page page = makePage(widgets, inFrames);
  std::printf("%d widgets, %s\n", widgets, inFrames ? "in frames of 40" : "all beside each other");
  const auto overAll = positionsOverAll(page);
  measure("capture", overAll, describe);
  measure("hover, other elements", overAll, hover);
  measure("hover, within one element", positionsOverOne(page), hover);
  WVHoverHUD::shared().orderOut();
}

} // namespace

int main(int argc, char** argv)
{
  QApplication application(argc, argv);
  // A platform without stacking order says so whenever the display comes to the front.
  qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
  if (!qt::installPlatform()) return 1;
  for (const bool inFrames : {true, false})
    for (const int widgets : {1000, 10000})
      measurePage(widgets, inFrames);
}
