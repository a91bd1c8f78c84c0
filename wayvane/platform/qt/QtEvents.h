#pragma once

#include <wayvane/platform/Events.h>
#include <wayvane/platform/qt/QtHandlerList.h>
#include <wayvane/platform/qt/QtMenuCommands.h>
#include <wayvane/platform/qt/QtPressGate.h>

#include <QObject>

#include <optional>

class QWidget;

namespace wayvane::qt {

/// The program's events, seen by a filter on the application object, which is there only while somebody
/// listens.
class QtEvents final : public QObject, public platform::Events {
public:
  QtEvents();

  [[nodiscard]] platform::Registration addLocalMonitor(platform::MouseEvent::Type type,
                                                       Monitor monitor) override;
  [[nodiscard]] platform::Point mouseLocation() const override;
  [[nodiscard]] platform::Registration
  observeWindowResize(std::function<void(const platform::WindowHandle&)> handler) override;
  [[nodiscard]] platform::Registration
  observeMenuCommands(std::function<void(const platform::MenuItemHandle&)> handler) override;

protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

private:
  void listen();
  void stopWhenUnheard();
  [[nodiscard]] bool handleMouse(QObject* receiver, const QMouseEvent& event);
  [[nodiscard]] platform::EventVerdict judge(QObject* receiver, const QMouseEvent& event);

  QtHandlerList<platform::EventVerdict(const platform::MouseEvent&)> presses_;
  QtHandlerList<platform::EventVerdict(const platform::MouseEvent&)> moves_;
  QtHandlerList<void(const platform::WindowHandle&)> resizes_;
  QtHandlerList<void(const platform::MenuItemHandle&)> commands_;
  QtPressGate gate_;
  QtMenuCommands menuCommands_;
  /// The global position of the event that is being judged.
  std::optional<QPointF> judged_;
  /// Of the last mouse event, for platforms whose cursor does not follow synthetic events.
  std::optional<QPointF> last_;
};

} // namespace wayvane::qt
