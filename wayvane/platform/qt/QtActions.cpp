#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtActions.h>
#include <wayvane/platform/qt/QtHostProperties.h>

#include <QAction>

namespace wayvane::qt {

QString givenActionName(const QAction& action)
{
  if (const QString said = hostValue(action, "wv_action").toString(); !said.isEmpty()) return said;
  const QString name = action.objectName();
  return isGivenName(name) ? name : QString();
}

QString givenToolTip(const QAction& action)
{
  // The toolkit does not tell a tip that was set from one it derived, so one that only repeats the text is
  // taken for derived. A derived one also loses the dots at its end.
  const QString tip = action.toolTip();
  QString text = withoutMnemonic(action.text());
  if (tip == text) return {};
  while (text.endsWith(u'.') || text.endsWith(u'\u2026'))
    text.chop(1);
  return tip == text.trimmed() ? QString() : tip;
}

} // namespace wayvane::qt
