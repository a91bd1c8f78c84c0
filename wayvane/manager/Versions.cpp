#include <wayvane/manager/Versions.h>

#include <algorithm>

namespace wayvane {
namespace {

bool isDigit(char c)
{
  return c >= '0' && c <= '9';
}

/// Takes the digits at the beginning of `text`, without the zeros before them.
std::string_view takeNumber(std::string_view& text)
{
  const auto isOther = [](char c) { return !isDigit(c); };
  const auto end = std::find_if(text.begin(), text.end(), isOther);
  std::string_view number = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  text.remove_prefix(number.size());
  number.remove_prefix(std::min(number.size(), number.find_first_not_of('0')));
  return number;
}

} // namespace

std::string normalizedVersion(std::string_view version, std::size_t count)
{
  std::string result;
  for (std::size_t part = 0; part < count; ++part) {
    if (part > 0) result += '.';
    if (version.data() == nullptr) {
      result += '0';
      continue;
    }
    const auto dot = version.find('.');
    result += version.substr(0, dot);
    version = dot == std::string_view::npos ? std::string_view() : version.substr(dot + 1);
  }
  return result;
}

std::strong_ordering compareNumerically(std::string_view a, std::string_view b)
{
  while (!a.empty() && !b.empty()) {
    if (isDigit(a.front()) && isDigit(b.front())) {
      const auto left = takeNumber(a), right = takeNumber(b);
      if (left.size() != right.size()) return left.size() <=> right.size();
      if (const auto order = left.compare(right); order != 0) return order <=> 0;
    } else {
      const auto left = static_cast<unsigned char>(a.front()), right = static_cast<unsigned char>(b.front());
      if (left != right) return left <=> right;
      a.remove_prefix(1);
      b.remove_prefix(1);
    }
  }
  return a.size() <=> b.size();
}

} // namespace wayvane
