#pragma once

#include <wayvane/model/WVGuide.h>

#include <array>
#include <span>
#include <string_view>
#include <variant>

namespace wayvane {

/// The two forms in which the records are put into bytes: the guide file, which leaves out what has its usual
/// value and some fields altogether, and the keyed archive, which keeps everything.
enum class RecordForm : std::uint8_t { File, Archive };

/// One key of a record's JSON object and the field that belongs to it. Reader and writer share these tables,
/// so that they cannot disagree. A dictionary field is of one type whether it holds translations or metadata.
template <class Record>
struct RecordField {
  using Member =
      std::variant<std::optional<std::string> Record::*, std::optional<LocalizationDictionary> Record::*,
                   std::int64_t Record::*, double Record::*, bool Record::*, WVTargetDescriptor Record::*,
                   std::vector<WVStep> Record::*>;
  std::string_view key;
  Member member;
  /// What the guide file says when the text is absent; null leaves the key out.
  const char* fileDefault = nullptr;
  bool archiveOnly = false;
};

/// The fields of a record in the order in which they are written.
[[nodiscard]] std::span<const RecordField<WVGuide>> fieldsOf(const WVGuide&);
[[nodiscard]] std::span<const RecordField<WVStep>> fieldsOf(const WVStep&);
[[nodiscard]] std::span<const RecordField<WVTargetDescriptor>> fieldsOf(const WVTargetDescriptor&);

} // namespace wayvane
