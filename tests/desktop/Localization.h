#pragma once

#include <wayvane/platform/Localization.h>

namespace wayvane::sim {

/// Languages and tables in memory. The program runs in `language`; without one, in "en".
class Localization : public platform::Localization {
public:
  void setLanguage(std::optional<std::string> language) { language_ = std::move(language); }

  void setFrameworkTable(const std::string& language, platform::StringTable table);
  /// Also makes the language one the host ships, after those before it ("Base" excepted).
  void setHostTable(const std::string& table, const std::string& language, platform::StringTable texts);
  void setHostLocalizations(std::vector<std::string> languages);

  /// How often a whole table was read.
  [[nodiscard]] int tableReads() const { return tableReads_; }

  [[nodiscard]] std::optional<std::string> languageCode() const override { return language_; }

  [[nodiscard]] std::optional<std::string> frameworkString(std::string_view key) const override;
  [[nodiscard]] std::optional<std::string> hostString(std::string_view table,
                                                      std::string_view key) const override;

  [[nodiscard]] std::vector<std::string> hostLocalizations() const override { return languages_; }

  [[nodiscard]] std::optional<platform::StringTable> hostTable(std::string_view table,
                                                               std::string_view language) const override;

private:
  std::optional<std::string> language_ = "en";
  std::map<std::string, platform::StringTable> framework_;
  std::map<std::pair<std::string, std::string>, platform::StringTable> host_;
  std::vector<std::string> languages_;
  mutable int tableReads_ = 0;
};

} // namespace wayvane::sim
