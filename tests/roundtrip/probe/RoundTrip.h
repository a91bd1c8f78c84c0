#pragma once

#include <QJsonObject>
#include <QList>

#include <string>

namespace roundtrip {

/// Captures every element that a press reaches, writes the targets as one guide into `guideFile`, reads it,
/// looks for each target as playback does, and reports one object an element.
[[nodiscard]] QList<QJsonObject> roundTrip(const std::string& guideFile);

} // namespace roundtrip
