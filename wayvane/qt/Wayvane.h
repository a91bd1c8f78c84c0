#pragma once

/// What a Qt Widgets program needs to offer guided tours:
///
///     #include <wayvane/qt/Wayvane.h>
///     ...
///     mainWindow.show();
///     wayvane::qt::install();
namespace wayvane::qt {

/// Lets the framework into the program. To be called on the main thread, with the QApplication and the main
/// window in place. A second call changes nothing. False, with a line in the log (category "wayvane"), when
/// there is no QApplication or the thread is another; nothing happens then.
bool install();

} // namespace wayvane::qt
