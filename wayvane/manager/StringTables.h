#pragma once

#include <wayvane/model/LocalizationDictionary.h>
#include <wayvane/platform/Localization.h>

#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace wayvane {

/// What the host's string tables say in every language, read once, so that a text seen on the screen leads to
/// its translations. Main thread only.
class StringTables {
public:
  [[nodiscard]] const std::vector<std::string>& names() const { return names_; }

  /// Forgets everything and reads these tables.
  void setNames(std::vector<std::string> names);

  /// The key whose text it is in any language. Where several have the text, the last that was read: base
  /// after the languages, later tables after earlier ones. A text that no table has is its own key as soon as
  /// there is a table at all.
  [[nodiscard]] std::optional<std::string> keyForText(std::string_view text);
  /// By language code, "Base" included; nothing for an unknown key.
  [[nodiscard]] std::optional<LocalizationDictionary> localizationsForKey(std::string_view key) const;
  /// Nothing for an empty text and for one that no table has; without any tables, the text itself in the
  /// current language.
  [[nodiscard]] std::optional<LocalizationDictionary> localizationsForText(std::string_view text);

private:
  struct Hash {
    using is_transparent = void;

    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>()(text); }
  };

  template <class Value>
  using Map = std::unordered_map<std::string, Value, Hash, std::equal_to<>>;

  void readTables();
  void add(const std::string& language, const platform::StringTable& table);
  [[nodiscard]] bool isItsOwnKey(std::string_view text) const;

  std::vector<std::string> names_;
  Map<std::string> keys_;
  Map<LocalizationDictionary> localizations_;
  /// How many of the texts in `keys_` were not read but asked for.
  std::size_t remembered_ = 0;
};

} // namespace wayvane
