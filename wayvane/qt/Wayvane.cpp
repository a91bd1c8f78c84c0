#include <wayvane/platform/qt/QtPlatform.h>
#include <wayvane/qt/Wayvane.h>

namespace wayvane::qt {

bool install()
{
  return installPlatform();
}

} // namespace wayvane::qt
