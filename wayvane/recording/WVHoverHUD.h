#pragma once

#include <wayvane/model/WVTargetDescriptor.h>
#include <wayvane/platform/Panels.h>

#include <memory>
#include <optional>

namespace wayvane {

/// The small dark panel that follows the pointer while a guide is recorded and tells what a click there would
/// record. It never takes a press. Each value it shows is cut after 1,000 characters or 20 lines, so that a
/// title of a megabyte does no harm; `lastDescriptor` keeps it whole.
///
/// The text is made anew when the pointer comes to another element, or to another row, column or cell view of
/// a table, and when the panel was hidden meanwhile; otherwise the panel just follows the pointer.
///
/// Main thread only. Without an installed platform it shows nothing.
class WVHoverHUD {
public:
  /// The hover display of the process. Made on first use, never destroyed; its panel is made when it is first
  /// shown, and anew when the platform that made it is gone.
  [[nodiscard]] static WVHoverHUD& shared();

  WVHoverHUD();
  ~WVHoverHUD();
  WVHoverHUD(const WVHoverHUD&) = delete;
  WVHoverHUD& operator=(const WVHoverHUD&) = delete;

  /// Shows what `view` is, below and to the right of `point` (screen coordinates). A null view hides the
  /// panel and leaves what is remembered as it was.
  void updateForView(const platform::ViewHandle& view, platform::Point point);
  void orderOut();

  [[nodiscard]] bool isVisible() const;
  /// In screen coordinates; the zero rectangle before the panel was first shown.
  [[nodiscard]] platform::Rect frame() const;
  /// The panel as events name it; null before it was first shown.
  [[nodiscard]] platform::WindowHandle window() const;

  /// Null before the panel was first shown.
  [[nodiscard]] const std::shared_ptr<platform::SurfaceLabel>& infoLabel() const { return infoLabel_; }

  /// The view shown last; null when it is gone.
  [[nodiscard]] platform::ViewHandle lastView() const;

  /// What was told about it, whole; nothing before the first view.
  [[nodiscard]] const std::optional<WVTargetDescriptor>& lastDescriptor() const { return lastDescriptor_; }

private:
  /// What the text depends on, besides the element's own state.
  struct Place {
    platform::ViewHandle view;
    int row = -1;
    int column = -1;
    platform::ViewHandle inCell;
    [[nodiscard]] bool isSame(const Place& other) const;
  };

  [[nodiscard]] static Place placeOf(const platform::ViewHandle& view, platform::Point locationInWindow);
  bool makePanelIfNecessary();
  void describe(const platform::ViewHandle& view, platform::Point locationInWindow);
  void moveTo(platform::Point point);

  std::unique_ptr<platform::FloatingPanel> panel_;
  std::shared_ptr<platform::SurfaceLabel> infoLabel_;
  std::optional<WVTargetDescriptor> lastDescriptor_;
  platform::ViewHandle lastView_;
  std::optional<Place> shownPlace_;
  platform::Size size_;
};

} // namespace wayvane
