#pragma once

#include <wayvane/platform/qt/QtView.h>

namespace wayvane::qt {

/// A QGroupBox.
class QtBoxView : public QtView, private platform::Box {
public:
  using QtView::QtView;

protected:
  [[nodiscard]] std::string title() const override;
  [[nodiscard]] QString derivedLabel(const QWidget& widget) const override;
  [[nodiscard]] const void* roleOfKind(platform::ViewKind kind) const override;
};

} // namespace wayvane::qt
