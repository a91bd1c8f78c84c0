#include <wayvane/platform/FrameworkTexts.h>
#include <wayvane/platform/StringsFile.h>
#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtLocalization.h>
#include <wayvane/platform/qt/QtStringTables.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QRegularExpression>
#include <QVariant>

#include <utility>

namespace wayvane::qt {

using platform::StringTable;

namespace {

QStringList translationFolders()
{
  if (!qApp) return {};
  const QVariant told = qApp->property("wv_translationFolders");
  if (told.isValid()) return told.toStringList();
  return {QStringLiteral(":/translations"), QStringLiteral(":/i18n"),
          QCoreApplication::applicationDirPath() + QStringLiteral("/translations")};
}

std::optional<QByteArray> contents(const QString& path)
{
  QFile file(path);
  if (!QFileInfo(file).isFile() || file.size() > static_cast<qint64>(platform::kStringsFileSizeLimit) ||
      !file.open(QIODevice::ReadOnly))
    return std::nullopt;
  return file.readAll();
}

bool isLanguage(QStringView name)
{
  const qsizetype end = std::min(name.indexOf(u'_'), name.indexOf(u'-'));
  const QStringView code = end > 0 ? name.left(end) : name.left(name.indexOf(u'_'));
  return QLocale::codeToLanguage(code.isEmpty() ? name : code) != QLocale::AnyLanguage;
}

/// The languages named by "Notes_pt_BR.ts": everything behind the first underscore that begins a language.
QString languageOfFile(const QString& baseName)
{
  for (qsizetype at = baseName.indexOf(u'_'); at >= 0; at = baseName.indexOf(u'_', at + 1))
    if (isLanguage(QStringView(baseName).mid(at + 1))) return baseName.mid(at + 1);
  return {};
}

/// The language in which the sources of a translation source file are written. Only its beginning is read.
QString sourceLanguageOf(const QString& path)
{
  QFile file(path);
  if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly)) return {};
  static const QRegularExpression attribute(QStringLiteral("sourcelanguage=\"([A-Za-z]+)"));
  return attribute.match(QString::fromUtf8(file.read(1024))).captured(1);
}

QStringList languagesIn(const QString& folder)
{
  QStringList languages;
  const QDir dir(folder);
  for (const QString& name : dir.entryList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name))
    languages << languageOfFile(name.chopped(3)) << sourceLanguageOf(dir.filePath(name));
  for (const QString& name : dir.entryList({QStringLiteral("*.lproj")}, QDir::Dirs, QDir::Name))
    languages << name.chopped(6);
  return languages;
}

std::optional<StringTable> tableInFolder(const QDir& dir, const QString& name, const QString& code)
{
  if (const auto bytes =
          contents(dir.filePath(code + QStringLiteral(".lproj/") + name + QStringLiteral(".strings"))))
    return platform::stringTableFromStringsFile(
        {bytes->constData(), static_cast<std::size_t>(bytes->size())});
  if (const auto bytes = contents(dir.filePath(name + u'_' + code + QStringLiteral(".ts"))))
    if (auto file = readTranslationSource(*bytes)) return std::move(file->translations);
  // No file translates into the language that the program is written in; any of the others tells its texts.
  for (const QString& other : dir.entryList({name + QStringLiteral("_*.ts")}, QDir::Files, QDir::Name))
    if (sourceLanguageOf(dir.filePath(other)) == code)
      if (const auto bytes = contents(dir.filePath(other)))
        if (auto file = readTranslationSource(*bytes)) return std::move(file->sources);
  return std::nullopt;
}

std::optional<std::string> translated(std::string_view table, std::string_view key)
{
  const std::string context(table);
  const std::string source(key);
  const QString text = QCoreApplication::translate(context.c_str(), source.c_str());
  if (text == toQString(key)) return std::nullopt;
  return toUtf8(text);
}

} // namespace

std::optional<std::string> QtLocalization::languageCode() const
{
  const QLocale locale;
  if (locale.language() == QLocale::C || locale.language() == QLocale::AnyLanguage) return std::nullopt;
  return toOptional(QLocale::languageToCode(locale.language()));
}

std::optional<std::string> QtLocalization::frameworkString(std::string_view key) const
{
  // The host's own table wins, so that it can reword what the framework says.
  if (auto text = hostString("Wayvane", key); text && *text != key) return text;
  return platform::frameworkText(languageCode().value_or("en"), key);
}

std::optional<std::string> QtLocalization::hostString(std::string_view table, std::string_view key) const
{
  if (table.empty() || key.empty()) return std::nullopt;
  if (auto text = translated(table, key)) return text;
  for (const std::string& language : {languageCode().value_or(""), std::string("Base")}) {
    const auto texts = hostTable(table, language).value_or(StringTable{});
    if (const auto found = texts.find(key); found != texts.end()) return found->second;
  }
  return std::nullopt;
}

std::vector<std::string> QtLocalization::hostLocalizations() const
{
  QStringList languages;
  for (const QString& folder : translationFolders())
    languages << languagesIn(folder);
  languages.removeDuplicates();
  std::vector<std::string> result;
  for (const QString& language : std::as_const(languages))
    if (!language.isEmpty() && language != QLatin1String("Base")) result.push_back(toUtf8(language));
  return result;
}

std::optional<StringTable> QtLocalization::hostTable(std::string_view table, std::string_view language) const
{
  const QString name = toQString(table);
  const QString code = toQString(language);
  // Names come from guides and hosts; they never lead out of the folders.
  if (name.isEmpty() || code.isEmpty() || name.contains(u'/') || code.contains(u'/')) return std::nullopt;
  for (const QString& folder : translationFolders())
    if (auto found = tableInFolder(QDir(folder), name, code)) return found;
  return std::nullopt;
}

} // namespace wayvane::qt
