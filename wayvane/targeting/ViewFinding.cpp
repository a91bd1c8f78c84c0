#include <wayvane/targeting/HierarchyPath.h>
#include <wayvane/targeting/ViewFinding.h>
#include <wayvane/targeting/ViewProperties.h>

namespace wayvane {

using platform::Feature;
using platform::SearchText;
using platform::View;
using platform::ViewHandle;

ViewHandle wv_viewWithAccessibilityIdentifier(const View& root, const SearchText& identifier)
{
  const IdentifierQuery query(identifier);
  return firstView(root, query.features(), [&](const View& view) { return query.matches(view); });
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
  return firstView(root, {Feature::Action}, [&](const View& view) { return view.sendsAction(action); });
}

ViewHandle wv_viewWithTitle(const View& root, const SearchText& title)
{
  return firstView(root, {Feature::TitleOrLabel}, [&](const View& view) { return view.isTitled(title); });
}

ViewHandle wv_viewAtHierarchyPath(const View& root, std::string_view path)
{
  return HierarchyPath(path).viewBelow(root);
}

void collectViewsWithAction(const View& root, const SearchText& action, std::vector<ViewHandle>& list)
{
  PreOrderWalk([&](const View& view) {
    if (view.mayHave({Feature::Action}) && view.sendsAction(action)) list.push_back(view.handle());
    return true;
  }).run(root);
}

} // namespace wayvane
