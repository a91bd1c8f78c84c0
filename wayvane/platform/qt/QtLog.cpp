#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtGuard.h>
#include <wayvane/platform/qt/QtLog.h>

namespace wayvane::qt {

namespace {

/// Whoever reads the log by lines, or shows it in a terminal, sees one harmless line.
QString escaped(const QString& text)
{
  QString result;
  result.reserve(text.size());
  for (const QChar c : text) {
    if (c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator)
      result += QStringLiteral("\\u%1").arg(static_cast<uint>(c.unicode()), 4, 16, QLatin1Char('0'));
    else
      result += c;
  }
  return result;
}

} // namespace

Q_LOGGING_CATEGORY(logCategory, "wayvane", QtInfoMsg)

void logEscaped(const char* where, const char* what)
{
  QtLog().write(std::string("Wayvane: exception in ") + where + ": " + what);
}

void QtLog::write(std::string_view line)
{
  qCInfo(logCategory).noquote() << escaped(toQString(line));
}

} // namespace wayvane::qt
