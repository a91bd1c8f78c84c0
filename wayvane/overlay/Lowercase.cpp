#include <wayvane/overlay/Lowercase.h>
#include <wayvane/platform/Utf8.h>

#include <array>

namespace wayvane {
namespace {

/// Capitals from `first` to `last`, every `step`th, lie `offset` before their small letters.
struct Range {
  char32_t first, last, step;
  int offset;
};

constexpr std::array<Range, 41> kCapitals{{
    {0x41, 0x5A, 1, 32},        {0xC0, 0xD6, 1, 32},    {0xD8, 0xDE, 1, 32},     {0x100, 0x12E, 2, 1},
    {0x132, 0x136, 2, 1},       {0x139, 0x147, 2, 1},   {0x14A, 0x176, 2, 1},    {0x178, 0x178, 1, -121},
    {0x179, 0x17D, 2, 1},       {0x18F, 0x18F, 1, 202}, {0x1A0, 0x1A4, 2, 1},    {0x1AF, 0x1AF, 1, 1},
    {0x1B5, 0x1B5, 1, 1},       {0x1CD, 0x1DB, 2, 1},   {0x1DE, 0x1EE, 2, 1},    {0x1F8, 0x21E, 2, 1},
    {0x222, 0x232, 2, 1},       {0x386, 0x386, 1, 38},  {0x388, 0x38A, 1, 37},   {0x38C, 0x38C, 1, 64},
    {0x38E, 0x38F, 1, 63},      {0x391, 0x3A1, 1, 32},  {0x3A3, 0x3AB, 1, 32},   {0x400, 0x40F, 1, 80},
    {0x410, 0x42F, 1, 32},      {0x460, 0x480, 2, 1},   {0x48A, 0x4BE, 2, 1},    {0x4C0, 0x4C0, 1, 15},
    {0x4C1, 0x4CD, 2, 1},       {0x4D0, 0x52E, 2, 1},   {0x531, 0x556, 1, 48},   {0x1E00, 0x1E94, 2, 1},
    {0x1E9E, 0x1E9E, 1, -7615}, {0x1EA0, 0x1EFE, 2, 1}, {0x2160, 0x216F, 1, 16}, {0x24B6, 0x24CF, 1, 26},
    {0x2C60, 0x2C60, 1, 1},     {0xA726, 0xA72E, 2, 1}, {0xFF21, 0xFF3A, 1, 32}, {0x1C4, 0x1C4, 1, 2},
    {0x1C7, 0x1CA, 3, 2},
}};

char32_t lowercased(char32_t letter)
{
  for (const Range& range : kCapitals)
    if (letter >= range.first && letter <= range.last && (letter - range.first) % range.step == 0)
      return static_cast<char32_t>(static_cast<int>(letter) + range.offset);
  return letter;
}

/// How many bytes the letter at the front has, up to three; 0 for longer ones and for what is no letter.
std::size_t letterLength(std::string_view text)
{
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t length = lead < 0x80                   ? 1
                             : lead >= 0xC2 && lead < 0xE0 ? 2
                             : (lead & 0xF0) == 0xE0       ? 3
                                                           : 0;
  if (length > text.size()) return 0;
  for (std::size_t i = 1; i < length; ++i)
    if ((static_cast<unsigned char>(text[i]) & 0xC0) != 0x80) return 0;
  return length;
}

char32_t letterOf(std::string_view bytes)
{
  char32_t letter = static_cast<unsigned char>(bytes.front());
  if (bytes.size() > 1) letter &= bytes.size() == 2 ? 0x1F : 0x0F;
  for (const char byte : bytes.substr(1))
    letter = (letter << 6) | (static_cast<unsigned char>(byte) & 0x3F);
  return letter;
}

} // namespace

std::string lowercased(std::string_view utf8)
{
  std::string result;
  while (!utf8.empty()) {
    const std::size_t length = letterLength(utf8);
    const std::string_view letter = utf8.substr(0, length ? length : 1);
    const char32_t before = length ? letterOf(letter) : 0;
    const char32_t after = lowercased(before);
    if (before == 0x130)
      result += "i\u0307"; // keeps the dot that the Turkish capital has
    else if (before == after)
      result += letter;
    else
      platform::appendUtf8(result, after);
    utf8.remove_prefix(letter.size());
  }
  return result;
}

} // namespace wayvane
