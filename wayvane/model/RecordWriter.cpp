#include <wayvane/model/RecordErrors.h>
#include <wayvane/model/RecordWriter.h>
#include <wayvane/platform/Utf8.h>

#include <array>
#include <charconv>
#include <cmath>

namespace wayvane {
namespace {

/// Writes one record and what is in it. The first text or number that JSON cannot hold stops it.
class Writer {
public:
  explicit Writer(RecordForm form)
    : form_(form)
  {}

  template <class Record>
  void object(const Record& record)
  {
    open('{');
    for (const RecordField<Record>& field : fieldsOf(record)) {
      if (field.archiveOnly && form_ == RecordForm::File) continue;
      field_ = field.key;
      fileDefault_ = field.fileDefault;
      std::visit([&](auto member) { entry(record.*member); }, field.member);
    }
    close('}');
  }

  [[nodiscard]] std::string take() { return std::move(out_); }

  [[nodiscard]] const std::optional<Error>& error() const { return error_; }

private:
  void entry(const std::optional<std::string>& text)
  {
    if (text)
      key(field_), string(*text);
    else if (fileDefault_ && form_ == RecordForm::File)
      key(field_), string(fileDefault_);
  }

  void entry(const std::optional<LocalizationDictionary>& dictionary)
  {
    if (!dictionary) return;
    key(field_);
    open('{');
    for (const auto& [language, text] : *dictionary)
      key(language), string(text);
    close('}');
  }

  void entry(std::int64_t number)
  {
    const bool isIndex = field_ == "tableRow" || field_ == "tableColumn";
    if (form_ == RecordForm::Archive || !isIndex || number >= 0) key(field_), numeral(number);
  }

  void entry(double number)
  {
    if (form_ == RecordForm::File && !(number > 0)) return;
    if (!std::isfinite(number)) return fail(notFiniteError(field_));
    key(field_);
    numeral(number);
  }

  void entry(bool flag)
  {
    if (!flag && form_ == RecordForm::File) return;
    key(field_);
    out_ += flag ? "true" : "false";
  }

  void entry(const WVTargetDescriptor& target)
  {
    key(field_);
    object(target);
  }

  void entry(const std::vector<WVStep>& steps)
  {
    key(field_);
    open('[');
    for (const WVStep& step : steps) {
      separate();
      object(step);
    }
    close(']');
  }

  void open(char bracket)
  {
    out_ += bracket;
    ++depth_;
    isFirst_ = true;
  }

  void close(char bracket)
  {
    --depth_;
    if (!isFirst_) lineBreak();
    isFirst_ = false;
    out_ += bracket;
  }

  void separate()
  {
    if (!isFirst_) out_ += ',';
    isFirst_ = false;
    lineBreak();
  }

  void lineBreak()
  {
    out_ += '\n';
    out_.append(2 * depth_, ' ');
  }

  void key(std::string_view name)
  {
    separate();
    string(name);
    out_ += ": ";
  }

  template <class Number>
  void numeral(Number number)
  {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    out_.append(digits.data(), end);
  }

  void string(std::string_view text)
  {
    if (!platform::isValidUtf8(text)) return fail(invalidUtf8Error(field_));
    out_ += '"';
    std::size_t written = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
      const char c = text[at];
      if (static_cast<unsigned char>(c) >= 0x20 && c != '"' && c != '\\') continue;
      out_.append(text, written, at - written);
      escape(c);
      written = at + 1;
    }
    out_.append(text, written, text.size() - written);
    out_ += '"';
  }

  void escape(char c)
  {
    constexpr std::string_view digits = "0123456789abcdef";
    switch (c) {
    case '"':
      out_ += "\\\"";
      break;
    case '\\':
      out_ += "\\\\";
      break;
    case '\n':
      out_ += "\\n";
      break;
    case '\r':
      out_ += "\\r";
      break;
    case '\t':
      out_ += "\\t";
      break;
    default:
      out_ += "\\u00";
      out_ += digits[static_cast<unsigned char>(c) >> 4];
      out_ += digits[static_cast<unsigned char>(c) & 15];
    }
  }

  void fail(Error error)
  {
    if (!error_) error_ = std::move(error);
  }

  RecordForm form_;
  std::string out_;
  std::size_t depth_ = 0;
  bool isFirst_ = true;
  std::string_view field_;
  const char* fileDefault_ = nullptr;
  std::optional<Error> error_;
};

} // namespace

template <class Record>
std::optional<std::string> writtenRecord(const Record& record, RecordForm form, Error* error)
{
  try {
    Writer writer(form);
    writer.object(record);
    if (!writer.error()) return writer.take();
    platform::setError(error, *writer.error());
  } catch (const std::exception& exception) {
    platform::setError(error, outOfMemoryError(exception));
  }
  return std::nullopt;
}

template std::optional<std::string> writtenRecord(const WVGuide&, RecordForm, Error*);
template std::optional<std::string> writtenRecord(const WVStep&, RecordForm, Error*);
template std::optional<std::string> writtenRecord(const WVTargetDescriptor&, RecordForm, Error*);

} // namespace wayvane
