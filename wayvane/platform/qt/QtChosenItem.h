#pragma once

#include <wayvane/platform/Menu.h>

namespace wayvane::qt {

/// The entry as it is now, with the menus that lead to it: it answers the same for ever.
[[nodiscard]] platform::MenuItemHandle chosenItem(const platform::MenuItemHandle& item);

} // namespace wayvane::qt
