#include <wayvane/manager/GuideFileName.h>

#include <algorithm>

namespace wayvane {
namespace {

/// Whether the name holds a ".." between backslashes, which separate folders on some systems.
bool leadsUpward(std::string_view name)
{
  for (;;) {
    const auto end = name.find('\\');
    if (name.substr(0, end) == "..") return true;
    if (end == std::string_view::npos) return false;
    name.remove_prefix(end + 1);
  }
}

} // namespace

std::optional<std::string> guideFileName(std::string_view guideName, platform::Error* error)
{
  std::string name(guideName);
  std::replace(name.begin(), name.end(), '/', '-');
  name += ".wayvane";
  // The system would take a zero for the end of the path.
  if (name.find('\0') == std::string::npos && !leadsUpward(name)) return name;
  platform::setError(error, {"wayvane.saving", 1, "The name cannot be that of a file", {}});
  return std::nullopt;
}

} // namespace wayvane
