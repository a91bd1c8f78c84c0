#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtScreen.h>

#include <QGuiApplication>
#include <QScreen>

namespace wayvane::qt {

std::optional<platform::Rect> QtScreen::mainScreenFrame() const
{
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (!screen) return std::nullopt;
  return screenRectFromGlobal(screen->geometry());
}

std::optional<platform::Rect> QtScreen::mainScreenVisibleFrame() const
{
  const QScreen* screen = QGuiApplication::primaryScreen();
  if (!screen) return std::nullopt;
  return screenRectFromGlobal(screen->availableGeometry());
}

} // namespace wayvane::qt
