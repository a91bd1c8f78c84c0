#include <tests/desktop/Desktop.h>

#include <gmock/gmock.h>

namespace wayvane::sim {
namespace {

class SimRoles : public testing::Test {
protected:
  Desktop desktop;
  std::shared_ptr<Window> window = desktop.addWindow("Main");
  View& content = window->content();
};

TEST_F(SimRoles, AButtonTellsTitleImageAndAction)
{
  const auto image = makeImage();
  Button& share =
      content.addButton({.title = "Share", .action = "share:", .imageOnly = true, .image = image});
  EXPECT_EQ(share.title(), "Share");
  EXPECT_TRUE(share.isTitled(platform::SearchText("Share")));
  EXPECT_TRUE(share.isImageOnly());
  EXPECT_EQ(share.image(), image);
  EXPECT_TRUE(share.sendsAction(platform::SearchText("share:")));
}

TEST_F(SimRoles, APopUpButtonTellsItsSelectedItem)
{
  PopUpButton& popUp = content.addPopUpButton({.items = {"Red", "Blue"}, .selected = 1});
  EXPECT_EQ(popUp.titleOfSelectedItem(), "Blue");
  popUp.select(-1);
  EXPECT_EQ(popUp.titleOfSelectedItem(), std::nullopt);
}

TEST_F(SimRoles, ASegmentedControlTellsItsLabels)
{
  SegmentedControl& view = content.addSegmentedControl({.labels = {"Day", std::nullopt}, .selected = 1});
  EXPECT_EQ(view.segmentCount(), 2);
  EXPECT_EQ(view.selectedSegment(), 1);
  EXPECT_EQ(view.labelForSegment(0), "Day");
  EXPECT_EQ(view.labelForSegment(1), std::nullopt);
  EXPECT_EQ(view.labelForSegment(7), std::nullopt);
}

TEST_F(SimRoles, ATextFieldTellsItsValueAndBinding)
{
  TextField& field = content.addTextField(
      {.value = "Anna", .editable = true, .placeholder = "Name", .valueBinding = "selection.name"});
  EXPECT_TRUE(field.isEditable());
  EXPECT_EQ(field.stringValue(), "Anna");
  EXPECT_EQ(field.placeholderString(), "Name");
  EXPECT_EQ(field.observedKeyPathForBinding("value"), "selection.name");
  EXPECT_EQ(field.observedKeyPathForBinding("enabled"), std::nullopt);
}

TEST_F(SimRoles, AFieldEditorNamesTheFieldItEdits)
{
  TextField& field = content.addTextField({.editable = true});
  TextView& editor = content.addTextView({.fieldEditor = true, .delegate = field.handle()});
  EXPECT_TRUE(editor.isFieldEditor());
  EXPECT_TRUE(isSameView(editor.delegate(), field.handle()));
}

TEST_F(SimRoles, ABoxTellsItsTitle)
{
  EXPECT_EQ(content.addBox({.title = "Options"}).title(), "Options");
}

} // namespace
} // namespace wayvane::sim
