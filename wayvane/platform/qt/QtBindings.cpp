#include <wayvane/platform/qt/Conversions.h>
#include <wayvane/platform/qt/QtBindings.h>
#include <wayvane/platform/qt/QtDescendants.h>
#include <wayvane/platform/qt/QtHostProperties.h>

#include <QAbstractItemModel>
#include <QDataWidgetMapper>
#include <QMetaProperty>
#include <QWidget>

#include <vector>

namespace wayvane::qt {

namespace {

const std::vector<QPointer<QDataWidgetMapper>>& mappersIn(const QWidget& window)
{
  return descendantsOf<QDataWidgetMapper>(window);
}

/// Whether there are mappers in the widget's window.
bool mayBeMapped(const QWidget& widget)
{
  // A search asks about one child after the other, and the way up to the window is long.
  static const QWidget* lastParent = nullptr;
  static std::uint64_t lastGeneration = 0;
  static bool lastAnswer = false;
  const std::uint64_t generation = childGeneration();
  const QWidget* parent = widget.isWindow() ? nullptr : widget.parentWidget();
  if (!parent || parent != lastParent || generation != lastGeneration || generation == 0) {
    lastAnswer = !mappersIn(*widget.window()).empty();
    lastParent = parent;
    lastGeneration = generation;
  }
  return lastAnswer;
}

/// Whether what the mapper writes is what the framework calls the value of the widget.
bool mapsBinding(const QDataWidgetMapper& mapper, QWidget& widget, std::string_view binding)
{
  const QByteArray property = mapper.mappedPropertyName(&widget);
  const std::string_view name(property.constData(), static_cast<std::size_t>(property.size()));
  const QByteArray user = widget.metaObject()->userProperty().name();
  if (name.empty() || property == user) return binding == "value";
  return name == binding;
}

std::optional<std::string> mappedKeyPath(const QWidget& widget, std::string_view binding)
{
  auto& asked = const_cast<QWidget&>(widget); // the mapper's questions are not const-correct
  for (const auto& mapper : mappersIn(*widget.window())) {
    const int section = mapper && mapper->model() ? mapper->mappedSection(&asked) : -1;
    if (section < 0 || !mapsBinding(*mapper, asked, binding)) continue;
    return toOptional(mapper->model()->headerData(section, mapper->orientation()).toString());
  }
  return std::nullopt;
}

std::optional<std::string> declaredKeyPath(const QWidget& widget, const ClassInfo& info,
                                           std::string_view binding)
{
  const QString wanted = toQString(binding);
  if (const auto path = toOptional(hostValue(widget, info, "wv_bindings").toMap().value(wanted).toString()))
    return path;
  const QString said = hostValue(widget, info, "wv_binding").toString();
  const qsizetype colon = said.indexOf(u':');
  const QStringView name = colon < 0 ? QStringView(u"value") : QStringView(said).first(colon);
  return name == wanted ? toOptional(QStringView(said).sliced(colon + 1)) : std::nullopt;
}

} // namespace

bool mayHaveBindings(const QWidget& widget, const ClassInfo& info)
{
  return mayHaveHostProperties(widget, info) || mayBeMapped(widget);
}

std::optional<std::string> keyPathOfBinding(const QWidget& widget, const ClassInfo& info,
                                            std::string_view binding)
{
  if (mayHaveHostProperties(widget, info)) {
    if (auto path = declaredKeyPath(widget, info, binding)) return path;
  }
  return mappedKeyPath(widget, binding);
}

} // namespace wayvane::qt
