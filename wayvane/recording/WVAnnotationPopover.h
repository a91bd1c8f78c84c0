#pragma once

#include <wayvane/platform/View.h>
#include <wayvane/platform/Window.h>

#include <functional>
#include <optional>
#include <string>

namespace wayvane {

/// Asks the author of a guide what a step shall say: a popover with a title, a message, "Cancel" and "Add
/// Step". Main thread only.
///
/// The completion is called exactly once:
/// - "Add Step" gives the title, absent when it was left empty, and the message, "Click here" when it was;
/// - "Cancel", Escape, a press outside or the end of the window below gives neither;
/// - where no popover can be shown it is called before the function returns, with the message "" and without
/// a
///   title, so that the step is not lost.
/// Without an installed platform the latter holds, too.
class WVAnnotationPopover {
public:
  using Completion =
      std::function<void(const std::optional<std::string>& title, const std::optional<std::string>& message)>;

  /// Beside a view. A null view, or one without a window, cannot have a popover.
  static void showForView(const platform::ViewHandle& view, const Completion& completion);
  /// Beside a rectangle of the screen, over `window`. One that lies outside of the window's content is moved
  /// to the nearest place inside.
  static void showAtScreenRect(const platform::Rect& screenRect, const platform::WindowHandle& forWindow,
                               const Completion& completion);
};

} // namespace wayvane
