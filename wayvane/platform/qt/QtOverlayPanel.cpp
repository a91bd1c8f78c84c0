#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtOverlayPanel.h>
#include <wayvane/platform/qt/QtOwnWidgets.h>
#include <wayvane/platform/qt/QtWindow.h>

#include <QApplication>

namespace wayvane::qt {

using platform::Rect;
using platform::WindowHandle;

/// The panel as a window of its own, though to the toolkit it is a part of the window it covers.
class QtOverlayPanel::Handle final : public platform::Window {
public:
  explicit Handle(QtOverlayPanel& panel)
    : panel_(&panel)
  {}

  void forgetPanel() { panel_ = nullptr; }

  [[nodiscard]] bool isAlive() const override { return panel_ != nullptr; }

  [[nodiscard]] bool isSame(const platform::Window& other) const override { return panel_ && this == &other; }

  [[nodiscard]] std::string className() const override { return panel_ ? "WVOverlayPanel" : ""; }

  [[nodiscard]] std::string title() const override { return {}; }

  [[nodiscard]] Rect frame() const override { return panel_ ? panel_->frame() : Rect{}; }

  [[nodiscard]] bool isVisible() const override { return panel_ && panel_->isVisible(); }

  [[nodiscard]] platform::ViewHandle contentView() const override { return nullptr; }

  [[nodiscard]] platform::ViewHandle frameView() const override { return nullptr; }

  [[nodiscard]] std::vector<platform::ToolbarItem> toolbarItems() const override { return {}; }

  [[nodiscard]] bool isUtilityPanel() const override { return false; }

  void displayIfNeeded() override
  {
    if (panel_) panel_->displayIfNeeded();
  }

private:
  QtOverlayPanel* panel_;
};

QtOverlayPanel::QtOverlayPanel(const Rect& frame, double cornerRadius, const platform::MainQueue& clock)
  : clock_(clock)
  , content_(std::make_shared<platform::SurfaceView>(Rect{0, 0, frame.width, frame.height}))
  , frame_(frame)
  , handle_(std::make_shared<Handle>(*this))
{
  content_->setIsContentView(true);
  content_->layer()->setCornerRadius(cornerRadius);
  content_->layer()->setMasksToBounds(true);
}

QtOverlayPanel::~QtOverlayPanel()
{
  handle_->forgetPanel();
  // The widget goes later, and keeps the content until then; it has nobody to tell any more.
  if (widget_) widget_->abandon();
  dispose(widget_);
}

void QtOverlayPanel::makeWidget(QWidget* window)
{
  if (widget_) widget_->abandon();
  dispose(widget_);
  widget_ = new QtOverlayWidget(window, content_, clock_, [this] { fitContent(); });
  place();
  if (alert_) widget_->showAlert(*alert_);
  if (isOrdered_) orderFront();
}

void QtOverlayPanel::place()
{
  const QRectF wanted = globalFromScreenRect(frame_);
  const QWidget* window = widget_->parentWidget();
  if (!window) {
    widget_->setGeometry(wanted.toAlignedRect());
  } else {
    const QRect part =
        QRectF(window->mapFromGlobal(wanted.topLeft()), wanted.size()).toAlignedRect() & window->rect();
    widget_->cover(part.isEmpty() ? window->rect() : part);
  }
  fitContent();
}

void QtOverlayPanel::fitContent()
{
  if (widget_ && widget_->parentWidget()) frame_ = frame();
  content_->setFrame({0, 0, frame_.width, frame_.height});
}

Rect QtOverlayPanel::frame() const
{
  const QWidget* window = widget_ ? widget_->parentWidget() : nullptr;
  if (!window) return frame_;
  return screenRectFromGlobal(QRectF(window->mapToGlobal(QPointF(widget_->pos())), QSizeF(widget_->size())));
}

void QtOverlayPanel::setFrame(const Rect& frame)
{
  frame_ = frame;
  if (widget_)
    place();
  else
    fitContent();
}

void QtOverlayPanel::attachToWindow(const WindowHandle& window)
{
  QWidget* const target = window ? widgetOf(*window) : nullptr;
  if (widget_ && widget_->parentWidget() == target) return;
  parent_ = target ? window : nullptr;
  if (!target && !widget_) return;
  // On a window the panel begins by covering all of it.
  if (target) frame_ = window->frame();
  isOrdered_ = isOrdered_ || (target && target->isVisible());
  makeWidget(target);
}

WindowHandle QtOverlayPanel::parentWindow() const
{
  return parent_ && widgetOf(*parent_) && widget_ ? parent_ : nullptr;
}

void QtOverlayPanel::orderFront()
{
  isOrdered_ = true;
  if (!qApp) return;
  if (!widget_) return makeWidget(parent_ ? widgetOf(*parent_) : nullptr);
  widget_->show();
  widget_->raise();
}

void QtOverlayPanel::orderOut()
{
  isOrdered_ = false;
  if (widget_) widget_->hide();
}

bool QtOverlayPanel::isVisible() const
{
  return widget_ && widget_->isVisible();
}

WindowHandle QtOverlayPanel::window() const
{
  return handle_;
}

void QtOverlayPanel::displayIfNeeded()
{
  if (widget_) widget_->displayNow();
}

void QtOverlayPanel::showAccessibleAlert(const platform::AccessibleAlert& alert)
{
  alert_ = alert;
  if (widget_) widget_->showAlert(alert);
}

void QtOverlayPanel::hideAccessibleAlert()
{
  alert_.reset();
  if (widget_) widget_->hideAlert();
}

} // namespace wayvane::qt
