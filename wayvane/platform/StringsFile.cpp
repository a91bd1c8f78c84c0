#include <wayvane/platform/Format.h>
#include <wayvane/platform/StringsFile.h>
#include <wayvane/platform/StringsParser.h>
#include <wayvane/platform/Utf8.h>

#include <algorithm>
#include <exception>

namespace wayvane::platform {
namespace {

std::optional<StringTable> refused(Error* error, std::string description)
{
  setError(error, {"strings", 1, std::move(description), {}});
  return std::nullopt;
}

/// The bytes as UTF-8 without a byte-order mark; nothing when they are neither UTF-8 nor UTF-16.
std::optional<std::string> decoded(std::string_view bytes)
{
  if (bytes.starts_with("\xFF\xFE")) return utf8FromUtf16(bytes.substr(2), ByteOrder::LittleEndian);
  if (bytes.starts_with("\xFE\xFF")) return utf8FromUtf16(bytes.substr(2), ByteOrder::BigEndian);
  if (bytes.starts_with("\xEF\xBB\xBF")) bytes.remove_prefix(3);
  if (!isValidUtf8(bytes)) return std::nullopt;
  return std::string(bytes);
}

bool looksLikeXml(std::string_view text)
{
  const auto first = text.find_first_not_of(" \t\r\n");
  return first != std::string_view::npos && text[first] == '<';
}

std::optional<StringTable> tableFrom(std::string_view bytes, Error* error)
{
  if (bytes.size() > kStringsFileSizeLimit) return refused(error, "The file is too large");
  if (bytes.starts_with("bplist")) return refused(error, "Binary property lists are not read");
  const auto text = decoded(bytes);
  if (!text) return refused(error, "The file is neither UTF-8 nor UTF-16 with a byte-order mark");
  return looksLikeXml(*text) ? stringTableFromXml(*text, error) : stringTableFromText(*text, error);
}

} // namespace

Error stringsError(std::string_view text, std::size_t at, std::string_view what)
{
  const auto read = text.substr(0, std::min(at, text.size()));
  const std::int64_t line = 1 + std::count(read.begin(), read.end(), '\n');
  return {"strings", 2, format("Line %ld: %@", {line, what}), {}};
}

bool addEntry(StringTable& table, std::string key, std::string value)
{
  table.insert_or_assign(std::move(key), std::move(value));
  return table.size() <= kStringsFileEntryLimit;
}

std::optional<StringTable> stringTableFromStringsFile(std::string_view bytes, Error* error)
{
  try {
    return tableFrom(bytes, error);
  } catch (const std::exception& exception) {
    return refused(error, exception.what());
  }
}

} // namespace wayvane::platform
