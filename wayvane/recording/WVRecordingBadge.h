#pragma once

#include <wayvane/platform/Panels.h>

#include <functional>
#include <memory>
#include <utility>

namespace wayvane {

/// The small panel in the top right corner of the main screen that stays there while a guide is recorded: a
/// pulsing red dot, the number of steps, Undo and Done. It never becomes the key window, and its texts are
/// English in every language.
///
/// Needs an installed platform when it is made. Main thread only.
class WVRecordingBadge {
public:
  /// Built, counting 0 steps, and not shown yet.
  WVRecordingBadge();

  void orderFront() { panel_->orderFront(); }

  void orderOut() { panel_->orderOut(); }

  [[nodiscard]] bool isVisible() const { return panel_->isVisible(); }

  /// Its buttons work without taking the keyboard from the program.
  [[nodiscard]] static bool canBecomeKeyWindow() { return false; }

  /// In screen coordinates.
  [[nodiscard]] platform::Rect frame() const { return panel_->frame(); }

  /// The panel as events name it.
  [[nodiscard]] platform::WindowHandle window() const { return panel_->window(); }

  /// Whoever counts writes into it.
  [[nodiscard]] platform::SurfaceLabel& stepCountLabel() { return *stepCountLabel_; }

  [[nodiscard]] platform::PanelButton& undoButton() { return *undoButton_; }

  [[nodiscard]] platform::PanelButton& doneButton() { return *doneButton_; }

  /// What the buttons do; nothing when it is empty. May release the badge from a later turn of the main loop
  /// on, and not before.
  void setOnUndo(std::function<void()> onUndo) { onUndo_ = std::move(onUndo); }

  void setOnDone(std::function<void()> onDone) { onDone_ = std::move(onDone); }

  [[nodiscard]] const std::function<void()>& onUndo() const { return onUndo_; }

  [[nodiscard]] const std::function<void()>& onDone() const { return onDone_; }

  void undoClicked() const;
  void doneClicked() const;

private:
  void addDot();
  void addLabel();
  void addButtons();
  void placeInCorner();

  std::unique_ptr<platform::FloatingPanel> panel_;
  std::shared_ptr<platform::SurfaceLabel> stepCountLabel_;
  platform::PanelButton* undoButton_ = nullptr;
  platform::PanelButton* doneButton_ = nullptr;
  std::function<void()> onUndo_;
  std::function<void()> onDone_;
};

} // namespace wayvane
