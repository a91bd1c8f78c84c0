#include <wayvane/platform/Format.h>
#include <wayvane/recording/HoverText.h>

namespace wayvane {

using platform::format;

namespace {

constexpr int kMostCharacters = 1000;
constexpr int kMostLines = 20;

std::string shortened(const std::string& text)
{
  int characters = 0, lines = 1;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool continuesCharacter = (static_cast<unsigned char>(text[i]) & 0xC0u) == 0x80u;
    if (continuesCharacter) continue;
    if (text[i] == '\n') ++lines;
    if (++characters > kMostCharacters || lines > kMostLines) return text.substr(0, i) + "…";
  }
  return text;
}

void add(std::string& text, const char* pattern, const std::optional<std::string>& value)
{
  if (value) text += format(pattern, {shortened(*value)});
}

} // namespace

std::string hoverTextFor(const std::string& className, const WVTargetDescriptor& descriptor)
{
  std::string text = shortened(className);
  add(text, "\nBinding: %@", descriptor.bindingInfo);
  add(text, "\nID: %@", descriptor.accessibilityIdentifier);
  add(text, "\nAction: %@", descriptor.action);
  add(text, "\nTitle: \"%@\"", descriptor.title);
  add(text, "\nToolbar: %@", descriptor.toolbarItemIdentifier);
  if (descriptor.tableRow < 0) return text;
  text += format("\nTable row: %ld", {descriptor.tableRow});
  add(text, " col: %@", descriptor.tableColumnIdentifier);
  add(text, "\nCell: %@", descriptor.cellIdentifier);
  add(text, "\nObject: %@", descriptor.objectIdentifier);
  return text;
}

} // namespace wayvane
