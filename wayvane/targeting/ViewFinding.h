#pragma once

#include <wayvane/platform/View.h>

#include <algorithm>
#include <string_view>
#include <utility>
#include <vector>

namespace wayvane {

/// Searches of a view and everything below it, in pre-order: the view first, then each subview in order, each
/// with everything below it. The first match wins; null when there is none. Nothing is allocated but the
/// handle of the match. Trees may be of any depth: only the first `kMostNestedVisits` levels are walked on
/// the stack, what lies deeper costs one handle a view. Main thread only.

inline constexpr int kMostNestedVisits = 400;

/// Calls `visitor(const View&)` for each view until it answers false; returns whether it never did. The tree
/// must not be changed meanwhile.
template <class Visitor>
class PreOrderWalk {
public:
  explicit PreOrderWalk(Visitor visitor)
    : visitor_(std::move(visitor))
  {}

  bool run(const platform::View& root) { return visit(root, kMostNestedVisits); }

private:
  bool visit(const platform::View& view, int levelsLeft)
  {
    if (!visitor_(view)) return false;
    if (!view.mayHave({platform::Feature::Subviews})) return true;
    if (levelsLeft == 0) return visitWithoutNesting(view);
    return view.visitSubviews(
        [this, levelsLeft](const platform::View& subview) { return visit(subview, levelsLeft - 1); });
  }

  bool visitWithoutNesting(const platform::View& top)
  {
    std::vector<platform::ViewHandle> pending;
    appendSubviewsReversed(top, pending);
    while (!pending.empty()) {
      const auto view = std::move(pending.back());
      pending.pop_back();
      if (!view) continue;
      if (!visitor_(*view)) return false;
      appendSubviewsReversed(*view, pending);
    }
    return true;
  }

  static void appendSubviewsReversed(const platform::View& view, std::vector<platform::ViewHandle>& list)
  {
    const auto old = static_cast<std::ptrdiff_t>(list.size());
    view.visitSubviews([&list](const platform::View& subview) {
      list.push_back(subview.handle());
      return true;
    });
    std::reverse(list.begin() + old, list.end());
  }

  Visitor visitor_;
};

/// The first view for which `predicate(const View&)` is true.
template <class Predicate>
[[nodiscard]] platform::ViewHandle firstView(const platform::View& root, Predicate predicate)
{
  platform::ViewHandle found;
  PreOrderWalk([&](const platform::View& view) {
    if (!predicate(view)) return true;
    found = view.handle();
    return false;
  }).run(root);
  return found;
}

/// The same, asking only the views that may have one of the features.
template <class Predicate>
[[nodiscard]] platform::ViewHandle firstView(const platform::View& root, platform::Features features,
                                             Predicate predicate)
{
  return firstView(root,
                   [&](const platform::View& view) { return view.mayHave(features) && predicate(view); });
}

/// By `wv_guideIdentifier` or by the accessibility identifier.
[[nodiscard]] platform::ViewHandle wv_viewWithAccessibilityIdentifier(const platform::View& root,
                                                                      const platform::SearchText& identifier);
/// Of the class or of a subclass.
[[nodiscard]] platform::ViewHandle wv_viewOfClass(const platform::View& root, platform::ViewClass viewClass);
[[nodiscard]] platform::ViewHandle wv_viewOfKind(const platform::View& root, platform::ViewKind kind);
/// A control that sends the action.
[[nodiscard]] platform::ViewHandle wv_viewWithAction(const platform::View& root,
                                                     const platform::SearchText& action);
/// A button with that title, or any view with that accessibility label.
[[nodiscard]] platform::ViewHandle wv_viewWithTitle(const platform::View& root,
                                                    const platform::SearchText& title);
/// By its place below `root`; see HierarchyPath.
[[nodiscard]] platform::ViewHandle wv_viewAtHierarchyPath(const platform::View& root, std::string_view path);

/// Every control that sends the action, in pre-order, appended to `list`.
void collectViewsWithAction(const platform::View& root, const platform::SearchText& action,
                            std::vector<platform::ViewHandle>& list);

} // namespace wayvane
