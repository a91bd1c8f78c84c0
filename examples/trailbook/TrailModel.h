#pragma once

#include <QAbstractTableModel>

#include <vector>

namespace trailbook {

struct Trail {
  QString uuid;
  QString name;
  QString region;
  double kilometres = 0;
  int difficulty = 0;
};

/// The trails as a table. `Qt::UserRole` is the trail itself, by key.
class TrailModel final : public QAbstractTableModel {
  Q_OBJECT
public:
  enum Column { Name, Region, Length, Difficulty, ColumnCount };

  enum Role { SortRole = Qt::UserRole + 1 };

  explicit TrailModel(QObject* parent = nullptr);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  void addTrail(const Trail& trail);
  void removeTrail(int row);

  const Trail& trail(int row) const { return trails_[static_cast<std::size_t>(row)]; }

  static QString difficultyName(int difficulty);

private:
  std::vector<Trail> trails_;
};

} // namespace trailbook
