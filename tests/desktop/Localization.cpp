#include "Localization.h"

#include <algorithm>

namespace wayvane::sim {

using platform::StringTable;

namespace {

std::optional<std::string> textOf(const StringTable& table, std::string_view key)
{
  const auto found = table.find(key);
  return found == table.end() ? std::nullopt : std::optional(found->second);
}

} // namespace

void Localization::setFrameworkTable(const std::string& language, StringTable table)
{
  framework_[language] = std::move(table);
}

void Localization::setHostTable(const std::string& table, const std::string& language, StringTable texts)
{
  host_[{table, language}] = std::move(texts);
  const bool isNew = std::find(languages_.begin(), languages_.end(), language) == languages_.end();
  if (isNew && language != "Base") languages_.push_back(language);
}

void Localization::setHostLocalizations(std::vector<std::string> languages)
{
  languages_ = std::move(languages);
}

std::optional<std::string> Localization::frameworkString(std::string_view key) const
{
  const auto found = framework_.find(language_.value_or("en"));
  return found == framework_.end() ? std::nullopt : textOf(found->second, key);
}

std::optional<std::string> Localization::hostString(std::string_view table, std::string_view key) const
{
  for (const std::string& language : {language_.value_or("en"), std::string("Base")}) {
    const auto found = host_.find({std::string(table), language});
    if (found == host_.end()) continue;
    if (auto text = textOf(found->second, key)) return text;
  }
  return std::nullopt;
}

std::optional<StringTable> Localization::hostTable(std::string_view table, std::string_view language) const
{
  ++tableReads_;
  const auto found = host_.find({std::string(table), std::string(language)});
  return found == host_.end() ? std::nullopt : std::optional(found->second);
}

} // namespace wayvane::sim
