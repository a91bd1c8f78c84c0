#include <wayvane/platform/ViewRoles.h>
#include <wayvane/playback/ScrollIntoView.h>
#include <wayvane/playback/ScrollPlan.h>

#include <memory>
#include <utility>

namespace wayvane {

namespace {

using platform::ViewHandle;

constexpr double kRowScrollDuration = 1.2;
constexpr double kRectScrollDuration = 1.5;
constexpr double kScrollPadding = 40;

using Completion = std::function<void()>;

Completion calledOnce(Completion completion)
{
  return [pending = std::make_shared<Completion>(std::move(completion))] {
    if (const Completion now = std::exchange(*pending, nullptr)) now();
  };
}

/// A table that scrolls by itself, as on some toolkits, is its own scroll view.
ViewHandle enclosingScrollView(const platform::View& view)
{
  if (view.as<platform::TableView>() && view.as<platform::ScrollView>()) return view.handle();
  ViewHandle ancestor = view.superview();
  while (ancestor && !ancestor->as<platform::ScrollView>())
    ancestor = ancestor->superview();
  return ancestor;
}

/// Whether the target is a row of the view, and the row is there.
bool scrollToRow(const platform::View& view, const WVTargetDescriptor& target, Animated animated,
                 const Completion& completion)
{
  const auto* const table = target.tableRow >= 0 ? view.as<platform::TableView>() : nullptr;
  if (!table) return false;
  const int found = target.resolveRowInTable(*table);
  const std::int64_t row = found >= 0 ? found : target.tableRow;
  if (row >= table->numberOfRows()) return false;
  table->scrollRowToVisible(static_cast<int>(row),
                            {animated == Animated::Yes ? kRowScrollDuration : 0, completion});
  return true;
}

void scrollToView(const platform::View& view, const platform::ScrollView& scrollView, Animated animated,
                  const Completion& completion)
{
  const ViewHandle document = scrollView.documentView();
  if (!document) return completion();
  const platform::Rect bounds = view.bounds();
  const platform::Rect rect = view.convertRectToAncestor(bounds, *document);
  const platform::Rect visible = scrollView.documentVisibleRect();
  // A header or a scroller lies in the scroll view and not in its document: nothing brings it nearer.
  const bool isOutsideDocument = rect.isEmpty() && !bounds.isEmpty();
  if (isOutsideDocument || visible.contains(rect)) return completion();

  const platform::Rect padded = rect.grownBy(kScrollPadding);
  if (animated == Animated::Yes)
    scrollView.scrollToOrigin(
        scrollOriginCentering(padded, visible.size(), scrollView.documentBounds().size()),
        {kRectScrollDuration, completion});
  else
    scrollView.scrollToOrigin(scrollOriginRevealing(padded, visible), {0, completion});
}

} // namespace

void scrollIntoView(const ViewHandle& view, const WVTargetDescriptor& target, Animated animated,
                    Completion completion)
{
  const Completion finished = calledOnce(std::move(completion));
  const ViewHandle scrollView = view ? enclosingScrollView(*view) : nullptr;
  if (!scrollView) return finished();
  if (scrollToRow(*view, target, animated, finished)) return;
  scrollToView(*view, *scrollView->as<platform::ScrollView>(), animated, finished);
}

} // namespace wayvane
