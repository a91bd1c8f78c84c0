#include <tests/conformance/qt/Place.h>
#include <wayvane/platform/qt/QtView.h>
#include <wayvane/platform/qt/QtWindow.h>

#include <QGuiApplication>
#include <QScreen>
#include <QWidget>

namespace wayvane::conformance {

using platform::Point;
using platform::Rect;

QPoint globalPoint(Point screenPoint)
{
  const QRect screen = QGuiApplication::primaryScreen()->geometry();
  // A point of the framework's lies on the upper edge of the pixel below it.
  return {static_cast<int>(screenPoint.x) + screen.left(),
          screen.top() + screen.height() - static_cast<int>(screenPoint.y)};
}

QRect globalRect(const Rect& screenRect)
{
  const QPoint topLeft = globalPoint({screenRect.x, screenRect.maxY()});
  return {topLeft, QSize(static_cast<int>(screenRect.width), static_cast<int>(screenRect.height))};
}

QRect rectIn(const QWidget& widget, const Rect& inWindow)
{
  const QWidget* top = widget.window();
  const QPoint topLeft(static_cast<int>(inWindow.x), top->height() - static_cast<int>(inWindow.maxY()));
  return {widget.mapFrom(top, topLeft),
          QSize(static_cast<int>(inWindow.width), static_cast<int>(inWindow.height))};
}

QWidget* widgetOf(const platform::ViewHandle& view)
{
  return qt::widgetOf(*view);
}

QWidget* widgetOf(const platform::WindowHandle& window)
{
  return qt::widgetOf(*window);
}

QString caption(const std::string& title)
{
  return u'&' + QString::fromStdString(title).replace(u'&', QStringLiteral("&&"));
}

} // namespace wayvane::conformance
