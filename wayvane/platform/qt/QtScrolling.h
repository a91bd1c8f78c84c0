#pragma once

#include <wayvane/platform/ViewRoles.h>

#include <QPoint>

class QAbstractScrollArea;

namespace wayvane::qt {

/// Moves both scroll bars to the given values; a later call takes over from one that still runs.
void scrollBarsTo(QAbstractScrollArea& area, QPoint values, platform::ScrollAnimation animation);
[[nodiscard]] QPoint scrollBarValues(const QAbstractScrollArea& area);
void setScrollBarValues(QAbstractScrollArea& area, QPoint values);
/// Ends a scroll that leads nowhere: its completion is called now for a jump, else on a later turn.
void finishScroll(const platform::ScrollAnimation& animation);

} // namespace wayvane::qt
