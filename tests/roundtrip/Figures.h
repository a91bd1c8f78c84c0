#pragma once

#include <QMap>
#include <QString>
#include <QStringList>

namespace roundtrip {

enum class Outcome { Same, Other, None };

/// How often an element was found again, another one in its stead, or none.
struct Tally {
  int same = 0;
  int other = 0;
  int none = 0;

  void add(Outcome outcome);

  [[nodiscard]] int all() const { return same + other + none; }

  [[nodiscard]] double share() const { return all() == 0 ? 0 : 100.0 * same / all(); }
};

/// What the probe found in one program. An element that could be reached in several states of the program
/// counts once, with the worst outcome.
struct Figures {
  Tally asRecorded;
  Tally inAnotherRun;
  Tally withoutIdentifiers;
  Tally withoutPlace;
  QMap<QString, Tally> byClue;
  /// One line for each element that was not found again.
  QStringList misses;
  /// What went wrong besides; one line each.
  QStringList failures;
};

/// From the reports of the run that recorded, and of the one that replayed.
[[nodiscard]] Figures figuresOf(const QStringList& recorded, const QStringList& replayed);

/// The tables that docs/targeting.md shows, for programs by name.
[[nodiscard]] QString tables(const QMap<QString, Figures>& programs);

} // namespace roundtrip
