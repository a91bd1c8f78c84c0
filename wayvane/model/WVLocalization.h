#pragma once

#include <wayvane/model/LocalizationDictionary.h>

#include <optional>
#include <string>
#include <string_view>

namespace wayvane {

/// Chooses the text to show: the one in the current locale's language, else the English one, else `base`.
/// An entry is taken as found, even when it is empty. Only bare language codes are looked up, and the user's
/// list of preferred languages is not asked. Main thread.
[[nodiscard]] std::optional<std::string>
wv_localizedText(const std::optional<LocalizationDictionary>& localizations,
                 const std::optional<std::string>& base);

/// The framework's own text of a key such as "WV.next": from the framework's table "Wayvane", else from the
/// host's table of that name, else the key itself. Main thread.
[[nodiscard]] std::string wv_localized(std::string_view key);

/// As `wv_localized`, with `defaultText` when no table has the key, or a table's text is the key itself.
[[nodiscard]] std::string wv_localizedWithDefault(std::string_view key, std::string_view defaultText);

} // namespace wayvane
