#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtOwnWidgets.h>
#include <wayvane/platform/qt/QtPopoverWidget.h>

#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <cmath>

namespace wayvane::qt {

using Key = platform::PopoverButton::Key;

namespace {

/// Room around the content for the arrow, which is on one side or the other, and the outline.
constexpr int kArrow = 10;
constexpr int kCorner = 8;
/// From the sides of the screen.
constexpr int kMargin = 4;

} // namespace

QtPopoverWidget::QtPopoverWidget(const platform::PopoverSpec& spec)
  : QWidget(nullptr, Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
  , contentSize_(spec.contentSize)
{
  setObjectName(QStringLiteral("wv_popover"));
  setAttribute(Qt::WA_QuitOnClose, false);
  setAttribute(Qt::WA_TranslucentBackground, windowsCanShineThrough());
  setFixedSize(static_cast<int>(std::ceil(contentSize_.width)) + 2 * kArrow,
               static_cast<int>(std::ceil(contentSize_.height)) + 2 * kArrow);
  addFields(spec);
  addButtons(spec);
  adopt(*this);
  exemptFromModality(*this);
}

QRect QtPopoverWidget::toWidget(const platform::Rect& frame) const
{
  return QRectF(frame.x + kArrow, contentSize_.height - frame.maxY() + kArrow, frame.width, frame.height)
      .toRect();
}

void QtPopoverWidget::addFields(const platform::PopoverSpec& spec)
{
  for (const platform::PopoverField& field : spec.fields) {
    auto* edit = new QLineEdit(this);
    edit->setObjectName(toQString(field.identifier));
    edit->setPlaceholderText(toQString(field.placeholder));
    edit->setAccessibleName(toQString(field.placeholder));
    edit->setFont(toQFont(platform::Font::system(field.fontSize)));
    edit->setGeometry(toWidget(field.frame));
    adopt(*edit);
    fields_[field.identifier] = edit;
  }
}

void QtPopoverWidget::addButtons(const platform::PopoverSpec& spec)
{
  for (const platform::PopoverButton& button : spec.buttons) {
    auto* push = new QPushButton(toQString(button.title).replace(u'&', QLatin1String("&&")), this);
    push->setGeometry(toWidget(button.frame));
    push->setAutoDefault(false);
    push->setDefault(button.key == Key::Return);
    adopt(*push);
    const int index = static_cast<int>(buttons_.size());
    connect(push, &QPushButton::clicked, this, [this, index] { emit pressed(index); });
    buttons_.emplace_back(push, button.key);
  }
}

void QtPopoverWidget::showAt(const QRectF& anchor, QWidget& owner)
{
  const QScreen* screen = QGuiApplication::screenAt(anchor.center().toPoint());
  if (!screen) screen = owner.screen();
  const QRect room = screen ? screen->availableGeometry() : QRect(anchor.topLeft().toPoint(), size());
  isArrowOnTop_ = anchor.bottom() + height() <= room.bottom() + 1 || anchor.top() - height() < room.top();
  const double wantedX = anchor.center().x() - width() / 2.0;
  const double wantedY = isArrowOnTop_ ? anchor.bottom() : anchor.top() - height();
  const int x = std::max(room.left() + kMargin,
                         std::min(static_cast<int>(wantedX), room.right() + 1 - kMargin - width()));
  const int y = std::max(room.top(), std::min(static_cast<int>(wantedY), room.bottom() + 1 - height()));
  const double reach = kArrow + kCorner + kArrow;
  arrowX_ = std::clamp(anchor.center().x() - x, reach, std::max(reach, width() - reach));
  move(x, y);
  if (!windowsCanShineThrough()) setMask(QRegion(shape().toFillPolygon().toPolygon()));
  winId();
  windowHandle()->setTransientParent(owner.window()->windowHandle());
  connect(&owner, &QObject::destroyed, this, [this] { emit dismissed(); });
  qApp->installEventFilter(this);
  ++showings_;
  show();
  raise();
  activateWindow();
}

QString QtPopoverWidget::text(const std::string& identifier) const
{
  const auto found = fields_.find(identifier);
  return found == fields_.end() ? QString() : found->second->text();
}

void QtPopoverWidget::focusField(const std::string& identifier)
{
  const auto found = fields_.find(identifier);
  if (found == fields_.end()) return;
  activateWindow();
  found->second->setFocus(Qt::OtherFocusReason);
}

bool QtPopoverWidget::isOutside(QObject* receiver, QPoint global) const
{
  // An open menu or list gets all presses, wherever they are, and first has to be left. It may be a field's
  // own, or the very one that the popover is about.
  if (QApplication::activePopupWidget()) return false;
  if (receiver->isWidgetType()) return static_cast<QWidget*>(receiver)->window() != this;
  return receiver->isWindowType() && receiver != windowHandle() && !geometry().contains(global);
}

void QtPopoverWidget::dismissLater(quint64 pressTime)
{
  QMetaObject::invokeMethod(
      this,
      [this, pressTime, showing = showings_] {
        if (showing != showings_) return;
        const bool isSecondHalf = pressTime != 0 && pressTime == doubleClickTime_;
        isSecondHalf ? activateWindow() : emit dismissed();
      },
      Qt::QueuedConnection);
}

bool QtPopoverWidget::eventFilter(QObject* watched, QEvent* event)
{
  const auto* mouse = event->isPointerEvent() ? dynamic_cast<QMouseEvent*>(event) : nullptr;
  if (!mouse || !isVisible()) return false;
  const bool isPress =
      event->type() == QEvent::MouseButtonPress || event->type() == QEvent::NonClientAreaMouseButtonPress;
  // It follows its press at once. What comes first is the click that brought the popover up, or has closed
  // it.
  if (event->type() == QEvent::MouseButtonDblClick) doubleClickTime_ = mouse->timestamp();
  if (isPress && isOutside(watched, mouse->globalPosition().toPoint())) dismissLater(mouse->timestamp());
  return false;
}

bool QtPopoverWidget::pressKey(Key key)
{
  for (std::size_t i = 0; i < buttons_.size(); ++i)
    if (buttons_[i].second == key) {
      emit pressed(static_cast<int>(i));
      return true;
    }
  return false;
}

void QtPopoverWidget::keyPressEvent(QKeyEvent* event)
{
  const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
  if (isReturn && pressKey(Key::Return)) return;
  if (event->key() == Qt::Key_Escape) {
    if (!pressKey(Key::Escape)) emit dismissed();
    return;
  }
  QWidget::keyPressEvent(event);
}

void QtPopoverWidget::closeEvent(QCloseEvent* event)
{
  event->ignore();
  dismissLater();
}

void QtPopoverWidget::hideEvent(QHideEvent* event)
{
  QWidget::hideEvent(event);
  if (event->spontaneous()) return;
  qApp->removeEventFilter(this);
  dismissLater();
}

QPainterPath QtPopoverWidget::shape() const
{
  const QRectF body = QRectF(rect()).adjusted(1, kArrow, -1, -kArrow);
  // The arrow reaches into the body, so that the two become one outline.
  const double base = isArrowOnTop_ ? body.top() + 1 : body.bottom() - 1;
  const double tip = isArrowOnTop_ ? 1 : height() - 1;
  QPainterPath bubble;
  bubble.addRoundedRect(body, kCorner, kCorner);
  QPainterPath arrow;
  arrow.moveTo(arrowX_ - kArrow, base);
  arrow.lineTo(arrowX_, tip);
  arrow.lineTo(arrowX_ + kArrow, base);
  arrow.closeSubpath();
  return bubble.united(arrow);
}

void QtPopoverWidget::paintEvent(QPaintEvent*)
{
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QColor background = palette().color(QPalette::Window);
  painter.setPen(QPen(rimAround(background), 1));
  painter.setBrush(background);
  painter.drawPath(shape());
}

} // namespace wayvane::qt
