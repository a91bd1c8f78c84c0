#pragma once

#include <wayvane/platform/Geometry.h>

#include <optional>
#include <vector>

namespace wayvane::platform {

/// An outline of straight lines and cubic curves, in the coordinates of whoever holds it. A plain value.
class Path {
public:
  enum class Verb { Move, Line, Cubic, Close };

  /// `points` holds one point for Move and Line, three for Cubic (two controls, then the end), none for
  /// Close.
  struct Element {
    Verb verb = Verb::Move;
    std::array<Point, 3> points{};
    friend bool operator==(const Element&, const Element&) = default;
  };

  void moveTo(Point p);
  /// Begins the path when it is empty, as do cubicTo (with its first control) and arcTo (with its corner).
  void lineTo(Point p);
  void cubicTo(Point control1, Point control2, Point end);
  /// A line to the start of, and then along, the arc of `radius` that touches the lines current point-corner
  /// and corner-next; the current point ends where the arc touches the second line. A line to the corner
  /// where no arc can touch both: the points lie on one line, or the radius is not positive.
  void arcTo(Point corner, Point next, double radius);
  void close();
  void addRect(const Rect& rect);
  /// A rounded rectangle. A radius larger than half a side is cut down to it; a negative one counts as 0.
  /// All rounded rectangles have the same sequence of elements, so that one can be interpolated into another.
  void addRoundedRect(const Rect& rect, double radius);

  [[nodiscard]] const std::vector<Element>& elements() const { return elements_; }

  [[nodiscard]] bool isEmpty() const { return elements_.empty(); }

  /// Where the next element starts; nothing in an empty path.
  [[nodiscard]] std::optional<Point> currentPoint() const;

  /// The box around all points including control points; the zero rectangle for an empty path.
  [[nodiscard]] Rect bounds() const;
  [[nodiscard]] Path transformed(const Transform& map) const;
  /// The path a fraction `t` of the way to `to`, element by element. When the two do not have the same
  /// sequence of verbs there is nothing between them: the answer is `to`.
  [[nodiscard]] Path interpolated(const Path& to, double t) const;
  friend bool operator==(const Path&, const Path&) = default;

private:
  std::vector<Element> elements_;
};

} // namespace wayvane::platform
