#pragma once

#include <wayvane/model/WVTargetDescriptor.h>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace wayvane {

/// One step of a guide: what it points at, and what it tells the user. A plain value: copies are equal and
/// independent.
struct WVStep {
  /// Whether the tour may do without the step. Kept, and interpreted by nothing.
  bool optional = false;
  WVTargetDescriptor target;
  /// Text in the guide's base language, UTF-8.
  std::optional<std::string> title;
  std::optional<std::string> message;
  std::optional<LocalizationDictionary> titleLocalizations;
  std::optional<LocalizationDictionary> messageLocalizations;
  /// 0: the user clicks the target. Any other number is kept, and interpreted by nothing.
  std::int64_t action = 0;
  /// Where the bubble goes: 0 where there is room, 1 above the target, 2 below, 3 to the left, 4 to the
  /// right; any other number counts as below.
  std::int64_t position = 0;
  /// How the target is emphasised: 0 dims lightly, with the ring; 1 dims strongly, without; 2 dims lightly,
  /// without. Lives in copies and archives, and not in the guide file.
  std::int64_t highlightStyle = 0;
  /// In seconds.
  double delay = 0;

  /// A step with everything but its target and message at rest.
  [[nodiscard]] static WVStep stepWithTarget(WVTargetDescriptor target, std::optional<std::string> message);

  /// The text in the current language, else in English, else in the base language; nothing when there is
  /// none. Main thread.
  [[nodiscard]] std::optional<std::string> localizedTitle() const;
  [[nodiscard]] std::optional<std::string> localizedMessage() const;

  /// The keyed archive, for carrying a step within memory; the guide file has a form of its own.
  [[nodiscard]] std::string archivedData() const;
  /// Nothing when the bytes are no archive.
  [[nodiscard]] static std::optional<WVStep> unarchived(std::string_view archive);

  friend bool operator==(const WVStep&, const WVStep&) = default;
};

} // namespace wayvane
