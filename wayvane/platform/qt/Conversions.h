#pragma once

#include <wayvane/platform/Color.h>
#include <wayvane/platform/Font.h>
#include <wayvane/platform/Geometry.h>
#include <wayvane/platform/SearchText.h>

#include <QColor>
#include <QFont>
#include <QPointF>
#include <QRectF>
#include <QString>

#include <optional>
#include <string>
#include <string_view>

class QWidget;

/// Everything that turns values of the framework into Qt's and back. Nothing else in the binding does.
///
/// Qt's global and widget coordinates grow downward, in device-independent pixels, which are the framework's
/// points. The framework's screen space grows upward from the bottom left of the primary screen, its window
/// space upward from the bottom left of the window's client area. Main thread only.
namespace wayvane::qt {

// Texts

[[nodiscard]] std::string toUtf8(QStringView text);
/// Invalid sequences become replacement characters.
[[nodiscard]] QString toQString(std::string_view utf8);
/// Nothing for the empty text.
[[nodiscard]] std::optional<std::string> toOptional(QStringView text);
/// Compares without converting or allocating; false when `wanted` was not valid UTF-8.
[[nodiscard]] bool equals(QStringView text, const platform::SearchText& wanted);
/// A caption without its keyboard mnemonic: "&Save" and "Save(&S)" say "Save", "A && B" says "A & B".
[[nodiscard]] QString withoutMnemonic(const QString& caption);
/// The same as `equals(withoutMnemonic(caption), wanted)`, without allocating for a short caption.
[[nodiscard]] bool captionEquals(QStringView caption, const platform::SearchText& wanted);
/// A text less the colon at its end, and the spaces around.
[[nodiscard]] QStringView withoutColon(QStringView text);
/// The same as `equals(withoutColon(withoutMnemonic(caption)), wanted)`, without allocating for a short one.
[[nodiscard]] bool captionEqualsWithoutColon(QStringView caption, const platform::SearchText& wanted);

/// The words of a text that may be rich text, as Qt guesses it; a plain one comes back as it is.
[[nodiscard]] QString withoutMarkup(const QString& text);

// Plain geometry: the axes stay as they are

[[nodiscard]] platform::Point toPoint(QPointF point);
[[nodiscard]] platform::Rect toRect(const QRectF& rect);
[[nodiscard]] QPointF toQPointF(platform::Point point);
[[nodiscard]] QRectF toQRectF(const platform::Rect& rect);
/// The smallest rectangle of whole pixels around it.
[[nodiscard]] QRect toQRect(const platform::Rect& rect);

// Screen space

[[nodiscard]] platform::Rect screenRectFromGlobal(const QRectF& global);
[[nodiscard]] QRectF globalFromScreenRect(const platform::Rect& rect);
[[nodiscard]] platform::Point screenPointFromGlobal(QPointF global);
[[nodiscard]] QPointF globalFromScreenPoint(platform::Point point);

// Window space. `window` is the top-level widget; `rect` and `point` are in its own downward coordinates.

[[nodiscard]] platform::Rect windowRectFromWidget(const QRectF& rect, const QWidget& window);
[[nodiscard]] QRectF widgetRectFromWindow(const platform::Rect& rect, const QWidget& window);
[[nodiscard]] platform::Point windowPointFromWidget(QPointF point, const QWidget& window);
[[nodiscard]] QPointF widgetPointFromWindow(platform::Point point, const QWidget& window);

// Looks

[[nodiscard]] QColor toQColor(const platform::Rgba& components);
[[nodiscard]] QColor toQColor(const platform::Color& color, platform::Appearance appearance);
/// The system's face for the role, `size` device-independent pixels high.
[[nodiscard]] QFont toQFont(const platform::Font& font);
/// The look of the widget's palette, or of the program's when null.
[[nodiscard]] platform::Appearance appearanceOf(const QWidget* widget);

} // namespace wayvane::qt
