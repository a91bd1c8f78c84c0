#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtSegmentedView.h>

#include <QTabBar>

namespace wayvane::qt {

using platform::ViewKind;

const QTabBar* QtSegmentedView::bar() const
{
  return static_cast<const QTabBar*>(widget());
}

int QtSegmentedView::selectedSegment() const
{
  const QTabBar* b = bar();
  return b ? b->currentIndex() : -1;
}

int QtSegmentedView::segmentCount() const
{
  const QTabBar* b = bar();
  return b ? b->count() : 0;
}

std::optional<std::string> QtSegmentedView::labelForSegment(int segment) const
{
  const QTabBar* b = bar();
  return b ? toOptional(withoutMnemonic(b->tabText(segment))) : std::nullopt;
}

const void* QtSegmentedView::roleOfKind(ViewKind kind) const
{
  if (kind == ViewKind::SegmentedControl) return static_cast<const platform::SegmentedControl*>(this);
  return QtControlView::roleOfKind(kind);
}

} // namespace wayvane::qt
