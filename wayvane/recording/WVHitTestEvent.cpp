#include <wayvane/recording/WVHitTestEvent.h>

namespace wayvane {

platform::ViewHandle WVHitTestEvent(const platform::MouseEvent& event)
{
  if (!event.window || !event.window->contentView()) return nullptr;
  // From the topmost view: what lies in the title bar is no part of the content.
  const platform::ViewHandle top = event.window->frameView();
  return top ? top->hitTest(event.locationInWindow) : nullptr;
}

} // namespace wayvane
