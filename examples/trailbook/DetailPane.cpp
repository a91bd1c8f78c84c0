#include "DetailPane.h"

#include "Icons.h"
#include "TrailModel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollArea>
#include <QSlider>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabBar>
#include <QTextEdit>
#include <QToolButton>
#include <QVBoxLayout>

namespace trailbook {
namespace {

template <class Widget>
Widget* named(Widget* widget, const char* name)
{
  widget->setObjectName(name);
  return widget;
}

} // namespace

DetailPane::DetailPane(QWidget* parent)
  : QWidget(parent)
  , tabs_(named(new QTabBar, "detailTabs"))
  , pages_(new QStackedWidget)
{
  setObjectName("detailPane");
  for (const QString& title : {tr("Details"), tr("Notes"), tr("Equipment")})
    tabs_->addTab(title);
  tabs_->setDrawBase(false);
  pages_->addWidget(makeDetails());
  pages_->addWidget(makeNotes());
  pages_->addWidget(makeEquipment());
  connect(tabs_, &QTabBar::currentChanged, pages_, &QStackedWidget::setCurrentIndex);

  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(tabs_);
  column->addWidget(pages_);
}

QWidget* DetailPane::makeDetails()
{
  name_ = named(new QLineEdit, "trailNameField");
  name_->setPlaceholderText(tr("Trail name"));
  region_ = named(new QLineEdit, "regionField");
  difficulty_ = named(new QComboBox, "difficultyPopUp");
  for (int level = 0; level < 3; ++level)
    difficulty_->addItem(TrailModel::difficultyName(level));
  hours_ = named(new QSpinBox, "hoursField");
  hours_->setSuffix(tr(" h"));

  auto* form = new QFormLayout;
  form->addRow(tr("&Name:"), name_);
  form->addRow(tr("&Region:"), region_);
  form->addRow(tr("&Difficulty:"), difficulty_);
  form->addRow(tr("&Walking time:"), hours_);

  auto* season = named(new QGroupBox(tr("Best season")), "seasonBox");
  auto* seasons = new QHBoxLayout(season);
  for (const QString& title : {tr("Spring"), tr("Summer"), tr("Autumn")})
    seasons->addWidget(new QRadioButton(title));

  auto* comfort = new QGroupBox(tr("On the way"));
  auto* comforts = new QVBoxLayout(comfort);
  for (const QString& title : {tr("Suitable for children"), tr("Dogs allowed"), tr("Hut with food"),
                               tr("Drinking water"), tr("Mobile reception"), tr("Reachable by train")})
    comforts->addWidget(new QCheckBox(title));

  auto* effort = new QGroupBox(tr("Effort"));
  auto* efforts = new QFormLayout(effort);
  for (const QString& title : {tr("Climb"), tr("Technique"), tr("Landscape"), tr("Solitude")})
    efforts->addRow(title, new QSlider(Qt::Horizontal));

  auto* publish = named(new QPushButton(tr("Publish Trail")), "publishButton");
  connect(publish, &QPushButton::clicked, this, [this] { emit message(tr("Published.")); });

  auto* content = new QWidget;
  auto* column = new QVBoxLayout(content);
  column->addLayout(form);
  column->addWidget(season);
  column->addWidget(comfort);
  column->addWidget(effort);
  column->addWidget(publish, 0, Qt::AlignRight);

  auto* scroll = named(new QScrollArea, "detailScroll");
  scroll->setWidgetResizable(true);
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidget(content);

  auto* save = named(new QPushButton(tr("Save")), "saveButton");
  auto* revert = named(new QPushButton(tr("Revert")), "revertButton");
  connect(save, &QPushButton::clicked, this, [this] { emit message(tr("Saved.")); });
  connect(revert, &QPushButton::clicked, this, [this] { emit message(tr("Changes taken back.")); });
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(revert);
  buttons->addWidget(save);

  auto* page = new QWidget;
  auto* pageColumn = new QVBoxLayout(page);
  pageColumn->setContentsMargins(0, 0, 0, 0);
  pageColumn->addWidget(scroll);
  pageColumn->addLayout(buttons);
  return page;
}

QWidget* DetailPane::makeNotes()
{
  auto* bold = named(new QToolButton, "boldButton");
  bold->setIcon(icon(Symbol::Bold));
  bold->setToolTip(tr("Bold (Ctrl+B)"));
  bold->setCheckable(true);
  auto* star = named(new QToolButton, "favouriteButton");
  star->setIcon(icon(Symbol::Star));
  star->setToolTip(tr("Favourite"));
  star->setCheckable(true);
  auto* bar = new QHBoxLayout;
  bar->addWidget(bold);
  bar->addWidget(star);
  bar->addStretch();

  auto* notes = named(new QTextEdit, "notesEditor");
  notes->setPlaceholderText(tr("What was it like?"));
  connect(bold, &QToolButton::toggled, notes,
          [notes](bool on) { notes->setFontWeight(on ? QFont::Bold : QFont::Normal); });

  auto* page = new QWidget;
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(0, 0, 0, 0);
  column->addLayout(bar);
  column->addWidget(notes);
  return page;
}

QWidget* DetailPane::makeEquipment()
{
  auto* page = new QWidget;
  auto* column = new QVBoxLayout(page);
  for (const QString& title : {tr("Boots"), tr("Poles"), tr("Rope"), tr("Crampons")})
    column->addWidget(new QCheckBox(title));
  column->addStretch();
  return page;
}

void DetailPane::show(const Trail& trail)
{
  name_->setText(trail.name);
  region_->setText(trail.region);
  difficulty_->setCurrentIndex(trail.difficulty);
  hours_->setValue(static_cast<int>(trail.kilometres / 3.5) + 1);
}

} // namespace trailbook
