#pragma once

#include <wayvane/platform/qt/QtClasses.h>

#include <optional>
#include <string>
#include <string_view>

class QWidget;

namespace wayvane::qt {

/// What the widget's property is bound to, in this order:
/// - the property "wv_bindings", a map from binding to key path ({"value": "customer.name"});
/// - the property "wv_binding", "value:customer.name" or, for "value", the key path alone;
/// - a QDataWidgetMapper somewhere in the window, by the text of the header of the section it maps.
/// Nothing when there is none of them.
[[nodiscard]] std::optional<std::string> keyPathOfBinding(const QWidget& widget, const ClassInfo& info,
                                                          std::string_view binding);

/// False when the widget is certainly bound to nothing. Next to free for one widget after the other.
[[nodiscard]] bool mayHaveBindings(const QWidget& widget, const ClassInfo& info);

} // namespace wayvane::qt
