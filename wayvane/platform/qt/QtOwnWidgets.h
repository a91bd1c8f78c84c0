#pragma once

#include <QColor>

class QWidget;

namespace wayvane::qt {

/// Marks a widget as the framework's. One without a parent is deleted when the application object ends, even
/// if its owner forgets it.
void adopt(QWidget& widget);

/// Hides a widget of ours and deletes it on a later turn: it may be in the middle of an event. Null is fine.
void dispose(QWidget* widget);

/// Lets a window of ours be used while the program shows a modal dialog, whichever and however many.
void exemptFromModality(QWidget& window);

/// Whether what is below a window of ours may shine through it; without a compositor it would be black.
[[nodiscard]] bool windowsCanShineThrough();

/// Whether top-level windows of ours must not be of the kind that takes the keyboard: on platforms without a
/// window manager a tool window becomes the active one however it is shown.
[[nodiscard]] bool toolWindowsActivate();

/// The colour of the hairline around a window of ours. Few window managers give a window without a frame a
/// shadow, and over a ground of its own colour it would have no edge.
[[nodiscard]] QColor rimAround(const QColor& background);

} // namespace wayvane::qt
