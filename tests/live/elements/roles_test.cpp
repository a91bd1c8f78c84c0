#include <tests/live/elements/Elements.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSlider>
#include <QTabBar>
#include <QTableWidget>
#include <QTextEdit>
#include <QToolButton>

#include <stdexcept>

namespace wayvane::qt {

namespace {

constexpr QRect kPlace(10, 10, 120, 30);

QIcon picture()
{
  QPixmap pixmap(16, 16);
  pixmap.fill(Qt::red);
  return QIcon(pixmap);
}

class Roles : public Elements {
protected:
  [[nodiscard]] static std::vector<ViewKind> kindsOf(QWidget* widget)
  {
    std::vector<ViewKind> kinds;
    const auto view = viewForWidget(widget);
    for (int kind = 0; kind <= static_cast<int>(ViewKind::ScrollView); ++kind)
      if (view->isKind(static_cast<ViewKind>(kind))) kinds.push_back(static_cast<ViewKind>(kind));
    return kinds;
  }

  template <class Role>
  [[nodiscard]] const Role& as(QWidget* widget)
  {
    asked_.push_back(viewForWidget(widget));
    const Role* role = asked_.back()->as<Role>();
    if (!role) throw std::logic_error("the element has not that role");
    return *role;
  }

private:
  std::vector<ViewHandle> asked_;
};

TEST_F(Roles, EveryClassHasTheKindsOfItsRole)
{
  using K = ViewKind;
  EXPECT_THAT(kindsOf(add<QWidget>(kPlace)), IsEmpty());
  EXPECT_THAT(kindsOf(add<QPushButton>(kPlace)), ElementsAre(K::Control, K::Button));
  EXPECT_THAT(kindsOf(add<QCheckBox>(kPlace)), ElementsAre(K::Control, K::Button));
  EXPECT_THAT(kindsOf(add<QToolButton>(kPlace)), ElementsAre(K::Control, K::Button));
  EXPECT_THAT(kindsOf(add<QComboBox>(kPlace)), ElementsAre(K::Control, K::Button, K::PopUpButton));
  EXPECT_THAT(kindsOf(add<QTabBar>(kPlace)), ElementsAre(K::Control, K::SegmentedControl));
  EXPECT_THAT(kindsOf(add<QLabel>(kPlace)), ElementsAre(K::Control, K::TextField));
  EXPECT_THAT(kindsOf(add<QLineEdit>(kPlace)), ElementsAre(K::Control, K::TextField));
  EXPECT_THAT(kindsOf(add<QDoubleSpinBox>(kPlace)), ElementsAre(K::Control, K::TextField));
  EXPECT_THAT(kindsOf(add<QTextEdit>(kPlace)), ElementsAre(K::Text, K::TextView));
  EXPECT_THAT(kindsOf(add<QPlainTextEdit>(kPlace)), ElementsAre(K::Text, K::TextView));
  EXPECT_THAT(kindsOf(add<QGroupBox>(kPlace)), ElementsAre(K::Box));
  EXPECT_THAT(kindsOf(add<QScrollArea>(kPlace)), ElementsAre(K::ScrollView));
  EXPECT_THAT(kindsOf(add<QSlider>(kPlace)), ElementsAre(K::Control));
  auto* table = add<QTableWidget>(kPlace);
  EXPECT_THAT(kindsOf(table), ElementsAre(K::Control, K::TableView, K::ScrollView));
  EXPECT_THAT(kindsOf(table->horizontalHeader()), ElementsAre(K::Control)) << "a header is no table";
}

// Buttons

TEST_F(Roles, AButtonIsReadWithoutItsMnemonic)
{
  const auto view = viewForWidget(add<QPushButton>(kPlace, QStringLiteral("&Plan && Go")));
  const auto& button = *view->as<platform::Button>();
  EXPECT_EQ(button.title(), "Plan & Go");
  EXPECT_TRUE(view->isTitled(SearchText("Plan & Go")));
  EXPECT_FALSE(view->isTitled(SearchText("&Plan && Go")));
  EXPECT_FALSE(button.isImageOnly());
  EXPECT_THAT(button.image(), IsNull());
}

TEST_F(Roles, AButtonWithOnlyAnIconIsImageOnly)
{
  auto* widget = add<QPushButton>(kPlace);
  widget->setIcon(picture());
  const auto& button = as<platform::Button>(widget);
  EXPECT_TRUE(button.isImageOnly());
  ASSERT_THAT(button.image(), NotNull());
  EXPECT_EQ(button.image()->size().width, widget->iconSize().width());
}

TEST_F(Roles, AToolButtonIsImageOnlyByItsStyle)
{
  auto* widget = add<QToolButton>(kPlace);
  widget->setText(QStringLiteral("Zoom"));
  const auto& button = as<platform::Button>(widget);
  widget->setToolButtonStyle(Qt::ToolButtonIconOnly);
  EXPECT_FALSE(button.isImageOnly()) << "it has no icon, so it shows its text";
  widget->setIcon(picture());
  EXPECT_TRUE(button.isImageOnly());
  EXPECT_EQ(button.title(), "Zoom") << "known though not shown";
  widget->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  EXPECT_FALSE(button.isImageOnly());
}

TEST_F(Roles, ADefaultActionStandsBehindItsToolButton)
{
  QAction action(picture(), QStringLiteral("Zoom &In"));
  action.setObjectName(QStringLiteral("zoomIn"));
  auto* widget = add<QToolButton>(kPlace);
  widget->setObjectName(QStringLiteral("zoomButton"));
  widget->setDefaultAction(&action);
  EXPECT_EQ(as<platform::Button>(widget).title(), "Zoom In");
  EXPECT_THAT(as<platform::Control>(widget).action(), Optional(std::string("zoomIn")));
}

// Actions of controls

TEST_F(Roles, AnUnnamedButtonSendsNoAction)
{
  auto* widget = add<QPushButton>(kPlace, QStringLiteral("Plan"));
  EXPECT_FALSE(as<platform::Control>(widget).action());
  EXPECT_FALSE(viewForWidget(widget)->sendsAction(SearchText("")));
}

TEST_F(Roles, AButtonsActionIsWhatTheHostSaysElseItsNamedActionElseItsName)
{
  auto* widget = add<QPushButton>(kPlace, QStringLiteral("Plan"));
  const auto& control = as<platform::Control>(widget);
  widget->setObjectName(QStringLiteral("planButton"));
  EXPECT_THAT(control.action(), Optional(std::string("planButton")));
  QAction unnamed, named;
  named.setObjectName(QStringLiteral("planTour"));
  widget->addAction(&unnamed);
  widget->addAction(&named);
  EXPECT_THAT(control.action(), Optional(std::string("planTour")));
  widget->setProperty("wv_action", QStringLiteral("plan:"));
  EXPECT_THAT(control.action(), Optional(std::string("plan:")));
  EXPECT_TRUE(viewForWidget(widget)->sendsAction(SearchText("plan:")));
  EXPECT_FALSE(viewForWidget(widget)->sendsAction(SearchText("planTour")));
}

TEST_F(Roles, AFieldsNameIsNotItsAction)
{
  auto* field = add<QLineEdit>(kPlace);
  field->setObjectName(QStringLiteral("nameField"));
  field->setClearButtonEnabled(true);
  EXPECT_FALSE(as<platform::Control>(field).action()) << "nor is that of the toolkit's clear button";
}

// Pop-ups and segments

TEST_F(Roles, AComboBoxSaysItsSelectedEntry)
{
  auto* box = add<QComboBox>(kPlace);
  box->addItems({"Easy", "Hard"});
  box->setItemIcon(1, picture());
  box->setCurrentIndex(1);
  EXPECT_THAT(as<platform::PopUpButton>(box).titleOfSelectedItem(), Optional(std::string("Hard")));
  EXPECT_EQ(as<platform::Button>(box).title(), "Hard");
  EXPECT_TRUE(viewForWidget(box)->isTitled(SearchText("Hard")));
  EXPECT_THAT(as<platform::Button>(box).image(), NotNull());
  EXPECT_FALSE(as<platform::Button>(box).isImageOnly());
  box->setCurrentIndex(-1);
  EXPECT_FALSE(as<platform::PopUpButton>(box).titleOfSelectedItem());
  EXPECT_THAT(as<platform::Button>(box).image(), IsNull());
}

TEST_F(Roles, WhatWasTypedIntoAComboBoxIsNotTold)
{
  auto* box = add<QComboBox>(kPlace);
  box->setEditable(true);
  box->addItems({"Easy", "Hard"});
  box->setEditText(QStringLiteral("my secret"));
  EXPECT_THAT(as<platform::PopUpButton>(box).titleOfSelectedItem(), Optional(std::string("Easy")));
}

TEST_F(Roles, ATabBarHasItsTabsAsSegments)
{
  auto* bar = add<QTabBar>(QRect(10, 10, 200, 30));
  bar->addTab(QStringLiteral("&Map"));
  bar->addTab(QStringLiteral("List"));
  bar->setCurrentIndex(1);
  const auto& segments = as<platform::SegmentedControl>(bar);
  EXPECT_EQ(segments.segmentCount(), 2);
  EXPECT_EQ(segments.selectedSegment(), 1);
  EXPECT_THAT(segments.labelForSegment(0), Optional(std::string("Map")));
  EXPECT_FALSE(segments.labelForSegment(2));
  EXPECT_FALSE(segments.labelForSegment(-1));
}

TEST_F(Roles, AnEmptyTabBarHasNoSelectedSegment)
{
  EXPECT_EQ(as<platform::SegmentedControl>(add<QTabBar>(kPlace)).selectedSegment(), -1);
}

// Texts

TEST_F(Roles, AFieldTellsItsTextAndPlaceholder)
{
  auto* field = add<QLineEdit>(kPlace, QStringLiteral("Alps"));
  field->setPlaceholderText(QStringLiteral("Range"));
  const auto& role = as<platform::TextField>(field);
  EXPECT_TRUE(role.isEditable());
  EXPECT_EQ(role.stringValue(), "Alps");
  EXPECT_THAT(role.placeholderString(), Optional(std::string("Range")));
  field->setReadOnly(true);
  EXPECT_FALSE(role.isEditable());
}

TEST_F(Roles, APasswordIsNotTold)
{
  auto* field = add<QLineEdit>(kPlace, QStringLiteral("hunter2"));
  for (const auto mode : {QLineEdit::Password, QLineEdit::NoEcho, QLineEdit::PasswordEchoOnEdit}) {
    field->setEchoMode(mode);
    EXPECT_EQ(as<platform::TextField>(field).stringValue(), "");
  }
}

TEST_F(Roles, ASpinBoxIsAFieldWithItsValue)
{
  auto* box = add<QSpinBox>(kPlace);
  box->setSuffix(QStringLiteral(" km"));
  box->setValue(12);
  const auto& role = as<platform::TextField>(box);
  EXPECT_TRUE(role.isEditable());
  EXPECT_EQ(role.stringValue(), "12 km");
  EXPECT_FALSE(role.placeholderString());
}

TEST_F(Roles, ALabelIsReadAsItIsShown)
{
  auto* label = add<QLabel>(kPlace, QStringLiteral("<i>12</i> km"));
  const auto& role = as<platform::TextField>(label);
  EXPECT_FALSE(role.isEditable());
  EXPECT_EQ(role.stringValue(), "12 km");
  label->setTextFormat(Qt::PlainText);
  EXPECT_EQ(role.stringValue(), "<i>12</i> km");
  label->setText(QStringLiteral("Salt && &Pepper"));
  EXPECT_EQ(role.stringValue(), "Salt && &Pepper") << "without a buddy there is no mnemonic";
  QWidget buddy;
  label->setBuddy(&buddy);
  EXPECT_EQ(role.stringValue(), "Salt & Pepper");
}

TEST_F(Roles, ALabelWithAPictureSaysNothing)
{
  auto* label = add<QLabel>(kPlace);
  label->setPixmap(QPixmap(8, 8));
  EXPECT_EQ(as<platform::TextField>(label).stringValue(), "");
}

TEST_F(Roles, TextsOfSeveralLinesAreTextViews)
{
  auto* rich = add<QTextEdit>(kPlace, QStringLiteral("<b>Day 1</b><br>Day 2"));
  EXPECT_EQ(as<platform::TextView>(rich).string(), "Day 1\nDay 2");
  EXPECT_TRUE(as<platform::TextView>(rich).isEditable());
  auto* plain = add<QPlainTextEdit>(kPlace, QStringLiteral("<b>Day 1</b>"));
  plain->setReadOnly(true);
  EXPECT_EQ(as<platform::TextView>(plain).string(), "<b>Day 1</b>");
  EXPECT_FALSE(as<platform::TextView>(plain).isEditable());
  EXPECT_FALSE(as<platform::TextView>(plain).isFieldEditor());
  EXPECT_THAT(as<platform::TextView>(plain).delegate(), IsNull());
}

TEST_F(Roles, AGroupBoxIsTitledWithoutMnemonic)
{
  EXPECT_EQ(as<platform::Box>(add<QGroupBox>(kPlace, QStringLiteral("&Weather"))).title(), "Weather");
}

} // namespace

} // namespace wayvane::qt
