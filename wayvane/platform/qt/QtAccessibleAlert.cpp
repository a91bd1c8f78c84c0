#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtAccessibleAlert.h>
#include <wayvane/platform/qt/QtOwnWidgets.h>

#include <QAccessible>
#include <QAccessibleWidget>

#include <utility>

namespace wayvane::qt {

namespace {

class AlertInterface final : public QAccessibleWidget {
public:
  explicit AlertInterface(QtAccessibleAlert& widget)
    : QAccessibleWidget(&widget, QAccessible::AlertMessage)
  {}

  [[nodiscard]] QString text(QAccessible::Text kind) const override
  {
    const platform::AccessibleAlert& alert = static_cast<const QtAccessibleAlert*>(widget())->alert();
    if (kind == QAccessible::Name) return toQString(alert.title.empty() ? alert.message : alert.title);
    if (kind == QAccessible::Description) return toQString(alert.message);
    if (kind == QAccessible::Value) return toQString(alert.counter);
    return QAccessibleWidget::text(kind);
  }
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
  auto* alert = qobject_cast<QtAccessibleAlert*>(object);
  return alert ? new AlertInterface(*alert) : nullptr;
}

} // namespace

QtAccessibleAlert::QtAccessibleAlert(const platform::AccessibleAlert& alert, QWidget& parent)
  : QWidget(&parent)
  , alert_(alert)
{
  static const bool isInstalled = (QAccessible::installFactory(makeInterface), true);
  Q_UNUSED(isInstalled);
  adopt(*this);
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAttribute(Qt::WA_NoSystemBackground);
  setFocusPolicy(Qt::NoFocus);
  QRectF place = toQRectF(alert.frame);
  place.moveTop(parent.height() - place.bottom());
  setGeometry(place.toAlignedRect());
  show();
}

void QtAccessibleAlert::announce()
{
  QAccessibleEvent event(this, QAccessible::Alert);
  QAccessible::updateAccessibility(&event);
}

} // namespace wayvane::qt
