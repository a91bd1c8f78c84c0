#pragma once

#include <wayvane/model/WVGuide.h>
#include <wayvane/platform/Files.h>

#include <string>
#include <unordered_map>

namespace wayvane {

/// Reads guide files, and each of them only once as long as it does not change: the library is loaded anew
/// whenever the Help menu opens. Main thread only.
class GuideCache {
public:
  /// Begins a pass over the library. What is not asked for until the next pass begins is then forgotten.
  void beginPass();
  /// The guide in the file; null when it cannot be read or is none. Without a stamp it is always read.
  [[nodiscard]] GuideHandle guideAt(const std::string& path, const std::optional<platform::FileStamp>& stamp);

private:
  struct Entry {
    platform::FileStamp stamp;
    GuideHandle guide;
  };

  std::unordered_map<std::string, Entry> current_;
  std::unordered_map<std::string, Entry> previous_;
};

} // namespace wayvane
