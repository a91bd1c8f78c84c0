#include <wayvane/model/Utf8.h>

#include <cstdint>
#include <cstring>

namespace wayvane {
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

} // namespace wayvane
