#include "Presses.h"

#include <wayvane/platform/Platform.h>
#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtView.h>
#include <wayvane/platform/qt/QtWindow.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QHeaderView>
#include <QMenuBar>
#include <QRegion>
#include <QWindow>

#include <algorithm>
#include <map>

namespace roundtrip {

using wayvane::platform::WindowHandle;

namespace {

bool takesPresses(const QWidget& child)
{
  return !child.isWindow() && !child.isHidden() && !child.testAttribute(Qt::WA_TransparentForMouseEvents);
}

QRegion shapeInParent(const QWidget& child)
{
  const QRegion mask = child.mask();
  return mask.isEmpty() ? QRegion(child.geometry()) : mask.translated(child.pos()) & child.geometry();
}

/// The shapes of the children that lie above `below`; of all of them for null.
QRegion childrenAbove(const QWidget& parent, const QWidget* below)
{
  QRegion covered;
  bool isAbove = below == nullptr;
  for (const QObject* object : parent.children()) {
    const auto* child = qobject_cast<const QWidget*>(object);
    if (child && isAbove && takesPresses(*child)) covered += shapeInParent(*child);
    isAbove = isAbove || object == below;
  }
  return covered;
}

/// The part of the widget where a press lands on no other, in its own coordinates.
QRegion freeRegion(const QWidget& widget)
{
  QRegion region = QRegion(widget.rect()) - childrenAbove(widget, nullptr);
  QPoint offset;
  for (const QWidget* w = &widget; !w->isWindow() && w->parentWidget(); w = w->parentWidget()) {
    const QWidget& parent = *w->parentWidget();
    offset += w->pos();
    region &= (QRegion(parent.rect()) - childrenAbove(parent, w)).translated(-offset);
  }
  return region;
}

std::vector<QPoint> pointsToTry(const QWidget& widget)
{
  std::vector<QPoint> points{widget.rect().center()};
  for (const QRect& rect : freeRegion(widget))
    points.push_back(rect.center());
  return points;
}

Press pressAt(const WindowHandle& window, const QWidget& widget, QPoint point)
{
  Press press;
  press.window = window;
  const QPointF inTop = widget.mapTo(widget.window(), QPointF(point) + QPointF(0.5, 0.5));
  press.location = wayvane::qt::windowPointFromWidget(inTop, *widget.window());
  press.hit = window->frameView()->hitTest(press.location);
  return press;
}

/// A press on a widget that the toolkit builds into another one is a press on the other.
bool landsOn(const Press& press, const QWidget& widget)
{
  const QWidget* hit = press.hit ? wayvane::qt::widgetOf(*press.hit) : nullptr;
  return hit && (hit == &widget || hit->isAncestorOf(&widget));
}

// Item views

using Items = std::vector<QModelIndex>;

/// A header is one to the toolkit, but to the user a row of buttons.
const QAbstractItemView* itemView(const QWidget* widget)
{
  return qobject_cast<const QHeaderView*>(widget) ? nullptr : qobject_cast<const QAbstractItemView*>(widget);
}

/// The visible items by column, in the order in which they are met from the top.
std::map<int, Items> visibleItems(const QAbstractItemView& view)
{
  constexpr int kStep = 6;
  std::map<int, Items> columns;
  const QRect area = view.viewport()->rect();
  for (int y = 0; y < area.height(); y += kStep) {
    for (int x = 0; x < area.width(); x += kStep) {
      const QModelIndex index = view.indexAt({x, y});
      if (!index.isValid()) continue;
      Items& items = columns[index.column()];
      if (std::find(items.begin(), items.end(), index) == items.end()) items.push_back(index);
    }
  }
  return columns;
}

void pressItem(const WindowHandle& window, const QAbstractItemView& view, const QModelIndex& index,
               std::vector<Press>& presses)
{
  const QWidget& viewport = *view.viewport();
  const QRect shown = view.visualRect(index) & viewport.rect();
  Press press = pressAt(window, viewport, shown.center());
  if (!landsOn(press, viewport) || view.indexAt(shown.center()) != index) return;
  press.index = index;
  press.itemRect = {viewport.mapToGlobal(shown.topLeft()), shown.size()};
  presses.push_back(std::move(press));
}

void pressBesideItems(const WindowHandle& window, const QAbstractItemView& view, std::vector<Press>& presses)
{
  const QRect area = view.viewport()->rect();
  for (const QPoint point : {area.bottomRight() - QPoint(2, 2), area.bottomLeft() + QPoint(2, -2)}) {
    if (view.indexAt(point).isValid()) continue;
    Press press = pressAt(window, *view.viewport(), point);
    if (!landsOn(press, *view.viewport())) continue;
    presses.push_back(std::move(press));
    return;
  }
}

void pressItems(const WindowHandle& window, const QAbstractItemView& view, std::vector<Press>& presses)
{
  for (const auto& [column, items] : visibleItems(view)) {
    const std::size_t last = items.size() - 1;
    pressItem(window, view, items.front(), presses);
    if (last > 1) pressItem(window, view, items[last / 2], presses);
    if (last > 0) pressItem(window, view, items[last], presses);
  }
  pressBesideItems(window, view, presses);
}

// Widgets

/// A press on a menu bar is no step; the command that is chosen in the end is.
bool opensMenus(const QWidget& widget)
{
  return qobject_cast<const QMenuBar*>(&widget) || widget.objectName() == "qt_menubar_ext_button";
}

void pressWidget(const WindowHandle& window, const QWidget& widget, std::vector<Press>& presses)
{
  for (const QPoint point : pointsToTry(widget)) {
    Press press = pressAt(window, widget, point);
    if (!landsOn(press, widget)) continue;
    presses.push_back(std::move(press));
    return;
  }
}

void pressAll(const WindowHandle& window, const QWidget& widget, std::vector<Press>& presses)
{
  if (!widget.isVisible() || !widget.isEnabled() || wayvane::qt::isOwnWidget(&widget)) return;
  const QAbstractItemView* holder = itemView(widget.parentWidget());
  if (const QAbstractItemView* items = itemView(&widget)) {
    pressItems(window, *items, presses);
  } else if ((!holder || holder->viewport() != &widget) && !opensMenus(widget)) {
    pressWidget(window, widget, presses);
  }
  for (const QObject* child : widget.children())
    if (const auto* w = qobject_cast<const QWidget*>(child); w && !w->isWindow())
      pressAll(window, *w, presses);
}

bool belongsTo(const QWidget* widget, const QWidget& window)
{
  while (widget && widget != &window)
    widget = widget->parentWidget();
  return widget != nullptr;
}

} // namespace

bool takesInput(const QWidget& widget)
{
  const QWidget* modal = QApplication::activeModalWidget();
  const QWidget& window = *widget.window();
  if (!modal || belongsTo(&window, *modal)) return true;
  return modal->windowModality() != Qt::ApplicationModal && !belongsTo(modal, window);
}

std::vector<Press> possiblePresses()
{
  std::vector<Press> presses;
  for (const auto& window : wayvane::platform::Platform::current()->application.orderedWindows()) {
    const QWidget* top = wayvane::qt::widgetOf(*window);
    if (!top || wayvane::qt::isOwnWidget(top) || window->isUtilityPanel()) continue;
    if (takesInput(*top)) pressAll(window, *top, presses);
  }
  return presses;
}

} // namespace roundtrip
