#pragma once

#include <wayvane/platform/View.h>

class QWidget;

namespace wayvane::qt {

/// Sends the widget what it would get if the pointer entered or left it there: the notice itself and the
/// hover that styles draw by. For a scrolling area that is also its viewport, whose items light up. Nothing
/// ends such a hover but the notice of leaving.
void sendHoverTo(QWidget& widget, const platform::HoverEvent& event);

} // namespace wayvane::qt
