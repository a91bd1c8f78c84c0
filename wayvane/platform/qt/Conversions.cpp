#include <wayvane/platform/qt/Conversions.h>

#include <QApplication>
#include <QFontDatabase>
#include <QPalette>
#include <QScreen>
#include <QTextDocument>
#include <QTextDocumentFragment>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace wayvane::qt {

using platform::Point;
using platform::Rect;

namespace {

/// Where the framework's screen space has its origin, in Qt's global coordinates.
QPointF screenOrigin()
{
  const QScreen* primary = QGuiApplication::primaryScreen();
  if (!primary) return {};
  const QRect geometry = primary->geometry();
  return QPointF(geometry.x(), geometry.y() + geometry.height());
}

QStringView viewOf(std::u16string_view text)
{
  return {text.data(), static_cast<qsizetype>(text.size())};
}

using CaptionBuffer = QVarLengthArray<QChar, 256>;

/// What is shown of a caption: a part of it or of the buffer, so that a short one allocates nothing.
QStringView shownCaption(QStringView caption, CaptionBuffer& buffer)
{
  if (!caption.contains(u'&')) return caption;
  for (qsizetype i = 0; i < caption.size(); ++i) {
    // "(&S)" is how languages without Latin letters show a mnemonic: all of it goes.
    if (caption[i] == u'(' && i + 3 < caption.size() && caption[i + 1] == u'&' && caption[i + 2] != u'&' &&
        caption[i + 3] == u')') {
      i += 3;
      continue;
    }
    if (caption[i] == u'&' && ++i >= caption.size()) break;
    buffer.append(caption[i]);
  }
  const QStringView shown(buffer.constData(), buffer.size());
  return caption.contains(QLatin1String("(&")) ? shown.trimmed() : shown;
}

/// What is shown of a caption is never longer than the caption.
bool canShow(QStringView caption, const platform::SearchText& wanted)
{
  return caption.size() >= viewOf(wanted.utf16()).size();
}

} // namespace

std::string toUtf8(QStringView text)
{
  const QByteArray bytes = text.toUtf8();
  return {bytes.constData(), static_cast<std::size_t>(bytes.size())};
}

QString toQString(std::string_view utf8)
{
  return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

std::optional<std::string> toOptional(QStringView text)
{
  if (text.isEmpty()) return std::nullopt;
  return toUtf8(text);
}

bool equals(QStringView text, const platform::SearchText& wanted)
{
  return wanted.isValid() && text == viewOf(wanted.utf16());
}

QString withoutMnemonic(const QString& caption)
{
  if (!caption.contains(u'&')) return caption;
  CaptionBuffer buffer;
  return shownCaption(caption, buffer).toString();
}

bool captionEquals(QStringView caption, const platform::SearchText& wanted)
{
  if (!canShow(caption, wanted)) return false;
  CaptionBuffer buffer;
  return equals(shownCaption(caption, buffer), wanted);
}

bool captionEqualsWithoutColon(QStringView caption, const platform::SearchText& wanted)
{
  if (!canShow(caption, wanted)) return false;
  CaptionBuffer buffer;
  return equals(withoutColon(shownCaption(caption, buffer)), wanted);
}

QStringView withoutColon(QStringView text)
{
  text = text.trimmed();
  if (text.endsWith(u':') || text.endsWith(u'\uFF1A')) text.chop(1);
  return text.trimmed();
}

QString withoutMarkup(const QString& text)
{
  return Qt::mightBeRichText(text) ? QTextDocumentFragment::fromHtml(text).toPlainText() : text;
}

Point toPoint(QPointF point)
{
  return {point.x(), point.y()};
}

Rect toRect(const QRectF& rect)
{
  return {rect.x(), rect.y(), rect.width(), rect.height()};
}

QPointF toQPointF(Point point)
{
  return {point.x, point.y};
}

QRectF toQRectF(const Rect& rect)
{
  return {rect.x, rect.y, rect.width, rect.height};
}

QRect toQRect(const Rect& rect)
{
  return toQRectF(rect).toAlignedRect();
}

Rect screenRectFromGlobal(const QRectF& global)
{
  const QPointF origin = screenOrigin();
  return {global.x() - origin.x(), origin.y() - global.y() - global.height(), global.width(),
          global.height()};
}

QRectF globalFromScreenRect(const Rect& rect)
{
  const QPointF origin = screenOrigin();
  return {rect.x + origin.x(), origin.y() - rect.y - rect.height, rect.width, rect.height};
}

Point screenPointFromGlobal(QPointF global)
{
  const QPointF origin = screenOrigin();
  return {global.x() - origin.x(), origin.y() - global.y()};
}

QPointF globalFromScreenPoint(Point point)
{
  const QPointF origin = screenOrigin();
  return {point.x + origin.x(), origin.y() - point.y};
}

Rect windowRectFromWidget(const QRectF& rect, const QWidget& window)
{
  return {rect.x(), window.height() - rect.y() - rect.height(), rect.width(), rect.height()};
}

QRectF widgetRectFromWindow(const Rect& rect, const QWidget& window)
{
  return {rect.x, window.height() - rect.y - rect.height, rect.width, rect.height};
}

Point windowPointFromWidget(QPointF point, const QWidget& window)
{
  return {point.x(), window.height() - point.y()};
}

QPointF widgetPointFromWindow(Point point, const QWidget& window)
{
  return {point.x, window.height() - point.y};
}

QColor toQColor(const platform::Rgba& components)
{
  const auto channel = [](double value) { return static_cast<float>(std::clamp(value, 0.0, 1.0)); };
  return QColor::fromRgbF(channel(components.red), channel(components.green), channel(components.blue),
                          channel(components.alpha));
}

QColor toQColor(const platform::Color& color, platform::Appearance appearance)
{
  return toQColor(color.resolved(appearance));
}

QFont toQFont(const platform::Font& font)
{
  using Face = platform::Font::Face;
  using Weight = platform::Font::Weight;
  // Digits of one width: the general face's figures are tabular nearly everywhere, and there is no way to
  // ask.
  QFont result = QFontDatabase::systemFont(font.face == Face::Monospaced ? QFontDatabase::FixedFont
                                                                         : QFontDatabase::GeneralFont);
  result.setPixelSize(std::max(1, static_cast<int>(std::lround(font.size))));
  result.setWeight(font.weight == Weight::Bold     ? QFont::Bold
                   : font.weight == Weight::Medium ? QFont::Medium
                                                   : QFont::Normal);
  return result;
}

platform::Appearance appearanceOf(const QWidget* widget)
{
  const QPalette palette = widget ? widget->palette() : QGuiApplication::palette();
  const bool dark =
      palette.color(QPalette::WindowText).lightness() > palette.color(QPalette::Window).lightness();
  return dark ? platform::Appearance::Dark : platform::Appearance::Light;
}

} // namespace wayvane::qt
