#include <wayvane/platform/ViewRoles.h>
#include <wayvane/targeting/HierarchyPath.h>
#include <wayvane/targeting/ViewFinding.h>
#include <wayvane/targeting/ViewProperties.h>

namespace wayvane {

using platform::SearchText;
using platform::View;
using platform::ViewHandle;

namespace {

bool sendsAction(const View& view, const SearchText& action)
{
  const auto* control = view.as<platform::Control>();
  return control && control->actionEquals(action);
}

bool isTitled(const View& view, const SearchText& title)
{
  const auto* button = view.as<platform::Button>();
  return (button && button->titleEquals(title)) || view.accessibilityLabelEquals(title);
}

} // namespace

ViewHandle wv_viewWithAccessibilityIdentifier(const View& root, const SearchText& identifier)
{
  return firstView(root, [&](const View& view) { return wv_isIdentifiedBy(view, identifier); });
}

ViewHandle wv_viewOfClass(const View& root, platform::ViewClass viewClass)
{
  return firstView(root, [viewClass](const View& view) { return view.isOfClass(viewClass); });
}

ViewHandle wv_viewOfKind(const View& root, platform::ViewKind kind)
{
  return firstView(root, [kind](const View& view) { return view.isKind(kind); });
}

ViewHandle wv_viewWithAction(const View& root, const SearchText& action)
{
  return firstView(root, [&](const View& view) { return sendsAction(view, action); });
}

ViewHandle wv_viewWithTitle(const View& root, const SearchText& title)
{
  return firstView(root, [&](const View& view) { return isTitled(view, title); });
}

ViewHandle wv_viewAtHierarchyPath(const View& root, std::string_view path)
{
  return HierarchyPath(path).viewBelow(root);
}

void collectViewsWithAction(const View& root, const SearchText& action, std::vector<ViewHandle>& list)
{
  PreOrderWalk([&](const View& view) {
    if (sendsAction(view, action)) list.push_back(view.handle());
    return true;
  }).run(root);
}

} // namespace wayvane
