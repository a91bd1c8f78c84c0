#include <wayvane/manager/StringTables.h>
#include <wayvane/platform/Platform.h>

#include <algorithm>

namespace wayvane {
namespace {

using platform::Platform;

/// A clock in a label is a new text every second, and recordings can be long.
constexpr std::size_t kMostRemembered = 10'000;

std::vector<std::string> languagesOfHost(const platform::Localization& localization)
{
  std::vector<std::string> languages = localization.hostLocalizations();
  const auto current = localization.languageCode();
  if (current && std::find(languages.begin(), languages.end(), *current) == languages.end())
    languages.push_back(*current);
  return languages;
}

} // namespace

void StringTables::setNames(std::vector<std::string> names)
{
  names_ = std::move(names);
  keys_.clear();
  localizations_.clear();
  remembered_ = 0;
  readTables();
}

void StringTables::readTables()
{
  const Platform* platform = Platform::current();
  if (names_.empty() || !platform) return;
  std::vector<std::string> languages = languagesOfHost(platform->localization);
  languages.emplace_back("Base");
  for (const std::string& name : names_)
    for (const std::string& language : languages)
      if (const auto table = platform->localization.hostTable(name, language)) add(language, *table);
}

void StringTables::add(const std::string& language, const platform::StringTable& table)
{
  for (const auto& [key, text] : table) {
    if (text.empty()) continue;
    keys_.insert_or_assign(text, key);
    localizations_[key].insert_or_assign(language, text);
  }
}

std::optional<std::string> StringTables::keyForText(std::string_view text)
{
  if (text.empty()) return std::nullopt;
  if (const auto found = keys_.find(text); found != keys_.end()) return found->second;
  if (!isItsOwnKey(text)) return std::nullopt;
  if (remembered_ < kMostRemembered) {
    keys_.emplace(text, text);
    ++remembered_;
  }
  return std::string(text);
}

bool StringTables::isItsOwnKey(std::string_view text) const
{
  const Platform* platform = Platform::current();
  return platform && std::any_of(names_.begin(), names_.end(), [&](const std::string& table) {
           const auto found = platform->localization.hostString(table, text);
           return !found || *found == text;
         });
}

std::optional<LocalizationDictionary> StringTables::localizationsForKey(std::string_view key) const
{
  const auto found = localizations_.find(key);
  if (key.empty() || found == localizations_.end()) return std::nullopt;
  return found->second;
}

std::optional<LocalizationDictionary> StringTables::localizationsForText(std::string_view text)
{
  if (text.empty()) return std::nullopt;
  if (const auto key = keyForText(text)) return localizationsForKey(*key);
  const Platform* platform = Platform::current();
  const auto language = platform ? platform->localization.languageCode() : std::nullopt;
  return LocalizationDictionary{{language.value_or("en"), std::string(text)}};
}

} // namespace wayvane
