#pragma once

namespace wayvane::platform {
struct Platform;
}

namespace wayvane::qt {

/// Makes the Qt binding the platform the framework runs on, once: a second call changes nothing. It stays
/// until the process ends. False, with a line in the log, without a QApplication or on another thread than
/// its own.
bool installPlatform();

} // namespace wayvane::qt
