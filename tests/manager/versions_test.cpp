#include <wayvane/manager/Versions.h>

#include <gtest/gtest.h>

namespace wayvane {
namespace {

TEST(Version, IsFilledUpWithZeros)
{
  EXPECT_EQ(normalizedVersion("2.1", 4), "2.1.0.0");
}

TEST(Version, IsCutAfterFourParts)
{
  EXPECT_EQ(normalizedVersion("1.2.3.4.5", 4), "1.2.3.4");
}

TEST(Version, IsTakenAsItStands)
{
  EXPECT_EQ(normalizedVersion("1.x-beta", 4), "1.x-beta.0.0");
  EXPECT_EQ(normalizedVersion("1..2", 4), "1..2.0");
  EXPECT_EQ(normalizedVersion("", 4), ".0.0.0");
  EXPECT_EQ(normalizedVersion("1.", 4), "1..0.0");
}

TEST(NumericComparison, GoesByTheValueOfDigits)
{
  EXPECT_EQ(compareNumerically("1.10.0.0", "1.9.0.0"), std::strong_ordering::greater);
  EXPECT_EQ(compareNumerically("2", "10"), std::strong_ordering::less);
  EXPECT_EQ(compareNumerically("1.02", "1.2"), std::strong_ordering::equal);
}

TEST(NumericComparison, HasRoomForAnyNumber)
{
  EXPECT_EQ(compareNumerically("1" + std::string(100, '0'), std::string(100, '9')),
            std::strong_ordering::greater);
  EXPECT_EQ(compareNumerically(std::string(100, '0'), "0"), std::strong_ordering::equal);
}

TEST(NumericComparison, GoesByCharactersElsewhere)
{
  EXPECT_EQ(compareNumerically("1.a", "1.b"), std::strong_ordering::less);
  EXPECT_EQ(compareNumerically("1.0", "1.a"), std::strong_ordering::less);
  EXPECT_EQ(compareNumerically("1.0", "1.0b"), std::strong_ordering::less);
  EXPECT_EQ(compareNumerically("", ""), std::strong_ordering::equal);
}

} // namespace
} // namespace wayvane
