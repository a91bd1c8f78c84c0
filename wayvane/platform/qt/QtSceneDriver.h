#pragma once

#include <wayvane/platform/MainQueue.h>
#include <wayvane/platform/Surface.h>
#include <wayvane/platform/qt/QtScenePainter.h>
#include <wayvane/platform/qt/QtSceneSnapshot.h>

#include <QBasicTimer>
#include <QObject>

class QWidget;

namespace wayvane::qt {

/// Keeps a widget showing a tree of surface views: repaints what changed, and runs a timer only as long as
/// something visible moves. Both outlive the driver; the view fills the widget.
class QtSceneDriver final : public QObject {
public:
  QtSceneDriver(QWidget& canvas, platform::SurfaceView& content, const platform::MainQueue& clock);
  ~QtSceneDriver() override;

  /// From the widget's paint event.
  void paint(QPainter& painter, const QRegion& damage);
  /// Whether the widget can be seen; nothing runs meanwhile otherwise.
  void setShown(bool shown);
  /// Finds what changed up to now, without waiting for the event loop.
  void update();

  [[nodiscard]] bool isAnimating() const { return timer_.isActive(); }

protected:
  void timerEvent(QTimerEvent* event) override;

private:
  void noteChange();
  void arm();

  QWidget& canvas_;
  platform::SurfaceView& content_;
  const platform::MainQueue& clock_;
  QtScenePainter painter_;
  QtSceneSnapshot shown_;
  /// The time of which the snapshot is, and which is painted.
  double time_ = 0;
  bool isShown_ = false;
  bool isUpdateQueued_ = false;
  /// Milliseconds; 0 when the timer rests.
  int interval_ = 0;
  QBasicTimer timer_;
};

} // namespace wayvane::qt
