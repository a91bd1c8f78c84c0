#include "RoundTrip.h"

#include "Clues.h"
#include "Presses.h"

#include <wayvane/model/WVGuide.h>
#include <wayvane/platform/ViewRoles.h>
#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtView.h>

#include <QStringList>

#include <algorithm>
#include <cmath>

namespace roundtrip {

using wayvane::WVTargetDescriptor;
using wayvane::platform::TableView;
using wayvane::platform::ViewHandle;
using wayvane::qt::toQString;

namespace {

struct Element {
  /// The same for the same element in every walk.
  std::size_t number = 0;
  Press press;
  WVTargetDescriptor target;
  /// What the target describes.
  ViewHandle view;
  bool isItem = false;
};

// The view that a press into a table's cell means lies below the one that was hit.
ViewHandle innermost(const Press& press)
{
  const auto* table = press.hit->as<TableView>();
  if (!table) return press.hit;
  const auto point = press.hit->convertPointFromWindow(press.location);
  const auto cell = table->viewAtColumnRow(table->columnAtPoint(point), table->rowAtPoint(point),
                                           wayvane::platform::MakeIfNecessary::No);
  if (!cell) return press.hit;
  const auto hit = cell->hitTest(press.location);
  return hit ? hit : cell;
}

// Capturing tells no view, only clues. But all views from the one that was pressed up to the one that was
// meant are described alike, and the next above is not.
ViewHandle describedView(const Press& press, const WVTargetDescriptor& target)
{
  ViewHandle described;
  for (auto view = innermost(press); view; view = view->superview()) {
    if (WVTargetDescriptor::descriptorForView(*view).hierarchyPath != target.hierarchyPath) break;
    described = view;
  }
  return described;
}

bool isSameElement(const Element& a, const Element& b)
{
  return isSameView(a.view, b.view) && a.isItem == b.isItem && (!a.isItem || a.press.index == b.press.index);
}

std::size_t numberOf(const Element& element)
{
  static std::vector<Element> known;
  const auto same = std::find_if(known.begin(), known.end(),
                                 [&](const Element& other) { return isSameElement(element, other); });
  const auto number = static_cast<std::size_t>(same - known.begin());
  if (same == known.end()) known.push_back(element);
  return number;
}

std::vector<Element> reachableElements()
{
  std::vector<Element> elements;
  for (const Press& press : possiblePresses()) {
    Element element{0, press, WVTargetDescriptor::descriptorForView(*press.hit, press.location), nullptr};
    element.view = describedView(press, element.target);
    element.isItem = press.index.isValid() && element.view && element.view->as<TableView>();
    element.number = numberOf(element);
    const bool isKnown = std::any_of(elements.begin(), elements.end(),
                                     [&](const Element& other) { return element.number == other.number; });
    if (!isKnown) elements.push_back(std::move(element));
  }
  return elements;
}

// Resolution

std::vector<WVTargetDescriptor> targetsIn(const std::string& file)
{
  std::vector<WVTargetDescriptor> targets;
  const auto guide = wayvane::WVGuide::guideWithContentsOfURL(file);
  for (std::size_t i = 0; guide && i < guide->steps.size(); ++i)
    targets.push_back(guide->steps[i].target);
  return targets;
}

std::vector<WVTargetDescriptor> throughFile(const std::vector<Element>& elements, const std::string& file)
{
  wayvane::WVGuide guide("Round trip");
  for (const Element& element : elements)
    guide.steps.push_back(wayvane::WVStep::stepWithTarget(element.target, "Click here"));
  if (!guide.writeToURL(file)) return {};
  return targetsIn(file);
}

// Of a drawn item playback shows the rectangle, so that is what has to be right.
bool isItemsRect(const WVTargetDescriptor& target, const Element& element)
{
  const QRectF found = wayvane::qt::globalFromScreenRect(target.resolvedScreenRect());
  const QRectF wanted(element.press.itemRect);
  const auto isNear = [](double a, double b) { return std::abs(a - b) <= 1; };
  return isNear(found.left(), wanted.left()) && isNear(found.top(), wanted.top()) &&
         isNear(found.right(), wanted.right()) && isNear(found.bottom(), wanted.bottom());
}

QString outcome(const WVTargetDescriptor& target, const ViewHandle& found, const Element& element)
{
  if (!found) return "none";
  if (!isSameView(found, element.view)) return "other";
  return !element.isItem || isItemsRect(target, element) ? "same" : "other";
}

QString outcome(const WVTargetDescriptor& target, const Element& element)
{
  return outcome(target, target.resolveInWindow(nullptr), element);
}

int placeAmongSiblings(const QWidget& widget)
{
  const QWidget* parent = widget.parentWidget();
  const auto siblings =
      parent ? parent->findChildren<const QWidget*>(Qt::FindDirectChildrenOnly) : QList<const QWidget*>();
  return static_cast<int>(siblings.indexOf(&widget));
}

QString pathOf(const ViewHandle& view)
{
  QStringList parts;
  const QWidget* w = view ? wayvane::qt::widgetOf(*view) : nullptr;
  for (; w; w = w->isWindow() ? nullptr : w->parentWidget())
    parts.prepend(QString("%1#%2[%3]")
                      .arg(w->metaObject()->className(), w->objectName())
                      .arg(w->isWindow() ? 0 : placeAmongSiblings(*w)));
  return parts.join("/");
}

// The same for the same element in every run of the program: its place among all widgets, and the rectangle
// that playback shows.
QString identity(const ViewHandle& view, const QRectF& global)
{
  const QWidget* widget = view ? wayvane::qt::widgetOf(*view) : nullptr;
  if (!widget) return {};
  const QRect rect = global.translated(-QPointF(widget->window()->mapToGlobal(QPoint()))).toRect();
  return QString("%1 at %2,%3 %4x%5")
      .arg(pathOf(view))
      .arg(rect.x())
      .arg(rect.y())
      .arg(rect.width())
      .arg(rect.height());
}

QRectF rectOf(const Element& element)
{
  if (element.isItem || !element.view) return QRectF(element.press.itemRect);
  const auto inWindow = element.view->convertRectToWindow(element.view->bounds());
  return wayvane::qt::globalFromScreenRect(element.press.window->convertRectToScreen(inWindow));
}

QJsonObject report(const Element& element, const WVTargetDescriptor& target)
{
  const ViewHandle found = target.resolveInWindow(nullptr);
  const WVTargetDescriptor unnamed = withoutIdentifiers(target);
  return {{"number", static_cast<qint64>(element.number)},
          {"element", identity(element.view, rectOf(element))},
          {"place", toQString(target.hierarchyPath.value_or(""))},
          {"window", toQString(target.windowTitle.value_or(""))},
          {"described", toQString(target.displayDescription())},
          {"item", element.isItem},
          {"outcome", outcome(target, found, element)},
          {"clue", found ? toQString(decidingClue(target, found->window())) : QString("none")},
          {"found", pathOf(found)},
          {"withoutIdentifiers", outcome(unnamed, element)},
          {"withoutPlace", outcome(withoutPlace(unnamed), element)}};
}

} // namespace

QList<QJsonObject> roundTrip(const std::string& guideFile)
{
  const auto elements = reachableElements();
  const auto targets = throughFile(elements, guideFile);
  QList<QJsonObject> reports;
  for (std::size_t i = 0; i < elements.size(); ++i)
    reports.push_back(report(elements[i], i < targets.size() ? targets[i] : WVTargetDescriptor()));
  return reports;
}

QList<QJsonObject> replay(const std::string& guideFile)
{
  QList<QJsonObject> reports;
  for (const auto& target : targetsIn(guideFile)) {
    const QRectF rect = wayvane::qt::globalFromScreenRect(target.resolvedScreenRect());
    reports.push_back({{"led to", identity(target.resolveInWindow(nullptr), rect)}});
  }
  return reports;
}

} // namespace roundtrip
