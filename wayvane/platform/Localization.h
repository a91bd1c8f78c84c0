#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wayvane::platform {

/// A string table: key to text.
using StringTable = std::map<std::string, std::string, std::less<>>;

/// Languages and string tables. Main thread only.
class Localization {
public:
  virtual ~Localization() = default;
  /// The bare language code of the current locale ("en", "de"); nothing when it is not known.
  [[nodiscard]] virtual std::optional<std::string> languageCode() const = 0;
  /// The text of `key` in the framework's own table "Wayvane", in the language the program runs in. A binding
  /// may put what the host says in a table of that name before it.
  [[nodiscard]] virtual std::optional<std::string> frameworkString(std::string_view key) const = 0;
  /// The text of `key` in a table of the host's, in the language the program runs in, else in "Base".
  [[nodiscard]] virtual std::optional<std::string> hostString(std::string_view table,
                                                              std::string_view key) const = 0;
  /// The languages in which the host ships tables, in the order of its preference, "Base" not included.
  [[nodiscard]] virtual std::vector<std::string> hostLocalizations() const = 0;
  /// The host's table in one language, or in "Base"; nothing when there is none or it cannot be read.
  [[nodiscard]] virtual std::optional<StringTable> hostTable(std::string_view table,
                                                             std::string_view language) const = 0;
};

} // namespace wayvane::platform
