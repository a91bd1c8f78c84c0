#pragma once

#include <wayvane/platform/Accessibility.h>
#include <wayvane/platform/qt/QtSceneDriver.h>

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <functional>
#include <memory>

namespace wayvane::qt {

class QtAccessibleAlert;

/// The overlay as a widget: lies over everything in a top-level window, menu bar and docks included, lets all
/// input through and stays on top whatever the window adds or raises. Without a window it is a see-through
/// window of its own.
class QtOverlayWidget final : public QWidget {
  Q_OBJECT
public:
  using Content = std::shared_ptr<platform::SurfaceView>;

  /// `onCovering` is called when the widget has followed a change of the window's size.
  QtOverlayWidget(QWidget* window, Content content, const platform::MainQueue& clock,
                  std::function<void()> onCovering);
  ~QtOverlayWidget() override;

  /// Shows nothing any more and calls nobody: the content has moved on to another widget.
  void abandon();
  /// Covers `rect` of the window from now on; a rectangle that is the whole window follows its size.
  void cover(const QRect& rect);
  void showAlert(const platform::AccessibleAlert& alert);
  void hideAlert();
  /// Draws what waits to be drawn.
  void displayNow();

  /// Null when abandoned.
  [[nodiscard]] const QtSceneDriver* driver() const { return driver_.get(); }

protected:
  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void timerEvent(QTimerEvent* event) override;

private:
  void settleInto(QWidget& window);
  void becomeWindow();
  void windowChanged(QEvent::Type type);
  void raiseSoon();
  [[nodiscard]] bool isOnTop() const;
  void updateShown();

  Content content_;
  std::unique_ptr<QtSceneDriver> driver_;
  std::function<void()> onCovering_;
  QPointer<QtAccessibleAlert> alert_;
  bool coversAll_ = true;
  QBasicTimer raiseTimer_;
  QElapsedTimer sinceRaise_;
};

} // namespace wayvane::qt
