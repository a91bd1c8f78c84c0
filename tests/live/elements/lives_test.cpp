#include <tests/live/elements/Elements.h>

#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSpinBox>
#include <QTabBar>
#include <QTableWidget>
#include <QTextEdit>

#include <functional>

namespace wayvane::qt {

namespace {

constexpr QRect kPlace(10, 10, 120, 30);

class Lives : public Elements {
protected:
  static void expectNothing(const platform::View& dead)
  {
    EXPECT_FALSE(dead.isAlive());
    EXPECT_THAT(dead.handle(), IsNull());
    EXPECT_FALSE(dead.isSame(dead));
    EXPECT_EQ(dead.className(), "");
    EXPECT_FALSE(dead.classNameEquals("QPushButton"));
    EXPECT_FALSE(dead.isOfClass({&QWidget::staticMetaObject}));
    EXPECT_FALSE(dead.isOfHostClass());
    EXPECT_EQ(dead.viewClass(), platform::ViewClass{});
    for (int kind = 0; kind <= static_cast<int>(ViewKind::ScrollView); ++kind)
      EXPECT_FALSE(dead.isKind(static_cast<ViewKind>(kind)));
    EXPECT_THAT(dead.superview(), IsNull());
    EXPECT_THAT(dead.window(), IsNull());
    EXPECT_TRUE(dead.visitSubviews([](const platform::View&) { return false; }));
    expectNoPlace(dead);
    expectNoClues(dead);
  }

private:
  static void expectNoPlace(const platform::View& dead)
  {
    EXPECT_THAT(dead.hitTest({20, 20}), IsNull());
    EXPECT_EQ(dead.bounds(), Rect{});
    EXPECT_EQ(dead.convertRectToWindow({0, 0, 5, 5}), Rect{});
    EXPECT_EQ(dead.convertPointFromWindow({5, 5}), Point{});
    EXPECT_EQ(dead.convertRectToAncestor({0, 0, 5, 5}, dead), Rect{});
    EXPECT_FALSE(dead.respondsToHover());
    EXPECT_THAT(dead.trackingAreas(), IsEmpty());
    dead.sendHover({});
  }

  static void expectNoClues(const platform::View& dead)
  {
    EXPECT_FALSE(dead.accessibilityIdentifier());
    EXPECT_FALSE(dead.accessibilityIdentifierEquals(SearchText("formerly")));
    EXPECT_FALSE(dead.accessibilityLabel());
    EXPECT_FALSE(dead.isTitled(SearchText("Formerly")));
    EXPECT_FALSE(dead.toolTip());
    EXPECT_FALSE(dead.observedKeyPathForBinding("value"));
    EXPECT_FALSE(dead.hostString(platform::HostProperty::GuideIdentifier));
    EXPECT_FALSE(dead.hostNumber(platform::HostProperty::GuidePadding));
  }
};

struct Kind {
  const char* name;
  std::function<QWidget*(QWidget*)> make;
};

class LivesOfAllKinds : public Lives, public testing::WithParamInterface<Kind> {};

TEST_P(LivesOfAllKinds, AHandleToADeletedWidgetAnswersNothing)
{
  QWidget* widget = GetParam().make(&content());
  widget->setObjectName(QStringLiteral("formerly"));
  widget->setAccessibleName(QStringLiteral("Formerly"));
  widget->setToolTip(QStringLiteral("It was here"));
  widget->setProperty("wv_binding", QStringLiteral("selection"));
  widget->setProperty("wv_guideIdentifier", QStringLiteral("formerly"));
  widget->setProperty("wv_guidePadding", 3);
  const auto view = viewForWidget(widget);
  ASSERT_TRUE(view->isAlive());
  delete widget;
  expectNothing(*view);
}

TEST_P(LivesOfAllKinds, AHandleAnswersNothingWhileTheWidgetIsBeingDestroyed)
{
  QWidget* widget = GetParam().make(&content());
  // Its last child goes when only the base class is left of it.
  auto* child = new QObject(widget);
  const auto view = viewForWidget(widget);
  const bool isBase = view->className() == "QWidget";
  int asked = 0;
  QObject::connect(child, &QObject::destroyed, child, [&] {
    ++asked;
    if (!isBase) expectNothing(*view);
  });
  delete widget;
  EXPECT_EQ(asked, 1);
}

const std::vector<Kind> kAllKinds{
    {"Plain", [](QWidget* parent) { return new QWidget(parent); }},
    {"Button", [](QWidget* parent) { return new QPushButton(parent); }},
    {"PopUp", [](QWidget* parent) { return new QComboBox(parent); }},
    {"Tabs", [](QWidget* parent) { return new QTabBar(parent); }},
    {"Label", [](QWidget* parent) { return new QLabel(parent); }},
    {"Field", [](QWidget* parent) { return new QLineEdit(parent); }},
    {"SpinBox", [](QWidget* parent) { return new QSpinBox(parent); }},
    {"Text", [](QWidget* parent) { return new QTextEdit(parent); }},
    {"Box", [](QWidget* parent) { return new QGroupBox(parent); }},
    {"Table", [](QWidget* parent) { return new QTableWidget(2, 2, parent); }},
    {"ScrollArea", [](QWidget* parent) { return new QScrollArea(parent); }},
};

INSTANTIATE_TEST_SUITE_P(All, LivesOfAllKinds, testing::ValuesIn(kAllKinds),
                         [](const auto& kind) { return std::string(kind.param.name); });

TEST_F(Lives, TheRolesOfDeletedWidgetsAnswerNothing)
{
  auto* button = add<QPushButton>(kPlace, QStringLiteral("Plan"));
  auto* box = add<QComboBox>(kPlace);
  auto* bar = add<QTabBar>(kPlace);
  auto* field = add<QLineEdit>(kPlace, QStringLiteral("Alps"));
  auto* text = add<QTextEdit>(kPlace, QStringLiteral("Alps"));
  auto* group = add<QGroupBox>(kPlace, QStringLiteral("Weather"));
  const std::vector<ViewHandle> views{viewForWidget(button), viewForWidget(box),  viewForWidget(bar),
                                      viewForWidget(field),  viewForWidget(text), viewForWidget(group)};
  const auto* asButton = views[0]->as<platform::Button>();
  const auto* asControl = views[0]->as<platform::Control>();
  const auto* asPopUp = views[1]->as<platform::PopUpButton>();
  const auto* asSegments = views[2]->as<platform::SegmentedControl>();
  const auto* asField = views[3]->as<platform::TextField>();
  const auto* asText = views[4]->as<platform::TextView>();
  const auto* asBox = views[5]->as<platform::Box>();
  closeWindow();
  EXPECT_EQ(asButton->title(), "");
  EXPECT_FALSE(views[0]->isTitled(SearchText("Plan")));
  EXPECT_FALSE(asButton->isImageOnly());
  EXPECT_THAT(asButton->image(), IsNull());
  EXPECT_FALSE(asControl->action());
  EXPECT_FALSE(asPopUp->titleOfSelectedItem());
  EXPECT_EQ(asSegments->selectedSegment(), -1);
  EXPECT_EQ(asSegments->segmentCount(), 0);
  EXPECT_FALSE(asSegments->labelForSegment(0));
  EXPECT_EQ(asField->stringValue(), "");
  EXPECT_FALSE(asField->isEditable());
  EXPECT_FALSE(asField->placeholderString());
  EXPECT_EQ(asText->string(), "");
  EXPECT_FALSE(asText->isEditable());
  EXPECT_EQ(asBox->title(), "");
}

TEST_F(Lives, ADeletedTableAnswersNothing)
{
  auto* widget = add<QTableWidget>(kPlace, 2, 2);
  const auto view = viewForWidget(widget);
  const auto* table = view->as<platform::TableView>();
  const auto* scroll = view->as<platform::ScrollView>();
  ASSERT_EQ(table->numberOfRows(), 2);
  delete widget;
  EXPECT_EQ(table->numberOfRows(), 0);
  EXPECT_EQ(table->numberOfColumns(), 0);
  EXPECT_FALSE(table->identifierOfColumn(0));
  EXPECT_EQ(table->rowAtPoint({5, 5}), -1);
  EXPECT_EQ(table->columnAtPoint({5, 5}), -1);
  EXPECT_THAT(table->viewAtColumnRow(0, 0, platform::MakeIfNecessary::Yes), IsNull());
  EXPECT_EQ(table->rowForView(*viewForWidget(&content())), -1);
  EXPECT_EQ(table->rectOfRow(0), Rect{});
  EXPECT_EQ(table->frameOfCell(0, 0), Rect{});
  EXPECT_FALSE(table->preparedCell(0, 0));
  EXPECT_THAT(table->modelObjectOfRow(0, 0), IsNull());
  EXPECT_THAT(scroll->documentView(), IsNull());
  EXPECT_EQ(scroll->documentBounds(), Rect{});
  table->layoutIfNeeded();
}

TEST_F(Lives, WhatWasInsideAnswersNothing)
{
  auto* parent = add<QWidget>(kPlace);
  const auto view = viewForWidget(new QPushButton(parent));
  delete parent;
  expectNothing(*view);
}

TEST_F(Lives, AnElementThatMovesToAnotherWindowIsTheSame)
{
  auto* button = add<QPushButton>(kPlace);
  const auto view = viewForWidget(button);
  QWidget other;
  button->setParent(&other);
  EXPECT_TRUE(view->isAlive());
  EXPECT_EQ(widgetOf(*view->window()), &other);
  EXPECT_THAT(view->superview(), Shows(&other));
}

TEST_F(Lives, AHandleToADeadOneIsNotASecondOneAtItsPlace)
{
  auto* first = add<QPushButton>(kPlace);
  const auto view = viewForWidget(first);
  delete first;
  const auto* second = add<QPushButton>(kPlace);
  EXPECT_FALSE(view->isSame(*viewForWidget(const_cast<QPushButton*>(second))));
}

TEST_F(Lives, AClosedWindowAnswersNothing)
{
  const auto handle = windowForWidget(&window());
  closeWindow();
  EXPECT_FALSE(handle->isAlive());
  EXPECT_FALSE(handle->isSame(*handle));
  EXPECT_EQ(handle->className(), "");
  EXPECT_EQ(handle->title(), "");
  EXPECT_EQ(handle->frame(), Rect{});
  EXPECT_FALSE(handle->isVisible());
  EXPECT_THAT(handle->contentView(), IsNull());
  EXPECT_THAT(handle->frameView(), IsNull());
  EXPECT_THAT(handle->toolbarItems(), IsEmpty());
  EXPECT_FALSE(handle->isUtilityPanel());
  handle->displayIfNeeded();
}

} // namespace

} // namespace wayvane::qt
