#include <wayvane/platform/EmbeddedTexts.h>
#include <wayvane/platform/FrameworkTexts.h>
#include <wayvane/platform/StringsFile.h>

namespace wayvane::platform {
namespace {

using Tables = std::map<std::string, StringTable, std::less<>>;

const Tables& tables()
{
  // Never destroyed: texts may be asked for until the process is gone.
  static const Tables& all = *[] {
    auto* read = new Tables;
    for (const EmbeddedTable& table : embeddedTables())
      if (auto texts = stringTableFromStringsFile(table.contents))
        read->emplace(std::string(table.language), std::move(*texts));
    return read;
  }();
  return all;
}

} // namespace

const StringTable* frameworkTable(std::string_view language)
{
  const auto found = tables().find(language);
  return found == tables().end() ? nullptr : &found->second;
}

std::optional<std::string> frameworkText(std::string_view language, std::string_view key)
{
  const StringTable* table = frameworkTable(language);
  if (!table) return std::nullopt;
  const auto found = table->find(key);
  return found == table->end() ? std::nullopt : std::optional(found->second);
}

std::vector<std::string> frameworkLanguages()
{
  std::vector<std::string> languages;
  for (const auto& table : tables())
    languages.push_back(table.first);
  return languages;
}

} // namespace wayvane::platform
