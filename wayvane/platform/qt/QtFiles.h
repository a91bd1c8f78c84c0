#pragma once

#include <wayvane/platform/Files.h>

namespace wayvane::qt {

class QtFiles final : public platform::Files {
public:
  [[nodiscard]] std::optional<std::string> read(const std::string& path, std::uint64_t sizeLimit,
                                                platform::Error* error) const override;
  bool writeAtomically(const std::string& path, const std::string& bytes, platform::Error* error) override;
  [[nodiscard]] std::optional<std::vector<platform::DirectoryEntry>>
  list(const std::string& folder) const override;
  bool createFolders(const std::string& folder) override;
  [[nodiscard]] std::string applicationSupportFolder() const override;
};

} // namespace wayvane::qt
