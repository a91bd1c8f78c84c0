#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtLocalization.h>
#include <wayvane/platform/qt/QtStringTables.h>

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLocale>
#include <QVariant>

namespace wayvane::qt {

using platform::StringTable;

namespace {

constexpr qint64 kLargestTable = 16 * 1024 * 1024;

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
  if (!QFileInfo(file).isFile() || file.size() > kLargestTable || !file.open(QIODevice::ReadOnly))
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

QStringList languagesIn(const QString& folder)
{
  QStringList languages;
  const QDir dir(folder);
  for (const QString& name : dir.entryList({QStringLiteral("*.ts")}, QDir::Files, QDir::Name))
    languages << languageOfFile(name.chopped(3));
  for (const QString& name : dir.entryList({QStringLiteral("*.lproj")}, QDir::Dirs, QDir::Name))
    languages << name.chopped(6);
  return languages;
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
  return hostString("Wayvane", key);
}

std::optional<std::string> QtLocalization::hostString(std::string_view table, std::string_view key) const
{
  if (table.empty() || key.empty()) return std::nullopt;
  if (auto text = translated(table, key)) return text;
  const std::optional<std::string> language = languageCode();
  if (!language) return std::nullopt;
  const std::optional<StringTable> texts = hostTable(table, *language);
  if (!texts) return std::nullopt;
  const auto found = texts->find(key);
  return found == texts->end() ? std::nullopt : std::optional(found->second);
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
  for (const QString& folder : translationFolders()) {
    if (const auto bytes =
            contents(folder + u'/' + code + QStringLiteral(".lproj/") + name + QStringLiteral(".strings")))
      return stringTableFromStrings(*bytes);
    if (const auto bytes = contents(folder + u'/' + name + u'_' + code + QStringLiteral(".ts")))
      return stringTableFromTranslationSource(*bytes);
  }
  return std::nullopt;
}

} // namespace wayvane::qt
