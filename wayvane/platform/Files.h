#pragma once

#include <wayvane/platform/Error.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace wayvane::platform {

/// What tells one state of a file from another without reading it.
struct FileStamp {
  std::int64_t modifiedNanoseconds = 0;
  std::uint64_t size = 0;
  std::uint64_t fileNumber = 0;
  friend bool operator==(const FileStamp&, const FileStamp&) = default;
};

struct DirectoryEntry {
  /// The name alone, as the system gives it.
  std::string name;
  /// Nothing when it cannot be told.
  std::optional<FileStamp> stamp;
  bool isRegularFile = false;
};

/// The file system. Paths are absolute, UTF-8. Main thread, and blocking.
class Files {
public:
  virtual ~Files() = default;
  /// The whole regular file; nothing and `error` filled when it cannot be read, is no regular file (a folder,
  /// a FIFO, a device) or is larger than `sizeLimit` bytes.
  [[nodiscard]] virtual std::optional<std::string> read(const std::string& path, std::uint64_t sizeLimit,
                                                        Error* error) const = 0;
  /// Replaces the file in one step: whoever looks at any moment, also after a crash or a full disk, finds the
  /// old contents or the new, whole.
  virtual bool writeAtomically(const std::string& path, const std::string& bytes, Error* error) = 0;
  /// The entries, hidden ones left out, in the file system's own order; nothing when the folder cannot be
  /// listed.
  [[nodiscard]] virtual std::optional<std::vector<DirectoryEntry>> list(const std::string& folder) const = 0;
  /// With the folders above it. True when it is there afterwards.
  virtual bool createFolders(const std::string& folder) = 0;
  /// The folder below which programs keep their data; empty when the user has none.
  [[nodiscard]] virtual std::string applicationSupportFolder() const = 0;
};

} // namespace wayvane::platform
