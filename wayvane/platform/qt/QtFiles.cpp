#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtFiles.h>

#include <QFile>
#include <QStandardPaths>

#include <filesystem>

#ifndef Q_OS_UNIX
#include <QDir>
#include <QSaveFile>
#endif

namespace wayvane::qt {

namespace fs = std::filesystem;

namespace {

fs::path toPath(const std::string& utf8)
{
  return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

} // namespace

bool QtFiles::createFolders(const std::string& folder)
{
  if (folder.empty()) return false;
  std::error_code error;
  fs::create_directories(toPath(folder), error);
  return fs::is_directory(toPath(folder), error);
}

std::string QtFiles::applicationSupportFolder() const
{
  return toUtf8(QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation));
}

#ifndef Q_OS_UNIX

namespace {

void fail(platform::Error* error, const QString& text)
{
  platform::setError(error, {"files", 1, toUtf8(text), {}});
}

} // namespace

std::optional<std::string> QtFiles::read(const std::string& path, std::uint64_t sizeLimit,
                                         platform::Error* error) const
{
  std::error_code code;
  QFile file(toQString(path));
  if (!fs::is_regular_file(toPath(path), code) || !file.open(QIODevice::ReadOnly)) {
    fail(error, file.errorString());
    return std::nullopt;
  }
  if (static_cast<std::uint64_t>(file.size()) > sizeLimit) {
    fail(error, QStringLiteral("file too large"));
    return std::nullopt;
  }
  return file.readAll().toStdString();
}

bool QtFiles::writeAtomically(const std::string& path, const std::string& bytes, platform::Error* error)
{
  QSaveFile file(toQString(path));
  if (file.open(QIODevice::WriteOnly) && file.write(bytes.data(), static_cast<qint64>(bytes.size())) >= 0 &&
      file.commit())
    return true;
  fail(error, file.errorString());
  return false;
}

std::optional<std::vector<platform::DirectoryEntry>> QtFiles::list(const std::string& folder) const
{
  const QDir dir(toQString(folder));
  if (!dir.exists()) return std::nullopt;
  std::vector<platform::DirectoryEntry> entries;
  for (const QFileInfo& info : dir.entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot, QDir::Unsorted))
    entries.push_back({toUtf8(info.fileName()),
                       platform::FileStamp{info.lastModified().toMSecsSinceEpoch() * 1000000,
                                           static_cast<std::uint64_t>(info.size()), 0},
                       info.isFile()});
  return entries;
}

#endif

} // namespace wayvane::qt
