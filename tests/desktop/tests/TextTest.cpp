#include <tests/desktop/Desktop.h>

#include <gmock/gmock.h>

#include <limits>

namespace wayvane::sim {
namespace {

using platform::AttributedText;
using platform::Font;
using platform::Size;

Size sizeOf(const std::string& text, double width, double fontSize = 10)
{
  AttributedText attributed;
  attributed.runs.push_back({text, Font::system(fontSize), {}, nullptr, {}});
  return TextMeasurer().sizeOfText(attributed, width);
}

constexpr double kEndless = std::numeric_limits<double>::infinity();

TEST(SimText, ACharacterIsHalfAsWideAsItsFontSize)
{
  EXPECT_EQ(sizeOf("abcd", kEndless), (Size{20, 12}));
  EXPECT_EQ(sizeOf("äöü", kEndless), (Size{15, 12}));
  EXPECT_EQ(sizeOf("a", kEndless, 11), (Size{5.5, 14}));
}

TEST(SimText, EmptyTextTakesNoRoom)
{
  EXPECT_EQ(sizeOf("", 100), Size{});
  EXPECT_EQ(TextMeasurer().sizeOfText({}, 100), Size{});
}

TEST(SimText, LinesBreakBetweenWords)
{
  EXPECT_EQ(sizeOf("abc def", 20), (Size{15, 24}));
  EXPECT_EQ(sizeOf("abc def", 35), (Size{35, 12}));
}

TEST(SimText, AWordLongerThanALineIsBroken)
{
  EXPECT_EQ(sizeOf("abcdefgh", 20), (Size{20, 24}));
  EXPECT_EQ(sizeOf("ab", 1), (Size{5, 24}));
}

TEST(SimText, ALineBreakStartsALine)
{
  EXPECT_EQ(sizeOf("a\nbc", kEndless), (Size{10, 24}));
  EXPECT_EQ(sizeOf("a\n", kEndless), (Size{5, 24}));
}

TEST(SimText, APictureTakesItsBounds)
{
  AttributedText text;
  text.runs.push_back({"ab", Font::system(10), {}, nullptr, {}});
  text.runs.push_back({"\xEF\xBF\xBC", Font::system(10), {}, makeImage(), {0, 0, 16, 16}});
  EXPECT_EQ(TextMeasurer().sizeOfText(text, kEndless), (Size{26, 16}));
}

} // namespace
} // namespace wayvane::sim
