#pragma once

#include <wayvane/model/WVStep.h>
#include <wayvane/platform/Error.h>

#include <cstdint>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wayvane {

using platform::Error;

/// A guide: steps in their order, and what tells it from other guides. A plain value; the parts of the
/// framework hand guides to each other as `std::shared_ptr<WVGuide>`.
struct WVGuide {
  /// The largest guide file that is read, in bytes.
  static constexpr std::uint64_t kFileSizeLimit = std::uint64_t{64} << 20;

  std::optional<std::string> identifier;
  /// In the guide's base language, UTF-8.
  std::optional<std::string> name;
  std::optional<LocalizationDictionary> nameLocalizations;
  std::optional<std::string> version;
  std::vector<WVStep> steps;
  /// Lives in memory and in the keyed archive only, never in the guide file.
  std::optional<std::map<std::string, std::string>> metadata;
  /// The program the guide belongs to, and the version it was recorded with.
  std::optional<std::string> appBundleIdentifier;
  std::optional<std::string> appBundleVersion;

  /// A guide without anything, not even an identifier.
  WVGuide() = default;
  /// An empty guide of that name with an identifier of its own: a random UUID in upper-case hex with dashes.
  explicit WVGuide(std::string name);

  /// Appends a step that points at the element with that accessibility identifier.
  void addStepWithAccessibilityIdentifier(std::string accessibilityIdentifier, std::string message);
  /// Appends a step that points at a menu command: titles from the menu bar down, joined by " > ".
  void addStepWithMenuPath(std::string menuPath, std::string message);

  /// The guide file's bytes. Nothing, and `error` (domain "json") filled, when a text is not valid UTF-8.
  [[nodiscard]] std::optional<std::string> jsonDataWithError(Error* error = nullptr) const;
  /// Writes the guide file in one step; when that fails, answers false and whatever was there stays whole.
  /// The path is absolute, UTF-8. Main thread.
  bool writeToURL(const std::string& path, Error* error = nullptr) const;
  /// Reads a guide file's bytes. Null, and `error` (domain "json") filled, when they are no JSON object in
  /// valid UTF-8. What odd documents give is written in docs/guide-file.md.
  [[nodiscard]] static std::shared_ptr<WVGuide> guideWithJSONData(std::string_view bytes,
                                                                  Error* error = nullptr);
  /// The same from a file of at most kFileSizeLimit bytes; null with the file system's error when it cannot
  /// be read. Main thread.
  [[nodiscard]] static std::shared_ptr<WVGuide> guideWithContentsOfURL(const std::string& path,
                                                                       Error* error = nullptr);

  /// The name in the current language, else in English, else in the base language, else "". Main thread.
  [[nodiscard]] std::string localizedName() const;

  /// The keyed archive, for carrying a guide within memory: unlike the guide file it keeps everything.
  [[nodiscard]] std::string archivedData() const;
  /// Null when the bytes are no archive.
  [[nodiscard]] static std::shared_ptr<WVGuide> unarchived(std::string_view archive);

  friend bool operator==(const WVGuide&, const WVGuide&) = default;
};

using GuideHandle = std::shared_ptr<WVGuide>;

} // namespace wayvane
