#pragma once

#include <wayvane/platform/Geometry.h>

#include <string>

namespace wayvane::platform {

/// What assistive technology is told about a message of ours that appears over the host's window.
struct AccessibleAlert {
  std::string title;
  std::string message;
  /// For instance "2 of 5".
  std::string counter;
  /// In the coordinates of the panel's content view, y up.
  Rect frame;
  friend bool operator==(const AccessibleAlert&, const AccessibleAlert&) = default;
};

} // namespace wayvane::platform
