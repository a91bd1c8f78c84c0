#include <wayvane/platform/Format.h>

#include <algorithm>
#include <array>
#include <cstddef>

namespace wayvane::platform {
namespace {

struct Placeholder {
  /// Of the whole sequence, the per cent sign included; 0 when it is none.
  std::size_t length = 0;
  /// Counting from 1; 0 for "the next one".
  std::size_t number = 0;
};

Placeholder placeholderAtStart(std::string_view text)
{
  Placeholder result;
  std::size_t at = 1;
  // Two digits are more arguments than any text has.
  while (at < text.size() && at < 3 && text[at] >= '0' && text[at] <= '9')
    result.number = result.number * 10 + static_cast<std::size_t>(text[at++] - '0');
  if (at > 1) {
    if (at >= text.size() || text[at] != '$' || result.number == 0) return {};
    ++at;
  }
  constexpr std::array<std::string_view, 4> kConversions{"@", "lu", "ld", "d"};
  for (const std::string_view conversion : kConversions) {
    if (!text.substr(at).starts_with(conversion)) continue;
    result.length = at + conversion.size();
    return result;
  }
  return {};
}

} // namespace

std::string format(std::string_view pattern, std::initializer_list<FormatArgument> arguments)
{
  std::string result;
  std::size_t next = 0;
  while (!pattern.empty()) {
    const std::size_t plain = std::min(pattern.find('%'), pattern.size());
    result += pattern.substr(0, plain);
    pattern.remove_prefix(plain);
    if (pattern.empty()) break;
    if (pattern.starts_with("%%")) {
      result += '%';
      pattern.remove_prefix(2);
      continue;
    }
    const Placeholder placeholder = placeholderAtStart(pattern);
    const std::size_t length = placeholder.length ? placeholder.length : 1;
    const std::size_t index = placeholder.number ? placeholder.number - 1 : next;
    if (placeholder.length && !placeholder.number) ++next;
    if (placeholder.length && index < arguments.size())
      result += (arguments.begin() + index)->text();
    else
      result += pattern.substr(0, length);
    pattern.remove_prefix(length);
  }
  return result;
}

} // namespace wayvane::platform
