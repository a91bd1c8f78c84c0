#include <wayvane/platform/StringsFile.h>
#include <wayvane/platform/Utf8.h>

#include <gtest/gtest.h>

namespace wayvane::platform {
namespace {

using namespace std::string_literals;

StringTable read(std::string_view bytes)
{
  Error error;
  auto table = stringTableFromStringsFile(bytes, &error);
  if (!table) throw std::runtime_error(error.description);
  return *table;
}

std::string refusal(std::string_view bytes)
{
  Error error;
  EXPECT_EQ(stringTableFromStringsFile(bytes, &error), std::nullopt);
  EXPECT_EQ(error.domain, "strings");
  return error.description;
}

std::string utf16(std::u16string_view text, ByteOrder order)
{
  std::string bytes;
  for (const char16_t unit : text) {
    const char low = static_cast<char>(unit & 0xFF), high = static_cast<char>(unit >> 8);
    bytes += order == ByteOrder::BigEndian ? std::string{high, low} : std::string{low, high};
  }
  return bytes;
}

std::string plist(std::string_view entries)
{
  return R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0"><dict>)" +
         std::string(entries) + "</dict></plist>\n";
}

TEST(StringsFile, ReadsKeysAndTexts)
{
  EXPECT_EQ(read("\"a\" = \"b\";\n\"c\"=\"d\";"), (StringTable{{"a", "b"}, {"c", "d"}}));
}

TEST(StringsFile, MayBeEmpty)
{
  EXPECT_EQ(read(""), StringTable{});
  EXPECT_EQ(read("\xEF\xBB\xBF /* nothing */ \n"), StringTable{});
}

TEST(StringsFile, PassesOverComments)
{
  EXPECT_EQ(read("// a \"x\" = \"y\";\n/* \"x\" = \"y\"; **/ \"a\" /* : */ = // :\n \"b\" /**/ ; //"),
            (StringTable{{"a", "b"}}));
}

TEST(StringsFile, LeavesCommentMarksInTextsAlone)
{
  EXPECT_EQ(read(R"("a" = "http://x /* y */";)"), (StringTable{{"a", "http://x /* y */"}}));
}

TEST(StringsFile, ReadsBareKeysAndSingleQuotes)
{
  EXPECT_EQ(read("WV.Menu_1 = 'it is \"so\"';"), (StringTable{{"WV.Menu_1", "it is \"so\""}}));
}

TEST(StringsFile, TakesAKeyAloneAsItsOwnText)
{
  EXPECT_EQ(read("\"Open…\";"), (StringTable{{"Open…", "Open…"}}));
}

TEST(StringsFile, MayStandInBraces)
{
  EXPECT_EQ(read("{ a = b; }\n"), (StringTable{{"a", "b"}}));
}

TEST(StringsFile, TakesTheLastOfTwoEqualKeys)
{
  EXPECT_EQ(read("a = b; a = c;"), (StringTable{{"a", "c"}}));
}

TEST(StringsFile, KeepsLineBreaksInTexts)
{
  EXPECT_EQ(read("a = \"one\ntwo\";"), (StringTable{{"a", "one\ntwo"}}));
}

TEST(StringsFile, ReadsEscapes)
{
  EXPECT_EQ(read(R"(a = "\"\\\'\n\t\r\q";)").at("a"), "\"\\'\n\t\rq");
  EXPECT_EQ(read(R"(a = "\101\60\351";)").at("a"), "A0é");
}

TEST(StringsFile, ReadsUnicodeEscapes)
{
  EXPECT_EQ(read(R"(a = "\U00e9\U2026\u00E9\U41!";)").at("a"), "é…éA!");
  EXPECT_EQ(read(R"(a = "\Ud83c\Udf89";)").at("a"), "🎉");
}

TEST(StringsFile, ReplacesHalfASurrogatePair)
{
  EXPECT_EQ(read(R"(a = "\Ud83cx";)").at("a"), "\uFFFDx");
  EXPECT_EQ(read(R"(a = "\Ud83c\U0041";)").at("a"), "\uFFFDA");
  EXPECT_EQ(read(R"(a = "\Udf89";)").at("a"), "\uFFFD");
}

TEST(StringsFile, ReadsUtf16OfBothByteOrders)
{
  const std::u16string_view text = u"\"Größe\" = \"🎉\";";
  const StringTable expected{{"Größe", "🎉"}};
  EXPECT_EQ(read("\xFF\xFE" + utf16(text, ByteOrder::LittleEndian)), expected);
  EXPECT_EQ(read("\xFE\xFF" + utf16(text, ByteOrder::BigEndian)), expected);
}

TEST(StringsFile, ReadsAPropertyList)
{
  EXPECT_EQ(read(plist("<key>a</key><string>b</string>\n  <key>c</key><string/>")),
            (StringTable{{"a", "b"}, {"c", ""}}));
}

TEST(StringsFile, ReadsAPropertyListInUtf16)
{
  EXPECT_EQ(read("\xFF\xFE" + utf16(u"<plist><dict><key>ä</key><string>ö</string></dict></plist>",
                                    ByteOrder::LittleEndian)),
            (StringTable{{"ä", "ö"}}));
}

TEST(StringsFile, ReadsReferencesAndCharacterData)
{
  EXPECT_EQ(read(plist("<key>&lt;&amp;&gt;&quot;&apos;</key>"
                       "<string>&#65;&#x1F389;<![CDATA[<b>&amp;]]><!-- no -->!</string>")),
            (StringTable{{"<&>\"'", "A🎉<b>&amp;!"}}));
}

TEST(StringsFile, EndsLinesOfAPropertyListWithALineFeed)
{
  EXPECT_EQ(read(plist("<key>a</key><string>1\r\n2\r3</string>")).at("a"), "1\n2\n3");
}

TEST(StringsFile, LeavesOutEntriesOfAPropertyListThatAreNoTexts)
{
  EXPECT_EQ(read(plist("<key>a</key><dict><key>x</key><string>y</string></dict><key>b</key><true/>"
                       "<key>c</key><integer>1</integer><key>d</key><string>e</string>")),
            (StringTable{{"d", "e"}}));
}

TEST(StringsFileRefusal, TellsTheLine)
{
  EXPECT_EQ(refusal("a = b;\nc = \"d\n"), "Line 2: the text has no end");
  EXPECT_EQ(refusal("a = b;\nc = d"), "Line 2: a semicolon is missing");
  EXPECT_EQ(refusal("a = b;\n\n= c;"), "Line 3: a text is missing");
  EXPECT_EQ(refusal("a = ;"), "Line 1: a text is missing");
  EXPECT_EQ(refusal("/* a"), "Line 1: the comment has no end");
  EXPECT_EQ(refusal("a /* b"), "Line 1: the comment has no end");
  EXPECT_EQ(refusal("{ a = b;"), "Line 1: the closing brace is missing");
  EXPECT_EQ(refusal("{ a = b; } c"), "Line 1: something follows the last brace");
  EXPECT_EQ(refusal("a = (b, c);"), "Line 1: a text is missing");
}

TEST(StringsFileRefusal, OfBinaryPropertyLists)
{
  EXPECT_EQ(refusal("bplist00\xD1\x01\x02"), "Binary property lists are not read");
}

TEST(StringsFileRefusal, OfOtherEncodings)
{
  const std::string description = "The file is neither UTF-8 nor UTF-16 with a byte-order mark";
  EXPECT_EQ(refusal("a = \"caf\xE9\";"), description);
  EXPECT_EQ(refusal("\xFF\xFE\x61"), description);
  EXPECT_EQ(refusal("\xFF\xFE\x3C\xD8\x61\x00"s), description);
}

TEST(StringsFileRefusal, OfBrokenPropertyLists)
{
  EXPECT_EQ(refusal("<html></html>"), "Line 1: this is no property list");
  EXPECT_EQ(refusal("<plist><array/></plist>"), "Line 1: the property list is no dictionary");
  EXPECT_EQ(refusal("<plist></plist>"), "Line 1: there is no dictionary");
  EXPECT_EQ(refusal("<plist><dict>"), "Line 1: an element has no end");
  EXPECT_EQ(refusal("<plist><dict></plist>"), "Line 1: the tag ends another element");
  EXPECT_EQ(refusal("<plist><dict><string>a</string></dict></plist>"),
            "Line 1: keys and values do not match");
  EXPECT_EQ(refusal("<plist><dict><key>a</key></dict></plist>"), "Line 1: a value is missing");
  EXPECT_EQ(refusal("<plist><dict><key>&bomb;</key></dict></plist>"), "Line 1: the reference is unknown");
  EXPECT_EQ(refusal("<plist><dict><key>&#xD800;</key></dict></plist>"), "Line 1: the reference is unknown");
  EXPECT_EQ(refusal("<plist><dict><key"), "Line 1: the tag has no end");
  EXPECT_EQ(refusal("<!-- "), "Line 1: the markup has no end");
}

TEST(StringsFileRefusal, OfDeclaredEntities)
{
  EXPECT_EQ(refusal("<!DOCTYPE plist [<!ENTITY a \"b\">]><plist><dict/></plist>"),
            "Line 1: declarations of its own are not allowed");
}

TEST(StringsFileRefusal, OfAHundredThousandLevels)
{
  std::string xml = "<plist><dict><key>a</key>";
  for (int i = 0; i < 100'000; ++i)
    xml += "<dict>";
  EXPECT_EQ(refusal(xml), "Line 1: the elements are nested too deeply");
  EXPECT_EQ(refusal(std::string(100'000, '{')), "Line 1: a text is missing");
}

TEST(StringsFileRefusal, OfTooManyEntries)
{
  std::string text;
  for (std::size_t i = 0; i <= kStringsFileEntryLimit; ++i)
    text += std::to_string(i) + ";";
  EXPECT_EQ(refusal(text), "Line 1: the file has too many entries");
}

TEST(StringsFileRefusal, OfTooLargeFiles)
{
  EXPECT_EQ(refusal(std::string(kStringsFileSizeLimit + 1, ' ')), "The file is too large");
}

TEST(Utf8, TellsWellFormedTexts)
{
  for (const char* text :
       {"", "plain ascii of some length", "é", "日本語", "🎉", "\xED\x9F\xBF", "\xF4\x8F\xBF\xBF"})
    EXPECT_TRUE(isValidUtf8(text)) << text;
}

TEST(Utf8, TellsMalformedTexts)
{
  for (const char* text : {"\x80", "\xC3", "\xC0\x80", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF",
                           "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "seven..\xFF", "eight...\xC3"})
    EXPECT_FALSE(isValidUtf8(text)) << text;
}

TEST(Utf8, ReplacesWhatIsNoCharacter)
{
  std::string text;
  appendUtf8(text, 0xD800);
  appendUtf8(text, 0x110000);
  appendUtf8(text, 0x10FFFF);
  EXPECT_EQ(text, "\uFFFD\uFFFD\U0010FFFF");
}

} // namespace
} // namespace wayvane::platform
