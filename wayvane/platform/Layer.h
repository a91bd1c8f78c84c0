#pragma once

#include <wayvane/platform/Animation.h>
#include <wayvane/platform/AttributedText.h>
#include <wayvane/platform/Color.h>

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace wayvane::platform {

class Layer;
using LayerHandle = std::shared_ptr<Layer>;

enum class LayerKind : std::uint8_t { Plain, Shape, Text };
enum class FillRule : std::uint8_t { NonZero, EvenOdd };

struct Shadow {
  Color color;
  /// y upward.
  Size offset;
  double blurRadius = 0;
  friend bool operator==(const Shadow&, const Shadow&) = default;
};

/// A property of a layer and the time at which it started to be animated.
struct RunningAnimation {
  std::string key;
  Animation animation;
  /// In MainQueue::now seconds.
  double beginTime = 0;
};

/// The autoresizing bits that layers and surface views use.
inline constexpr unsigned kWidthSizable = 2;
inline constexpr unsigned kHeightSizable = 16;

/// A node of the retained scene that shows everything the framework draws. Frames are in the coordinates of
/// the superlayer (y up unless `geometryFlipped` is set there), in points; `path` and sublayers are in the
/// layer's own coordinates, which start at (0, 0). A layer draws, bottom to top: shadow, background, shape or
/// text, sublayers in order; all of it under the mask, the opacity and the transform.
///
/// Setting a property takes effect at once and without animation. Every change is reported to the root's
/// observer, once however many there are until it is asked for again. Main thread only.
class Layer : public std::enable_shared_from_this<Layer> {
public:
  [[nodiscard]] static LayerHandle make(LayerKind kind = LayerKind::Plain);
  ~Layer();
  Layer(const Layer&) = delete;
  Layer& operator=(const Layer&) = delete;

  [[nodiscard]] LayerKind kind() const { return kind_; }

  // Tree

  void addSublayer(const LayerHandle& layer);
  void removeFromSuperlayer();

  [[nodiscard]] Layer* superlayer() const { return superlayer_; }

  [[nodiscard]] const std::vector<LayerHandle>& sublayers() const { return sublayers_; }

  /// A layer whose drawing is the stencil of this one: where it is opaque this one shows.
  void setMask(const LayerHandle& mask);

  [[nodiscard]] const LayerHandle& mask() const { return mask_; }

  // Model values

  /// Also resizes sublayers and the mask according to their autoresizing bits.
  void setFrame(const Rect& frame);

  [[nodiscard]] const Rect& frame() const { return frame_; }

  [[nodiscard]] Rect bounds() const { return {0, 0, frame_.width, frame_.height}; }

  void setAutoresizingMask(unsigned bits);

  [[nodiscard]] unsigned autoresizingMask() const { return autoresizingMask_; }

  /// Own coordinates run downward from the top edge.
  void setGeometryFlipped(bool flipped);

  [[nodiscard]] bool geometryFlipped() const { return geometryFlipped_; }

  void setHidden(bool hidden);

  [[nodiscard]] bool isHidden() const { return hidden_; }

  void setOpacity(double opacity);

  [[nodiscard]] double opacity() const { return opacity_; }

  /// Applied about the corner of the frame with the smallest coordinates in a y-up space (the bottom left),
  /// with y up.
  void setTransform(const Transform& transform);

  [[nodiscard]] const Transform& transform() const { return transform_; }

  void setBackgroundColor(const Color& color);

  [[nodiscard]] const Color& backgroundColor() const { return backgroundColor_; }

  /// Rounds the background, and what is clipped by `masksToBounds`.
  void setCornerRadius(double radius);

  [[nodiscard]] double cornerRadius() const { return cornerRadius_; }

  void setMasksToBounds(bool masks);

  [[nodiscard]] bool masksToBounds() const { return masksToBounds_; }

  /// Cast by the layer's own background or shape.
  void setShadow(const std::optional<Shadow>& shadow);

  [[nodiscard]] const std::optional<Shadow>& shadow() const { return shadow_; }

  // Shape layers

  void setPath(const Path& path);
  /// No path draws nothing; as a mask it hides everything.
  void removePath();

  [[nodiscard]] const std::optional<Path>& path() const { return path_; }

  void setFillRule(FillRule rule);

  [[nodiscard]] FillRule fillRule() const { return fillRule_; }

  void setFillColor(const Color& color);

  [[nodiscard]] const Color& fillColor() const { return fillColor_; }

  void setStrokeColor(const Color& color);

  [[nodiscard]] const Color& strokeColor() const { return strokeColor_; }

  /// The stroke is centred on the outline, with butt ends. Joins are mitred as long as the tip stays within
  /// the line width of the outline (60 degrees), and cut off when sharper.
  void setLineWidth(double width);

  [[nodiscard]] double lineWidth() const { return lineWidth_; }

  void setLineDashPattern(const std::vector<double>& lengths);

  [[nodiscard]] const std::vector<double>& lineDashPattern() const { return lineDashPattern_; }

  void setLineDashPhase(double phase);

  [[nodiscard]] double lineDashPhase() const { return lineDashPhase_; }

  // Text layers: the text starts at the top of the frame, left-aligned (right-aligned for right-to-left text)

  void setText(const AttributedText& text);

  [[nodiscard]] const AttributedText& text() const { return text_; }

  void setWrapsText(bool wraps);

  [[nodiscard]] bool wrapsText() const { return wrapsText_; }

  // Animations

  /// Starts an animation now, in place of a running one of the same key.
  void addAnimation(const Animation& animation, const std::string& key);
  void removeAnimation(const std::string& key);
  void removeAllAnimations();
  [[nodiscard]] const RunningAnimation* animationForKey(const std::string& key) const;

  [[nodiscard]] const std::vector<RunningAnimation>& animations() const { return animations_; }

  /// For the root of a tree: called when something in the tree changed, not again before `takeChange`.
  void setChangeObserver(std::function<void()> observer);
  /// Whether something changed since the last call.
  bool takeChange();
  /// Reports a change of this layer to the root's observer.
  void noteChange();

private:
  explicit Layer(LayerKind kind)
    : kind_(kind)
  {}

  template <class Value>
  void assign(Value& member, const Value& value);
  [[nodiscard]] bool isSelfOrAncestor(const Layer& layer) const;
  void resizeForBounds(const Rect& oldFrame);

  LayerKind kind_;
  Layer* superlayer_ = nullptr;
  std::vector<LayerHandle> sublayers_;
  LayerHandle mask_;
  Rect frame_;
  unsigned autoresizingMask_ = 0;
  bool geometryFlipped_ = false;
  bool hidden_ = false;
  double opacity_ = 1;
  Transform transform_;
  Color backgroundColor_;
  double cornerRadius_ = 0;
  bool masksToBounds_ = false;
  std::optional<Shadow> shadow_;
  std::optional<Path> path_;
  FillRule fillRule_ = FillRule::NonZero;
  Color fillColor_ = Color::rgba(0, 0, 0);
  Color strokeColor_;
  double lineWidth_ = 1;
  std::vector<double> lineDashPattern_;
  double lineDashPhase_ = 0;
  AttributedText text_;
  bool wrapsText_ = true;
  std::vector<RunningAnimation> animations_;
  std::function<void()> changeObserver_;
  bool changed_ = false;
};

} // namespace wayvane::platform
