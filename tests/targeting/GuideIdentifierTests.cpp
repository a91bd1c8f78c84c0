#include <tests/targeting/Support.h>
#include <wayvane/targeting/ViewProperties.h>

namespace wayvane {

using platform::HostProperty;
using platform::SearchText;
using GuideIdentifier = Targeting;

namespace {

/// As a search asks.
bool isIdentifiedBy(const platform::View& view, std::string_view identifier)
{
  const SearchText text(identifier);
  const IdentifierQuery query(text);
  return view.mayHave(query.features()) && query.matches(view);
}

} // namespace

TEST_F(GuideIdentifier, PlainViewIsNamedByItsAccessibilityIdentifier)
{
  EXPECT_EQ(wv_guideIdentifier(content.addView("NSView", {.accessibilityIdentifier = "map"})), "map");
}

TEST_F(GuideIdentifier, ViewWithoutIdentifierIsNotNamed)
{
  EXPECT_EQ(wv_guideIdentifier(content.addView("NSView")), std::nullopt);
}

TEST_F(GuideIdentifier, BoundTextFieldIsNamedByItsKeyPath)
{
  const auto& field =
      content.addTextField({.valueBinding = "selection.name", .accessibilityIdentifier = "name"});
  EXPECT_EQ(wv_guideIdentifier(field), "binding:value:selection.name");
}

TEST_F(GuideIdentifier, TextFieldBoundToAnEmptyKeyPathIsNamedByItsAccessibilityIdentifier)
{
  const auto& field = content.addTextField({.valueBinding = "", .accessibilityIdentifier = "name"});
  EXPECT_EQ(wv_guideIdentifier(field), "name");
}

TEST_F(GuideIdentifier, TextFieldWithAnotherBindingIsNamedByItsAccessibilityIdentifier)
{
  auto& field = content.addTextField({.accessibilityIdentifier = "name"});
  field.setBinding("enabled", "isOpen");
  EXPECT_EQ(wv_guideIdentifier(field), "name");
}

TEST_F(GuideIdentifier, BoundButtonIsNamedByItsAccessibilityIdentifier)
{
  auto& button = content.addButton({.accessibilityIdentifier = "check"});
  button.setBinding("value", "isOpen");
  EXPECT_EQ(wv_guideIdentifier(button), "check");
}

TEST_F(GuideIdentifier, BoundTextViewIsNamedByItsKeyPath)
{
  EXPECT_EQ(wv_guideIdentifier(content.addTextView({.valueBinding = "notes"})), "binding:value:notes");
}

TEST_F(GuideIdentifier, TextViewIsNamedByItsAccessibilityIdentifier)
{
  EXPECT_EQ(wv_guideIdentifier(content.addTextView({.accessibilityIdentifier = "notes"})), "notes");
}

TEST_F(GuideIdentifier, FieldEditorIsNamedLikeTheFieldItEdits)
{
  const auto& field = content.addTextField({.valueBinding = "selection.name"});
  const auto& editor = content.addTextView(
      {.fieldEditor = true, .delegate = field.handle(), .accessibilityIdentifier = "editor"});
  EXPECT_EQ(wv_guideIdentifier(editor), "binding:value:selection.name");
}

TEST_F(GuideIdentifier, FieldEditorWithoutFieldIsNotNamed)
{
  const auto& editor = content.addTextView({.fieldEditor = true, .accessibilityIdentifier = "editor"});
  EXPECT_EQ(wv_guideIdentifier(editor), std::nullopt);
}

TEST_F(GuideIdentifier, FieldEditorOfADestroyedFieldIsNotNamed)
{
  auto& field = content.addTextField({.accessibilityIdentifier = "name"});
  const auto& editor = content.addTextView({.fieldEditor = true, .delegate = field.handle()});
  field.destroy();
  EXPECT_EQ(wv_guideIdentifier(editor), std::nullopt);
}

TEST_F(GuideIdentifier, FieldEditorsThatEditEachOtherAreNotNamed)
{
  auto& first = content.addTextView({.fieldEditor = true});
  auto& second = content.addTextView({.fieldEditor = true, .delegate = first.handle()});
  first.setDelegate(second.handle());
  EXPECT_EQ(wv_guideIdentifier(first), std::nullopt);
  first.setDelegate(nullptr);
}

TEST_F(GuideIdentifier, HostNamesItsOwnView)
{
  auto& field = content.addTextField({.valueBinding = "name", .accessibilityIdentifier = "field"});
  field.setHostString(HostProperty::GuideIdentifier, "nameOfTour");
  EXPECT_EQ(wv_guideIdentifier(field), "nameOfTour");
}

// Comparing

TEST_F(GuideIdentifier, ViewIsIdentifiedByItsAccessibilityIdentifier)
{
  const auto& view = content.addView("NSView", {.accessibilityIdentifier = "map"});
  EXPECT_TRUE(isIdentifiedBy(view, "map"));
  EXPECT_FALSE(isIdentifiedBy(view, "ma"));
  EXPECT_FALSE(isIdentifiedBy(view, "maps"));
}

TEST_F(GuideIdentifier, BoundTextFieldIsIdentifiedByItsKeyPathAndByItsIdentifier)
{
  const auto& field = content.addTextField({.valueBinding = "name", .accessibilityIdentifier = "field"});
  EXPECT_TRUE(isIdentifiedBy(field, "binding:value:name"));
  EXPECT_TRUE(isIdentifiedBy(field, "field"));
  EXPECT_FALSE(isIdentifiedBy(field, "binding:value:"));
  EXPECT_FALSE(isIdentifiedBy(field, "binding:value:name2"));
}

TEST_F(GuideIdentifier, TextFieldBoundToAnEmptyKeyPathIsNotIdentifiedByThePrefixAlone)
{
  EXPECT_FALSE(isIdentifiedBy(content.addTextField({.valueBinding = ""}), "binding:value:"));
}

TEST_F(GuideIdentifier, BoundButtonIsNotIdentifiedByItsKeyPath)
{
  auto& button = content.addButton();
  button.setBinding("value", "isOpen");
  EXPECT_FALSE(isIdentifiedBy(button, "binding:value:isOpen"));
}

TEST_F(GuideIdentifier, FieldEditorIsIdentifiedByItsFieldAndByItsOwnIdentifier)
{
  const auto& field = content.addTextField({.accessibilityIdentifier = "name"});
  const auto& editor = content.addTextView(
      {.fieldEditor = true, .delegate = field.handle(), .accessibilityIdentifier = "editor"});
  EXPECT_TRUE(isIdentifiedBy(editor, "name"));
  EXPECT_TRUE(isIdentifiedBy(editor, "editor"));
  EXPECT_FALSE(isIdentifiedBy(editor, "other"));
}

TEST_F(GuideIdentifier, ViewNamedByTheHostIsIdentifiedByThatNameInsteadOfItsKeyPath)
{
  auto& field = content.addTextField({.valueBinding = "name"});
  field.setHostString(HostProperty::GuideIdentifier, "nameOfTour");
  EXPECT_TRUE(isIdentifiedBy(field, "nameOfTour"));
  EXPECT_FALSE(isIdentifiedBy(field, "binding:value:name"));
}

// Meaning

TEST(MeaningfulIdentifier, IsNeitherEmptyNorTheToolkitsOwn)
{
  EXPECT_FALSE(WVIsMeaningfulIdentifier(std::nullopt));
  EXPECT_FALSE(WVIsMeaningfulIdentifier(""));
  EXPECT_FALSE(WVIsMeaningfulIdentifier("_NSCornerView"));
  EXPECT_FALSE(WVIsMeaningfulIdentifier("_NS"));
}

TEST(MeaningfulIdentifier, IsWhatAProgrammerChose)
{
  EXPECT_TRUE(WVIsMeaningfulIdentifier("saveButton"));
  EXPECT_TRUE(WVIsMeaningfulIdentifier("NS_custom"));
  EXPECT_TRUE(WVIsMeaningfulIdentifier("_N"));
}

} // namespace wayvane
