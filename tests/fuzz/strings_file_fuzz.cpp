#include <tests/fuzz/Mutator.h>
#include <wayvane/platform/StringsFile.h>
#include <wayvane/platform/Utf8.h>

#include <gtest/gtest.h>

namespace wayvane::platform {
namespace {

fuzz::Mutator stringsFiles()
{
  const std::string utf16 = [] {
    std::string bytes = "\xFF\xFE";
    for (const char c : std::string("\"a\" = \"b\"; /* c */ \"d\\n\" = \"\\U00e9\";"))
      bytes += {c, '\0'};
    return bytes;
  }();
  return {
      {
          "/* menu */\n\"Open…\" = \"Öffnen …\";\n// more\n\"a\\\"b\" = "
          "\"\\U00e9\\Ud83c\\Udf89\\n\";\nbare.key = 'x';\n",
          "{ a = \"b\"; c; \"d\" = \"\\101\"; }",
          "<?xml version=\"1.0\"?><!DOCTYPE plist><plist "
          "version=\"1.0\"><dict><key>a&amp;</key><string>&#x41;"
          "<![CDATA[<b>]]></string><key>c</key><dict><key>d</key><array/></dict><!-- e --></dict></plist>",
          utf16,
      },
      {"\"",  "'",    ";",  "=",    "/*",       "*/",       "//",           "\\",       "\\U",    "\\Ud83c",
       "\\7", "{",    "}",  "<",    ">",        "</dict>",  "<key>",        "<string>", "</key>", "<![CDATA[",
       "]]>", "<!--", "&#", "&lt;", "\xFF\xFE", "\xFE\xFF", "\xEF\xBB\xBF", "bplist",   "\xC3",   "\r\n"},
      19991231};
}

std::string written(const StringTable& table)
{
  std::string text;
  const auto quote = [&](const std::string& part) {
    text += '"';
    for (const char c : part)
      text += c == '"' || c == '\\' ? std::string{'\\', c} : std::string{c};
    text += '"';
  };
  for (const auto& [key, value] : table)
    quote(key), text += '=', quote(value), text += ';';
  return text;
}

TEST(StringsFileFuzz, TwentyThousandDamagedFilesAreReadWholeOrRefused)
{
  fuzz::Mutator files = stringsFiles();
  int read = 0, refused = 0;
  for (int i = 0; i < 20'000 && !testing::Test::HasFailure(); ++i) {
    const std::string input = files.next();
    Error error;
    const auto table = stringTableFromStringsFile(input, &error);
    if (!table) {
      ++refused;
      EXPECT_FALSE(error.description.empty()) << input;
      continue;
    }
    ++read;
    for (const auto& [key, value] : *table)
      EXPECT_TRUE(isValidUtf8(key) && isValidUtf8(value)) << input;
    EXPECT_EQ(stringTableFromStringsFile(written(*table)), table) << input;
  }
  EXPECT_GT(read, 1000);
  EXPECT_GT(refused, 1000);
}

} // namespace
} // namespace wayvane::platform
