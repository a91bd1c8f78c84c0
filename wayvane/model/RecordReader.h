#pragma once

#include <wayvane/model/RecordFields.h>

#include <optional>
#include <string_view>

namespace wayvane {

/// How many arrays and objects a document may nest, including those nobody looks into.
inline constexpr int kRecordNestingLimit = 512;

/// How many steps a guide may have: a step takes far more memory than the two bytes that can ask for one.
inline constexpr std::size_t kRecordStepLimit = 100'000;

/// The record in a JSON object; nothing, and `error` (domain "json") filled, when the bytes hold none. A
/// field that is missing, null or of the wrong type has the value of a missing one. Time and memory grow with
/// the size of the bytes, the stack does not.
template <class Record>
[[nodiscard]] std::optional<Record> readRecord(std::string_view bytes, RecordForm form, Error* error);

extern template std::optional<WVGuide> readRecord(std::string_view, RecordForm, Error*);
extern template std::optional<WVStep> readRecord(std::string_view, RecordForm, Error*);
extern template std::optional<WVTargetDescriptor> readRecord(std::string_view, RecordForm, Error*);

} // namespace wayvane
