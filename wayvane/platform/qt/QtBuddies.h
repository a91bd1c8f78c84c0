#pragma once

#include <wayvane/platform/SearchText.h>

#include <QString>

#include <cstdint>

class QLabel;
class QWidget;

namespace wayvane::qt {

/// The text that a label shows: without markup, and without mnemonic where the label has a buddy.
[[nodiscard]] QString shownText(const QLabel& label);
/// The text of the label whose buddy the widget is, less a colon at its end; empty when none of the labels
/// beside the widget has it as its buddy.
[[nodiscard]] QString buddyText(const QWidget& widget);
/// Whether it is that text, which is not empty.
[[nodiscard]] bool buddyTextEquals(const QWidget& widget, const platform::SearchText& text);

namespace detail {

extern std::uint64_t buddyMemory;

} // namespace detail

/// Which label is whose is found out for all labels beside a widget at once, and remembered during a walk; a
/// label that goes meanwhile is none. Whoever holds a handle may come after any change, so a question to one
/// ends what is remembered.
inline void forgetBuddies()
{
  ++detail::buddyMemory;
}

} // namespace wayvane::qt
