#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtAccessibleAlert.h>
#include <wayvane/platform/qt/QtGuard.h>
#include <wayvane/platform/qt/QtOverlayWidget.h>
#include <wayvane/platform/qt/QtOwnWidgets.h>

#include <QApplication>
#include <QChildEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QTimerEvent>
#include <QWindow>

#include <algorithm>

namespace wayvane::qt {

namespace {

/// Keeps a parent from hearing that it got a child: a splitter would make a pane of it.
class SilentAdoption final : public QObject {
public:
  SilentAdoption(QWidget& parent, QWidget& child)
    : parent_(&parent)
    , child_(child)
  {
    qApp->installEventFilter(this);
    child.setParent(&parent);
  }

protected:
  bool eventFilter(QObject* watched, QEvent* event) override
  {
    const bool isChildEvent = event->type() == QEvent::ChildAdded || event->type() == QEvent::ChildPolished;
    return isChildEvent && watched == parent_ && static_cast<QChildEvent*>(event)->child() == &child_;
  }

private:
  QObject* parent_;
  QWidget& child_;
};

} // namespace

QtOverlayWidget::QtOverlayWidget(QWidget* window, Content content, const platform::MainQueue& clock,
                                 std::function<void()> onCovering)
  : content_(std::move(content))
  , driver_(std::make_unique<QtSceneDriver>(*this, *content_, clock))
  , onCovering_(std::move(onCovering))
{
  setObjectName(QStringLiteral("wv_overlay"));
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAttribute(Qt::WA_NoSystemBackground);
  setFocusPolicy(Qt::NoFocus);
  if (window)
    settleInto(*window);
  else
    becomeWindow();
  adopt(*this);
}

QtOverlayWidget::~QtOverlayWidget() = default;

void QtOverlayWidget::settleInto(QWidget& window)
{
  const SilentAdoption silent(window, *this);
  setGeometry(window.rect());
  qApp->installEventFilter(this);
}

void QtOverlayWidget::becomeWindow()
{
  setAttribute(Qt::WA_TranslucentBackground);
  setAttribute(Qt::WA_ShowWithoutActivating);
  setWindowFlags((toolWindowsActivate() ? Qt::ToolTip : Qt::Tool) | Qt::FramelessWindowHint |
                 Qt::WindowTransparentForInput | Qt::WindowDoesNotAcceptFocus | Qt::NoDropShadowWindowHint |
                 Qt::WindowStaysOnTopHint);
}

void QtOverlayWidget::abandon()
{
  driver_.reset();
  onCovering_ = nullptr;
  raiseTimer_.stop();
  if (qApp) qApp->removeEventFilter(this);
}

void QtOverlayWidget::cover(const QRect& rect)
{
  coversAll_ = parentWidget() && rect == parentWidget()->rect();
  setGeometry(rect);
}

void QtOverlayWidget::showAlert(const platform::AccessibleAlert& alert)
{
  hideAlert();
  alert_ = new QtAccessibleAlert(alert, *this);
  alert_->announce();
}

void QtOverlayWidget::hideAlert()
{
  dispose(alert_);
  alert_.clear();
}

void QtOverlayWidget::displayNow()
{
  if (driver_) driver_->update();
  QCoreApplication::sendPostedEvents(window(), QEvent::UpdateRequest);
}

bool QtOverlayWidget::event(QEvent* event)
{
  switch (event->type()) {
  case QEvent::WinIdChange:
    // A native child somewhere in the window makes natives of its siblings, and those do take input.
    if (QWindow* native = windowHandle()) native->setFlag(Qt::WindowTransparentForInput, true);
    break;
  case QEvent::Show:
  case QEvent::Hide:
    updateShown();
    break;
  case QEvent::PaletteChange:
    update();
    break;
  default:
    break;
  }
  return QWidget::event(event);
}

bool QtOverlayWidget::eventFilter(QObject* watched, QEvent* event)
{
  switch (event->type()) {
  case QEvent::Resize:
  case QEvent::WindowStateChange:
  case QEvent::ChildAdded:
    if (watched == parentWidget()) windowChanged(event->type());
    break;
  case QEvent::ZOrderChange:
    if (watched != this && watched->parent() == parentWidget()) raiseSoon();
    break;
  default:
    break;
  }
  return false;
}

void QtOverlayWidget::windowChanged(QEvent::Type type)
{
  if (type == QEvent::ChildAdded) return raiseSoon();
  if (type == QEvent::WindowStateChange) return updateShown();
  if (!coversAll_) return;
  setGeometry(parentWidget()->rect());
  if (onCovering_) guarded("overlay", onCovering_);
}

bool QtOverlayWidget::isOnTop() const
{
  const QObjectList& siblings = parentWidget()->children();
  const auto topmost = std::find_if(siblings.rbegin(), siblings.rend(), [](const QObject* child) {
    return child->isWidgetType() && !static_cast<const QWidget*>(child)->isWindow();
  });
  return topmost == siblings.rend() || *topmost == this;
}

void QtOverlayWidget::raiseSoon()
{
  // Somebody else may want to be on top as badly as we do: between two of us there is always a pause.
  constexpr int kPause = 100;
  if (raiseTimer_.isActive()) return;
  const bool isAgain = sinceRaise_.isValid() && sinceRaise_.elapsed() < kPause;
  raiseTimer_.start(isAgain ? kPause : 0, this);
}

void QtOverlayWidget::timerEvent(QTimerEvent* event)
{
  if (event->timerId() != raiseTimer_.timerId()) return QWidget::timerEvent(event);
  raiseTimer_.stop();
  if (!parentWidget() || isOnTop()) return;
  sinceRaise_.start();
  raise();
}

void QtOverlayWidget::updateShown()
{
  if (driver_) driver_->setShown(isVisible() && !window()->isMinimized());
}

void QtOverlayWidget::paintEvent(QPaintEvent* event)
{
  if (!driver_) return;
  QPainter painter(this);
  driver_->paint(painter, event->region());
}

} // namespace wayvane::qt
