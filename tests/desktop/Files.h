#pragma once

#include <wayvane/platform/Files.h>

#include <map>
#include <set>
#include <string>

namespace wayvane::sim {

/// Files in memory. Every change gives a new stamp.
class Files : public platform::Files {
public:
  /// Puts a file there, with the folders above it.
  void put(const std::string& path, std::string bytes);
  /// Puts something there that is no regular file.
  void putSpecial(const std::string& path);
  void makeFolder(const std::string& path);
  [[nodiscard]] bool exists(const std::string& path) const;

  [[nodiscard]] bool isFolder(const std::string& path) const { return folders_.contains(path); }

  [[nodiscard]] std::optional<std::string> get(const std::string& path) const;
  /// A file, or a folder with what is in it.
  void remove(const std::string& path);

  void setUnreadable(const std::string& path, bool unreadable = true);
  /// Writing fails, and folders are not made, below the path.
  void setUnwritable(const std::string& path, bool unwritable = true);

  void setDiskFull(bool full) { diskFull_ = full; }

  void setApplicationSupportFolder(std::string folder) { applicationSupport_ = std::move(folder); }

  [[nodiscard]] int readCount() const { return reads_; }

  [[nodiscard]] int writeCount() const { return writes_; }

  [[nodiscard]] std::optional<std::string> read(const std::string& path, std::uint64_t sizeLimit,
                                                platform::Error* error) const override;
  bool writeAtomically(const std::string& path, const std::string& bytes, platform::Error* error) override;
  [[nodiscard]] std::optional<std::vector<platform::DirectoryEntry>>
  list(const std::string& folder) const override;
  bool createFolders(const std::string& folder) override;

  [[nodiscard]] std::string applicationSupportFolder() const override { return applicationSupport_; }

private:
  struct File {
    std::string bytes;
    platform::FileStamp stamp;
    bool regular = true;
  };

  void store(const std::string& path, std::string bytes, bool regular);
  [[nodiscard]] bool isUnwritable(const std::string& path) const;
  std::map<std::string, File> files_;
  std::set<std::string> folders_{"/"};
  std::set<std::string> unreadable_;
  std::set<std::string> unwritable_;
  bool diskFull_ = false;
  std::string applicationSupport_ = "/home/user/.local/share";
  std::uint64_t nextStamp_ = 1;
  mutable int reads_ = 0;
  int writes_ = 0;
};

} // namespace wayvane::sim
