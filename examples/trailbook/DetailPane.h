#pragma once

#include <QWidget>

class QComboBox;
class QLineEdit;
class QSpinBox;
class QStackedWidget;
class QTabBar;

namespace trailbook {

struct Trail;

/// The right-hand side: a form, notes and equipment for the selected trail, one page each.
class DetailPane final : public QWidget {
  Q_OBJECT
public:
  explicit DetailPane(QWidget* parent = nullptr);
  void show(const Trail& trail);

signals:
  void message(const QString& text);

private:
  QWidget* makeDetails();
  QWidget* makeNotes();
  QWidget* makeEquipment();

  QTabBar* tabs_;
  QStackedWidget* pages_;
  QLineEdit* name_ = nullptr;
  QLineEdit* region_ = nullptr;
  QComboBox* difficulty_ = nullptr;
  QSpinBox* hours_ = nullptr;
};

} // namespace trailbook
