#pragma once

#include <wayvane/platform/qt/QtView.h>

class QScrollArea;

namespace wayvane::qt {

/// A QScrollArea. Its document is the widget in it.
class QtScrollView : public QtView, private platform::ScrollView {
public:
  using QtView::QtView;

protected:
  [[nodiscard]] platform::ViewHandle documentView() const override;
  [[nodiscard]] platform::Rect documentVisibleRect() const override;
  [[nodiscard]] platform::Rect documentBounds() const override;
  void scrollToOrigin(platform::Point origin, platform::ScrollAnimation animation) const override;
  [[nodiscard]] const void* roleOfKind(platform::ViewKind kind) const override;

private:
  [[nodiscard]] QScrollArea* area() const;
  /// Null when the area is empty, or gone.
  [[nodiscard]] QWidget* document() const;
};

} // namespace wayvane::qt
