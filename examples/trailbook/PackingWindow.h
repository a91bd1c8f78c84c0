#pragma once

#include <QWidget>

class QLabel;
class QLineEdit;
class QListWidget;

namespace trailbook {

/// The second window: what to put into the rucksack.
class PackingWindow final : public QWidget {
  Q_OBJECT
public:
  explicit PackingWindow(QWidget* parent = nullptr);

private:
  void addItem(const QString& name);
  void updateCount();

  QListWidget* list_;
  QLineEdit* newItem_;
  QLabel* count_;
};

} // namespace trailbook
