#pragma once

#include <wayvane/platform/Layer.h>

#include <algorithm>
#include <vector>

namespace wayvane::sim {

/// A line through the points; as a shape, closed.
using Polyline = std::vector<platform::Point>;

/// How much of each pixel a shape covers, 0 to 1.
struct Coverage {
  int width, height;
  /// The rows that may have any.
  int top = 0, bottom;
  std::vector<double> values;

  Coverage(int w, int h, double value = 0)
    : width(w)
    , height(h)
    , bottom(h)
    , values(static_cast<std::size_t>(w) * static_cast<std::size_t>(h), value)
  {}

  double& at(int x, int y)
  {
    return values[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                  static_cast<std::size_t>(x)];
  }

  /// Adds the part of a row from `left` to `right`, whose whole height counts `weight`.
  void addSpan(int y, double left, double right, double weight)
  {
    left = std::clamp(left, 0.0, static_cast<double>(width));
    right = std::clamp(right, 0.0, static_cast<double>(width));
    for (int x = static_cast<int>(left); x < right; ++x)
      at(x, y) += weight * (std::min(right, x + 1.0) - std::max(left, static_cast<double>(x)));
  }
};

/// The path in straight lines. A closed part ends where it starts.
[[nodiscard]] std::vector<Polyline> flattened(const platform::Path& path);

/// The pieces of the line that a dash pattern leaves; the whole line for an empty one.
[[nodiscard]] std::vector<Polyline> dashed(const Polyline& line, const std::vector<double>& pattern,
                                           double phase);

/// Shapes that together cover a line of the width, with butt ends and joins as Layer has them.
[[nodiscard]] std::vector<Polyline> stroked(Polyline line, double width);

/// What the shapes cover of a bitmap; their coordinates are its pixels, y downward.
[[nodiscard]] Coverage filled(const std::vector<Polyline>& shapes, platform::FillRule rule, int width,
                              int height);

} // namespace wayvane::sim
