#pragma once

#include <QIcon>

namespace trailbook {

/// Icons drawn in the colour of the text around them, so that they suit light and dark.
enum class Symbol { Add, Remove, Share, Packing, Bold, Star };

QIcon icon(Symbol symbol);

} // namespace trailbook
