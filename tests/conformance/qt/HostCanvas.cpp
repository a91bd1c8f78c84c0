#include <tests/conformance/qt/HostCanvas.h>

#include <QMouseEvent>
#include <QPainter>

bool HostCanvas::event(QEvent* event)
{
  switch (event->type()) {
  case QEvent::MouseButtonPress:
  case QEvent::MouseButtonDblClick:
    ++presses_;
    [[fallthrough]];
  case QEvent::MouseButtonRelease:
    ++mouseEvents_;
    event->accept();
    return true;
  case QEvent::MouseMove:
    if (static_cast<QMouseEvent*>(event)->buttons() != Qt::NoButton) ++mouseEvents_;
    return true;
  case QEvent::Enter:
    hover_.emplace_back("entered");
    break;
  case QEvent::Leave:
    hover_.emplace_back("exited");
    break;
  default:
    break;
  }
  return QWidget::event(event);
}

void HostCanvas::paintEvent(QPaintEvent*)
{
  ++paints_;
  QPainter(this).fillRect(rect(), QColor(220, 230, 240));
}
