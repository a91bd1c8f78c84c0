#pragma once

#include <QString>

class QAction;

namespace wayvane::qt {

/// The name by which the action is known: its property "wv_action", else its object name; empty when the
/// program gave it neither.
[[nodiscard]] QString givenActionName(const QAction& action);
/// The tool tip that the program set; an action without one makes one of its text, which is empty here.
[[nodiscard]] QString givenToolTip(const QAction& action);

} // namespace wayvane::qt
