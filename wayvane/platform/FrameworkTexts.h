#pragma once

#include <wayvane/platform/Localization.h>

namespace wayvane::platform {

/// The framework's own table "Wayvane" in a language, as it came with the library; null for a language that
/// did not. Bare language codes only. The table lives as long as the process. Any thread.
[[nodiscard]] const StringTable* frameworkTable(std::string_view language);

/// One text of that table; what a binding answers with when it is asked for a framework string and has no
/// better one. Nothing when the language or the key is unknown, so that a host may translate the framework
/// into languages it does not speak.
[[nodiscard]] std::optional<std::string> frameworkText(std::string_view language, std::string_view key);

/// The languages that came with the library, sorted.
[[nodiscard]] std::vector<std::string> frameworkLanguages();

} // namespace wayvane::platform
