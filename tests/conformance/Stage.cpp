#include <tests/conformance/Stage.h>

namespace wayvane::conformance {

bool Stage::waitUntil(const std::function<bool()>& condition)
{
  constexpr double kStep = 0.01;
  for (double waited = 0; waited < 2; waited += kStep) {
    if (condition()) return true;
    pass(kStep);
  }
  return condition();
}

platform::Point Stage::screenCenter(const platform::ViewHandle& view)
{
  const auto window = view->window();
  return window ? window->convertRectToScreen(view->convertRectToWindow(view->bounds())).center()
                : platform::Point{};
}

} // namespace wayvane::conformance
