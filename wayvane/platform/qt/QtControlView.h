#pragma once

#include <wayvane/platform/qt/QtView.h>

namespace wayvane::qt {

/// Anything that sends an action when it is used.
class QtControlView : public QtView, protected platform::Control {
public:
  using QtView::QtView;

protected:
  [[nodiscard]] std::optional<std::string> action() const override;
  [[nodiscard]] bool sendsAction(const platform::SearchText& action) const override;
  /// The name of the action that stands behind the widget; empty when there is none.
  [[nodiscard]] virtual QString actionName(const QWidget& widget) const;
  [[nodiscard]] const void* roleOfKind(platform::ViewKind kind) const override;
};

} // namespace wayvane::qt
