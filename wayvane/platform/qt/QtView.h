#pragma once

#include <wayvane/platform/ViewRoles.h>
#include <wayvane/platform/qt/QtClasses.h>

#include <QPoint>
#include <QPointer>
#include <QWidget>

namespace wayvane::qt {

/// A widget as an element. On the stack, around a living widget, it costs two words; the one that a handle
/// holds follows the widget's life. Coordinates are the widget's own: downward, in device-independent pixels.
class QtView : public platform::View, protected platform::TableCellView {
public:
  /// Borrows a living widget for the time of a visit, during which it gets no features.
  QtView(QWidget& widget, const ClassInfo& info, platform::Features features)
    : View(features)
    , borrowed_(&widget)
    , info_(&info)
  {}

  /// Follows the widget; may outlive it.
  struct Following {};

  QtView(Following /*follows*/, QWidget& widget, const ClassInfo& info)
    : followed_(&widget)
    , info_(&info)
  {}

  /// Null when the widget is gone, or is just being destroyed.
  [[nodiscard]] QWidget* widget() const { return borrowed_ ? borrowed_ : livingWidget(); }

  [[nodiscard]] platform::ViewHandle handle() const override;
  [[nodiscard]] bool isAlive() const override;
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

  [[nodiscard]] std::optional<std::string> accessibilityIdentifier() const override;
  [[nodiscard]] bool accessibilityIdentifierEquals(const platform::SearchText& text) const override;
  [[nodiscard]] std::optional<std::string> accessibilityLabel() const override;
  [[nodiscard]] std::optional<std::string> toolTip() const override;
  [[nodiscard]] std::optional<std::string> observedKeyPathForBinding(std::string_view binding) const override;
  [[nodiscard]] bool observedKeyPathEquals(std::string_view binding,
                                           const platform::SearchText& keyPath) const override;
  [[nodiscard]] bool sendsAction(const platform::SearchText& action) const override;
  [[nodiscard]] bool isTitled(const platform::SearchText& text) const override;
  [[nodiscard]] std::optional<std::string> hostString(platform::HostProperty property) const override;
  [[nodiscard]] std::optional<double> hostNumber(platform::HostProperty property) const override;

  [[nodiscard]] bool respondsToHover() const override;
  void sendHover(const platform::HoverEvent& event) const override;
  [[nodiscard]] std::vector<platform::TrackingArea> trackingAreas() const override;

protected:
  /// Null at once for what the class is not; the others ask `roleOfKind`.
  [[nodiscard]] const void* role(platform::ViewKind kind) const final;
  [[nodiscard]] virtual const void* roleOfKind(platform::ViewKind kind) const;
  [[nodiscard]] platform::ModelObjectHandle objectValue() const override;

  /// The label that assistive technology reads when the host gave none.
  [[nodiscard]] virtual QString derivedLabel(const QWidget& widget) const;
  /// Whether it is that text, which is not empty. Overridden where making the label takes time.
  [[nodiscard]] virtual bool derivedLabelEquals(const QWidget& widget,
                                                const platform::SearchText& text) const;
  /// A tool tip that the toolkit made out of other texts is none.
  [[nodiscard]] virtual QString ownToolTip(const QWidget& widget) const;
  /// Where the origin of the view's coordinates lies in the widget: not at (0, 0) for what scrolls in itself.
  [[nodiscard]] virtual QPoint originInWidget(const QWidget& widget) const;

  /// The widget that holds what the view's coordinates are about: of a table the viewport, beside which lie
  /// headers and scroll bars.
  [[nodiscard]] virtual const QWidget* contents(const QWidget& widget) const { return &widget; }

  [[nodiscard]] const ClassInfo& info() const { return *info_; }

private:
  [[nodiscard]] QWidget* livingWidget() const;
  [[nodiscard]] bool isIndexWidget(const QWidget& widget) const;

  QWidget* borrowed_ = nullptr;
  QPointer<QWidget> followed_;
  const ClassInfo* info_;
};

/// A handle to the widget as an element; null for null.
[[nodiscard]] platform::ViewHandle viewForWidget(QWidget* widget);
/// The widget behind a view of this binding; null for another's, or when it is gone.
[[nodiscard]] QWidget* widgetOf(const platform::View& view);
/// Whether the widget is the framework's own (its class lives in the namespace wayvane::qt, or it has the
/// property "wv_own"). Searches and hit tests pass over those.
[[nodiscard]] bool isOwnWidget(const QWidget* widget);

} // namespace wayvane::qt
