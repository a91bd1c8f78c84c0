#include <wayvane/model/RecordReader.h>
#include <wayvane/model/RecordWriter.h>
#include <wayvane/model/WVTargetDescriptor.h>
#include <wayvane/platform/Format.h>

#include <vector>

namespace wayvane {
namespace {

using platform::format;

std::string rowDescription(const WVTargetDescriptor& target)
{
  std::string row = format("Row %ld", {target.tableRow});
  if (target.tableColumnIdentifier) row += format(", Col: %@", {target.tableColumnIdentifier});
  if (target.cellIdentifier) row += format(" Cell: %@", {target.cellIdentifier});
  if (target.objectIdentifier) row += format(" (%@)", {target.objectIdentifier});
  return row;
}

std::vector<std::string> descriptionParts(const WVTargetDescriptor& target)
{
  std::vector<std::string> parts;
  if (target.bindingInfo) parts.push_back(format("Binding: %@", {target.bindingInfo}));
  if (target.toolbarItemIdentifier)
    parts.push_back(format("Toolbar: %@", {target.toolbarItemIdentifier}));
  else if (target.accessibilityIdentifier)
    parts.push_back(format("ID: %@", {target.accessibilityIdentifier}));
  if (target.action) parts.push_back(format("Action: %@", {target.action}));
  if (target.title) parts.push_back(format("\"%@\"", {target.title}));
  if (target.menuPath) parts.push_back(format("Menu: %@", {target.menuPath}));
  if (target.tableRow >= 0) parts.push_back(rowDescription(target));
  if (parts.empty() && target.className) parts.push_back(*target.className);
  if (parts.empty()) parts.emplace_back("Unknown");
  return parts;
}

} // namespace

WVTargetDescriptor WVTargetDescriptor::descriptorForMenuPath(std::string menuPath)
{
  WVTargetDescriptor target;
  target.menuPath = std::move(menuPath);
  return target;
}

std::string WVTargetDescriptor::displayDescription() const
{
  std::string line;
  for (const std::string& part : descriptionParts(*this))
    line += (line.empty() ? "" : " \u00B7 ") + part;
  return line;
}

std::string WVTargetDescriptor::archivedData() const
{
  return writtenRecord(*this, RecordForm::Archive, nullptr).value_or(std::string());
}

std::optional<WVTargetDescriptor> WVTargetDescriptor::unarchived(std::string_view archive)
{
  return readRecord<WVTargetDescriptor>(archive, RecordForm::Archive, nullptr);
}

} // namespace wayvane
