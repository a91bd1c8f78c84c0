#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtGuard.h>
#include <wayvane/platform/qt/QtOwnWidgets.h>
#include <wayvane/platform/qt/QtPopover.h>
#include <wayvane/platform/qt/QtPopoverWidget.h>
#include <wayvane/platform/qt/QtWindow.h>

#include <QApplication>

#include <utility>

namespace wayvane::qt {

QtPopover::QtPopover(platform::PopoverSpec spec)
  : spec_(std::move(spec))
  , widget_(new QtPopoverWidget(spec_))
{
  QtPopoverWidget* const widget = widget_;
  QObject::connect(widget, &QtPopoverWidget::pressed, widget,
                   [this](int button) { press(static_cast<std::size_t>(button)); });
  QObject::connect(widget, &QtPopoverWidget::dismissed, widget, [this] { close(); });
}

QtPopover::~QtPopover()
{
  if (widget_) widget_->disconnect();
  dispose(widget_);
}

bool QtPopover::show(const platform::WindowHandle& window, const platform::Rect& anchor)
{
  QWidget* const owner = window ? widgetOf(*window) : nullptr;
  if (!owner || !owner->isVisible() || !widget_ || isShown_) return false;
  isShown_ = true;
  owner_ = owner;
  widget_->showAt(globalFromScreenRect(window->convertRectToScreen(anchor)), *owner);
  return true;
}

void QtPopover::press(std::size_t button)
{
  if (!isShown_ || button >= spec_.buttons.size()) return;
  const std::weak_ptr<bool> alive = life_;
  // The callback may drop the popover, and itself with it.
  const std::function<void()> onClick = spec_.buttons[button].onClick;
  if (onClick) guarded("popover button", onClick);
  if (!alive.expired()) close();
}

void QtPopover::close()
{
  if (!std::exchange(isShown_, false)) return;
  if (widget_) widget_->hide();
  // Without a window manager nobody else hands the keyboard back.
  if (owner_ && !QApplication::activeWindow()) owner_->activateWindow();
  const std::function<void()> onClose = spec_.onClose;
  if (onClose) guarded("popover", onClose);
}

bool QtPopover::isShown() const
{
  return isShown_;
}

std::string QtPopover::text(const std::string& fieldIdentifier) const
{
  return widget_ ? toUtf8(widget_->text(fieldIdentifier)) : std::string();
}

void QtPopover::focusField(const std::string& fieldIdentifier)
{
  if (widget_) widget_->focusField(fieldIdentifier);
}

platform::WindowHandle QtPopover::window() const
{
  return windowForWidget(widget_);
}

} // namespace wayvane::qt
