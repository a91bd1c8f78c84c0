#include <wayvane/targeting/TranslationSource.h>

namespace wayvane {

namespace {

TranslationSource*& currentSource()
{
  static TranslationSource* source = nullptr;
  return source;
}

} // namespace

TranslationSource::~TranslationSource()
{
  if (currentSource() == this) currentSource() = nullptr;
}

TranslationSource* TranslationSource::current()
{
  return currentSource();
}

void TranslationSource::setCurrent(TranslationSource* source)
{
  currentSource() = source;
}

std::optional<LocalizationDictionary> TranslationSource::translationsOf(std::string_view text)
{
  const auto* source = current();
  return source ? source->allLocalizationsForString(text) : std::nullopt;
}

} // namespace wayvane
