#include <wayvane/platform/StringsParser.h>
#include <wayvane/platform/Utf8.h>

#include <algorithm>
#include <charconv>
#include <vector>

namespace wayvane::platform {
namespace {

constexpr std::size_t kNestingLimit = 512;

/// What a reference such as "amp" or "#x41" stands for; nothing when that is unknown.
std::optional<char32_t> referenced(std::string_view name)
{
  if (name == "amp") return U'&';
  if (name == "lt") return U'<';
  if (name == "gt") return U'>';
  if (name == "quot") return U'"';
  if (name == "apos") return U'\'';
  if (!name.starts_with('#')) return std::nullopt;
  name.remove_prefix(1);
  const bool isHex = name.starts_with('x');
  if (isHex) name.remove_prefix(1);
  std::uint32_t code = 0;
  const char* end = name.data() + name.size();
  const auto result = std::from_chars(name.data(), end, code, isHex ? 16 : 10);
  const bool isCharacter = code != 0 && code <= 0x10FFFF && (code < 0xD800 || code > 0xDFFF);
  if (result.ec != std::errc() || result.ptr != end || !isCharacter) return std::nullopt;
  return static_cast<char32_t>(code);
}

/// Reads a property list whose root is a dictionary, and of that the entries that are texts. Declarations of
/// entities are refused: they can make a small file a huge one.
class Parser {
public:
  explicit Parser(std::string_view xml)
    : xml_(xml)
  {}

  std::optional<StringTable> table(Error* error)
  {
    if (document()) return std::move(table_);
    setError(error, stringsError(xml_, at_, problem_));
    return std::nullopt;
  }

private:
  bool document()
  {
    while (at_ < xml_.size()) {
      if (!(xml_[at_] == '<' ? markup() : text())) return false;
    }
    if (!open_.empty()) return fail("an element has no end");
    return sawDictionary_ || fail("there is no dictionary");
  }

  bool markup()
  {
    const std::string_view rest = xml_.substr(at_);
    if (rest.starts_with("<?")) return skipPast("?>");
    if (rest.starts_with("<!--")) return skipPast("-->");
    if (rest.starts_with("<![CDATA[")) return cdata();
    if (rest.starts_with("<!")) return documentType();
    if (rest.starts_with("</")) return endTag();
    return startTag();
  }

  bool skipPast(std::string_view mark)
  {
    const auto end = xml_.find(mark, at_);
    if (end == std::string_view::npos) return fail("the markup has no end");
    at_ = end + mark.size();
    return true;
  }

  bool documentType()
  {
    const auto end = xml_.find('>', at_);
    const auto subset = xml_.find('[', at_);
    if (subset < end) return fail("declarations of its own are not allowed");
    return skipPast(">");
  }

  bool cdata()
  {
    constexpr std::string_view mark = "<![CDATA[";
    const auto start = at_ + mark.size();
    if (!skipPast("]]>")) return false;
    if (isCollecting()) text_ += xml_.substr(start, at_ - 3 - start);
    return true;
  }

  bool text()
  {
    const auto end = std::min(xml_.size(), xml_.find('<', at_));
    while (at_ < end) {
      const char c = xml_[at_];
      if (c == '&') {
        if (!reference()) return false;
        continue;
      }
      ++at_;
      // A line ends with a line feed, whatever the file says.
      if (c == '\r' && at_ < end && xml_[at_] == '\n') continue;
      if (isCollecting()) text_ += c == '\r' ? '\n' : c;
    }
    return true;
  }

  bool reference()
  {
    constexpr std::size_t longest = 12;
    const auto end = xml_.substr(at_, longest).find(';');
    if (end == std::string_view::npos) return fail("the reference has no end");
    const auto character = referenced(xml_.substr(at_ + 1, end - 1));
    if (!character) return fail("the reference is unknown");
    at_ += end + 1;
    if (isCollecting()) appendUtf8(text_, *character);
    return true;
  }

  bool startTag()
  {
    const auto end = endOfTag();
    if (end == std::string_view::npos) return fail("the tag has no end");
    std::string_view tag = xml_.substr(at_ + 1, end - at_ - 1);
    const bool isEmpty = tag.ends_with('/');
    if (isEmpty) tag.remove_suffix(1);
    const std::string_view name = tag.substr(0, tag.find_first_of(" \t\r\n"));
    if (name.empty()) return fail("the tag has no name");
    if (!begin(name)) return false;
    at_ = end + 1;
    return !isEmpty || finish();
  }

  /// Where the tag's ">" is; one in an attribute's value does not count.
  [[nodiscard]] std::size_t endOfTag() const
  {
    char quote = 0;
    for (std::size_t at = at_; at < xml_.size(); ++at) {
      const char c = xml_[at];
      if (quote != 0)
        quote = c == quote ? '\0' : quote;
      else if (c == '"' || c == '\'')
        quote = c;
      else if (c == '>')
        return at;
    }
    return std::string_view::npos;
  }

  bool endTag()
  {
    const auto end = xml_.find('>', at_);
    if (end == std::string_view::npos) return fail("the tag has no end");
    std::string_view name = xml_.substr(at_ + 2, end - at_ - 2);
    name = name.substr(0, name.find_first_of(" \t\r\n"));
    if (open_.empty() || open_.back() != name) return fail("the tag ends another element");
    at_ = end + 1;
    return finish();
  }

  bool begin(std::string_view name)
  {
    if (open_.size() == kNestingLimit) return fail("the elements are nested too deeply");
    if (open_.empty() && (name != "plist" || sawDictionary_)) return fail("this is no property list");
    if (open_.size() == 1) {
      if (name != "dict" || sawDictionary_) return fail("the property list is no dictionary");
      sawDictionary_ = true;
    }
    if (open_.size() == 2 && (name == "key") == key_.has_value()) return fail("keys and values do not match");
    open_.push_back(name);
    if (open_.size() == 3) text_.clear();
    return true;
  }

  bool finish()
  {
    const std::string_view name = open_.back();
    open_.pop_back();
    if (open_.size() == 1 && key_) return fail("a value is missing");
    if (open_.size() != 2) return true;
    if (name == "key") {
      key_ = std::move(text_);
      return true;
    }
    const bool fits = name != "string" || addEntry(table_, std::move(*key_), std::move(text_));
    key_.reset();
    return fits || fail("the file has too many entries");
  }

  /// Whether what is read is the text of a key or a value.
  [[nodiscard]] bool isCollecting() const { return open_.size() == 3; }

  bool fail(std::string_view problem)
  {
    problem_ = problem;
    return false;
  }

  std::string_view xml_;
  std::size_t at_ = 0;
  std::vector<std::string_view> open_;
  bool sawDictionary_ = false;
  std::optional<std::string> key_;
  std::string text_;
  std::string_view problem_;
  StringTable table_;
};

} // namespace

std::optional<StringTable> stringTableFromXml(std::string_view xml, Error* error)
{
  return Parser(xml).table(error);
}

} // namespace wayvane::platform
