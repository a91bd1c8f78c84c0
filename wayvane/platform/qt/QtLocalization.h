#pragma once

#include <wayvane/platform/Localization.h>

#include <QString>

namespace wayvane::qt {

/// Languages and texts of a Qt program. A text in the language the program runs in comes from its installed
/// translators, where the table's name is the context and the key the source text; a table of one language
/// comes from files in its translation folders: `<table>_<language>.ts`, or
/// `<language>.lproj/<table>.strings`.
///
/// The folders are those of the application object's property "wv_translationFolders" (a string list), else
/// ":/translations", ":/i18n" and "translations" beside the program.
class QtLocalization final : public platform::Localization {
public:
  [[nodiscard]] std::optional<std::string> languageCode() const override;
  [[nodiscard]] std::optional<std::string> frameworkString(std::string_view key) const override;
  [[nodiscard]] std::optional<std::string> hostString(std::string_view table,
                                                      std::string_view key) const override;
  [[nodiscard]] std::vector<std::string> hostLocalizations() const override;
  [[nodiscard]] std::optional<platform::StringTable> hostTable(std::string_view table,
                                                               std::string_view language) const override;
};

} // namespace wayvane::qt
