#include <wayvane/platform/qt/QtOwnWidgets.h>

#include <QApplication>
#include <QEvent>
#include <QPointer>
#include <QWidget>
#include <QWindow>

#include <vector>

namespace wayvane::qt {

namespace {

std::vector<QPointer<QWidget>>& windowsOfOurs()
{
  static std::vector<QPointer<QWidget>> windows;
  return windows;
}

void deleteWindowsOfOurs()
{
  const std::vector<QPointer<QWidget>> windows = std::exchange(windowsOfOurs(), {});
  for (const QPointer<QWidget>& window : windows)
    if (window && !window->parentWidget()) delete window;
}

/// A modal dialog blocks every window but those that belong to it. So the window comes to belong to whichever
/// dialog blocks it, and to nobody when that one is gone.
class ModalityExemption final : public QObject {
public:
  explicit ModalityExemption(QWidget& window)
    : QObject(&window)
  {
    window.installEventFilter(this);
  }

protected:
  bool eventFilter(QObject* watched, QEvent* event) override
  {
    if (watched == dialog_) {
      if (event->type() == QEvent::Hide || event->type() == QEvent::Close) follow(nullptr);
    } else if (watched->isWindowType()) {
      // A window of the tool tip type is not told that it is blocked; its presses only go nowhere.
      const bool isMouse = event->type() == QEvent::MouseButtonPress || event->type() == QEvent::Enter;
      if (isMouse && QGuiApplication::modalWindow()) follow(QGuiApplication::modalWindow());
    } else if (event->type() == QEvent::PlatformSurface) {
      if (auto* handle = static_cast<QWidget*>(watched)->windowHandle()) handle->installEventFilter(this);
    } else if (event->type() == QEvent::WindowBlocked || event->type() == QEvent::Show) {
      // Blocking is told while the list of dialogs is being walked.
      QMetaObject::invokeMethod(
          this, [this] { follow(QGuiApplication::modalWindow()); }, Qt::QueuedConnection);
    }
    return false;
  }

private:
  void follow(QWindow* dialog)
  {
    auto* window = static_cast<QWidget*>(parent());
    if (!window->windowHandle() || dialog == window->windowHandle() || dialog == dialog_) return;
    if (dialog_) dialog_->removeEventFilter(this);
    if (!usual_) usual_ = window->windowHandle()->transientParent();
    dialog_ = dialog;
    if (dialog_) dialog_->installEventFilter(this);
    window->windowHandle()->setTransientParent(dialog_ ? dialog_.data() : usual_.data());
    if (!dialog_) usual_.clear();
    if (window->isVisible()) window->raise();
  }

  QPointer<QWindow> dialog_;
  /// What the window belongs to otherwise.
  QPointer<QWindow> usual_;
};

} // namespace

void adopt(QWidget& widget)
{
  widget.setProperty("wv_own", true);
  if (widget.parentWidget()) return;
  std::vector<QPointer<QWidget>>& windows = windowsOfOurs();
  static bool isRegistered = false;
  if (!std::exchange(isRegistered, true)) qAddPostRoutine([] { deleteWindowsOfOurs(); });
  std::erase_if(windows, [](const QPointer<QWidget>& window) { return window.isNull(); });
  windows.emplace_back(&widget);
}

void dispose(QWidget* widget)
{
  if (!widget) return;
  widget->hide();
  widget->deleteLater();
}

void exemptFromModality(QWidget& window)
{
  new ModalityExemption(window);
}

bool toolWindowsActivate()
{
  const QString name = QGuiApplication::platformName();
  return name == QLatin1String("offscreen") || name == QLatin1String("minimal");
}

} // namespace wayvane::qt
