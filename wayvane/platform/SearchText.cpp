#include <wayvane/platform/SearchText.h>

#include <cstddef>
#include <optional>

namespace wayvane::platform {
namespace {

struct Lead {
  std::size_t length;
  char32_t bits;
  /// Below this the sequence would be longer than needed.
  char32_t smallest;
};

std::optional<Lead> leadOf(unsigned char byte)
{
  if (byte < 0x80) return Lead{1, byte, 0};
  if (byte >= 0xC0 && byte < 0xE0) return Lead{2, static_cast<char32_t>(byte & 0x1F), 0x80};
  if (byte >= 0xE0 && byte < 0xF0) return Lead{3, static_cast<char32_t>(byte & 0x0F), 0x800};
  if (byte >= 0xF0 && byte < 0xF8) return Lead{4, static_cast<char32_t>(byte & 0x07), 0x10000};
  return std::nullopt;
}

/// Takes one character from the front; nothing when it is not well-formed.
std::optional<char32_t> takeCharacter(std::string_view& text)
{
  const std::optional<Lead> lead = leadOf(static_cast<unsigned char>(text.front()));
  if (!lead || lead->length > text.size()) return std::nullopt;
  char32_t character = lead->bits;
  for (std::size_t i = 1; i < lead->length; ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if ((byte & 0xC0) != 0x80) return std::nullopt;
    character = (character << 6) | (byte & 0x3F);
  }
  const bool isSurrogate = character >= 0xD800 && character < 0xE000;
  if (character < lead->smallest || character > 0x10FFFF || isSurrogate) return std::nullopt;
  text.remove_prefix(lead->length);
  return character;
}

} // namespace

SearchText::SearchText(std::string_view text)
  : utf8_(text)
{
  while (!text.empty()) {
    const std::optional<char32_t> character = takeCharacter(text);
    if (!character) {
      utf16_.clear();
      valid_ = false;
      return;
    }
    if (*character < 0x10000) {
      utf16_.push_back(static_cast<char16_t>(*character));
      continue;
    }
    const char32_t rest = *character - 0x10000;
    utf16_.push_back(static_cast<char16_t>(0xD800 + (rest >> 10)));
    utf16_.push_back(static_cast<char16_t>(0xDC00 + (rest & 0x3FF)));
  }
}

} // namespace wayvane::platform
