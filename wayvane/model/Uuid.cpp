#include <wayvane/model/Uuid.h>

#include <array>
#include <cstdint>
#include <exception>
#include <random>
#include <string_view>

namespace wayvane {
namespace {

std::mt19937_64 seededGenerator()
{
  std::array<std::uint32_t, 8> entropy{};
  try {
    std::random_device device;
    for (std::uint32_t& word : entropy)
      word = device();
  } catch (const std::exception&) {
    // Without a source of randomness, where the loader put us is all there is to tell two runs apart.
    const auto address = reinterpret_cast<std::uintptr_t>(&entropy);
    entropy[0] = static_cast<std::uint32_t>(address);
    entropy[1] = static_cast<std::uint32_t>(std::uint64_t{address} >> 32);
  }
  std::seed_seq seed(entropy.begin(), entropy.end());
  return std::mt19937_64(seed);
}

} // namespace

std::string freshUuid()
{
  thread_local std::mt19937_64 generator = seededGenerator();
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string uuid = "xxxxxxxx-xxxx-4xxx-Vxxx-xxxxxxxxxxxx";
  std::uint64_t bits = 0;
  int left = 0;
  for (char& c : uuid) {
    if (c != 'x' && c != 'V') continue;
    if (left == 0) bits = generator(), left = 16;
    const std::uint64_t nibble = bits & 15;
    c = digits[c == 'V' ? 8 | (nibble & 3) : nibble];
    bits >>= 4;
    --left;
  }
  return uuid;
}

} // namespace wayvane
