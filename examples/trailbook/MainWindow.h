#pragma once

#include <QMainWindow>

class QSortFilterProxyModel;
class QTableView;

namespace trailbook {

class DetailPane;
class PackingWindow;
class TrailModel;

class MainWindow final : public QMainWindow {
  Q_OBJECT
public:
  MainWindow();

private:
  QAction* addCommand(const char* name, const QString& title, void (MainWindow::*slot)(),
                      const QKeySequence& shortcut = {});
  void makeActions();
  void makeMenus();
  void makeToolBar();
  void showSelection();

  void newTrail();
  void deleteTrail();
  void shareTrail();
  void exportGpx();
  void showPackingList();
  void showAbout();
  void quit();

  TrailModel* model_;
  QSortFilterProxyModel* sorted_;
  QTableView* table_;
  DetailPane* details_;
  PackingWindow* packing_ = nullptr;
  QAction* new_ = nullptr;
  QAction* delete_ = nullptr;
  QAction* share_ = nullptr;
  QAction* export_ = nullptr;
  QAction* showPacking_ = nullptr;
  QAction* about_ = nullptr;
  QAction* quit_ = nullptr;
};

} // namespace trailbook
