#include "MainWindow.h"

#include "DetailPane.h"
#include "Icons.h"
#include "PackingWindow.h"
#include "TrailModel.h"

#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QSortFilterProxyModel>
#include <QSplitter>
#include <QStatusBar>
#include <QTableView>
#include <QToolBar>
#include <QUuid>

namespace trailbook {

MainWindow::MainWindow()
  : model_(new TrailModel(this))
  , sorted_(new QSortFilterProxyModel(this))
  , table_(new QTableView)
  , details_(new DetailPane)
{
  setObjectName("mainWindow");
  setWindowTitle(tr("Trailbook"));
  resize(1040, 640);

  sorted_->setSourceModel(model_);
  sorted_->setSortRole(TrailModel::SortRole);
  sorted_->setFilterCaseSensitivity(Qt::CaseInsensitive);
  table_->setObjectName("trailTable");
  table_->setModel(sorted_);
  table_->setSortingEnabled(true);
  table_->sortByColumn(TrailModel::Name, Qt::AscendingOrder);
  table_->setSelectionBehavior(QAbstractItemView::SelectRows);
  table_->setSelectionMode(QAbstractItemView::SingleSelection);
  table_->verticalHeader()->hide();
  table_->horizontalHeader()->setSectionResizeMode(TrailModel::Name, QHeaderView::Stretch);
  table_->setShowGrid(false);
  table_->setAlternatingRowColors(true);

  auto* splitter = new QSplitter;
  splitter->setObjectName("mainSplitter");
  splitter->addWidget(table_);
  splitter->addWidget(details_);
  splitter->setSizes({640, 400});
  setCentralWidget(splitter);

  makeActions();
  makeMenus();
  makeToolBar();
  connect(table_->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
          &MainWindow::showSelection);
  connect(details_, &DetailPane::message, this,
          [this](const QString& text) { statusBar()->showMessage(text, 4000); });
  table_->selectRow(0);
  statusBar()->showMessage(tr("%n trail(s)", nullptr, model_->rowCount()));
}

QAction* MainWindow::addCommand(const char* name, const QString& title, void (MainWindow::*slot)(),
                                const QKeySequence& shortcut)
{
  auto* action = new QAction(title, this);
  action->setObjectName(name);
  action->setShortcut(shortcut);
  connect(action, &QAction::triggered, this, slot);
  return action;
}

void MainWindow::makeActions()
{
  new_ = addCommand("actionNewTrail", tr("&New Trail"), &MainWindow::newTrail, QKeySequence::New);
  new_->setIcon(icon(Symbol::Add));
  delete_ =
      addCommand("actionDeleteTrail", tr("&Delete Trail"), &MainWindow::deleteTrail, QKeySequence::Delete);
  delete_->setIcon(icon(Symbol::Remove));
  share_ = addCommand("actionShareTrail", tr("&Share"), &MainWindow::shareTrail);
  share_->setIcon(icon(Symbol::Share));
  share_->setToolTip(tr("Share this trail (Ctrl+Shift+S)"));
  share_->setShortcut(QKeySequence("Ctrl+Shift+S"));
  export_ = addCommand("actionExportGpx", tr("&GPX Track..."), &MainWindow::exportGpx);
  showPacking_ = addCommand("actionShowPacking", tr("&Packing List"), &MainWindow::showPackingList,
                            QKeySequence("Ctrl+P"));
  showPacking_->setIcon(icon(Symbol::Packing));
  about_ = addCommand("actionAbout", tr("&About Trailbook"), &MainWindow::showAbout);
  quit_ = addCommand("actionQuit", tr("&Quit"), &MainWindow::quit, QKeySequence::Quit);
}

void MainWindow::makeMenus()
{
  QMenu* file = menuBar()->addMenu(tr("&File"));
  file->addAction(new_);
  QMenu* exportMenu = file->addMenu(tr("&Export"));
  exportMenu->addAction(export_);
  file->addSeparator();
  file->addAction(quit_);
  QMenu* edit = menuBar()->addMenu(tr("&Edit"));
  edit->addAction(delete_);
  edit->addAction(share_);
  QMenu* view = menuBar()->addMenu(tr("&View"));
  view->addAction(showPacking_);
  QMenu* help = menuBar()->addMenu(tr("&Help"));
  help->setObjectName("helpMenu");
  help->addAction(about_);
}

void MainWindow::makeToolBar()
{
  QToolBar* bar = addToolBar(tr("Main tools"));
  bar->setObjectName("mainToolBar");
  bar->setMovable(false);
  bar->setToolButtonStyle(Qt::ToolButtonIconOnly);
  for (QAction* action : {new_, delete_, share_, showPacking_})
    bar->addAction(action);
  auto* gap = new QWidget;
  gap->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  bar->addWidget(gap);
  auto* search = new QLineEdit;
  search->setObjectName("searchField");
  search->setPlaceholderText(tr("Search trails"));
  search->setClearButtonEnabled(true);
  search->setMaximumWidth(240);
  bar->addWidget(search)->setObjectName("searchItem");
  connect(search, &QLineEdit::textChanged, sorted_, &QSortFilterProxyModel::setFilterFixedString);
}

void MainWindow::showSelection()
{
  const QModelIndex current = sorted_->mapToSource(table_->currentIndex());
  if (current.isValid()) details_->show(model_->trail(current.row()));
}

void MainWindow::newTrail()
{
  model_->addTrail(
      {QUuid::createUuid().toString(QUuid::WithoutBraces), tr("New Trail"), tr("Unknown"), 1, 0});
  statusBar()->showMessage(tr("A new trail was added."), 4000);
}

void MainWindow::deleteTrail()
{
  const QModelIndex current = sorted_->mapToSource(table_->currentIndex());
  if (current.isValid()) model_->removeTrail(current.row());
}

void MainWindow::shareTrail()
{
  statusBar()->showMessage(tr("A link was copied."), 4000);
}

void MainWindow::exportGpx()
{
  statusBar()->showMessage(tr("Exported."), 4000);
}

void MainWindow::showPackingList()
{
  if (!packing_) packing_ = new PackingWindow(this);
  packing_->move(x() + width() - 420, y() + 120);
  packing_->show();
  packing_->raise();
  packing_->activateWindow();
}

void MainWindow::showAbout()
{
  QMessageBox::about(this, tr("About Trailbook"), tr("A small hiking planner."));
}

void MainWindow::quit()
{
  QApplication::quit();
}

} // namespace trailbook
