#pragma once

#include <wayvane/model/LocalizationDictionary.h>
#include <wayvane/model/WVTargetDescriptor.h>
#include <wayvane/platform/Utf8.h>
#include <wayvane/platform/View.h>

#include <optional>
#include <string>
#include <utility>

namespace wayvane::capture {

/// A text as it may be kept in a descriptor: one that is no UTF-8 could never be saved, so it is left out.
[[nodiscard]] inline std::optional<std::string> clue(std::optional<std::string> text)
{
  if (text && !platform::isValidUtf8(*text)) return std::nullopt;
  return text;
}

[[nodiscard]] inline std::optional<LocalizationDictionary> clue(std::optional<LocalizationDictionary> texts)
{
  if (!texts) return texts;
  std::erase_if(*texts, [](const auto& entry) {
    return !platform::isValidUtf8(entry.first) || !platform::isValidUtf8(entry.second);
  });
  return texts->empty() ? std::nullopt : std::move(texts);
}

// Tables

/// The view that a press into a table meant: what lies below it inside the cell's view. Any other view, and
/// a table that draws its cells, is its own answer. `location` is in window coordinates.
[[nodiscard]] platform::ViewHandle viewBelowPress(const platform::ViewHandle& view, platform::Point location);
/// The row, column, cell and model object of a view that a table shows in one of its cells. Leaves the
/// descriptor alone for any other view.
void describeRowOfView(const platform::ViewHandle& view, WVTargetDescriptor& descriptor);
/// The row, column, cell and model object that `table` draws at `location`, window coordinates.
void describeDrawnCell(const platform::View& table, platform::Point location, WVTargetDescriptor& descriptor);

} // namespace wayvane::capture
