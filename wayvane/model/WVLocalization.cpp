#include <wayvane/model/WVLocalization.h>
#include <wayvane/platform/Platform.h>

namespace wayvane {

using platform::Platform;

std::optional<std::string> wv_localizedText(const std::optional<LocalizationDictionary>& localizations,
                                            const std::optional<std::string>& base)
{
  if (!localizations || localizations->empty()) return base;
  if (const Platform* platform = Platform::current())
    if (const auto language = platform->localization.languageCode())
      if (const auto found = localizations->find(*language); found != localizations->end())
        return found->second;
  if (const auto english = localizations->find("en"); english != localizations->end()) return english->second;
  return base;
}

std::string wv_localized(std::string_view key)
{
  const Platform* platform = Platform::current();
  if (!platform) return std::string(key);
  if (auto text = platform->localization.frameworkString(key); text && *text != key) return *text;
  return platform->localization.hostString("Wayvane", key).value_or(std::string(key));
}

std::string wv_localizedWithDefault(std::string_view key, std::string_view defaultText)
{
  std::string text = wv_localized(key);
  return text == key ? std::string(defaultText) : text;
}

} // namespace wayvane
