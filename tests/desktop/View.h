#pragma once

#include <tests/desktop/Classes.h>
#include <tests/desktop/ViewOptions.h>

#include <map>

namespace wayvane::sim {

class Box;
class Button;
class Desktop;
class PopUpButton;
class ScrollView;
class SegmentedControl;
class TableView;
class TextField;
class TextView;
class TokenField;
class Window;

/// A region of a view, and what its owner was told.
struct TrackingAreaOptions {
  platform::Rect rect{};
  bool reportsEnteringAndLeaving = true;
  bool ownerIsView = false;
  /// False for an area without an owner, or with one that does not listen.
  bool ownerListens = true;
};

struct TrackingRecord {
  TrackingAreaOptions options;
  std::vector<platform::HoverEvent> events;
};

/// An element of the simulated program. References to it stay usable as long as the desktop lives, also
/// after `destroy`; it then answers nothing, as handles do.
class View : public platform::View, public std::enable_shared_from_this<View> {
public:
  View(Desktop& desktop, const ClassInfo& info, const platform::Rect& frame, bool flipped = false);
  ~View() override;
  View(const View&) = delete;
  View& operator=(const View&) = delete;

  // Building. Later subviews lie above earlier ones.

  View& addView(const std::string& className, const ViewOptions& options = {});
  Button& addButton(const ButtonOptions& options = {});
  PopUpButton& addPopUpButton(const PopUpButtonOptions& options = {});
  SegmentedControl& addSegmentedControl(const SegmentedControlOptions& options = {});
  TextField& addTextField(const TextFieldOptions& options = {});
  TokenField& addTokenField(TextFieldOptions options = {});
  TextView& addTextView(const TextViewOptions& options = {});
  Box& addBox(const BoxOptions& options = {});
  ScrollView& addScrollView(const ScrollViewOptions& options = {});
  TableView& addTableView(const TableViewOptions& options = {});

  // Changing

  /// In the superview's coordinates, as the superview is oriented.
  void setFrame(const platform::Rect& frame) { frame_ = frame; }

  [[nodiscard]] platform::Rect frame() const { return frame_; }

  void setHidden(bool hidden) { hidden_ = hidden; }

  void setIdentifier(Text identifier);
  void setAccessibilityIdentifier(Text identifier);
  void setAccessibilityLabel(Text label);

  void setToolTip(Text toolTip) { toolTip_ = std::move(toolTip); }

  void setBinding(const std::string& binding, const std::string& keyPath);
  void setHostString(platform::HostProperty property, std::string value);
  void setHostNumber(platform::HostProperty property, double value);

  void setRespondsToHover(bool responds) { respondsToHover_ = responds; }

  TrackingRecord& addTrackingArea(const TrackingAreaOptions& options);

  /// Called when a press reaches the view.
  void setOnClick(std::function<void()> handler) { onClick_ = std::move(handler); }

  /// Takes the view out of its window; it lives on without one.
  void removeFromSuperview();
  /// Ends the view and everything below it.
  void destroy();

  // What happened

  [[nodiscard]] const std::vector<platform::HoverEvent>& hoverEvents() const { return hoverEvents_; }

  [[nodiscard]] int clickCount() const { return clickCount_; }

  /// Its place on the screen, and the middle of it.
  [[nodiscard]] platform::Rect screenFrame() const;
  [[nodiscard]] platform::Point screenCenter() const;
  /// What the views around it leave of it; the zero rectangle when it is not shown.
  [[nodiscard]] platform::Rect visibleScreenFrame() const;

  // platform::View

  [[nodiscard]] platform::ViewHandle handle() const override;

  [[nodiscard]] bool isAlive() const override { return alive_; }

  [[nodiscard]] bool isSame(const platform::View& other) const override;
  [[nodiscard]] std::string className() const override;
  [[nodiscard]] bool classNameEquals(std::string_view name) const override;
  [[nodiscard]] bool isOfClass(platform::ViewClass viewClass) const override;
  [[nodiscard]] platform::ViewClass viewClass() const override;
  [[nodiscard]] bool isKind(platform::ViewKind kind) const override;
  [[nodiscard]] bool isOfHostClass() const override;
  [[nodiscard]] platform::ViewHandle superview() const override;
  bool visitSubviews(platform::FunctionRef<bool(const platform::View&)> visitor) const override;
  [[nodiscard]] platform::WindowHandle window() const override;
  [[nodiscard]] platform::ViewHandle hitTest(platform::Point locationInWindow) const override;
  [[nodiscard]] platform::Rect bounds() const override;
  [[nodiscard]] platform::Rect convertRectToWindow(const platform::Rect& rect) const override;
  [[nodiscard]] platform::Point convertPointFromWindow(platform::Point point) const override;
  [[nodiscard]] platform::Rect convertRectToAncestor(const platform::Rect& rect,
                                                     const platform::View& ancestor) const override;
  [[nodiscard]] Text accessibilityIdentifier() const override;
  [[nodiscard]] bool accessibilityIdentifierEquals(const platform::SearchText& text) const override;
  [[nodiscard]] Text identifier() const override;
  [[nodiscard]] Text accessibilityLabel() const override;
  [[nodiscard]] Text toolTip() const override;
  [[nodiscard]] Text observedKeyPathForBinding(std::string_view binding) const override;
  [[nodiscard]] bool observedKeyPathEquals(std::string_view binding,
                                           const platform::SearchText& keyPath) const override;
  [[nodiscard]] bool sendsAction(const platform::SearchText& action) const override;
  [[nodiscard]] bool isTitled(const platform::SearchText& text) const override;
  [[nodiscard]] Text hostString(platform::HostProperty property) const override;
  [[nodiscard]] std::optional<double> hostNumber(platform::HostProperty property) const override;
  [[nodiscard]] bool respondsToHover() const override;
  void sendHover(const platform::HoverEvent& event) const override;
  [[nodiscard]] std::vector<platform::TrackingArea> trackingAreas() const override;

  // For the other parts of the desktop

  void press();
  void moveToWindow(Window* window);

  [[nodiscard]] View* parent() const { return parent_; }

  [[nodiscard]] const std::vector<std::shared_ptr<View>>& children() const { return children_; }

  [[nodiscard]] Desktop& desktop() const { return *desktop_; }

  /// Whether neither it nor an ancestor is hidden, and it is in a window.
  [[nodiscard]] bool isShown() const;

  template <class Kind>
  Kind& adopt(std::shared_ptr<Kind> child)
  {
    Kind& added = *child;
    adoptView(std::move(child));
    return added;
  }

protected:
  [[nodiscard]] const void* role(platform::ViewKind kind) const override;
  /// A press that the program received; for controls it sends their action.
  virtual void pressed();

  /// Called once, before the view answers nothing.
  virtual void willDie() {}

  /// Where the own coordinates begin; other than zero only where contents scroll.
  [[nodiscard]] virtual platform::Point boundsOrigin() const { return {}; }

  template <class Options>
  void applyClues(const Options& options)
  {
    setIdentifier(options.identifier);
    setAccessibilityIdentifier(options.accessibilityIdentifier);
    setAccessibilityLabel(options.accessibilityLabel);
    toolTip_ = options.toolTip;
  }

  void setFlipped(bool flipped) { flipped_ = flipped; }

private:
  friend class Window;
  void adoptView(std::shared_ptr<View> child);
  void detach();
  [[nodiscard]] const View* hit(platform::Point locationInWindow) const;
  [[nodiscard]] const ClassInfo& classFor(const std::string& name, std::string_view base) const;
  [[nodiscard]] platform::Point toParent(platform::Point point) const;
  [[nodiscard]] platform::Point fromParent(platform::Point point) const;
  [[nodiscard]] platform::Rect toParent(const platform::Rect& rect) const;

  Desktop* desktop_;
  const ClassInfo* class_;
  platform::Rect frame_;
  bool flipped_;
  bool alive_ = true;
  bool hidden_ = false;
  bool respondsToHover_ = true;
  View* parent_ = nullptr;
  Window* window_ = nullptr;
  std::vector<std::shared_ptr<View>> children_;
  Text identifier_;
  Text accessibilityIdentifier_;
  Text accessibilityLabel_;
  Text toolTip_;
  std::map<std::string, std::string, std::less<>> bindings_;
  std::map<platform::HostProperty, std::string> hostStrings_;
  std::map<platform::HostProperty, double> hostNumbers_;
  std::vector<std::shared_ptr<TrackingRecord>> trackingAreas_;
  mutable std::vector<platform::HoverEvent> hoverEvents_;
  std::function<void()> onClick_;
  int clickCount_ = 0;
};

} // namespace wayvane::sim
