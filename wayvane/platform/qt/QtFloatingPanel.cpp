#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtFloatingPanel.h>
#include <wayvane/platform/qt/QtGuard.h>
#include <wayvane/platform/qt/QtOwnWidgets.h>
#include <wayvane/platform/qt/QtPanelWidget.h>
#include <wayvane/platform/qt/QtWindow.h>

#include <QPushButton>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace wayvane::qt {

using platform::Rect;

namespace {

/// A quiet button: a pill that is hardly there until the pointer comes.
class InlineButton final : public QPushButton {
public:
  using QPushButton::QPushButton;

  [[nodiscard]] QSize sizeHint() const override
  {
    const QSize text = fontMetrics().size(Qt::TextShowMnemonic, this->text());
    return {text.width() + 2 * kPadding, text.height() + kPadding};
  }

protected:
  void paintEvent(QPaintEvent* /*event*/) override
  {
    QStylePainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QStyleOptionButton option;
    initStyleOption(&option);
    QColor pill = palette().color(QPalette::ButtonText);
    pill.setAlphaF(isDown() ? 0.28F : underMouse() ? 0.2F : 0.12F);
    painter.setPen(Qt::NoPen);
    painter.setBrush(pill);
    painter.drawRoundedRect(QRectF(rect()), height() / 2.0, height() / 2.0);
    painter.drawControl(QStyle::CE_PushButtonLabel, option);
  }

private:
  static constexpr int kPadding = 8;
};

QPushButton* makeButton(const platform::PanelButtonSpec& spec, QWidget& panel)
{
  const QString title = toQString(spec.title).replace(u'&', QLatin1String("&&"));
  return spec.isInline ? new InlineButton(title, &panel) : new QPushButton(title, &panel);
}

} // namespace

class QtFloatingPanel::Button final : public platform::PanelButton {
public:
  Button(const platform::PanelButtonSpec& spec, QWidget& panel)
    : title_(spec.title)
    , button_(makeButton(spec, panel))
  {
    button_->setFont(toQFont(platform::Font::system(platform::kSmallSystemFontSize)));
    button_->setAttribute(Qt::WA_MacSmallSize);
    button_->setFocusPolicy(Qt::NoFocus);
    button_->setAutoDefault(false);
    adopt(*button_);
    // The click may end the panel, and with it the very function that is called.
    QObject::connect(button_, &QPushButton::clicked, button_, [onClick = spec.onClick] {
      const std::function<void()> call = onClick;
      if (call) guarded("button", call);
    });
    button_->show();
  }

  [[nodiscard]] std::string title() const override { return title_; }

  [[nodiscard]] platform::Size fittingSize() const override
  {
    if (!button_) return {};
    button_->ensurePolished();
    const QSizeF size = button_->sizeHint();
    return {size.width(), size.height()};
  }

  void setFrame(const Rect& frame) override
  {
    frame_ = frame;
    place();
  }

  [[nodiscard]] Rect frame() const override { return frame_; }

  /// Frames count from the bottom, widgets from the top.
  void place()
  {
    if (!button_) return;
    QRectF place = toQRectF(frame_);
    place.moveTop(button_->parentWidget()->height() - place.bottom());
    button_->setGeometry(place.toRect());
  }

private:
  std::string title_;
  Rect frame_;
  QPointer<QPushButton> button_;
};

QtFloatingPanel::QtFloatingPanel(const platform::FloatingPanelSpec& spec, const platform::MainQueue& clock)
  : content_(std::make_shared<platform::SurfaceView>(Rect{0, 0, spec.size.width, spec.size.height}))
  , widget_(new QtPanelWidget(spec, content_, clock))
{
  content_->setIsContentView(true);
}

QtFloatingPanel::~QtFloatingPanel()
{
  dispose(widget_);
}

platform::PanelButton& QtFloatingPanel::addButton(const platform::PanelButtonSpec& spec)
{
  buttons_.push_back(std::make_unique<Button>(spec, *widget_));
  return *buttons_.back();
}

Rect QtFloatingPanel::frame() const
{
  return widget_ ? screenRectFromGlobal(QRectF(widget_->geometry())) : Rect{};
}

void QtFloatingPanel::setFrame(const Rect& frame)
{
  if (!widget_) return;
  widget_->setGeometry(globalFromScreenRect(frame).toRect());
  content_->setFrame({0, 0, frame.width, frame.height});
  for (const std::unique_ptr<Button>& button : buttons_)
    button->place();
}

void QtFloatingPanel::orderFront()
{
  if (!widget_) return;
  widget_->show();
  widget_->raise();
}

void QtFloatingPanel::orderOut()
{
  if (widget_) widget_->hide();
}

bool QtFloatingPanel::isVisible() const
{
  return widget_ && widget_->isVisible();
}

platform::WindowHandle QtFloatingPanel::window() const
{
  return windowForWidget(widget_);
}

} // namespace wayvane::qt
