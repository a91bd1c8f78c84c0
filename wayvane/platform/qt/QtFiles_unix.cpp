#include <wayvane/platform/qt/QtFiles.h>

#include <qglobal.h>

#ifdef Q_OS_UNIX

#include <QRandomGenerator>

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace wayvane::qt {

using platform::DirectoryEntry;
using platform::Error;
using platform::FileStamp;

namespace {

class Descriptor {
public:
  explicit Descriptor(int number)
    : number_(number)
  {}

  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;

  ~Descriptor() { close(); }

  [[nodiscard]] bool isOpen() const { return number_ >= 0; }

  [[nodiscard]] int number() const { return number_; }

  int close() { return isOpen() ? ::close(std::exchange(number_, -1)) : 0; }

private:
  int number_;
};

void fail(Error* error, const std::string& path, int code)
{
  platform::setError(error, {"posix", code, path + ": " + std::strerror(code), {{"path", path}}});
}

FileStamp stampOf(const struct stat& info)
{
#ifdef Q_OS_DARWIN
  const timespec& modified = info.st_mtimespec;
#else
  const timespec& modified = info.st_mtim;
#endif
  return {static_cast<std::int64_t>(modified.tv_sec) * 1000000000 + modified.tv_nsec,
          static_cast<std::uint64_t>(info.st_size), static_cast<std::uint64_t>(info.st_ino)};
}

/// Why the open file cannot be read as a whole; 0 when it can.
int obstacle(const struct stat& info, std::uint64_t sizeLimit)
{
  if (S_ISDIR(info.st_mode)) return EISDIR;
  if (!S_ISREG(info.st_mode)) return EINVAL;
  return static_cast<std::uint64_t>(info.st_size) > sizeLimit ? EFBIG : 0;
}

/// 0, or why it failed. A file may grow while it is read; the limit holds all the same.
int readAll(int descriptor, std::uint64_t sizeLimit, std::string& bytes)
{
  char buffer[65536];
  for (;;) {
    const ssize_t count = ::read(descriptor, buffer, sizeof buffer);
    if (count == 0) return 0;
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return errno;
    bytes.append(buffer, static_cast<std::size_t>(count));
    if (bytes.size() > sizeLimit) return EFBIG;
  }
}

int writeAll(int descriptor, const std::string& bytes)
{
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t count = ::write(descriptor, bytes.data() + done, bytes.size() - done);
    if (count < 0 && errno != EINTR) return errno;
    if (count > 0) done += static_cast<std::size_t>(count);
  }
  return ::fsync(descriptor) == 0 ? 0 : errno;
}

/// The file that is meant: the one at the end of the links, so that replacing it leaves them as they are.
std::string destination(const std::string& path)
{
  const std::unique_ptr<char, decltype(&std::free)> resolved(::realpath(path.c_str(), nullptr), &std::free);
  return resolved ? resolved.get() : path;
}

std::string folderOf(const std::string& path)
{
  const std::size_t slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

/// Makes the renaming itself last; some file systems cannot, and need not, be asked.
void syncFolder(const std::string& folder)
{
  const Descriptor open(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (open.isOpen()) ::fsync(open.number());
}

/// 0, or why the bytes did not all reach the new file `path`, which takes over `permissions` when given.
int writeNewFile(const std::string& path, const std::string& bytes, const mode_t* permissions)
{
  Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
  if (!file.isOpen()) return errno;
  if (permissions) ::fchmod(file.number(), *permissions);
  if (const int code = writeAll(file.number(), bytes)) return code;
  return file.close() == 0 ? 0 : errno;
}

int replace(const std::string& target, const std::string& bytes)
{
  struct stat old {};

  const bool exists = ::stat(target.c_str(), &old) == 0;
  if (exists && !S_ISREG(old.st_mode)) return S_ISDIR(old.st_mode) ? EISDIR : EINVAL;
  const mode_t permissions = old.st_mode & 0777;
  const std::string folder = folderOf(target);
  const std::string temporary =
      folder + "/.wayvane-" + std::to_string(QRandomGenerator::system()->generate64());
  int code = writeNewFile(temporary, bytes, exists ? &permissions : nullptr);
  if (code == 0 && ::rename(temporary.c_str(), target.c_str()) != 0) code = errno;
  if (code != 0) ::unlink(temporary.c_str());
  if (code == 0) syncFolder(folder);
  return code;
}

} // namespace

std::optional<std::string> QtFiles::read(const std::string& path, std::uint64_t sizeLimit, Error* error) const
{
  // Opening a FIFO would wait for a writer, and a terminal could become ours.
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC));

  struct stat info {};

  int code = file.isOpen() && ::fstat(file.number(), &info) == 0 ? 0 : errno;
  if (code == 0) code = obstacle(info, sizeLimit);
  std::string bytes;
  if (code == 0) code = readAll(file.number(), sizeLimit, bytes);
  if (code == 0) return bytes;
  fail(error, path, code);
  return std::nullopt;
}

bool QtFiles::writeAtomically(const std::string& path, const std::string& bytes, Error* error)
{
  const int code = replace(destination(path), bytes);
  if (code != 0) fail(error, path, code);
  return code == 0;
}

std::optional<std::vector<DirectoryEntry>> QtFiles::list(const std::string& folder) const
{
  const std::unique_ptr<DIR, int (*)(DIR*)> dir(::opendir(folder.c_str()), &::closedir);
  if (!dir) return std::nullopt;
  std::vector<DirectoryEntry> entries;
  while (const dirent* entry = ::readdir(dir.get())) {
    if (entry->d_name[0] == '.') continue;

    struct stat info {};

    const bool known = ::fstatat(::dirfd(dir.get()), entry->d_name, &info, 0) == 0;
    entries.push_back(
        {entry->d_name, known ? std::optional(stampOf(info)) : std::nullopt, known && S_ISREG(info.st_mode)});
  }
  return entries;
}

} // namespace wayvane::qt

#endif
