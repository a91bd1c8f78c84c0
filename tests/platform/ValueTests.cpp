#include <wayvane/platform/Color.h>
#include <wayvane/platform/Format.h>
#include <wayvane/platform/Geometry.h>
#include <wayvane/platform/SearchText.h>

#include <gtest/gtest.h>

using namespace wayvane::platform;

TEST(Transform, MapsARectangleToItsBoundingBox)
{
  const Transform quarterTurn{0, 1, -1, 0, 0, 0};
  EXPECT_EQ(quarterTurn.apply(Rect{1, 2, 3, 4}), (Rect{-6, 1, 4, 3}));
}

TEST(Transform, MapsAMirroredRectangleToPositiveSides)
{
  EXPECT_EQ(Transform::scale(-2, -1).apply(Rect{1, 2, 3, 4}), (Rect{-8, -6, 6, 4}));
}

TEST(Transform, AppliesItselfBeforeTheNext)
{
  const Transform map = Transform::scale(2, 2).then(Transform::translation(10, 0));
  EXPECT_EQ(map.apply(Point{3, 4}), (Point{16, 8}));
}

TEST(Rect, PrintsAsLogLinesShowIt)
{
  EXPECT_EQ(stringFromRect({0, -5.5, 1440, 900}), "{{0, -5.5}, {1440, 900}}");
}

TEST(Color, FollowsTheAppearanceWhenSemantic)
{
  EXPECT_EQ(Color::systemBlue().resolved(Appearance::Light), (Rgba{0, 122 / 255.0, 1, 1}));
  EXPECT_EQ(Color::systemBlue().resolved(Appearance::Dark), (Rgba{10 / 255.0, 132 / 255.0, 1, 1}));
  EXPECT_EQ(Color::systemRed().resolved(Appearance::Light), (Rgba{1, 59 / 255.0, 48 / 255.0, 1}));
  EXPECT_EQ(Color::systemRed().resolved(Appearance::Dark), (Rgba{1, 69 / 255.0, 58 / 255.0, 1}));
  EXPECT_EQ(Color::controlBackground().resolved(Appearance::Light), (Rgba{1, 1, 1, 1}));
  EXPECT_EQ(Color::controlBackground().resolved(Appearance::Dark),
            (Rgba{30 / 255.0, 30 / 255.0, 30 / 255.0, 1}));
}

TEST(Color, TurnsFromBlackToWhiteForTextsAndLines)
{
  for (const Color& color : {Color::label(), Color::secondaryLabel(), Color::separator()}) {
    EXPECT_EQ(color.resolved(Appearance::Light).red, 0);
    EXPECT_EQ(color.resolved(Appearance::Dark).red, 1);
    EXPECT_LT(color.resolved(Appearance::Light).alpha, 1);
    EXPECT_GT(color.resolved(Appearance::Light).alpha, 0);
  }
}

TEST(Color, StaysAsItIsWhenFixed)
{
  const Color color = Color::rgba(0.1, 0.2, 0.3, 0.4);
  EXPECT_EQ(color.resolved(Appearance::Dark), (Rgba{0.1, 0.2, 0.3, 0.4}));
}

TEST(Color, IsClearUnlessSet)
{
  EXPECT_TRUE(Color().isClear());
  EXPECT_FALSE(Color::label().isClear());
}

TEST(Format, FillsPlaceholdersInTheirOrder)
{
  EXPECT_EQ(format("%@: %lu of %ld (%d)", {"step", std::uint64_t{1}, std::int64_t{-2}, 3}),
            "step: 1 of -2 (3)");
}

TEST(Format, FillsPlaceholdersByNumber)
{
  EXPECT_EQ(format("%2$lu / %1$@", {"a", 7}), "7 / a");
}

TEST(Format, UsesAnArgumentAsOftenAsItIsNumbered)
{
  EXPECT_EQ(format("%1$@%1$@", {"ab"}), "abab");
}

TEST(Format, PrintsAPerCentSignForTwo)
{
  EXPECT_EQ(format("%d %%d %%", {50}), "50 %d %");
}

TEST(Format, LeavesUnknownSequencesAsTheyStand)
{
  for (const char* pattern : {"%n", "%s", "%", "50 %", "%5d", "%-@", "%l", "%1$", "%0$@", "%$@", "%1$s"})
    EXPECT_EQ(format(pattern, {"x"}), pattern);
}

TEST(Format, LeavesPlaceholdersWithoutAnArgumentAsTheyStand)
{
  EXPECT_EQ(format("%@ %@", {"one"}), "one %@");
  EXPECT_EQ(format("%2$@ %99999999999999999999$@", {"one"}), "%2$@ %99999999999999999999$@");
}

TEST(Format, DoesNotFillWhatAnArgumentBringsAlong)
{
  EXPECT_EQ(format("%@ %@", {"%@%n%2$@", "two"}), "%@%n%2$@ two");
}

TEST(Format, PrintsAnAbsentTextAsNull)
{
  EXPECT_EQ(format("%@", {std::optional<std::string>()}), "(null)");
}

TEST(SearchText, KeepsBothEncodings)
{
  const SearchText text("Größe → 😀");
  EXPECT_TRUE(text.isValid());
  EXPECT_EQ(text.utf8(), "Größe → 😀");
  EXPECT_EQ(text.utf16(), u"Größe → 😀");
}

TEST(SearchText, MatchesNothingInUtf16WhenTheBytesAreNoUtf8)
{
  for (const char* bytes :
       {"a\xFF", "\x80", "\xC3", "\xE2\x82", "\xC0\x80", "\xE0\x80\xAF", "\xF0\x80\x80\x80", "\xED\xA0\x80",
        "\xED\xBF\xBF", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80"}) {
    const SearchText text(bytes);
    EXPECT_FALSE(text.isValid()) << bytes;
    EXPECT_TRUE(text.utf16().empty());
    EXPECT_EQ(text.utf8(), bytes);
  }
}

TEST(SearchText, TakesTheLastCharactersBeforeAndAfterTheSurrogates)
{
  EXPECT_EQ(SearchText("\xED\x9F\xBF\xEE\x80\x80").utf16(), u"\uD7FF\uE000");
  EXPECT_EQ(SearchText("\xF4\x8F\xBF\xBF").utf16(), u"\U0010FFFF");
}

TEST(SearchText, TakesAnEmptyTextAndAZeroByte)
{
  EXPECT_TRUE(SearchText("").isValid());
  EXPECT_EQ(SearchText(std::string_view("a\0b", 3)).utf16(), std::u16string_view(u"a\0b", 3));
}
