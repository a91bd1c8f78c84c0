#pragma once

#include <algorithm>
#include <array>
#include <string>

namespace wayvane::platform {

/// A position in points. Which coordinate space it lives in is said where it is used; unless it is said,
/// y grows upward.
struct Point {
  double x = 0;
  double y = 0;
  friend bool operator==(const Point&, const Point&) = default;
};

/// An extent in points.
struct Size {
  double width = 0;
  double height = 0;
  friend bool operator==(const Size&, const Size&) = default;
};

/// A rectangle in points. `(x, y)` is the corner with the smallest coordinates, which in a y-up space is
/// the bottom left. The zero rectangle stands for "no rectangle".
struct Rect {
  double x = 0;
  double y = 0;
  double width = 0;
  double height = 0;

  [[nodiscard]] double maxX() const { return x + width; }

  [[nodiscard]] double maxY() const { return y + height; }

  [[nodiscard]] Point origin() const { return {x, y}; }

  [[nodiscard]] Size size() const { return {width, height}; }

  [[nodiscard]] Point center() const { return {x + width / 2, y + height / 2}; }

  /// True when either side is zero, negative or not a number.
  [[nodiscard]] bool isEmpty() const { return !(width > 0) || !(height > 0); }

  /// The rectangle grown by `amount` on every side (shrunk when negative).
  [[nodiscard]] Rect grownBy(double amount) const
  {
    return {x - amount, y - amount, width + 2 * amount, height + 2 * amount};
  }

  [[nodiscard]] Rect movedBy(double dx, double dy) const { return {x + dx, y + dy, width, height}; }

  /// Left and bottom edges belong to the rectangle, right and top edges do not.
  [[nodiscard]] bool contains(Point p) const { return p.x >= x && p.x < maxX() && p.y >= y && p.y < maxY(); }

  [[nodiscard]] bool contains(const Rect& r) const
  {
    return !r.isEmpty() && r.x >= x && r.y >= y && r.maxX() <= maxX() && r.maxY() <= maxY();
  }

  /// The common part, or the zero rectangle.
  [[nodiscard]] Rect intersection(const Rect& r) const
  {
    const double left = std::max(x, r.x), right = std::min(maxX(), r.maxX());
    const double low = std::max(y, r.y), high = std::min(maxY(), r.maxY());
    return right > left && high > low ? Rect{left, low, right - left, high - low} : Rect{};
  }

  [[nodiscard]] bool intersects(const Rect& r) const { return !intersection(r).isEmpty(); }

  /// The smallest rectangle around both; an empty one does not count.
  [[nodiscard]] Rect united(const Rect& r) const
  {
    if (isEmpty()) return r;
    if (r.isEmpty()) return *this;
    const double left = std::min(x, r.x), low = std::min(y, r.y);
    return {left, low, std::max(maxX(), r.maxX()) - left, std::max(maxY(), r.maxY()) - low};
  }

  friend bool operator==(const Rect&, const Rect&) = default;
};

/// A planar affine map `(x, y) -> (a x + c y + tx, b x + d y + ty)`.
struct Transform {
  double a = 1, b = 0, c = 0, d = 1, tx = 0, ty = 0;

  [[nodiscard]] static Transform translation(double dx, double dy) { return {1, 0, 0, 1, dx, dy}; }

  [[nodiscard]] static Transform scale(double sx, double sy) { return {sx, 0, 0, sy, 0, 0}; }

  /// The map that applies `*this` first and `next` afterwards.
  [[nodiscard]] Transform then(const Transform& next) const
  {
    return {a * next.a + b * next.c,
            a * next.b + b * next.d,
            c * next.a + d * next.c,
            c * next.b + d * next.d,
            tx * next.a + ty * next.c + next.tx,
            tx * next.b + ty * next.d + next.ty};
  }

  [[nodiscard]] Point apply(Point p) const { return {a * p.x + c * p.y + tx, b * p.x + d * p.y + ty}; }

  /// The bounding box of the mapped rectangle.
  [[nodiscard]] Rect apply(const Rect& r) const;

  [[nodiscard]] bool isIdentity() const { return *this == Transform{}; }

  friend bool operator==(const Transform&, const Transform&) = default;
};

/// The form in which log lines show a rectangle: "{{x, y}, {width, height}}", numbers as "%g" prints them.
[[nodiscard]] std::string stringFromRect(const Rect& rect);

} // namespace wayvane::platform
