#include <tests/conformance/Conformance.h>

namespace wayvane::conformance {

namespace {

using platform::HostProperty;
using platform::MakeIfNecessary;

/// Every view here ends while the framework still holds it.
class DeadViews : public Conformance {
protected:
  /// All that can be asked of any element.
  void expectNothingFrom(const platform::View& dead)
  {
    EXPECT_FALSE(dead.isAlive());
    EXPECT_THAT(dead.handle(), IsNull());
    EXPECT_FALSE(dead.isSame(dead));
    expectNoClass(dead);
    expectNoPlace(dead);
    expectNoClues(dead);
    expectNoHover(dead);
  }

  /// Plain elements that live, to ask dead ones about.
  ViewHandle living() { return stage().addPlain(window(), {.frame = {300, 10, 40, 40}}); }

private:
  static void expectNoClass(const platform::View& dead)
  {
    EXPECT_EQ(dead.className(), "");
    EXPECT_FALSE(dead.classNameEquals(""));
    EXPECT_EQ(dead.viewClass(), platform::ViewClass{});
    EXPECT_FALSE(dead.isOfClass({}));
    EXPECT_FALSE(dead.isOfHostClass());
    for (int kind = 0; kind <= static_cast<int>(ViewKind::ScrollView); ++kind)
      EXPECT_FALSE(dead.isKind(static_cast<ViewKind>(kind))) << "kind " << kind;
  }

  void expectNoPlace(const platform::View& dead)
  {
    int visits = 0;
    dead.visitSubviews([&](const platform::View&) { return ++visits > 0; });
    EXPECT_EQ(visits, 0);
    EXPECT_THAT(dead.superview(), IsNull());
    EXPECT_THAT(dead.window(), IsNull());
    EXPECT_THAT(dead.hitTest({20, 20}), IsNull());
    EXPECT_EQ(dead.bounds(), Rect{});
    EXPECT_EQ(dead.convertRectToWindow({0, 0, 10, 10}), Rect{});
    EXPECT_EQ(dead.convertPointFromWindow({20, 20}), Point{});
    EXPECT_EQ(dead.convertRectToAncestor({0, 0, 10, 10}, *living()), Rect{});
    EXPECT_EQ(living()->convertRectToAncestor({0, 0, 10, 10}, dead), Rect{});
    EXPECT_FALSE(living()->isSame(dead));
  }

  static void expectNoClues(const platform::View& dead)
  {
    EXPECT_FALSE(dead.accessibilityIdentifier());
    EXPECT_FALSE(dead.accessibilityIdentifierEquals(SearchText("formerly")));
    EXPECT_FALSE(dead.accessibilityIdentifierEquals(SearchText("")));
    EXPECT_FALSE(dead.identifier());
    EXPECT_FALSE(dead.accessibilityLabel());
    EXPECT_FALSE(dead.isTitled(SearchText("Formerly")));
    EXPECT_FALSE(dead.isTitled(SearchText("")));
    EXPECT_FALSE(dead.toolTip());
    EXPECT_FALSE(dead.observedKeyPathForBinding("value"));
    EXPECT_FALSE(dead.hostString(HostProperty::GuideIdentifier));
    EXPECT_FALSE(dead.hostNumber(HostProperty::GuidePadding));
  }

  static void expectNoHover(const platform::View& dead)
  {
    EXPECT_FALSE(dead.respondsToHover());
    EXPECT_THAT(dead.trackingAreas(), IsEmpty());
    dead.sendHover({});
  }
};

const Look kFormerly{.frame = {10, 10, 120, 120},
                     .identifier = "formerly",
                     .accessibilityLabel = "Formerly",
                     .toolTip = "It was here",
                     .valueBinding = "selection.name",
                     .hostStrings = {{HostProperty::GuideIdentifier, "formerly"}},
                     .hostNumbers = {{HostProperty::GuidePadding, 3}}};

TEST_F(DeadViews, APlainElementAnswersNothing)
{
  const auto view = stage().addPlain(window(), kFormerly);
  stage().destroy(view);
  expectNothingFrom(*view);
}

TEST_F(DeadViews, WhatWasInsideAnswersNothing)
{
  const auto parent = stage().addPlain(window(), {.frame = {0, 0, 200, 200}});
  const auto child = stage().addPlain(window(), {.frame = {10, 10, 50, 50}, .inside = parent});
  stage().destroy(parent);
  expectNothingFrom(*child);
}

TEST_F(DeadViews, TheViewsOfAClosedWindowAnswerNothing)
{
  const auto view = stage().addPlain(window(), kFormerly);
  const auto content = window()->contentView();
  const auto other = stage().makeWindow("Packing list", {200, 200, 300, 300});
  stage().closeWindow(window());
  EXPECT_FALSE(view->isAlive());
  EXPECT_THAT(view->handle(), IsNull());
  EXPECT_FALSE(content->isAlive());
  EXPECT_THAT(content->superview(), IsNull());
  EXPECT_EQ(content->bounds(), Rect{});
}

TEST_F(DeadViews, AButtonAnswersNothing)
{
  const auto view = stage().addButton(window(), kFormerly, {.title = "Plan", .action = "plan:"});
  const auto* button = view->as<platform::Button>();
  const auto* control = view->as<platform::Control>();
  ASSERT_THAT(button, NotNull());
  ASSERT_THAT(control, NotNull());
  stage().destroy(view);
  expectNothingFrom(*view);
  EXPECT_EQ(button->title(), "");
  EXPECT_FALSE(view->isTitled(SearchText("Plan")));
  EXPECT_FALSE(button->isImageOnly());
  EXPECT_THAT(button->image(), IsNull());
  EXPECT_FALSE(control->action());
  EXPECT_FALSE(view->sendsAction(SearchText("plan:")));
}

TEST_F(DeadViews, APopUpButtonAnswersNothing)
{
  const auto view = stage().addPopUp(window(), kFormerly, {.items = {"Easy", "Hard"}});
  const auto* popUp = view->as<platform::PopUpButton>();
  ASSERT_THAT(popUp, NotNull());
  stage().destroy(view);
  expectNothingFrom(*view);
  EXPECT_FALSE(popUp->titleOfSelectedItem());
}

TEST_F(DeadViews, ASegmentedControlAnswersNothing)
{
  const auto view = stage().addSegments(window(), kFormerly, {.labels = {"Map", "List"}, .selected = 1});
  const auto* segments = view->as<platform::SegmentedControl>();
  ASSERT_THAT(segments, NotNull());
  stage().destroy(view);
  expectNothingFrom(*view);
  EXPECT_EQ(segments->selectedSegment(), -1);
  EXPECT_EQ(segments->segmentCount(), 0);
  EXPECT_FALSE(segments->labelForSegment(0));
}

TEST_F(DeadViews, ATextFieldAnswersNothing)
{
  const auto view = stage().addField(window(), kFormerly, {.value = "Alps", .placeholder = "Range"});
  const auto* field = view->as<platform::TextField>();
  ASSERT_THAT(field, NotNull());
  stage().destroy(view);
  expectNothingFrom(*view);
  EXPECT_FALSE(field->isEditable());
  EXPECT_EQ(field->stringValue(), "");
  EXPECT_FALSE(field->placeholderString());
}

TEST_F(DeadViews, ATextViewAnswersNothing)
{
  const auto view = stage().addTextView(window(), kFormerly, {.value = "Notes"});
  const auto* text = view->as<platform::TextView>();
  ASSERT_THAT(text, NotNull());
  stage().destroy(view);
  expectNothingFrom(*view);
  EXPECT_FALSE(text->isEditable());
  EXPECT_EQ(text->string(), "");
  EXPECT_FALSE(text->isFieldEditor());
  EXPECT_THAT(text->delegate(), IsNull());
}

TEST_F(DeadViews, ABoxAnswersNothing)
{
  const auto view = stage().addGroupBox(window(), kFormerly, "Weather");
  const auto* box = view->as<platform::Box>();
  ASSERT_THAT(box, NotNull());
  stage().destroy(view);
  expectNothingFrom(*view);
  EXPECT_EQ(box->title(), "");
}

TEST_F(DeadViews, AScrollViewAnswersNothing)
{
  const auto view = stage().addScrollArea(window(), kFormerly, {500, 500});
  const auto* scroll = view->as<platform::ScrollView>();
  ASSERT_THAT(scroll, NotNull());
  stage().destroy(view);
  expectNothingFrom(*view);
  EXPECT_THAT(scroll->documentView(), IsNull());
  EXPECT_EQ(scroll->documentVisibleRect(), Rect{});
  EXPECT_EQ(scroll->documentBounds(), Rect{});
}

class DeadTables : public DeadViews, public testing::WithParamInterface<Cells> {};

TEST_P(DeadTables, ATableAnswersNothing)
{
  const auto view = stage().addTable(window(), kFormerly,
                                     {.cells = GetParam(),
                                      .columnIdentifiers = {"name"},
                                      .texts = {{"Alps"}, {"Jura"}},
                                      .models = {{}, {}}});
  const auto* table = view->as<platform::TableView>();
  ASSERT_THAT(table, NotNull());
  stage().destroy(view);
  expectNothingFrom(*view);
  EXPECT_EQ(table->numberOfRows(), 0);
  EXPECT_EQ(table->numberOfColumns(), 0);
  EXPECT_FALSE(table->identifierOfColumn(0));
  EXPECT_FALSE(table->targetBindingSelectorOfColumn(0));
  EXPECT_EQ(table->rowAtPoint({5, 5}), -1);
  EXPECT_EQ(table->columnAtPoint({5, 5}), -1);
  EXPECT_THAT(table->viewAtColumnRow(0, 0, MakeIfNecessary::Yes), IsNull());
  EXPECT_THAT(table->rowViewAtRow(0, MakeIfNecessary::Yes), IsNull());
  EXPECT_EQ(table->rowForView(*living()), -1);
  EXPECT_EQ(table->columnForView(*living()), -1);
  EXPECT_EQ(table->rectOfRow(0), Rect{});
  EXPECT_EQ(table->frameOfCell(0, 0), Rect{});
  EXPECT_FALSE(table->preparedCell(0, 0));
  EXPECT_THAT(table->modelObjectOfRow(0, 0), IsNull());
  EXPECT_THAT(table->accessibilityChildrenOfRow(0), IsEmpty());
  table->layoutIfNeeded();
}

INSTANTIATE_TEST_SUITE_P(OfBothKinds, DeadTables, testing::Values(Cells::Drawn, Cells::Views),
                         [](const auto& kind) { return kind.param == Cells::Drawn ? "Drawn" : "Views"; });

TEST_F(DeadViews, ACellAnswersNothing)
{
  const auto view =
      stage().addTable(window(), {.frame = {10, 10, 200, 200}},
                       {.columnIdentifiers = {"name"}, .texts = {{"Alps"}}, .models = {{{"id", "7"}}}});
  const auto cell = view->as<platform::TableView>()->viewAtColumnRow(0, 0, MakeIfNecessary::Yes);
  ASSERT_THAT(cell, NotNull());
  const auto* role = cell->as<platform::TableCellView>();
  ASSERT_THAT(role, NotNull());
  stage().destroy(view);
  expectNothingFrom(*cell);
  EXPECT_THAT(role->objectValue(), IsNull());
}

TEST_F(DeadViews, AScrollOfADeadViewStillCompletes)
{
  const auto view = stage().addScrollArea(window(), kFormerly, {500, 500});
  const auto* scroll = view->as<platform::ScrollView>();
  stage().destroy(view);
  int completions = 0;
  scroll->scrollToOrigin({0, 100}, {.duration = 0, .completion = [&] { ++completions; }});
  EXPECT_EQ(completions, 1);
  scroll->scrollToOrigin({0, 100}, {.duration = 0.05, .completion = [&] { ++completions; }});
  EXPECT_EQ(completions, 1);
  EXPECT_TRUE(stage().waitUntil([&] { return completions == 2; }));
}

TEST_F(DeadViews, ADeadWindowAnswersNothing)
{
  const auto other = stage().makeWindow("Packing list", {200, 200, 300, 300});
  stage().closeWindow(window());
  EXPECT_FALSE(window()->isAlive());
  EXPECT_FALSE(window()->isSame(*window()));
  EXPECT_EQ(window()->className(), "");
  EXPECT_EQ(window()->title(), "");
  EXPECT_EQ(window()->frame(), Rect{});
  EXPECT_FALSE(window()->isVisible());
  EXPECT_THAT(window()->contentView(), IsNull());
  EXPECT_THAT(window()->frameView(), IsNull());
  EXPECT_THAT(window()->toolbarItems(), IsEmpty());
  EXPECT_FALSE(window()->isUtilityPanel());
  window()->displayIfNeeded();
  for (const auto& listed : platform().application.orderedWindows())
    EXPECT_TRUE(listed->isAlive());
  for (const auto& listed : platform().application.windows())
    EXPECT_TRUE(listed->isAlive());
}

} // namespace

} // namespace wayvane::conformance
