#include <wayvane/platform/StringsParser.h>
#include <wayvane/platform/Utf8.h>

#include <algorithm>

namespace wayvane::platform {
namespace {

bool isOctal(char c)
{
  return c >= '0' && c <= '7';
}

int hexValue(char c)
{
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

bool isBareCharacter(char c)
{
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
         std::string_view("_$/:.-").find(c) != std::string_view::npos;
}

/// Reads `key = value;` one after the other, of which a key alone is its own value. The whole may stand in
/// braces.
class Parser {
public:
  explicit Parser(std::string_view text)
    : text_(text)
  {}

  std::optional<StringTable> table(Error* error)
  {
    if (entries()) return std::move(table_);
    setError(error, stringsError(text_, at_, problem_));
    return std::nullopt;
  }

private:
  bool entries()
  {
    if (!skipBlanks()) return false;
    const bool inBraces = take('{');
    while (skipBlanks() && !isAtEnd()) {
      if (inBraces && take('}'))
        return skipBlanks() && (isAtEnd() || fail("something follows the last brace"));
      if (!entry()) return false;
    }
    return !problem_.empty() ? false : !inBraces || fail("the closing brace is missing");
  }

  bool entry()
  {
    std::string key, value;
    if (!token(key) || !skipBlanks()) return false;
    if (take('=')) {
      if (!skipBlanks() || !token(value) || !skipBlanks()) return false;
    } else
      value = key;
    if (!take(';')) return fail("a semicolon is missing");
    return addEntry(table_, std::move(key), std::move(value)) || fail("the file has too many entries");
  }

  bool token(std::string& result)
  {
    if (isAtEnd()) return fail("a text is missing");
    const char first = text_[at_];
    if (first == '"' || first == '\'') return quoted(result, first);
    const std::size_t start = at_;
    while (!isAtEnd() && isBareCharacter(text_[at_]))
      ++at_;
    result = text_.substr(start, at_ - start);
    return at_ > start || fail("a text is missing");
  }

  bool quoted(std::string& result, char quote)
  {
    const std::size_t start = at_++;
    while (!isAtEnd()) {
      const char c = text_[at_++];
      if (c == quote) return true;
      if (c != '\\')
        result += c;
      else if (!isAtEnd())
        escape(result);
    }
    at_ = start;
    return fail("the text has no end");
  }

  void escape(std::string& result)
  {
    const char c = text_[at_++];
    switch (c) {
    case 'a':
      result += '\a';
      break;
    case 'b':
      result += '\b';
      break;
    case 'f':
      result += '\f';
      break;
    case 'n':
      result += '\n';
      break;
    case 'r':
      result += '\r';
      break;
    case 't':
      result += '\t';
      break;
    case 'v':
      result += '\v';
      break;
    case 'U':
    case 'u':
      appendUtf8(result, unicodeEscape());
      break;
    default:
      if (isOctal(c))
        --at_, appendUtf8(result, octalEscape());
      else
        result += c;
    }
  }

  char32_t octalEscape()
  {
    char32_t value = 0;
    for (int digits = 0; digits < 3 && !isAtEnd() && isOctal(text_[at_]); ++digits)
      value = value * 8 + static_cast<char32_t>(text_[at_++] - '0');
    return value;
  }

  /// One UTF-16 unit of up to four digits.
  char32_t unit()
  {
    char32_t value = 0;
    for (int digits = 0; digits < 4 && !isAtEnd() && hexValue(text_[at_]) >= 0; ++digits)
      value = value * 16 + static_cast<char32_t>(hexValue(text_[at_++]));
    return value;
  }

  /// The character of one unit, or of the two that make a surrogate pair.
  char32_t unicodeEscape()
  {
    const char32_t high = unit();
    const bool mayPair = high >= 0xD800 && high <= 0xDBFF;
    const std::string_view rest = text_.substr(at_);
    if (!mayPair || !(rest.starts_with("\\U") || rest.starts_with("\\u"))) return high;
    const std::size_t second = at_;
    at_ += 2;
    const char32_t low = unit();
    if (low >= 0xDC00 && low <= 0xDFFF) return 0x10000 + ((high - 0xD800) << 10) + (low - 0xDC00);
    at_ = second;
    return high;
  }

  /// Passes over white space and comments; false for a comment without an end.
  bool skipBlanks()
  {
    while (!isAtEnd()) {
      const std::string_view rest = text_.substr(at_);
      if (rest.starts_with("/*")) {
        const auto end = rest.find("*/", 2);
        if (end == std::string_view::npos) return fail("the comment has no end");
        at_ += end + 2;
      } else if (rest.starts_with("//"))
        at_ += std::min(rest.size(), rest.find_first_of("\r\n"));
      else if (std::string_view(" \t\r\n\v\f").find(rest.front()) != std::string_view::npos)
        ++at_;
      else
        break;
    }
    return true;
  }

  bool take(char c)
  {
    if (isAtEnd() || text_[at_] != c) return false;
    ++at_;
    return true;
  }

  [[nodiscard]] bool isAtEnd() const { return at_ >= text_.size(); }

  bool fail(std::string_view problem)
  {
    problem_ = problem;
    return false;
  }

  std::string_view text_;
  std::size_t at_ = 0;
  std::string_view problem_;
  StringTable table_;
};

} // namespace

std::optional<StringTable> stringTableFromText(std::string_view text, Error* error)
{
  return Parser(text).table(error);
}

} // namespace wayvane::platform
