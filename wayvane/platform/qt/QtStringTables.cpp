#include <wayvane/platform/StringsFile.h>
#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtStringTables.h>

#include <QXmlStreamReader>

namespace wayvane::qt {

namespace {

/// The text without mnemonics; an ampersand between blanks is one of the text's own.
QString shown(QString text)
{
  return withoutMnemonic(text.replace(QLatin1String("& "), QLatin1String("&& ")));
}

void addMessage(QXmlStreamReader& xml, TranslationSourceFile& file)
{
  QString source;
  QString translation;
  bool isFinished = true;
  while (xml.readNextStartElement()) {
    if (xml.name() == QLatin1String("source")) {
      source = xml.readElementText(QXmlStreamReader::SkipChildElements);
    } else if (xml.name() == QLatin1String("translation")) {
      isFinished = !xml.attributes().hasAttribute(QLatin1String("type"));
      translation = xml.readElementText(QXmlStreamReader::SkipChildElements);
    } else {
      xml.skipCurrentElement();
    }
  }
  if (source.isEmpty() || file.sources.size() >= platform::kStringsFileEntryLimit) return;
  const std::string key = toUtf8(shown(source));
  file.sources[key] = key;
  if (isFinished && !translation.trimmed().isEmpty())
    file.translations[key] = toUtf8(shown(translation));
}

} // namespace

std::optional<TranslationSourceFile> readTranslationSource(const QByteArray& bytes)
{
  TranslationSourceFile file;
  QXmlStreamReader xml(bytes);
  while (!xml.atEnd()) {
    if (xml.readNext() != QXmlStreamReader::StartElement) continue;
    if (xml.name() == QLatin1String("message")) {
      addMessage(xml, file);
    } else if (xml.name() == QLatin1String("TS")) {
      const QString language = xml.attributes().value(QLatin1String("sourcelanguage")).toString();
      file.sourceLanguage = toUtf8(language.section(QLatin1Char('_'), 0, 0).section(QLatin1Char('-'), 0, 0));
    }
  }
  if (xml.hasError()) return std::nullopt;
  return file;
}

} // namespace wayvane::qt
