#pragma once

#include <wayvane/platform/qt/QtControlView.h>

class QTabBar;

namespace wayvane::qt {

/// A QTabBar.
class QtSegmentedView : public QtControlView, private platform::SegmentedControl {
public:
  using QtControlView::QtControlView;

protected:
  [[nodiscard]] int selectedSegment() const override;
  [[nodiscard]] int segmentCount() const override;
  [[nodiscard]] std::optional<std::string> labelForSegment(int segment) const override;
  [[nodiscard]] const void* roleOfKind(platform::ViewKind kind) const override;

private:
  [[nodiscard]] const QTabBar* bar() const;
};

} // namespace wayvane::qt
