#include <tests/targeting/Support.h>
#include <wayvane/targeting/ViewProperties.h>

#include <limits>

namespace wayvane {

using platform::HostProperty;
using ViewProperties = Targeting;

// Titles

TEST_F(ViewProperties, PlainViewIsTitledByItsAccessibilityLabel)
{
  EXPECT_EQ(wv_localizedTitle(content.addView("NSView", {.accessibilityLabel = "Map"})), "Map");
}

TEST_F(ViewProperties, PlainViewWithoutLabelHasNoTitle)
{
  EXPECT_EQ(wv_localizedTitle(content.addView("NSView")), std::nullopt);
}

TEST_F(ViewProperties, ButtonTitleWinsOverToolTipAndLabel)
{
  const auto& button = content.addButton({.title = "Save", .accessibilityLabel = "label", .toolTip = "tip"});
  EXPECT_EQ(wv_localizedTitle(button), "Save");
}

TEST_F(ViewProperties, UntitledButtonIsTitledByItsToolTip)
{
  const auto& button = content.addButton({.accessibilityLabel = "label", .toolTip = "Saves all"});
  EXPECT_EQ(wv_localizedTitle(button), "Saves all");
}

TEST_F(ViewProperties, ImageOnlyButtonIsTitledByItsToolTipWithoutTheShortcut)
{
  const auto& button = content.addButton({.title = "share", .toolTip = "Share (⇧⌘S)", .imageOnly = true});
  EXPECT_EQ(wv_localizedTitle(button), "Share");
}

TEST_F(ViewProperties, ImageOnlyButtonWithoutToolTipFallsBackToItsLabel)
{
  const auto& button =
      content.addButton({.title = "share", .accessibilityLabel = "Share it", .imageOnly = true});
  EXPECT_EQ(wv_localizedTitle(button), "Share it");
}

TEST_F(ViewProperties, EmptyToolTipOfButtonDoesNotCount)
{
  const auto& button = content.addButton({.accessibilityLabel = "Share it", .toolTip = ""});
  EXPECT_EQ(wv_localizedTitle(button), "Share it");
}

TEST_F(ViewProperties, ToolTipIsCutAtItsLastParenthesis)
{
  EXPECT_EQ(wv_localizedTitle(content.addButton({.toolTip = "Zoom (in) (⌘+)"})), "Zoom (in)");
}

TEST_F(ViewProperties, ParenthesisWithoutBlankBeforeItIsPartOfTheToolTip)
{
  EXPECT_EQ(wv_localizedTitle(content.addButton({.toolTip = "Run(all)"})), "Run(all)");
}

TEST_F(ViewProperties, LabelIsTitledByItsText)
{
  EXPECT_EQ(wv_localizedTitle(content.addTextField({.value = "Name:"})), "Name:");
}

TEST_F(ViewProperties, EmptyLabelIsTitledByItsAccessibilityLabel)
{
  EXPECT_EQ(wv_localizedTitle(content.addTextField({.accessibilityLabel = "Status"})), "Status");
}

TEST_F(ViewProperties, EditableTextFieldNeverTellsItsContents)
{
  EXPECT_EQ(wv_localizedTitle(content.addTextField({.value = "secret", .editable = true})), std::nullopt);
}

TEST_F(ViewProperties, EditableTextFieldIsTitledByItsAccessibilityLabel)
{
  const auto& field =
      content.addTextField({.value = "secret", .editable = true, .accessibilityLabel = "Password"});
  EXPECT_EQ(wv_localizedTitle(field), "Password");
}

TEST_F(ViewProperties, ReadOnlyTextViewIsTitledByItsText)
{
  EXPECT_EQ(wv_localizedTitle(content.addTextView({.value = "Licence", .editable = false})), "Licence");
}

TEST_F(ViewProperties, EditableTextViewNeverTellsItsContents)
{
  EXPECT_EQ(wv_localizedTitle(content.addTextView({.value = "diary", .accessibilityLabel = "Notes"})),
            "Notes");
}

TEST_F(ViewProperties, SegmentedControlIsTitledByItsSelectedSegment)
{
  EXPECT_EQ(wv_localizedTitle(content.addSegmentedControl({.labels = {"Day", "Week"}, .selected = 1})),
            "Week");
}

TEST_F(ViewProperties, SegmentedControlWithoutSelectionFallsBackToItsLabel)
{
  const auto& control =
      content.addSegmentedControl({.labels = {"Day", "Week"}, .selected = -1, .accessibilityLabel = "Range"});
  EXPECT_EQ(wv_localizedTitle(control), "Range");
}

TEST_F(ViewProperties, SegmentedControlWithSelectionBehindTheLastFallsBackToItsLabel)
{
  const auto& control =
      content.addSegmentedControl({.labels = {"Day"}, .selected = 1, .accessibilityLabel = "Range"});
  EXPECT_EQ(wv_localizedTitle(control), "Range");
}

TEST_F(ViewProperties, SelectedSegmentWithoutLabelHasNoTitle)
{
  const auto& control =
      content.addSegmentedControl({.labels = {std::nullopt}, .selected = 0, .accessibilityLabel = "Range"});
  EXPECT_EQ(wv_localizedTitle(control), std::nullopt);
}

TEST_F(ViewProperties, PopUpButtonIsTitledByItsSelectedItem)
{
  EXPECT_EQ(wv_localizedTitle(content.addPopUpButton(
                {.items = {"Kilometres", "Miles"}, .selected = 1, .toolTip = "Unit (⌘U)"})),
            "Miles");
}

TEST_F(ViewProperties, PopUpButtonWithoutSelectionIsTitledAsAButton)
{
  EXPECT_EQ(wv_localizedTitle(content.addPopUpButton({.selected = -1, .toolTip = "Unit (⌘U)"})), "Unit");
}

TEST_F(ViewProperties, BoxIsTitledByItsTitle)
{
  EXPECT_EQ(wv_localizedTitle(content.addBox({.title = "Options", .accessibilityLabel = "Box"})), "Options");
}

TEST_F(ViewProperties, UntitledBoxIsTitledByItsAccessibilityLabel)
{
  EXPECT_EQ(wv_localizedTitle(content.addBox({.accessibilityLabel = "Box"})), "Box");
}

TEST_F(ViewProperties, HostNamesTheTitleOfItsOwnView)
{
  auto& button = content.addButton({.title = "1/3"});
  button.setHostString(HostProperty::LocalizedTitle, "Page");
  EXPECT_EQ(wv_localizedTitle(button), "Page");
}

// Translations

TEST_F(ViewProperties, TitleIsTranslatedByTheStringTables)
{
  const FixedTranslations tables({{"Save", {{"en", "Save"}, {"de", "Sichern"}}}});
  const LocalizationDictionary expected{{"en", "Save"}, {"de", "Sichern"}};
  EXPECT_EQ(wv_titleLocalizations(content.addButton({.title = "Save"})), expected);
}

TEST_F(ViewProperties, ViewWithoutTitleHasNoTranslations)
{
  const FixedTranslations tables({{"", {{"en", ""}}}});
  EXPECT_EQ(wv_titleLocalizations(content.addView("NSView")), std::nullopt);
}

TEST_F(ViewProperties, WithoutStringTablesNothingIsTranslated)
{
  TranslationSource::setCurrent(nullptr);
  EXPECT_EQ(wv_titleLocalizations(content.addButton({.title = "Save"})), std::nullopt);
}

TEST_F(ViewProperties, SourceThatDiesLeavesNoneBehind)
{
  {
    const FixedTranslations tables({{"Save", {{"de", "Sichern"}}}});
  }
  EXPECT_EQ(TranslationSource::current(), nullptr);
}

TEST_F(ViewProperties, SourceThatWasReplacedDoesNotTakeItsSuccessorAway)
{
  auto first =
      std::make_unique<FixedTranslations>(std::map<std::string, LocalizationDictionary, std::less<>>{});
  const FixedTranslations second({});
  first.reset();
  EXPECT_EQ(TranslationSource::current(), &second);
}

TEST_F(ViewProperties, ToolTipIsTranslatedAsItStands)
{
  const FixedTranslations tables({{"Bold (⌘B)", {{"de", "Fett (⌘B)"}}}});
  const auto& button = content.addButton({.title = "B", .toolTip = "Bold (⌘B)"});
  EXPECT_EQ(wv_localizedToolTip(button), "Bold (⌘B)");
  EXPECT_EQ(wv_toolTipLocalizations(button), (LocalizationDictionary{{"de", "Fett (⌘B)"}}));
}

TEST_F(ViewProperties, ViewWithoutToolTipHasNoToolTipTranslations)
{
  const FixedTranslations tables({{"", {{"en", ""}}}});
  EXPECT_EQ(wv_toolTipLocalizations(content.addView("NSView")), std::nullopt);
}

// Actions, labels, display strings, icons

TEST_F(ViewProperties, ControlTellsItsAction)
{
  EXPECT_EQ(wv_actionString(content.addButton({.action = "save:"})), "save:");
}

TEST_F(ViewProperties, ControlWithoutActionTellsNone)
{
  EXPECT_EQ(wv_actionString(content.addButton()), std::nullopt);
}

TEST_F(ViewProperties, PlainViewHasNoAction)
{
  EXPECT_EQ(wv_actionString(content.addView("NSView")), std::nullopt);
}

TEST_F(ViewProperties, LabelForAccessibilityIsTheViewsOwn)
{
  EXPECT_EQ(wv_accessibilityLabel(content.addButton({.title = "x", .accessibilityLabel = "Close"})), "Close");
}

TEST_F(ViewProperties, ImageOnlyButtonWithAnImageIsDisplayedAsItsIcon)
{
  const auto& button =
      content.addButton({.toolTip = "Share (⇧⌘S)", .imageOnly = true, .image = sim::makeImage()});
  EXPECT_EQ(wv_displayString(button), "[ICON:button]");
}

TEST_F(ViewProperties, ImageOnlyButtonWithoutImageIsDisplayedByItsTitle)
{
  EXPECT_EQ(wv_displayString(content.addButton({.toolTip = "Share (⇧⌘S)", .imageOnly = true})), "Share");
}

TEST_F(ViewProperties, ButtonWithImageAndTitleIsDisplayedByItsTitle)
{
  EXPECT_EQ(wv_displayString(content.addButton({.title = "Share", .image = sim::makeImage()})), "Share");
}

TEST_F(ViewProperties, PlainViewIsDisplayedByItsTitle)
{
  EXPECT_EQ(wv_displayString(content.addView("NSView", {.accessibilityLabel = "Map"})), "Map");
}

TEST_F(ViewProperties, HostNamesTheDisplayStringOfItsOwnView)
{
  auto& button = content.addButton({.imageOnly = true, .image = sim::makeImage()});
  button.setHostString(HostProperty::DisplayString, "the bell");
  EXPECT_EQ(wv_displayString(button), "the bell");
}

TEST_F(ViewProperties, IconOfAButtonIsItsImage)
{
  const auto image = sim::makeImage();
  EXPECT_EQ(wv_buttonIcon(content.addButton({.title = "Share", .image = image})), image);
}

TEST_F(ViewProperties, OtherViewsHaveNoIcon)
{
  EXPECT_EQ(wv_buttonIcon(content.addTextField()), nullptr);
}

// Highlight geometry

TEST_F(ViewProperties, HighlightOfMostViewsStandsOnTheFrameWithRoundCorners)
{
  for (const sim::View* view : {&content.addView("NSView"), static_cast<sim::View*>(&content.addButton()),
                                static_cast<sim::View*>(&content.addTextField())}) {
    EXPECT_EQ(wv_guidePadding(*view), 0.0) << view->className();
    EXPECT_EQ(wv_guideCornerRadius(*view), 6.0) << view->className();
  }
}

TEST_F(ViewProperties, HighlightOfATokenFieldIsWiderAndSquare)
{
  const auto& field = content.addTokenField();
  EXPECT_EQ(wv_guidePadding(field), 3.0);
  EXPECT_EQ(wv_guideCornerRadius(field), 0.0);
}

TEST_F(ViewProperties, HighlightOfASegmentedControlIsOnePointInside)
{
  const auto& control = content.addSegmentedControl();
  EXPECT_EQ(wv_guidePadding(control), -1.0);
  EXPECT_EQ(wv_guideCornerRadius(control), 6.0);
}

TEST_F(ViewProperties, HighlightOfAPopUpButtonIsOnePointInside)
{
  const auto& popUp = content.addPopUpButton();
  EXPECT_EQ(wv_guidePadding(popUp), -1.0);
  EXPECT_EQ(wv_guideCornerRadius(popUp), 6.0);
}

TEST_F(ViewProperties, HostSetsTheHighlightOfItsOwnView)
{
  auto& control = content.addSegmentedControl();
  control.setHostNumber(HostProperty::GuidePadding, 8);
  control.setHostNumber(HostProperty::GuideCornerRadius, 0);
  EXPECT_EQ(wv_guidePadding(control), 8.0);
  EXPECT_EQ(wv_guideCornerRadius(control), 0.0);
}

TEST_F(ViewProperties, NumbersOfTheHostThatAreNoneAreNotTaken)
{
  auto& view = content.addView("NSView");
  view.setHostNumber(HostProperty::GuidePadding, std::numeric_limits<double>::quiet_NaN());
  view.setHostNumber(HostProperty::GuideCornerRadius, std::numeric_limits<double>::infinity());
  EXPECT_EQ(wv_guidePadding(view), 0.0);
  EXPECT_EQ(wv_guideCornerRadius(view), 6.0);
}

// Gone

TEST_F(ViewProperties, DestroyedViewAnswersWithNothing)
{
  auto& button = content.addButton({.title = "Save",
                                    .action = "save:",
                                    .identifier = "save",
                                    .accessibilityLabel = "label",
                                    .toolTip = "tip",
                                    .image = sim::makeImage()});
  const auto handle = button.handle();
  button.destroy();
  EXPECT_EQ(wv_localizedTitle(*handle), std::nullopt);
  EXPECT_EQ(wv_localizedToolTip(*handle), std::nullopt);
  EXPECT_EQ(wv_actionString(*handle), std::nullopt);
  EXPECT_EQ(wv_accessibilityLabel(*handle), std::nullopt);
  EXPECT_EQ(wv_displayString(*handle), std::nullopt);
  EXPECT_EQ(wv_buttonIcon(*handle), nullptr);
  EXPECT_EQ(wv_guideIdentifier(*handle), std::nullopt);
}

TEST_F(ViewProperties, DestroyedTextsAnswerWithNothing)
{
  auto& popUp = content.addPopUpButton({.items = {"Miles"}});
  auto& segments = content.addSegmentedControl({.labels = {"Day"}});
  auto& label = content.addTextField({.value = "Name"});
  auto& text = content.addTextView({.value = "Licence", .editable = false});
  auto& box = content.addBox({.title = "Options"});
  for (sim::View* view :
       {static_cast<sim::View*>(&popUp), static_cast<sim::View*>(&segments), static_cast<sim::View*>(&label),
        static_cast<sim::View*>(&text), static_cast<sim::View*>(&box)}) {
    const auto handle = view->handle();
    view->destroy();
    EXPECT_EQ(wv_localizedTitle(*handle), std::nullopt);
  }
}

TEST_F(ViewProperties, DestroyedViewHasTheHighlightOfAPlainOne)
{
  auto& field = content.addTokenField();
  const auto handle = field.handle();
  field.destroy();
  EXPECT_EQ(wv_guidePadding(*handle), 0.0);
  EXPECT_EQ(wv_guideCornerRadius(*handle), 6.0);
}

} // namespace wayvane
