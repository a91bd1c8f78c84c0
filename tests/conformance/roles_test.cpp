#include <tests/conformance/Conformance.h>

namespace wayvane::conformance {

namespace {

class Roles : public Conformance {};

TEST_F(Roles, APlainElementHasNone)
{
  const auto view = stage().addPlain(window(), {});
  for (int kind = 0; kind <= static_cast<int>(ViewKind::ScrollView); ++kind)
    EXPECT_FALSE(view->isKind(static_cast<ViewKind>(kind))) << "kind " << kind;
  EXPECT_THAT(view->as<platform::Control>(), IsNull());
  EXPECT_THAT(view->as<platform::TableView>(), IsNull());
  EXPECT_THAT(view->as<platform::TableCellView>(), IsNull());
}

TEST_F(Roles, AButtonIsAControlWithATitleAndAnAction)
{
  const auto view = stage().addButton(window(), {}, {.title = "Plan Tour", .action = "planTour:"});
  ASSERT_TRUE(view->isKind(ViewKind::Button));
  ASSERT_TRUE(view->isKind(ViewKind::Control));
  const auto* button = view->as<platform::Button>();
  ASSERT_THAT(button, NotNull());
  EXPECT_EQ(button->title(), "Plan Tour");
  EXPECT_TRUE(view->isTitled(SearchText("Plan Tour")));
  EXPECT_FALSE(view->isTitled(SearchText("Plan tour")));
  EXPECT_FALSE(button->isImageOnly());
  EXPECT_THAT(button->image(), IsNull());
  const auto* control = view->as<platform::Control>();
  ASSERT_THAT(control, NotNull());
  EXPECT_THAT(control->action(), Optional(std::string("planTour:")));
  EXPECT_TRUE(view->sendsAction(SearchText("planTour:")));
  EXPECT_FALSE(view->sendsAction(SearchText("planTour")));
  EXPECT_FALSE(view->isKind(ViewKind::PopUpButton));
  EXPECT_THAT(view->as<platform::PopUpButton>(), IsNull());
}

TEST_F(Roles, AButtonWithoutActionSendsNone)
{
  const auto view = stage().addButton(window(), {}, {.title = "Plan Tour"});
  const auto* control = view->as<platform::Control>();
  ASSERT_THAT(control, NotNull());
  EXPECT_FALSE(control->action());
  EXPECT_FALSE(view->sendsAction(SearchText("")));
}

TEST_F(Roles, AnAmpersandInATitleIsPartOfIt)
{
  const auto view = stage().addButton(window(), {}, {.title = "Huts & Peaks"});
  EXPECT_EQ(view->as<platform::Button>()->title(), "Huts & Peaks");
  EXPECT_TRUE(view->isTitled(SearchText("Huts & Peaks")));
}

TEST_F(Roles, AnIconButtonShowsItsPicture)
{
  const auto view = stage().addIconButton(window(), {.frame = {10, 10, 32, 32}});
  const auto* button = view->as<platform::Button>();
  ASSERT_THAT(button, NotNull());
  EXPECT_TRUE(button->isImageOnly());
  EXPECT_EQ(button->title(), "");
  const auto image = button->image();
  ASSERT_THAT(image, NotNull());
  EXPECT_EQ(image->size(), (Size{16, 16}));
  const platform::Bitmap bitmap = image->rendered({16, 16}, 2, platform::Appearance::Light);
  EXPECT_EQ(bitmap.width, 32);
  EXPECT_EQ(bitmap.height, 32);
  ASSERT_EQ(bitmap.pixels.size(), 32U * 32U);
  EXPECT_NE(bitmap.pixels[16 * 32 + 16], 0U) << "the middle of the picture is painted";
}

TEST_F(Roles, APopUpButtonSaysWhatIsSelected)
{
  const auto view = stage().addPopUp(window(), {}, {.items = {"Easy", "Hard"}, .selected = 1});
  EXPECT_TRUE(view->isKind(ViewKind::PopUpButton));
  EXPECT_TRUE(view->isKind(ViewKind::Control));
  const auto* popUp = view->as<platform::PopUpButton>();
  ASSERT_THAT(popUp, NotNull());
  EXPECT_THAT(popUp->titleOfSelectedItem(), Optional(std::string("Hard")));
}

TEST_F(Roles, APopUpButtonWithoutSelectionSaysNothing)
{
  const auto view = stage().addPopUp(window(), {}, {.items = {"Easy", "Hard"}, .selected = -1});
  EXPECT_FALSE(view->as<platform::PopUpButton>()->titleOfSelectedItem());
}

TEST_F(Roles, ASegmentedControlNamesItsSegments)
{
  const auto view = stage().addSegments(window(), {.frame = {10, 10, 240, 30}},
                                        {.labels = {"Map", "List", "Profile"}, .selected = 2});
  EXPECT_TRUE(view->isKind(ViewKind::Control));
  const auto* segments = view->as<platform::SegmentedControl>();
  ASSERT_THAT(segments, NotNull());
  EXPECT_EQ(segments->segmentCount(), 3);
  EXPECT_EQ(segments->selectedSegment(), 2);
  EXPECT_THAT(segments->labelForSegment(0), Optional(std::string("Map")));
  EXPECT_THAT(segments->labelForSegment(2), Optional(std::string("Profile")));
  EXPECT_FALSE(segments->labelForSegment(3));
  EXPECT_FALSE(segments->labelForSegment(-1));
}

TEST_F(Roles, AFieldIsEditable)
{
  const auto view = stage().addField(window(), {}, {.value = "Alps", .placeholder = "Range"});
  EXPECT_TRUE(view->isKind(ViewKind::TextField));
  EXPECT_TRUE(view->isKind(ViewKind::Control));
  const auto* field = view->as<platform::TextField>();
  ASSERT_THAT(field, NotNull());
  EXPECT_TRUE(field->isEditable());
  EXPECT_EQ(field->stringValue(), "Alps");
  EXPECT_THAT(field->placeholderString(), Optional(std::string("Range")));
}

TEST_F(Roles, AFieldWithoutPlaceholderHasNone)
{
  const auto view = stage().addField(window(), {}, {.value = "Alps"});
  EXPECT_FALSE(view->as<platform::TextField>()->placeholderString());
}

TEST_F(Roles, ALabelIsAFieldThatCannotBeEdited)
{
  const auto view = stage().addLabel(window(), {}, "Länge: 12 km");
  EXPECT_TRUE(view->isKind(ViewKind::TextField));
  const auto* label = view->as<platform::TextField>();
  ASSERT_THAT(label, NotNull());
  EXPECT_FALSE(label->isEditable());
  EXPECT_EQ(label->stringValue(), "Länge: 12 km");
}

TEST_F(Roles, ATextViewHoldsLinesOfText)
{
  const auto view = stage().addTextView(window(), {.frame = {10, 10, 200, 100}}, {.value = "Day 1\nDay 2"});
  EXPECT_TRUE(view->isKind(ViewKind::TextView));
  EXPECT_TRUE(view->isKind(ViewKind::Text));
  EXPECT_FALSE(view->isKind(ViewKind::TextField));
  const auto* text = view->as<platform::TextView>();
  ASSERT_THAT(text, NotNull());
  EXPECT_EQ(text->string(), "Day 1\nDay 2");
  EXPECT_TRUE(text->isEditable());
  EXPECT_FALSE(text->isFieldEditor());
  EXPECT_THAT(text->delegate(), IsNull());
}

TEST_F(Roles, ATextViewThatOnlyShowsIsNotEditable)
{
  const auto view = stage().addTextView(window(), {.frame = {10, 10, 200, 100}}, {.editable = false});
  EXPECT_FALSE(view->as<platform::TextView>()->isEditable());
}

TEST_F(Roles, AGroupBoxHasATitle)
{
  const auto view = stage().addGroupBox(window(), {.frame = {10, 10, 200, 100}}, "Weather");
  EXPECT_TRUE(view->isKind(ViewKind::Box));
  EXPECT_FALSE(view->isKind(ViewKind::Control));
  const auto* box = view->as<platform::Box>();
  ASSERT_THAT(box, NotNull());
  EXPECT_EQ(box->title(), "Weather");
}

TEST_F(Roles, AScrollAreaIsAScrollView)
{
  const auto view = stage().addScrollArea(window(), {.frame = {10, 10, 200, 200}}, {400, 900});
  EXPECT_TRUE(view->isKind(ViewKind::ScrollView));
  EXPECT_THAT(view->as<platform::ScrollView>(), NotNull());
  EXPECT_FALSE(view->isKind(ViewKind::TableView));
}

TEST_F(Roles, KindsAndRolesAgreeAllOverAWindow)
{
  stage().addButton(window(), {.frame = {10, 10, 90, 30}}, {.title = "Plan"});
  stage().addField(window(), {.frame = {10, 50, 90, 30}}, {});
  stage().addPopUp(window(), {.frame = {10, 90, 90, 30}}, {.items = {"Easy"}});
  stage().addSegments(window(), {.frame = {10, 130, 90, 30}}, {.labels = {"Map", "List"}});
  stage().addGroupBox(window(), {.frame = {110, 10, 90, 90}}, "Weather");
  stage().addTextView(window(), {.frame = {110, 110, 90, 90}}, {});
  stage().addScrollArea(window(), {.frame = {210, 10, 90, 90}}, {300, 300});
  stage().addTable(window(), {.frame = {310, 10, 200, 200}},
                   {.columnIdentifiers = {"name"}, .texts = {{"Alps"}}});
  int compared = 0;
  const std::function<bool(const platform::View&)> compare = [&](const platform::View& view) {
    EXPECT_EQ(view.as<platform::Control>() != nullptr, view.isKind(ViewKind::Control)) << view.className();
    EXPECT_EQ(view.as<platform::Button>() != nullptr, view.isKind(ViewKind::Button)) << view.className();
    EXPECT_EQ(view.as<platform::PopUpButton>() != nullptr, view.isKind(ViewKind::PopUpButton));
    EXPECT_EQ(view.as<platform::SegmentedControl>() != nullptr, view.isKind(ViewKind::SegmentedControl));
    EXPECT_EQ(view.as<platform::TextField>() != nullptr, view.isKind(ViewKind::TextField))
        << view.className();
    EXPECT_EQ(view.as<platform::TextView>() != nullptr, view.isKind(ViewKind::TextView)) << view.className();
    EXPECT_EQ(view.as<platform::Box>() != nullptr, view.isKind(ViewKind::Box)) << view.className();
    EXPECT_EQ(view.as<platform::TableView>() != nullptr, view.isKind(ViewKind::TableView))
        << view.className();
    EXPECT_EQ(view.as<platform::TableCellView>() != nullptr, view.isKind(ViewKind::TableCellView));
    EXPECT_EQ(view.as<platform::ScrollView>() != nullptr, view.isKind(ViewKind::ScrollView))
        << view.className();
    ++compared;
    return view.visitSubviews(compare);
  };
  compare(*window()->frameView());
  EXPECT_GE(compared, 9);
}

} // namespace

} // namespace wayvane::conformance
