#include "TrailModel.h"

#include <QLocale>

namespace trailbook {

TrailModel::TrailModel(QObject* parent)
  : QAbstractTableModel(parent)
{
  trails_ = {
      {"t-101", "Alpine Ridge Loop", "Tyrol", 18.4, 2},
      {"t-102", "Birch Lake Path", "Bavaria", 6.2, 0},
      {"t-103", "Cedar Gorge", "Provence", 11.7, 1},
      {"t-104", "Dune Coast Walk", "Frisia", 9.0, 0},
      {"t-105", "Eagle Pass", "Valais", 22.1, 2},
      {"t-106", "Fern Valley", "Black Forest", 12.5, 1},
      {"t-107", "Granite Steps", "Bohemia", 7.9, 1},
      {"t-108", "Heather Moor", "Yorkshire", 14.3, 1},
      {"t-109", "Iron Mine Trail", "Harz", 10.8, 0},
      {"t-110", "Juniper Plateau", "Catalonia", 16.6, 2},
      {"t-111", "Kestrel Cliffs", "Brittany", 13.2, 1},
      {"t-112", "Larch Terrace", "South Tyrol", 8.4, 0},
      {"t-113", "Meadow Round", "Allgaeu", 5.5, 0},
      {"t-114", "North Face View", "Bernese Oberland", 19.9, 2},
      {"t-115", "Old Salt Road", "Salzkammergut", 24.0, 2},
  };
}

int TrailModel::rowCount(const QModelIndex& parent) const
{
  return parent.isValid() ? 0 : static_cast<int>(trails_.size());
}

int TrailModel::columnCount(const QModelIndex& parent) const
{
  return parent.isValid() ? 0 : ColumnCount;
}

QVariant TrailModel::data(const QModelIndex& index, int role) const
{
  const Trail& trail = trails_[static_cast<std::size_t>(index.row())];
  if (role == Qt::UserRole) return QVariantMap{{"uuid", trail.uuid}, {"name", trail.name}};
  if (role == Qt::TextAlignmentRole && index.column() == Length)
    return QVariant(Qt::AlignRight | Qt::AlignVCenter);
  if (role != Qt::DisplayRole && role != SortRole) return {};
  switch (index.column()) {
  case Name:
    return trail.name;
  case Region:
    return trail.region;
  case Length:
    return role == SortRole ? QVariant(trail.kilometres)
                            : QVariant(tr("%1 km").arg(QLocale().toString(trail.kilometres, 'f', 1)));
  case Difficulty:
    return role == SortRole ? QVariant(trail.difficulty) : QVariant(difficultyName(trail.difficulty));
  default:
    return {};
  }
}

QVariant TrailModel::headerData(int section, Qt::Orientation orientation, int role) const
{
  if (orientation != Qt::Horizontal) return {};
  static constexpr const char* kIdentifiers[] = {"name", "region", "length", "difficulty"};
  if (role == Qt::UserRole) return QString::fromLatin1(kIdentifiers[section]);
  if (role != Qt::DisplayRole) return {};
  switch (section) {
  case Name:
    return tr("Trail");
  case Region:
    return tr("Region");
  case Length:
    return tr("Length");
  case Difficulty:
    return tr("Difficulty");
  default:
    return {};
  }
}

void TrailModel::addTrail(const Trail& trail)
{
  beginInsertRows({}, rowCount(), rowCount());
  trails_.push_back(trail);
  endInsertRows();
}

void TrailModel::removeTrail(int row)
{
  beginRemoveRows({}, row, row);
  trails_.erase(trails_.begin() + row);
  endRemoveRows();
}

QString TrailModel::difficultyName(int difficulty)
{
  switch (difficulty) {
  case 0:
    return tr("Easy");
  case 1:
    return tr("Moderate");
  default:
    return tr("Demanding");
  }
}

} // namespace trailbook
