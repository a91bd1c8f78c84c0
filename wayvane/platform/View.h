#pragma once

#include <wayvane/platform/FunctionRef.h>
#include <wayvane/platform/Geometry.h>
#include <wayvane/platform/SearchText.h>
#include <wayvane/platform/ViewFeatures.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace wayvane::platform {

class View;
class Window;

/// A handle that may outlive the element. It does not keep the element alive: once the element is gone the
/// handle's view answers every question with nothing and every command does nothing. A null handle means
/// "no view". Main thread only, like everything about views.
using ViewHandle = std::shared_ptr<const View>;
using WindowHandle = std::shared_ptr<Window>;

/// What an element is, in the words of the targeting rules. An element can be several: a pop-up button is a
/// button and a control, a token field is a text field and a control, a text view is a text object.
enum class ViewKind : std::uint8_t {
  Control,
  Button,
  PopUpButton,
  SegmentedControl,
  TextField,
  TokenField,
  Text,
  TextView,
  Box,
  TableView,
  TableCellView,
  TableRowView,
  ScrollView,
};

/// A class of the toolkit or of the host, compared by identity. Got from Application::classNamed.
struct ViewClass {
  const void* identity = nullptr;
  friend bool operator==(const ViewClass&, const ViewClass&) = default;
};

/// Answers that a host may give for its own views; they win over the built-in rules.
enum class HostProperty : std::uint8_t {
  GuidePadding,      ///< "wv_guidePadding", a number
  GuideCornerRadius, ///< "wv_guideCornerRadius", a number
  GuideIdentifier,   ///< "wv_guideIdentifier"
  DisplayString,     ///< "wv_displayString"
  LocalizedTitle,    ///< "wv_localizedTitle"
};

/// A synthetic notice that the pointer entered or left.
struct HoverEvent {
  enum class Type : std::uint8_t { Entered, Exited };
  Type type = Type::Entered;
  Point locationInWindow;
  /// Seconds since the system started, as MainQueue::uptime gives it.
  double timestamp = 0;
};

/// A region in which the toolkit reports the pointer's entering and leaving to an owner.
struct TrackingArea {
  /// False for areas that only report movement or cursor changes.
  bool reportsEnteringAndLeaving = false;
  /// In the coordinates of the view that has the area.
  Rect rect;
  /// True when the owner is the view that has the area.
  bool ownerIsView = false;
  /// Empty when there is no owner, or it does not listen.
  std::function<void(const HoverEvent&)> mouseEntered;
  std::function<void(const HoverEvent&)> mouseExited;
};

/// An element of the host's interface.
///
/// References to views, as they are passed to visitors, are valid only during the visit; `handle` makes one
/// that can be kept. Each view has a coordinate space of its own, in points, whose orientation is the
/// toolkit's; only the conversions below relate it to the window's space (y up, origin at the bottom left of
/// the window) and only those are used to combine coordinates of two views.
///
/// "Nothing" is an empty optional, an empty list, a null handle, the zero rectangle, false or -1.
class View {
public:
  virtual ~View() = default;

  /// False when the view certainly has none of these. Reads a word of the view and asks nobody: a search does
  /// so before it puts a question to each of ten thousand views, most of which have nothing to answer.
  [[nodiscard]] bool mayHave(Features features) const { return features_.hasAnyOf(features); }

  /// A handle to this element; for the view of a dead handle, a null handle.
  [[nodiscard]] virtual ViewHandle handle() const = 0;
  [[nodiscard]] virtual bool isAlive() const = 0;
  /// Whether both stand for the same element. A dead view is the same as none, not even itself.
  [[nodiscard]] virtual bool isSame(const View& other) const = 0;

  // Class

  [[nodiscard]] virtual std::string className() const = 0;
  [[nodiscard]] virtual bool classNameEquals(std::string_view name) const = 0;
  /// Whether the element is of the class or of a subclass.
  [[nodiscard]] virtual bool isOfClass(ViewClass viewClass) const = 0;
  [[nodiscard]] virtual ViewClass viewClass() const = 0;
  [[nodiscard]] virtual bool isKind(ViewKind kind) const = 0;
  /// Whether the class is the host's own and not one of the toolkit's.
  [[nodiscard]] virtual bool isOfHostClass() const = 0;

  // Tree

  /// Null for the topmost view of a window.
  [[nodiscard]] virtual ViewHandle superview() const = 0;
  /// Calls `visitor` for each subview, back to front, until it answers false; returns whether it never did.
  /// Allocates nothing. The tree must not be changed during the visit.
  virtual bool visitSubviews(FunctionRef<bool(const View&)> visitor) const = 0;
  [[nodiscard]] virtual WindowHandle window() const = 0;
  /// The deepest visible descendant (or this view) at a point in window coordinates; null when the point
  /// lies outside.
  [[nodiscard]] virtual ViewHandle hitTest(Point locationInWindow) const = 0;

  // Geometry

  [[nodiscard]] virtual Rect bounds() const = 0;
  /// The zero rectangle for a view that is not shown (it or an ancestor is hidden) or not in a window.
  [[nodiscard]] virtual Rect convertRectToWindow(const Rect& rect) const = 0;
  [[nodiscard]] virtual Point convertPointFromWindow(Point point) const = 0;
  /// A rectangle of this view in the coordinates of an ancestor (for instance a scroll view's document).
  [[nodiscard]] virtual Rect convertRectToAncestor(const Rect& rect, const View& ancestor) const = 0;

  // Clues. Texts are UTF-8.

  /// The identifier that accessibility tools see. On toolkits with a single identifier, that one.
  [[nodiscard]] virtual std::optional<std::string> accessibilityIdentifier() const = 0;
  [[nodiscard]] virtual bool accessibilityIdentifierEquals(const SearchText& text) const = 0;

  /// The identifier given in the interface builder; on toolkits with a single identifier, that one.
  [[nodiscard]] virtual std::optional<std::string> identifier() const { return accessibilityIdentifier(); }

  [[nodiscard]] virtual std::optional<std::string> accessibilityLabel() const = 0;
  [[nodiscard]] virtual std::optional<std::string> toolTip() const = 0;
  /// The observed key path of the named binding ("value", "enabled", ...).
  [[nodiscard]] virtual std::optional<std::string>
  observedKeyPathForBinding(std::string_view binding) const = 0;
  [[nodiscard]] virtual bool observedKeyPathEquals(std::string_view binding,
                                                   const SearchText& keyPath) const = 0;
  /// Whether the element is a control that sends the action.
  [[nodiscard]] virtual bool sendsAction(const SearchText& action) const = 0;
  /// Whether the element is a button with that title, or has that accessibility label.
  [[nodiscard]] virtual bool isTitled(const SearchText& text) const = 0;
  /// Costs next to nothing for views that carry no such answer.
  [[nodiscard]] virtual std::optional<std::string> hostString(HostProperty property) const = 0;
  [[nodiscard]] virtual std::optional<double> hostNumber(HostProperty property) const = 0;

  // Hover

  /// Whether the view itself listens to entering and leaving.
  [[nodiscard]] virtual bool respondsToHover() const = 0;
  virtual void sendHover(const HoverEvent& event) const = 0;
  [[nodiscard]] virtual std::vector<TrackingArea> trackingAreas() const = 0;

  /// The view as one of the roles of ViewRoles.h, or null when it is something else. The pointer lives as
  /// long as this view object.
  template <class Role>
  [[nodiscard]] const Role* as() const
  {
    return static_cast<const Role*>(role(Role::kKind));
  }

protected:
  /// A view that may have everything, as one must that does not follow what its element gets.
  View() = default;

  explicit View(Features features)
    : features_(features)
  {}

  void addFeature(Feature feature) { features_.add(feature); }

  /// A pointer to the role interface that belongs to `kind`, as `const Role*` converted to `const void*`.
  [[nodiscard]] virtual const void* role(ViewKind kind) const = 0;

private:
  Features features_ = Features::all();
};

/// Whether both handles stand for the same living element.
[[nodiscard]] inline bool isSameView(const ViewHandle& a, const ViewHandle& b)
{
  return a && b && a->isSame(*b);
}

} // namespace wayvane::platform
