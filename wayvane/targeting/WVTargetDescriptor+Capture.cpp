#include <wayvane/model/WVTargetDescriptor.h>
#include <wayvane/platform/ViewRoles.h>
#include <wayvane/targeting/CaptureClues.h>
#include <wayvane/targeting/TranslationSource.h>
#include <wayvane/targeting/ViewProperties.h>

#include <algorithm>
#include <array>

namespace wayvane {

using capture::clue;
using platform::View;
using platform::ViewHandle;
using platform::ViewKind;

namespace {

constexpr std::array<std::string_view, 11> kBindingNames = {
    "value",   "selectedIndex", "selectedObject", "selectedTag", "contentValues", "contentObjects",
    "content", "title",         "image",          "enabled",     "hidden"};

ViewHandle contentViewAround(const View& view)
{
  const auto window = view.window();
  return window ? window->contentView() : nullptr;
}

bool isNamed(const View& view)
{
  const auto identifier = wv_guideIdentifier(view);
  return WVIsMeaningfulIdentifier(identifier ? identifier : view.identifier());
}

bool isElementOfItsOwn(const View& view)
{
  for (const auto kind :
       {ViewKind::Control, ViewKind::TableCellView, ViewKind::TableRowView, ViewKind::Text}) {
    if (view.isKind(kind)) return true;
  }
  return view.isOfHostClass() || isNamed(view) || !view.toolTip().value_or("").empty();
}

// The closest view around a press that means something to the user. Where none does, the view below the
// press tells more than the last one that was asked.
ViewHandle meaningfulViewForView(const ViewHandle& pressed)
{
  const auto content = pressed ? contentViewAround(*pressed) : nullptr;
  for (auto view = pressed; view && !isSameView(view, content); view = view->superview()) {
    if (isElementOfItsOwn(*view)) return view;
  }
  return pressed;
}

// A press into a cell means the cell, except on a button in it.
ViewHandle promotedToCell(const ViewHandle& element)
{
  if (!element) return element;
  for (auto above = element->superview(); above; above = above->superview()) {
    if (above->isKind(ViewKind::TableCellView)) return element->isKind(ViewKind::Button) ? element : above;
    if (above->isKind(ViewKind::TableView)) break;
  }
  return element;
}

std::int64_t indexAmongSiblings(const View& view, const View& superview)
{
  std::int64_t before = 0;
  const auto viewClass = view.viewClass();
  const bool wentPast = superview.visitSubviews([&](const View& sibling) {
    if (sibling.isSame(view)) return false;
    if (sibling.isOfClass(viewClass)) ++before;
    return true;
  });
  return wentPast ? 0 : before;
}

std::string joinedFromLast(const std::vector<std::string>& components)
{
  std::string path;
  std::for_each(components.rbegin(), components.rend(), [&path](const std::string& component) {
    if (!path.empty()) path += '/';
    path += component;
  });
  return path;
}

std::string hierarchyPathForView(const ViewHandle& element)
{
  std::vector<std::string> components;
  const auto content = contentViewAround(*element);
  for (auto view = element; view && !isSameView(view, content);) {
    auto superview = view->superview();
    auto component = view->className();
    if (superview) component += "[" + std::to_string(indexAmongSiblings(*view, *superview)) + "]";
    components.push_back(std::move(component));
    view = std::move(superview);
  }
  return components.empty() ? element->className() : joinedFromLast(components);
}

std::optional<std::string> bindingInfoForView(const View& view)
{
  for (const auto name : kBindingNames) {
    const auto keyPath = view.observedKeyPathForBinding(name);
    if (keyPath && !keyPath->empty()) return std::string(name) + ":" + *keyPath;
  }
  return std::nullopt;
}

void describeView(const ViewHandle& element, WVTargetDescriptor& descriptor)
{
  const View& view = *element;
  const auto window = view.window();
  auto identifier = wv_guideIdentifier(view);
  descriptor.accessibilityIdentifier =
      clue(identifier ? std::move(identifier) : view.accessibilityIdentifier());
  descriptor.className = clue(view.className());
  if (window) descriptor.windowTitle = clue(window->title());
  descriptor.hierarchyPath = clue(hierarchyPathForView(element));
  descriptor.title = clue(wv_localizedTitle(view));
  descriptor.titleLocalizations = clue(wv_titleLocalizations(view));
  descriptor.toolTip = clue(wv_localizedToolTip(view));
  descriptor.toolTipLocalizations = clue(wv_toolTipLocalizations(view));
  descriptor.action = clue(wv_actionString(view));
  descriptor.bindingInfo = clue(bindingInfoForView(view));
}

bool isWithin(ViewHandle view, const ViewHandle& ancestor)
{
  while (view && !isSameView(view, ancestor))
    view = view->superview();
  return view != nullptr;
}

void describeToolbarItem(const platform::ToolbarItem& item, WVTargetDescriptor& descriptor)
{
  descriptor.toolbarItemIdentifier = clue(item.itemIdentifier);
  if (!descriptor.title) {
    descriptor.title = clue(item.label);
    if (descriptor.title && !descriptor.titleLocalizations) {
      descriptor.titleLocalizations = clue(TranslationSource::translationsOf(*descriptor.title));
    }
  }
  if (descriptor.toolTip) return;
  descriptor.toolTip = clue(item.toolTip);
  if (!descriptor.toolTip) return;
  descriptor.toolTipLocalizations = clue(TranslationSource::translationsOf(*descriptor.toolTip));
}

void describeToolbarItemAround(const ViewHandle& element, WVTargetDescriptor& descriptor)
{
  const auto window = element->window();
  if (!window) return;
  for (const auto& item : window->toolbarItems()) {
    if (!item.view || !isWithin(element, item.view)) continue;
    describeToolbarItem(item, descriptor);
    return;
  }
}

WVTargetDescriptor descriptorFor(const View& view, const std::optional<platform::Point>& location)
{
  WVTargetDescriptor descriptor;
  auto element = view.handle();
  if (!element) return descriptor;
  if (location) element = capture::viewBelowPress(element, *location);
  element = promotedToCell(meaningfulViewForView(element));
  describeView(element, descriptor);
  describeToolbarItemAround(element, descriptor);
  capture::describeRowOfView(element, descriptor);
  const bool isDrawnRow = descriptor.tableRow < 0 && element->isKind(ViewKind::TableView);
  if (isDrawnRow && location) capture::describeDrawnCell(*element, *location, descriptor);
  return descriptor;
}

} // namespace

WVTargetDescriptor WVTargetDescriptor::descriptorForView(const View& view)
{
  return descriptorFor(view, std::nullopt);
}

WVTargetDescriptor WVTargetDescriptor::descriptorForView(const View& view, platform::Point clickLocation)
{
  return descriptorFor(view, clickLocation);
}

} // namespace wayvane
