#pragma once

#include <QImage>

namespace wayvane::qt {

/// Softens a premultiplied 32-bit picture, alpha included, nearly as a bell curve of that deviation (in
/// pixels) would.
void blur(QImage& picture, double deviation);

} // namespace wayvane::qt
