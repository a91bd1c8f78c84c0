#pragma once

#include <wayvane/platform/qt/QtClasses.h>
#include <wayvane/platform/qt/QtObjectWatch.h>

#include <QString>
#include <QVariant>

class QObject;
class QWidget;

namespace wayvane::qt {

/// Whether the object has dynamic properties of the host's for us ("wv_...").
[[nodiscard]] bool carriesHostProperties(const QObject& object);

/// False when the widget certainly has none, neither dynamic nor declared by its class. Next to free.
[[nodiscard]] inline bool mayHaveHostProperties(const QWidget& widget, const ClassInfo& info)
{
  return info.declaresHostProperties || mayCarryHostProperties(widget);
}

/// The value of such a property, declared by the class or set dynamically; invalid when there is none.
[[nodiscard]] QVariant hostValue(const QWidget& widget, const ClassInfo& info, const char* name);

/// The same as a text; empty when there is none.
[[nodiscard]] inline QString hostText(const QWidget& widget, const ClassInfo& info, const char* name)
{
  return mayHaveHostProperties(widget, info) ? hostValue(widget, info, name).toString() : QString();
}

/// The same for objects of which only dynamic properties count.
[[nodiscard]] QVariant hostValue(const QObject& object, const char* name);

/// Whether somebody chose this object name; the toolkit's own ("qt_...", "_q_...") are as good as none.
[[nodiscard]] inline bool isGivenName(QStringView objectName)
{
  if (objectName.isEmpty()) return false;
  const QChar first = objectName.front();
  if (first != u'q' && first != u'_') return true;
  return !objectName.startsWith(u"qt_") && !objectName.startsWith(u"_q_");
}

} // namespace wayvane::qt
