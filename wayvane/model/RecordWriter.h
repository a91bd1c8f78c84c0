#pragma once

#include <wayvane/model/RecordFields.h>

#include <optional>
#include <string>

namespace wayvane {

/// The record as an indented JSON object, keys in the order of the tables, lines parted by line feeds.
/// Nothing, and `error` (domain "json") filled, when a text is not valid UTF-8 or a number is infinite.
template <class Record>
[[nodiscard]] std::optional<std::string> writtenRecord(const Record& record, RecordForm form, Error* error);

extern template std::optional<std::string> writtenRecord(const WVGuide&, RecordForm, Error*);
extern template std::optional<std::string> writtenRecord(const WVStep&, RecordForm, Error*);
extern template std::optional<std::string> writtenRecord(const WVTargetDescriptor&, RecordForm, Error*);

} // namespace wayvane
