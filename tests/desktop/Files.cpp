#include "Files.h"

#include <algorithm>
#include <cerrno>

namespace wayvane::sim {

namespace {

std::string folderOf(const std::string& path)
{
  const auto slash = path.find_last_of('/');
  return slash == 0 || slash == std::string::npos ? "/" : path.substr(0, slash);
}

bool isBelow(const std::string& path, const std::string& folder)
{
  return path == folder || path.starts_with(folder == "/" ? folder : folder + "/");
}

platform::Error posixError(int code, const std::string& path, const char* what)
{
  return {"posix", code, path + ": " + what, {}};
}

} // namespace

void Files::put(const std::string& path, std::string bytes)
{
  store(path, std::move(bytes), true);
}

void Files::putSpecial(const std::string& path)
{
  store(path, {}, false);
}

void Files::store(const std::string& path, std::string bytes, bool regular)
{
  makeFolder(folderOf(path));
  const std::uint64_t number = nextStamp_++;
  const platform::FileStamp stamp{static_cast<std::int64_t>(number), bytes.size(), number};
  files_[path] = {std::move(bytes), stamp, regular};
}

void Files::makeFolder(const std::string& path)
{
  for (std::string folder = path; folders_.insert(folder).second;)
    folder = folderOf(folder);
}

bool Files::exists(const std::string& path) const
{
  return files_.contains(path) || folders_.contains(path);
}

std::optional<std::string> Files::get(const std::string& path) const
{
  const auto found = files_.find(path);
  return found == files_.end() ? std::nullopt : std::optional(found->second.bytes);
}

void Files::remove(const std::string& path)
{
  std::erase_if(files_, [&](const auto& file) { return isBelow(file.first, path); });
  std::erase_if(folders_, [&](const auto& folder) { return folder != "/" && isBelow(folder, path); });
}

void Files::setUnreadable(const std::string& path, bool unreadable)
{
  if (unreadable)
    unreadable_.insert(path);
  else
    unreadable_.erase(path);
}

void Files::setUnwritable(const std::string& path, bool unwritable)
{
  if (unwritable)
    unwritable_.insert(path);
  else
    unwritable_.erase(path);
}

bool Files::isUnwritable(const std::string& path) const
{
  return std::any_of(unwritable_.begin(), unwritable_.end(),
                     [&](const std::string& folder) { return isBelow(path, folder); });
}

std::optional<std::string> Files::read(const std::string& path, std::uint64_t sizeLimit,
                                       platform::Error* error) const
{
  ++reads_;
  const auto fail = [&](int code, const char* what) -> std::optional<std::string> {
    platform::setError(error, posixError(code, path, what));
    return std::nullopt;
  };
  const auto found = files_.find(path);
  if (folders_.contains(path)) return fail(EISDIR, "is a folder");
  if (found == files_.end()) return fail(ENOENT, "no such file");
  if (!found->second.regular) return fail(EINVAL, "not a regular file");
  if (unreadable_.contains(path)) return fail(EACCES, "permission denied");
  if (found->second.bytes.size() > sizeLimit) return fail(EFBIG, "file too large");
  return found->second.bytes;
}

bool Files::writeAtomically(const std::string& path, const std::string& bytes, platform::Error* error)
{
  const auto fail = [&](int code, const char* what) {
    platform::setError(error, posixError(code, path, what));
    return false;
  };
  ++writes_;
  if (diskFull_) return fail(ENOSPC, "no space left");
  if (isUnwritable(path)) return fail(EACCES, "permission denied");
  if (folders_.contains(path)) return fail(EISDIR, "is a folder");
  if (!folders_.contains(folderOf(path))) return fail(ENOENT, "no such folder");
  put(path, bytes);
  return true;
}

std::optional<std::vector<platform::DirectoryEntry>> Files::list(const std::string& folder) const
{
  if (!folders_.contains(folder) || unreadable_.contains(folder)) return std::nullopt;
  std::vector<platform::DirectoryEntry> entries;
  const auto add = [&](const std::string& path, const platform::FileStamp& stamp, bool regular) {
    if (path == "/" || folderOf(path) != folder) return;
    std::string name = path.substr(path.find_last_of('/') + 1);
    if (!name.starts_with(".")) entries.push_back({std::move(name), stamp, regular});
  };
  for (const auto& [path, file] : files_)
    add(path, file.stamp, file.regular);
  for (const std::string& path : folders_)
    add(path, {}, false);
  // By age, newest first, as some file systems do: nobody may rely on the alphabet.
  std::stable_sort(entries.begin(), entries.end(), [](const auto& a, const auto& b) {
    return a.stamp->modifiedNanoseconds > b.stamp->modifiedNanoseconds;
  });
  return entries;
}

bool Files::createFolders(const std::string& folder)
{
  if (folders_.contains(folder)) return true;
  if (diskFull_ || isUnwritable(folder) || files_.contains(folder)) return false;
  for (std::string above = folder; above != "/"; above = folderOf(above))
    if (files_.contains(above)) return false;
  makeFolder(folder);
  return true;
}

} // namespace wayvane::sim
