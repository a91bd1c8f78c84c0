#include "PackingWindow.h"

#include "Icons.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace trailbook {

PackingWindow::PackingWindow(QWidget* parent)
  : QWidget(parent, Qt::Window)
  , list_(new QListWidget)
  , newItem_(new QLineEdit)
  , count_(new QLabel)
{
  setObjectName("packingWindow");
  setWindowTitle(tr("Packing List"));
  resize(360, 420);
  list_->setObjectName("packingList");
  newItem_->setObjectName("newItemField");
  newItem_->setPlaceholderText(tr("What else?"));
  auto* add = new QPushButton(icon(Symbol::Add), tr("Add Item"));
  add->setObjectName("addItemButton");

  auto* row = new QHBoxLayout;
  row->addWidget(newItem_);
  row->addWidget(add);
  auto* column = new QVBoxLayout(this);
  column->addWidget(new QLabel(tr("Tick off what is already in the rucksack.")));
  column->addWidget(list_);
  column->addLayout(row);
  column->addWidget(count_);

  for (const QString& name :
       {tr("Map"), tr("Water bottle"), tr("Rain jacket"), tr("First-aid kit"), tr("Head torch")})
    addItem(name);
  connect(add, &QPushButton::clicked, this, [this] {
    addItem(newItem_->text().isEmpty() ? tr("Snack") : newItem_->text());
    newItem_->clear();
  });
  connect(newItem_, &QLineEdit::returnPressed, add, &QPushButton::click);
  connect(list_, &QListWidget::itemChanged, this, &PackingWindow::updateCount);
  updateCount();
}

void PackingWindow::addItem(const QString& name)
{
  auto* item = new QListWidgetItem(name, list_);
  item->setFlags(item->flags() | Qt::ItemIsUserCheckable);
  item->setCheckState(Qt::Unchecked);
  item->setData(Qt::UserRole, QVariantMap{{"id", QString("item-%1").arg(list_->count())}});
  updateCount();
}

void PackingWindow::updateCount()
{
  int packed = 0;
  for (int row = 0; row < list_->count(); ++row)
    packed += list_->item(row)->checkState() == Qt::Checked;
  count_->setText(tr("%1 of %2 packed").arg(packed).arg(list_->count()));
}

} // namespace trailbook
