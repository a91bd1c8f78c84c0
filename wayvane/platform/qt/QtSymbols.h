#pragma once

#include <wayvane/platform/Menu.h>

#include <QIcon>

namespace wayvane::qt {

/// The small picture of a menu entry of ours, drawn in the colour of the program's texts; null for None.
[[nodiscard]] QIcon symbolIcon(platform::SymbolImage symbol);

} // namespace wayvane::qt
