#pragma once

#include <QJsonObject>
#include <QList>

#include <string>

namespace roundtrip {

/// Captures every element that a press reaches, writes the targets as one guide into `guideFile`, reads it,
/// looks for each target as playback does, and reports one object an element, in the order of the steps.
[[nodiscard]] QList<QJsonObject> roundTrip(const std::string& guideFile);

/// Reads a guide that another run of the program has written, and reports what each of its steps leads to.
[[nodiscard]] QList<QJsonObject> replay(const std::string& guideFile);

} // namespace roundtrip
