#include <wayvane/platform/qt/QtHostProperties.h>

#include <QWidget>

#include <algorithm>

namespace wayvane::qt {

bool carriesHostProperties(const QObject& object)
{
  const QList<QByteArray> names = object.dynamicPropertyNames();
  return std::any_of(names.begin(), names.end(),
                     [](const QByteArray& name) { return name.startsWith("wv_"); });
}

QVariant hostValue(const QWidget& widget, const ClassInfo& info, const char* name)
{
  return mayHaveHostProperties(widget, info) ? widget.property(name) : QVariant();
}

QVariant hostValue(const QObject& object, const char* name)
{
  return carriesHostProperties(object) ? object.property(name) : QVariant();
}

} // namespace wayvane::qt
