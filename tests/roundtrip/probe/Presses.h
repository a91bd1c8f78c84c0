#pragma once

#include <wayvane/platform/View.h>

#include <QModelIndex>
#include <QPoint>
#include <QRect>
#include <QWidget>

#include <vector>

namespace roundtrip {

/// Where a user could press, and what a press there lands on.
struct Press {
  wayvane::platform::WindowHandle window;
  /// In window coordinates.
  wayvane::platform::Point location;
  wayvane::platform::ViewHandle hit;
  /// The item under the point, where an item view draws one.
  QPersistentModelIndex index;
  /// What the user sees of that item, in global coordinates.
  QRect itemRect;
};

/// One press for every visible, enabled widget of the windows that take input, at its centre or, where
/// another widget lies there, in the first part of it that is free; and on each item view a press into the
/// first, the middle and the last visible item of every column, and one beside the items.
[[nodiscard]] std::vector<Press> possiblePresses();

/// Whether no modal dialog keeps presses from the widget's window.
[[nodiscard]] bool takesInput(const QWidget& widget);

} // namespace roundtrip
