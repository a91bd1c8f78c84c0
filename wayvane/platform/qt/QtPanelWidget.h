#pragma once

#include <wayvane/platform/Panels.h>
#include <wayvane/platform/qt/QtSceneDriver.h>

#include <QPoint>
#include <QWidget>

#include <memory>
#include <optional>

namespace wayvane::qt {

/// A small window of ours that never takes the keyboard and can be used under any modal dialog.
class QtPanelWidget final : public QWidget {
  Q_OBJECT
public:
  using Content = std::shared_ptr<platform::SurfaceView>;

  QtPanelWidget(const platform::FloatingPanelSpec& spec, Content content, const platform::MainQueue& clock);
  ~QtPanelWidget() override;

protected:
  bool event(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;

private:
  Content content_;
  QtSceneDriver driver_;
  platform::Color background_;
  double cornerRadius_;
  bool isMovable_;
  /// Without a compositor nothing shines through: the corners are cut off instead.
  bool isTranslucent_;
  /// Where the panel was taken hold of.
  std::optional<QPoint> grip_;
};

} // namespace wayvane::qt
