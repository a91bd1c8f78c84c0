#pragma once

#include <tests/conformance/Stage.h>

#include <gmock/gmock.h>

#include <ostream>

namespace wayvane::platform {

/// So that a failure shows numbers.
inline void PrintTo(const Point& p, std::ostream* out)
{
  *out << "(" << p.x << ", " << p.y << ")";
}

inline void PrintTo(const Size& s, std::ostream* out)
{
  *out << s.width << " x " << s.height;
}

inline void PrintTo(const Rect& r, std::ostream* out)
{
  *out << stringFromRect(r);
}

inline void PrintTo(const ViewHandle& view, std::ostream* out)
{
  *out << (view ? "a " + view->className() + " named " + view->identifier().value_or("nothing") : "no view");
}

} // namespace wayvane::platform

namespace wayvane::conformance {

using platform::Point;
using platform::Rect;
using platform::Registration;
using platform::SearchText;
using platform::Size;
using platform::ViewHandle;
using platform::ViewKind;
using platform::WindowHandle;

using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsNull;
using testing::NotNull;
using testing::Optional;

inline constexpr Rect kWindowFrame{100, 100, 600, 420};

/// A case of the suite: a stage of its own.
class Conformance : public testing::Test {
protected:
  /// With one window, in which most cases happen.
  void SetUp() override { window_ = stage().makeWindow("Trails", kWindowFrame); }

  [[nodiscard]] Stage& stage() { return *stage_; }

  [[nodiscard]] platform::Platform& platform() { return stage_->platform(); }

  [[nodiscard]] const WindowHandle& window() const { return window_; }

  /// Where an element lies in its window.
  [[nodiscard]] static Rect placeOf(const ViewHandle& view)
  {
    return view->convertRectToWindow(view->bounds());
  }

private:
  std::unique_ptr<Stage> stage_ = makeStage();
  WindowHandle window_;
};

MATCHER_P(IsSameView, view, "is that view")
{
  return isSameView(arg, view);
}

MATCHER_P(IsSameWindow, window, "is that window")
{
  return isSameWindow(arg, window);
}

MATCHER_P2(IsNearRect, rect, tolerance, "is about " + platform::stringFromRect(rect))
{
  return std::abs(arg.x - rect.x) <= tolerance && std::abs(arg.y - rect.y) <= tolerance &&
         std::abs(arg.maxX() - rect.maxX()) <= tolerance && std::abs(arg.maxY() - rect.maxY()) <= tolerance;
}

} // namespace wayvane::conformance
