#pragma once

#include <QString>
#include <QStringList>

namespace roundtrip {

/// A program that is tried, and what is opened in it; the commands are the probe's.
struct Program {
  QString name;
  QString path;
  QString commands;
};

struct Run {
  /// Empty when the program did all it was told.
  QString failure;
  /// The lines of the probe's report.
  QStringList report;
};

/// Runs the program with the probe, in an empty home, to its end. The second run follows the guides that the
/// first has left.
[[nodiscard]] Run record(const Program& program);
[[nodiscard]] Run replay(const Program& program);

} // namespace roundtrip
