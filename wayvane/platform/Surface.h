#pragma once

#include <wayvane/platform/Layer.h>

namespace wayvane::platform {

/// A view of the framework's own, inside one of its panels: a frame in its superview and a layer. The class
/// is toolkit-free; a binding shows the layer tree of a panel's content view and knows nothing else about it.
///
/// Frames are in the superview's coordinates: y up, or downward where the superview `isFlipped`. A subview
/// added later lies above the earlier ones. Main thread only.
class SurfaceView : public std::enable_shared_from_this<SurfaceView> {
public:
  explicit SurfaceView(const Rect& frame, bool flipped = false);
  virtual ~SurfaceView();
  SurfaceView(const SurfaceView&) = delete;
  SurfaceView& operator=(const SurfaceView&) = delete;

  [[nodiscard]] bool isFlipped() const { return layer_->geometryFlipped(); }

  /// Resizes subviews by their autoresizing bits.
  virtual void setFrame(const Rect& frame);

  [[nodiscard]] Rect frame() const { return layer_->frame(); }

  [[nodiscard]] Rect bounds() const { return layer_->bounds(); }

  void setFrameOrigin(Point origin);

  void setAutoresizingMask(unsigned bits) { layer_->setAutoresizingMask(bits); }

  void setHidden(bool hidden) { layer_->setHidden(hidden); }

  [[nodiscard]] bool isHidden() const { return layer_->isHidden(); }

  /// The view's own opacity.
  void setAlphaValue(double alpha) { layer_->setOpacity(alpha); }

  [[nodiscard]] double alphaValue() const { return layer_->opacity(); }

  void addSubview(const std::shared_ptr<SurfaceView>& view);
  void removeFromSuperview();

  [[nodiscard]] SurfaceView* superview() const { return superview_; }

  [[nodiscard]] const std::vector<std::shared_ptr<SurfaceView>>& subviews() const { return subviews_; }

  /// Whether the view is, directly or not, inside a panel's content view.
  [[nodiscard]] bool isInWindow() const;

  /// Called after the view came into, or left, a panel's content view.
  virtual void viewDidMoveToWindow() {}

  /// A point of the panel's content view (y up) in this view's coordinates.
  [[nodiscard]] Point convertPointFromWindow(Point point) const;

  [[nodiscard]] const LayerHandle& layer() const { return layer_; }

  /// For bindings: marks the view as a panel's content view, the root of what is shown.
  void setIsContentView(bool isContentView);

protected:
  /// A view over a layer of another kind than the plain one.
  SurfaceView(const Rect& frame, bool flipped, LayerKind kind);

private:
  void notifyMoved();
  [[nodiscard]] bool isSelfOrAncestor(const SurfaceView& view) const;

  LayerHandle layer_;
  SurfaceView* superview_ = nullptr;
  std::vector<std::shared_ptr<SurfaceView>> subviews_;
  bool isContentView_ = false;
};

/// A line or paragraph of text of ours.
class SurfaceLabel : public SurfaceView {
public:
  explicit SurfaceLabel(const Font& font, const Color& color = Color::label(), bool wraps = true);
  void setStringValue(const std::string& text);
  void setAttributedStringValue(const AttributedText& text);

  [[nodiscard]] std::string stringValue() const { return layer()->text().plainText(); }

  [[nodiscard]] const AttributedText& attributedStringValue() const { return layer()->text(); }

  [[nodiscard]] const Font& font() const { return font_; }

  [[nodiscard]] const Color& textColor() const { return color_; }

private:
  Font font_;
  Color color_;
};

} // namespace wayvane::platform
