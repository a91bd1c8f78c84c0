#include <wayvane/manager/WVGuideManager.h>
#include <wayvane/platform/qt/QtPlatform.h>
#include <wayvane/qt/Wayvane.h>

#include <utility>

namespace wayvane::qt {

bool install()
{
  if (!installPlatform()) return false;
  static bool installed = false;
  if (!std::exchange(installed, true)) WVGuideManager::sharedManager().install();
  return true;
}

} // namespace wayvane::qt
