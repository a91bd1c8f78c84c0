#include "Figures.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

#include <algorithm>

namespace roundtrip {

namespace {

/// One element, as the worst of what was seen of it.
struct Seen {
  Outcome asRecorded = Outcome::Same;
  Outcome inAnotherRun = Outcome::Same;
  Outcome withoutIdentifiers = Outcome::Same;
  Outcome withoutPlace = Outcome::Same;
  QString clue;
  QString line;
  QString again;
};

Outcome outcomeFrom(const QJsonValue& value)
{
  if (value == "same") return Outcome::Same;
  return value == "other" ? Outcome::Other : Outcome::None;
}

/// What each step led to in the other run, by walk and step.
using Replayed = QMap<QString, QString>;

QString stepOf(const QJsonObject& found)
{
  return found["walk"].toString() + ' ' + QString::number(found["step"].toInt());
}

Outcome outcomeOf(const QString& ledTo, const QString& element)
{
  if (ledTo.isEmpty()) return Outcome::None;
  return ledTo == element ? Outcome::Same : Outcome::Other;
}

void add(Seen& seen, const QJsonObject& found, const Replayed& replayed)
{
  const QString element = found["element"].toString();
  const QString ledTo = replayed.value(stepOf(found));
  const Outcome outcome = outcomeFrom(found["outcome"]);
  if (seen.clue.isEmpty() || outcome > seen.asRecorded) {
    seen.clue = found["clue"].toString();
    seen.line = QString("%1 (%2): %3, by %4, led to %5")
                    .arg(found["element"].toString(), found["walk"].toString(), found["described"].toString(),
                         seen.clue, found["found"].toString());
  }
  if (ledTo != element) seen.again = QString("%1 led in another run to %2").arg(seen.line, ledTo);
  seen.asRecorded = std::max(seen.asRecorded, outcome);
  seen.inAnotherRun = std::max(seen.inAnotherRun, outcomeOf(ledTo, element));
  seen.withoutIdentifiers = std::max(seen.withoutIdentifiers, outcomeFrom(found["withoutIdentifiers"]));
  seen.withoutPlace = std::max(seen.withoutPlace, outcomeFrom(found["withoutPlace"]));
}

void add(Figures& figures, const Seen& seen)
{
  figures.asRecorded.add(seen.asRecorded);
  figures.inAnotherRun.add(seen.inAnotherRun);
  figures.withoutIdentifiers.add(seen.withoutIdentifiers);
  figures.withoutPlace.add(seen.withoutPlace);
  figures.byClue[seen.clue].add(seen.asRecorded);
  if (seen.asRecorded != Outcome::Same) figures.misses << seen.line;
  if (seen.inAnotherRun != Outcome::Same) figures.misses << seen.again;
}

/// The objects of a report; what it tells of failures goes to the figures.
QList<QJsonObject> objectsOf(const QStringList& report, Figures& figures)
{
  QList<QJsonObject> objects;
  for (const QString& line : report) {
    objects << QJsonDocument::fromJson(line.toUtf8()).object();
    if (objects.back().contains("failed")) figures.failures << "could not: " + line;
  }
  if (objects.isEmpty() || !objects.back()["finished"].toBool()) figures.failures << "a report has no end";
  return objects;
}

QString cells(const QStringList& values)
{
  return "| " + values.join(" | ") + " |\n";
}

QString percent(const Tally& tally)
{
  return QString::number(tally.share(), 'f', 1) + " %";
}

QString row(const QString& name, const Tally& tally)
{
  return cells({name, QString::number(tally.all()), QString::number(tally.same), QString::number(tally.other),
                QString::number(tally.none), percent(tally)});
}

QString clueTable(const QMap<QString, Figures>& programs)
{
  const QStringList names = programs.keys();
  QString text =
      cells(QStringList("Found by") + names) + "|---|" + QString("---|").repeated(names.size()) + "\n";
  for (const char* clue :
       {"tool bar item", "table row", "identifier", "place", "binding", "action", "title", "class"}) {
    QStringList values(clue);
    for (const Figures& figures : programs) {
      const Tally tally = figures.byClue.value(clue);
      values << (tally.other > 0 ? QString("%1, wrong %2").arg(tally.same).arg(tally.other)
                                 : QString::number(tally.same));
    }
    text += cells(values);
  }
  return text;
}

} // namespace

void Tally::add(Outcome outcome)
{
  (outcome == Outcome::Same ? same : outcome == Outcome::Other ? other : none) += 1;
}

Figures figuresOf(const QStringList& recorded, const QStringList& replayed)
{
  Figures figures;
  Replayed ledTo;
  for (const QJsonObject& found : objectsOf(replayed, figures))
    if (found.contains("led to")) ledTo[stepOf(found)] = found["led to"].toString();
  QMap<int, Seen> elements;
  for (const QJsonObject& found : objectsOf(recorded, figures))
    if (found.contains("outcome")) add(elements[found["number"].toInt()], found, ledTo);
  for (const Seen& seen : elements)
    add(figures, seen);
  return figures;
}

QString tables(const QMap<QString, Figures>& programs)
{
  QString text = "| Program | Elements | The same | Another | None | |\n|---|---|---|---|---|---|\n";
  for (auto program = programs.begin(); program != programs.end(); ++program)
    text += row(program.key(), program->asRecorded);
  text += "\n" + clueTable(programs);
  text += "\n| The same, | as recorded | in another run | without identifiers | without place either "
          "|\n|---|---|---|---|---|\n";
  for (auto program = programs.begin(); program != programs.end(); ++program)
    text += cells({program.key(), percent(program->asRecorded), percent(program->inAnotherRun),
                   percent(program->withoutIdentifiers), percent(program->withoutPlace)});
  return text;
}

} // namespace roundtrip
