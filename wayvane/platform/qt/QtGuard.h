#pragma once

#include <QLoggingCategory>

#include <exception>
#include <utility>

namespace wayvane::qt {

/// "wayvane": where all lines of the framework go.
Q_DECLARE_LOGGING_CATEGORY(logCategory)
/// Notes an exception that reached the toolkit's doorstep.
void logEscaped(const char* where, const char* what);

/// Calls `work`; what it throws ends here, in the log, because nothing may be thrown through the toolkit.
template <class Callable, class... Args>
void guarded(const char* where, Callable&& work, Args&&... args) noexcept
{
  try {
    std::forward<Callable>(work)(std::forward<Args>(args)...);
  } catch (const std::exception& error) {
    logEscaped(where, error.what());
  } catch (...) {
    logEscaped(where, "unknown exception");
  }
}

} // namespace wayvane::qt
