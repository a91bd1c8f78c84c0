#pragma once

#include <wayvane/platform/Accessibility.h>

#include <QWidget>

namespace wayvane::qt {

/// Stands where a drawn message is and tells assistive technology what it says: an alert with the title as
/// its name, the message as its description and the counter as its value. It shows nothing itself.
class QtAccessibleAlert final : public QWidget {
  Q_OBJECT
public:
  /// `parent` is the overlay over which the message is drawn.
  QtAccessibleAlert(const platform::AccessibleAlert& alert, QWidget& parent);

  /// Tells that an alert appeared.
  void announce();

  [[nodiscard]] const platform::AccessibleAlert& alert() const { return alert_; }

private:
  platform::AccessibleAlert alert_;
};

} // namespace wayvane::qt
