#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtOwnWidgets.h>
#include <wayvane/platform/qt/QtPanelWidget.h>

#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QPainterPath>

namespace wayvane::qt {

namespace {

/// Panels from this level on lie above other panels of ours.
constexpr int kStatusLevel = 25;

Qt::WindowFlags flagsFor(const platform::FloatingPanelSpec& spec)
{
  const bool isToolTip = spec.level >= kStatusLevel || toolWindowsActivate();
  Qt::WindowFlags flags = isToolTip ? Qt::ToolTip : Qt::Tool;
  flags |= Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus | Qt::WindowStaysOnTopHint;
  if (!spec.hasShadow) flags |= Qt::NoDropShadowWindowHint;
  if (spec.ignoresMouse) flags |= Qt::WindowTransparentForInput;
  return flags;
}

} // namespace

QtPanelWidget::QtPanelWidget(const platform::FloatingPanelSpec& spec, Content content,
                             const platform::MainQueue& clock)
  : QWidget(nullptr, flagsFor(spec))
  , content_(std::move(content))
  , driver_(*this, *content_, clock)
  , background_(spec.background)
  , cornerRadius_(spec.cornerRadius)
  , isMovable_(spec.movable)
  , isTranslucent_(windowsCanShineThrough())
{
  setObjectName(QStringLiteral("wv_panel"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  setAttribute(Qt::WA_AlwaysShowToolTips);
  setAttribute(Qt::WA_QuitOnClose, false);
  setAttribute(Qt::WA_TranslucentBackground, isTranslucent_);
  setAttribute(Qt::WA_NoSystemBackground);
  setFocusPolicy(Qt::NoFocus);
  setAccessibleName(toQString(spec.accessibilityTitle));
  setWindowTitle(toQString(spec.accessibilityTitle));
  resize(QSizeF(spec.size.width, spec.size.height).toSize());
  adopt(*this);
  exemptFromModality(*this);
}

QtPanelWidget::~QtPanelWidget() = default;

bool QtPanelWidget::event(QEvent* event)
{
  if (event->type() == QEvent::Show || event->type() == QEvent::Hide) driver_.setShown(isVisible());
  if (event->type() == QEvent::PaletteChange) update();
  return QWidget::event(event);
}

void QtPanelWidget::paintEvent(QPaintEvent* event)
{
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  QPainterPath shape;
  shape.addRoundedRect(QRectF(rect()), cornerRadius_, cornerRadius_);
  const QColor color = toQColor(background_, appearanceOf(this));
  if (isTranslucent_)
    painter.fillPath(shape, color);
  else
    painter.fillRect(rect(), QColor(color.red(), color.green(), color.blue()));
  painter.setPen(QPen(rimAround(color), 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), cornerRadius_ - 0.5,
                          cornerRadius_ - 0.5);
  driver_.paint(painter, event->region());
}

void QtPanelWidget::resizeEvent(QResizeEvent*)
{
  if (isTranslucent_ || cornerRadius_ <= 0) return;
  QPainterPath shape;
  shape.addRoundedRect(QRectF(rect()), cornerRadius_, cornerRadius_);
  setMask(QRegion(shape.toFillPolygon().toPolygon()));
}

void QtPanelWidget::mousePressEvent(QMouseEvent* event)
{
  if (isMovable_ && event->button() == Qt::LeftButton) grip_ = event->globalPosition().toPoint() - pos();
}

void QtPanelWidget::mouseMoveEvent(QMouseEvent* event)
{
  if (grip_ && event->buttons().testFlag(Qt::LeftButton)) move(event->globalPosition().toPoint() - *grip_);
}

void QtPanelWidget::mouseReleaseEvent(QMouseEvent*)
{
  grip_.reset();
}

} // namespace wayvane::qt
