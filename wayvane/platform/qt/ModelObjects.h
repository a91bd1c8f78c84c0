#pragma once

#include <wayvane/platform/ModelObject.h>

#include <QModelIndex>
#include <QVariant>

namespace wayvane::qt {

/// A value of a model read by key: a map or hash, a JSON object, a gadget or a QObject. A text stands for
/// itself, a number or UUID answers to the key "id" or "uuid". Null for anything else, and for nothing.
[[nodiscard]] platform::ModelObjectHandle modelObjectOf(const QVariant& value);
/// What the item says in the role Qt::UserRole, or its row's first item when it says nothing there.
[[nodiscard]] platform::ModelObjectHandle modelObjectOfIndex(const QModelIndex& index);

} // namespace wayvane::qt
