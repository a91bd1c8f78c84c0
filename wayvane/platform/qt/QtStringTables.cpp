#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtStringTables.h>

#include <QStringDecoder>
#include <QXmlStreamReader>

namespace wayvane::qt {

using platform::StringTable;

namespace {

QString decoded(const QByteArray& bytes)
{
  const auto encoding = QStringConverter::encodingForData(bytes);
  QStringDecoder decoder(encoding.value_or(QStringConverter::Utf8));
  const QString text = decoder.decode(bytes);
  return decoder.hasError() ? QString() : text;
}

class StringsParser {
public:
  explicit StringsParser(QStringView text)
    : text_(text)
  {}

  std::optional<StringTable> parse()
  {
    StringTable table;
    for (skipBlanks(); !atEnd(); skipBlanks()) {
      const std::optional<QString> key = token();
      skipBlanks();
      if (!key || !accept(u'=')) return std::nullopt;
      skipBlanks();
      const std::optional<QString> value = token();
      skipBlanks();
      if (!value || !accept(u';')) return std::nullopt;
      table[toUtf8(*key)] = toUtf8(*value);
    }
    return table;
  }

private:
  [[nodiscard]] bool atEnd() const { return at_ >= text_.size(); }

  bool accept(QChar wanted)
  {
    if (atEnd() || text_[at_] != wanted) return false;
    ++at_;
    return true;
  }

  void skipTo(QStringView mark)
  {
    const qsizetype found = text_.indexOf(mark, at_ + 2);
    at_ = found < 0 ? text_.size() : found + mark.size();
  }

  void skipBlanks()
  {
    while (!atEnd()) {
      if (text_[at_].isSpace() || text_[at_] == QChar::ByteOrderMark)
        ++at_;
      else if (text_.mid(at_).startsWith(u"/*"))
        skipTo(u"*/");
      else if (text_.mid(at_).startsWith(u"//"))
        skipTo(u"\n");
      else
        return;
    }
  }

  std::optional<QString> token()
  {
    if (accept(u'"')) return quoted();
    const qsizetype start = at_;
    while (!atEnd() && (text_[at_].isLetterOrNumber() || QStringView(u"._-/").contains(text_[at_])))
      ++at_;
    if (at_ == start) return std::nullopt;
    return text_.mid(start, at_ - start).toString();
  }

  std::optional<QString> quoted()
  {
    QString result;
    while (!atEnd()) {
      const QChar c = text_[at_++];
      if (c == u'"') return result;
      result += c == u'\\' ? escape() : c;
    }
    return std::nullopt;
  }

  QChar escape()
  {
    if (atEnd()) return u'\\';
    const QChar c = text_[at_++];
    if (c == u'n') return u'\n';
    if (c == u't') return u'\t';
    if (c == u'r') return u'\r';
    if (c != u'U' && c != u'u') return c;
    bool isNumber = false;
    const ushort code = text_.mid(at_, 4).toUShort(&isNumber, 16);
    if (!isNumber) return c;
    at_ += 4;
    return QChar(code);
  }

  QStringView text_;
  qsizetype at_ = 0;
};

void addMessage(QXmlStreamReader& xml, StringTable& table)
{
  QString source;
  QString translation;
  bool isFinished = true;
  while (xml.readNextStartElement()) {
    if (xml.name() == QLatin1String("source")) {
      source = xml.readElementText(QXmlStreamReader::SkipChildElements);
    } else if (xml.name() == QLatin1String("translation")) {
      isFinished = !xml.attributes().hasAttribute(QLatin1String("type"));
      translation = xml.readElementText(QXmlStreamReader::SkipChildElements);
    } else {
      xml.skipCurrentElement();
    }
  }
  if (isFinished && !source.isEmpty() && !translation.isEmpty()) table[toUtf8(source)] = toUtf8(translation);
}

} // namespace

std::optional<StringTable> stringTableFromStrings(const QByteArray& bytes)
{
  const QString text = decoded(bytes);
  if (text.isEmpty() && !bytes.isEmpty()) return std::nullopt;
  return StringsParser(text).parse();
}

std::optional<StringTable> stringTableFromTranslationSource(const QByteArray& bytes)
{
  StringTable table;
  QXmlStreamReader xml(bytes);
  while (!xml.atEnd()) {
    const bool isMessage =
        xml.readNext() == QXmlStreamReader::StartElement && xml.name() == QLatin1String("message");
    if (isMessage) addMessage(xml, table);
  }
  if (xml.hasError()) return std::nullopt;
  return table;
}

} // namespace wayvane::qt
