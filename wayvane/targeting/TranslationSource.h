#pragma once

#include <wayvane/model/LocalizationDictionary.h>

#include <optional>
#include <string_view>

namespace wayvane {

/// Knows the host's string tables: from a text as it is shown now to the same text in every language. The
/// guide manager is one; targeting only asks. Main thread only.
class TranslationSource {
public:
  TranslationSource() = default;
  TranslationSource(const TranslationSource&) = delete;
  TranslationSource& operator=(const TranslationSource&) = delete;
  /// A source that dies while it is the current one leaves none behind.
  virtual ~TranslationSource();

  /// The text in each language the host provides, by language code; nothing when no table has it.
  [[nodiscard]] virtual std::optional<LocalizationDictionary>
  allLocalizationsForString(std::string_view text) const = 0;

  /// The source in use, or null: then no text has translations.
  [[nodiscard]] static TranslationSource* current();
  /// Borrows the source; null for none.
  static void setCurrent(TranslationSource* source);

  /// What the current source says, or nothing.
  [[nodiscard]] static std::optional<LocalizationDictionary> translationsOf(std::string_view text);
};

} // namespace wayvane
