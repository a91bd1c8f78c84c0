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
/// dialog is the innermost one.
class ModalityExemption final : public QObject {
public:
  explicit ModalityExemption(QWidget& window)
    : QObject(&window)
  {
    qApp->installEventFilter(this);
  }

protected:
  bool eventFilter(QObject* watched, QEvent* event) override
  {
    if (event->type() == QEvent::Hide && dialog_ && watched == dialog_) {
      follow(nullptr);
      followSoon();
    } else if (event->type() == QEvent::Show) {
      const bool isDialog =
          watched->isWindowType() && static_cast<QWindow*>(watched)->modality() != Qt::NonModal;
      if (isDialog || watched == parent()) followSoon();
    }
    return false;
  }

private:
  /// The toolkit's list of dialogs is complete only after the showing.
  void followSoon()
  {
    QMetaObject::invokeMethod(
        this, [this] { follow(QGuiApplication::modalWindow()); }, Qt::QueuedConnection);
  }

  void follow(QWindow* dialog)
  {
    auto* window = static_cast<QWidget*>(parent());
    QWindow* native = window->windowHandle();
    if (!native || dialog == native || dialog == dialog_) return;
    if (!dialog_) usual_ = native->transientParent();
    dialog_ = dialog;
    native->setTransientParent(dialog_ ? dialog_.data() : usual_.data());
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

bool windowsCanShineThrough()
{
  // X11 may have a compositor or not, and may lose it at any time.
  return QGuiApplication::platformName() != QLatin1String("xcb");
}

bool toolWindowsActivate()
{
  const QString name = QGuiApplication::platformName();
  return name == QLatin1String("offscreen") || name == QLatin1String("minimal");
}

QColor rimAround(const QColor& background)
{
  constexpr int kMiddle = 128;
  constexpr int kAlpha = 56;
  return background.lightness() < kMiddle ? QColor(255, 255, 255, kAlpha) : QColor(0, 0, 0, kAlpha);
}

} // namespace wayvane::qt
