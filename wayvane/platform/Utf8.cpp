#include <wayvane/platform/Utf8.h>

#include <cstdint>
#include <cstring>

namespace wayvane::platform {
namespace {

/// The length of the sequence that begins at `at`, 0 when it is malformed.
std::size_t sequenceLength(std::string_view bytes, std::size_t at)
{
  const auto byte = [&](std::size_t offset) -> unsigned {
    return at + offset < bytes.size() ? static_cast<unsigned char>(bytes[at + offset]) : 0U;
  };
  const auto continues = [&](std::size_t offset) { return (byte(offset) & 0xC0) == 0x80; };
  const unsigned lead = byte(0);
  if (lead < 0x80) return 1;
  if (lead >= 0xC2 && lead <= 0xDF) return continues(1) ? 2 : 0;
  if (lead >= 0xE0 && lead <= 0xEF) {
    const bool overlong = lead == 0xE0 && byte(1) < 0xA0;
    const bool surrogate = lead == 0xED && byte(1) >= 0xA0;
    return continues(1) && continues(2) && !overlong && !surrogate ? 3 : 0;
  }
  if (lead >= 0xF0 && lead <= 0xF4) {
    const bool overlong = lead == 0xF0 && byte(1) < 0x90;
    const bool tooHigh = lead == 0xF4 && byte(1) >= 0x90;
    return continues(1) && continues(2) && continues(3) && !overlong && !tooHigh ? 4 : 0;
  }
  return 0;
}

} // namespace

bool isValidUtf8(std::string_view bytes)
{
  constexpr std::uint64_t highBits = 0x8080808080808080U;
  std::size_t at = 0;
  while (at < bytes.size()) {
    std::uint64_t eight = highBits;
    if (bytes.size() - at >= sizeof eight) std::memcpy(&eight, bytes.data() + at, sizeof eight);
    if ((eight & highBits) == 0) {
      at += sizeof eight;
      continue;
    }
    const std::size_t length = sequenceLength(bytes, at);
    if (length == 0) return false;
    at += length;
  }
  return true;
}

void appendUtf8(std::string& text, char32_t character)
{
  const bool isScalar = character < 0xD800 || (character > 0xDFFF && character <= 0x10FFFF);
  const char32_t c = isScalar ? character : char32_t{0xFFFD};
  const auto byte = [&](char32_t value) { text += static_cast<char>(static_cast<unsigned char>(value)); };
  if (c < 0x80) return byte(c);
  if (c < 0x800)
    byte(0xC0 | (c >> 6));
  else if (c < 0x10000)
    byte(0xE0 | (c >> 12)), byte(0x80 | ((c >> 6) & 0x3F));
  else
    byte(0xF0 | (c >> 18)), byte(0x80 | ((c >> 12) & 0x3F)), byte(0x80 | ((c >> 6) & 0x3F));
  byte(0x80 | (c & 0x3F));
}

std::optional<std::u16string> utf16FromUtf8(std::string_view bytes)
{
  std::u16string text;
  while (!bytes.empty()) {
    const std::size_t length = sequenceLength(bytes, 0);
    if (length == 0) return std::nullopt;
    // The first byte of a longer sequence begins with as many ones as there are bytes, and a zero.
    const unsigned leadBits = length == 1 ? 0x7FU : 0x7FU >> length;
    char32_t character = static_cast<unsigned char>(bytes[0]) & leadBits;
    for (std::size_t i = 1; i < length; ++i)
      character = (character << 6) | (static_cast<unsigned char>(bytes[i]) & 0x3FU);
    bytes.remove_prefix(length);
    if (character < 0x10000) {
      text.push_back(static_cast<char16_t>(character));
      continue;
    }
    text.push_back(static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10)));
    text.push_back(static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF)));
  }
  return text;
}

std::optional<std::string> utf8FromUtf16(std::string_view bytes, ByteOrder order)
{
  if (bytes.size() % 2 != 0) return std::nullopt;
  const auto unit = [&](std::size_t at) -> char32_t {
    const auto first = static_cast<unsigned char>(bytes[at]),
               second = static_cast<unsigned char>(bytes[at + 1]);
    return order == ByteOrder::BigEndian ? char32_t{first} << 8 | second : char32_t{second} << 8 | first;
  };
  std::string text;
  for (std::size_t at = 0; at < bytes.size(); at += 2) {
    char32_t character = unit(at);
    if (character >= 0xD800 && character <= 0xDFFF) {
      const char32_t low = at + 2 < bytes.size() ? unit(at + 2) : 0;
      if (character > 0xDBFF || low < 0xDC00 || low > 0xDFFF) return std::nullopt;
      character = 0x10000 + ((character - 0xD800) << 10) + (low - 0xDC00);
      at += 2;
    }
    appendUtf8(text, character);
  }
  return text;
}

} // namespace wayvane::platform
