#pragma once

#include <wayvane/platform/Window.h>

#include <QPoint>
#include <QRect>
#include <QString>

class QWidget;

/// The tests' own way between the framework's coordinates and Qt's, so that the binding's is not its own
/// judge.
namespace wayvane::conformance {

[[nodiscard]] QRect globalRect(const platform::Rect& screenRect);
[[nodiscard]] QPoint globalPoint(platform::Point screenPoint);
/// Of a rectangle in window coordinates, in those of a widget in that window.
[[nodiscard]] QRect rectIn(const QWidget& widget, const platform::Rect& inWindow);

[[nodiscard]] QWidget* widgetOf(const platform::ViewHandle& view);
[[nodiscard]] QWidget* widgetOf(const platform::WindowHandle& window);

/// A caption as a host writes it, with a keyboard mnemonic.
[[nodiscard]] QString caption(const std::string& title);

} // namespace wayvane::conformance
