#pragma once

#include <wayvane/model/WVStep.h>
#include <wayvane/platform/Accessibility.h>
#include <wayvane/platform/Surface.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>

namespace wayvane {

/// The edge of the bubble that carries the pointer, named after where it points. The numbers are those of a
/// step's position; any other number counts as none.
enum WVBubblePointerDirection : std::int64_t {
  WVBubblePointerNone = 0,
  WVBubblePointerDown = 1,
  WVBubblePointerUp = 2,
  WVBubblePointerRight = 3,
  WVBubblePointerLeft = 4,
};

/// The callout that explains a step: a rounded box with a title, a message, a counter and a pointer that aims
/// at the target. Its own coordinates run downward from the top edge. Made for one step, 280 points wide; the
/// order of use is pointer direction and tip, `configureWithStep`, placing, `appearAtPoint`,
/// `disappearWithCompletion`. Must live in a shared_ptr. Main thread only.
class WVBubbleView : public platform::SurfaceView {
public:
  explicit WVBubbleView(const platform::Rect& frame);

  /// A WVBubblePointerDirection, or any other number for none. Takes effect when the bubble is next
  /// configured or placed, as does the tip.
  void setPointerDirection(std::int64_t direction) { pointerDirection_ = direction; }

  [[nodiscard]] std::int64_t pointerDirection() const { return pointerDirection_; }

  /// The spot the pointer aims at, in the coordinates of the panel's content view, y up; (0, 0) for none,
  /// which leaves the pointer in the middle of its edge.
  void setPointerTip(platform::Point tip) { pointerTip_ = tip; }

  [[nodiscard]] platform::Point pointerTip() const { return pointerTip_; }

  /// Fills the bubble with the texts of `step`, the `index`th (from 0) of `total`, and makes it as high as
  /// they need; origin and width stay. A step without a message of its own gets one that fits its target,
  /// which is looked for now.
  void configureWithStep(const WVStep& step, std::size_t index, std::size_t total);

  /// Puts the bubble, unseen, into `inView` with its origin at `point` (coordinates of that view). Half a
  /// second later it springs out of its pointer's tip, unless it was dismissed meanwhile. `completion`, which
  /// may be empty, is called when the spring is at rest; never for a bubble dismissed before it sprang.
  void appearAtPoint(platform::Point point, platform::SurfaceView& inView,
                     std::function<void()> completion = {});
  /// Fades the bubble out within 0.15 s, takes it out of its superview and then calls `completion`, which may
  /// be empty. All of that happens also when nobody holds the bubble any more, or its panel is gone.
  void disappearWithCompletion(std::function<void()> completion = {});

  [[nodiscard]] const std::shared_ptr<platform::SurfaceLabel>& titleLabel() const { return titleLabel_; }

  [[nodiscard]] const std::shared_ptr<platform::SurfaceLabel>& messageLabel() const { return messageLabel_; }

  [[nodiscard]] const std::shared_ptr<platform::SurfaceLabel>& stepLabel() const { return stepLabel_; }

  /// Body, pointer and shadow in one shape, in the bubble's own coordinates.
  [[nodiscard]] const platform::LayerHandle& bodyLayer() const { return bodyLayer_; }

  /// What a screen reader says about the bubble as it was last configured: plain texts, an icon in the
  /// message replaced by the name of its button. The frame is the bubble's. An absent title is empty.
  [[nodiscard]] platform::AccessibleAlert accessibleAlert() const;

  /// Kept for whoever owns the bubble; never called by it.
  void setDismissCompletion(std::function<void()> completion) { dismissCompletion_ = std::move(completion); }

  [[nodiscard]] const std::function<void()>& dismissCompletion() const { return dismissCompletion_; }

  void setFrame(const platform::Rect& frame) override;
  void viewDidMoveToWindow() override;

private:
  struct Message;

  void showTitle(const WVStep& step, platform::Rect& column);
  void showMessage(const WVStep& step, platform::Rect& column);
  void showCounter(std::size_t index, std::size_t total, const platform::Rect& column);
  [[nodiscard]] double _heightForString(const std::string& string, const platform::Font& font,
                                        double width) const;
  [[nodiscard]] double _heightForAttributedString(const platform::AttributedText& string, double width) const;

  [[nodiscard]] Message messageForStep(const WVStep& step) const;
  [[nodiscard]] std::string _generateSmartMessageForView(const platform::ViewHandle& view) const;
  [[nodiscard]] platform::AttributedText
  _createAttributedMessageFromTemplate(const std::string& text, const platform::ViewHandle& forView,
                                       const platform::ImageHandle& icon) const;

  void redrawBody();
  [[nodiscard]] platform::Point scaleOrigin() const;
  void springOut(platform::Point origin, const std::function<void()>& completion);

  std::int64_t pointerDirection_ = WVBubblePointerNone;
  platform::Point pointerTip_;
  std::function<void()> dismissCompletion_;
  platform::LayerHandle bodyLayer_;
  std::shared_ptr<platform::SurfaceLabel> titleLabel_;
  std::shared_ptr<platform::SurfaceLabel> messageLabel_;
  std::shared_ptr<platform::SurfaceLabel> stepLabel_;
  std::string spokenMessage_;
  bool dismissed_ = false;
};

} // namespace wayvane
