#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtControlView.h>
#include <wayvane/platform/qt/QtHostProperties.h>

#include <QAction>

namespace wayvane::qt {

using platform::ViewKind;

std::optional<std::string> QtControlView::action() const
{
  const QWidget* w = widget();
  return w ? toOptional(actionName(*w)) : std::nullopt;
}

bool QtControlView::sendsAction(const platform::SearchText& action) const
{
  const QWidget* w = widget();
  if (!w) return false;
  const QString mine = actionName(*w);
  return !mine.isEmpty() && equals(mine, action);
}

QString QtControlView::actionName(const QWidget& widget) const
{
  if (const QString said = hostText(widget, info(), "wv_action"); !said.isEmpty()) return said;
  const QList<QAction*> actions = widget.actions();
  for (const QAction* action : actions)
    if (const QString name = action->objectName(); isGivenName(name)) return name;
  return {};
}

const void* QtControlView::roleOfKind(ViewKind kind) const
{
  if (kind == ViewKind::Control) return static_cast<const platform::Control*>(this);
  return QtView::roleOfKind(kind);
}

} // namespace wayvane::qt
