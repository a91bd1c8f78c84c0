#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtBoxView.h>

#include <QGroupBox>

namespace wayvane::qt {

using platform::ViewKind;

std::string QtBoxView::title() const
{
  const auto* box = static_cast<const QGroupBox*>(widget());
  return box ? toUtf8(withoutMnemonic(box->title())) : std::string();
}

QString QtBoxView::derivedLabel(const QWidget& widget) const
{
  return withoutMnemonic(static_cast<const QGroupBox&>(widget).title());
}

const void* QtBoxView::roleOfKind(ViewKind kind) const
{
  if (kind == ViewKind::Box) return static_cast<const platform::Box*>(this);
  return QtView::roleOfKind(kind);
}

} // namespace wayvane::qt
