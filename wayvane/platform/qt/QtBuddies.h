#pragma once

#include <QString>

class QLabel;
class QWidget;

namespace wayvane::qt {

/// The text that a label shows: without markup, and without mnemonic where the label has a buddy.
[[nodiscard]] QString shownText(const QLabel& label);
/// The text of the label whose buddy the widget is, less a colon at its end; empty when none of the labels
/// beside the widget has it as its buddy.
[[nodiscard]] QString buddyText(const QWidget& widget);

} // namespace wayvane::qt
