#include <wayvane/platform/Platform.h>

namespace wayvane::platform {
namespace {

Platform* currentPlatform = nullptr;

} // namespace

Platform* Platform::current()
{
  return currentPlatform;
}

void Platform::setCurrent(Platform* platform)
{
  currentPlatform = platform;
}

} // namespace wayvane::platform
