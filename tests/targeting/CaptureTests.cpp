#include <tests/targeting/Support.h>

namespace wayvane {

using platform::HostProperty;

class Capture : public Targeting {
protected:
  static WVTargetDescriptor captured(const platform::View& view)
  {
    return WVTargetDescriptor::descriptorForView(view);
  }

  /// Found by its identifier: what a press on `view` means.
  static std::optional<std::string> meantBy(const platform::View& view)
  {
    return captured(view).accessibilityIdentifier;
  }
};

TEST_F(Capture, TellsEverythingAboutAButton)
{
  const FixedTranslations tables(
      {{"Save", {{"en", "Save"}, {"de", "Sichern"}}}, {"Saves all", {{"de", "Sichert alles"}}}});
  auto& button = content.addView("NSView").addButton(
      {.title = "Save", .action = "save:", .accessibilityIdentifier = "saveButton", .toolTip = "Saves all"});
  button.setBinding("enabled", "document.isDirty");

  WVTargetDescriptor expected;
  expected.accessibilityIdentifier = "saveButton";
  expected.className = "NSButton";
  expected.hierarchyPath = "NSView[0]/NSButton[0]";
  expected.title = "Save";
  expected.titleLocalizations = LocalizationDictionary{{"en", "Save"}, {"de", "Sichern"}};
  expected.action = "save:";
  expected.toolTip = "Saves all";
  expected.toolTipLocalizations = LocalizationDictionary{{"de", "Sichert alles"}};
  expected.bindingInfo = "enabled:document.isDirty";
  expected.windowTitle = "Main";
  EXPECT_EQ(captured(button), expected);
}

TEST_F(Capture, PlainViewTellsNoMoreThanItsPlace)
{
  WVTargetDescriptor expected;
  expected.className = "NSView";
  expected.hierarchyPath = "NSView[0]";
  expected.windowTitle = "Main";
  EXPECT_EQ(captured(content.addView("NSView")), expected);
}

TEST_F(Capture, IdentifierIsKeptEvenWhenTheToolkitMadeItUp)
{
  EXPECT_EQ(captured(content.addButton({.accessibilityIdentifier = "_NS:12"})).accessibilityIdentifier,
            "_NS:12");
}

TEST_F(Capture, BoundTextFieldIsIdentifiedByItsKeyPath)
{
  EXPECT_EQ(captured(content.addTextField({.valueBinding = "trip.name"})).accessibilityIdentifier,
            "binding:value:trip.name");
}

TEST_F(Capture, FieldEditorWithoutFieldIsIdentifiedByItsOwnIdentifier)
{
  const auto& editor = content.addTextView({.fieldEditor = true, .accessibilityIdentifier = "editor"});
  EXPECT_EQ(captured(editor).accessibilityIdentifier, "editor");
}

TEST_F(Capture, WindowWithoutTitleHasTheEmptyTitle)
{
  EXPECT_EQ(captured(desktop.addWindow("")->content().addButton()).windowTitle, "");
}

TEST_F(Capture, ViewWithoutWindowHasNoWindowTitle)
{
  auto& button = content.addButton({.title = "Save"});
  const auto handle = button.handle();
  button.removeFromSuperview();
  EXPECT_EQ(captured(*handle).windowTitle, std::nullopt);
  EXPECT_EQ(captured(*handle).title, "Save");
}

// Which view a press means

TEST_F(Capture, ControlIsMeantItself)
{
  content.setAccessibilityIdentifier("content");
  auto& outer = content.addView("NSView", {.accessibilityIdentifier = "outer"});
  outer.addButton();
  EXPECT_EQ(captured(*outer.children()[0]).className, "NSButton");
}

TEST_F(Capture, PressInsideAControlMeansTheControl)
{
  auto& button = content.addButton({.accessibilityIdentifier = "save"});
  EXPECT_EQ(meantBy(button.addView("NSView").addView("NSView")), "save");
}

TEST_F(Capture, TextObjectIsMeantItself)
{
  auto& outer = content.addView("NSView", {.accessibilityIdentifier = "outer"});
  EXPECT_EQ(captured(outer.addTextView()).className, "NSTextView");
}

TEST_F(Capture, RowViewIsMeantItself)
{
  auto& outer = content.addView("NSView", {.accessibilityIdentifier = "outer"});
  EXPECT_EQ(captured(outer.addView("NSTableRowView").addView("NSView")).className, "NSTableRowView");
}

TEST_F(Capture, ViewOfTheHostsOwnClassIsMeantItself)
{
  desktop.defineClass("MapView");
  EXPECT_EQ(captured(content.addView("MapView").addView("NSView")).className, "MapView");
}

TEST_F(Capture, ViewOfAPrivateClassOfTheToolkitIsPassedOver)
{
  auto& box = content.addView("NSView", {.accessibilityIdentifier = "box"});
  EXPECT_EQ(meantBy(box.addView("_NSCornerView")), "box");
}

TEST_F(Capture, ViewWithAMeaningfulAccessibilityIdentifierIsMeantItself)
{
  auto& outer = content.addView("NSView", {.accessibilityIdentifier = "outer"});
  EXPECT_EQ(meantBy(outer.addView("NSView", {.accessibilityIdentifier = "inner"}).addView("NSView")),
            "inner");
}

TEST_F(Capture, ViewWithAMeaninglessAccessibilityIdentifierIsPassedOver)
{
  auto& outer = content.addView("NSView", {.accessibilityIdentifier = "outer"});
  EXPECT_EQ(meantBy(outer.addView("NSView", {.accessibilityIdentifier = "_NS:9"})), "outer");
}

TEST_F(Capture, ViewThatTheHostNamesIsMeantItself)
{
  auto& outer = content.addView("NSView", {.accessibilityIdentifier = "outer"});
  auto& inner = outer.addView("NSView");
  inner.setHostString(HostProperty::GuideIdentifier, "compass");
  EXPECT_EQ(meantBy(inner.addView("NSView")), "compass");
}

TEST_F(Capture, ViewNamedOnlyInTheInterfaceBuilderIsMeantItself)
{
  class HiddenFromAccessibility : public sim::View {
  public:
    using sim::View::View;

    [[nodiscard]] sim::Text accessibilityIdentifier() const override { return std::nullopt; }
  };

  auto& outer = content.addView("NSView", {.accessibilityIdentifier = "outer"});
  const auto& info = desktop.defineClass("NSView");
  auto& inner = outer.adopt(std::make_shared<HiddenFromAccessibility>(desktop, info, platform::Rect{}));
  inner.setIdentifier("compass");
  EXPECT_EQ(captured(inner.addView("NSView")).hierarchyPath, "NSView[0]/NSView[0]");
}

TEST_F(Capture, ViewWithAToolTipIsMeantItself)
{
  auto& outer = content.addView("NSView", {.accessibilityIdentifier = "outer"});
  EXPECT_EQ(captured(outer.addView("NSView", {.toolTip = "North"}).addView("NSView")).toolTip, "North");
}

TEST_F(Capture, EmptyToolTipDoesNotMakeAViewMeant)
{
  auto& outer = content.addView("NSView", {.accessibilityIdentifier = "outer"});
  EXPECT_EQ(meantBy(outer.addView("NSView", {.toolTip = ""})), "outer");
}

TEST_F(Capture, PlainViewAmongPlainViewsIsMeantItself)
{
  auto& pressed = content.addView("NSView").addView("NSScrollView").addView("NSView");
  EXPECT_EQ(captured(pressed).hierarchyPath, "NSView[0]/NSScrollView[0]/NSView[0]");
}

TEST_F(Capture, ContentViewIsNotWhatAPressOnAPlainViewMeans)
{
  content.setAccessibilityIdentifier("content");
  EXPECT_EQ(captured(content.addView("NSView")).hierarchyPath, "NSView[0]");
}

TEST_F(Capture, ContentViewIsMeantByAPressOnItself)
{
  EXPECT_EQ(captured(content).hierarchyPath, content.className());
}

TEST_F(Capture, PressAboveTheContentViewMeansTheViewItself)
{
  EXPECT_EQ(captured(window->toolbarView()).className, window->toolbarView().className());
}

// Where it is

TEST_F(Capture, PathCountsEarlierSiblingsOfTheClass)
{
  auto& group = content.addView("NSView");
  group.addButton();
  auto& second = group.addButton();
  auto& field = group.addTextField();
  EXPECT_EQ(captured(second).hierarchyPath, "NSView[0]/NSButton[1]");
  EXPECT_EQ(captured(field).hierarchyPath, "NSView[0]/NSTextField[0]");
}

TEST_F(Capture, PathCountsEarlierSiblingsOfSubclassesToo)
{
  content.addPopUpButton();
  EXPECT_EQ(captured(content.addButton()).hierarchyPath, "NSButton[1]");
}

TEST_F(Capture, PathDoesNotCountSiblingsOfASuperclass)
{
  content.addButton();
  EXPECT_EQ(captured(content.addPopUpButton()).hierarchyPath, "NSPopUpButton[0]");
}

TEST_F(Capture, PathOfAViewWithoutWindowEndsAtItsTopmostView)
{
  auto& top = content.addView("NSBox");
  const auto keep = top.handle();
  auto& button = top.addButton();
  top.removeFromSuperview();
  EXPECT_EQ(captured(button).hierarchyPath, "NSBox/NSButton[0]");
}

TEST_F(Capture, PathLeadsBackToTheView)
{
  content.addView("NSView").addButton();
  auto& button = content.addView("NSView").addView("NSBox").addButton();
  WVTargetDescriptor onlyPath;
  onlyPath.hierarchyPath = captured(button).hierarchyPath;
  EXPECT_TRUE(isView(onlyPath.resolveInWindow(nullptr), button));
}

// Bindings

TEST_F(Capture, FirstBindingInTheirFixedOrderIsTold)
{
  auto& button = content.addButton();
  button.setBinding("hidden", "isHidden");
  button.setBinding("title", "name");
  EXPECT_EQ(captured(button).bindingInfo, "title:name");
  button.setBinding("value", "selection.name");
  EXPECT_EQ(captured(button).bindingInfo, "value:selection.name");
}

TEST_F(Capture, EveryBindingThatIsLookedForIsTold)
{
  for (const std::string name : {"value", "selectedIndex", "selectedObject", "selectedTag", "contentValues",
                                 "contentObjects", "content", "title", "image", "enabled", "hidden"}) {
    auto& button = content.addButton();
    button.setBinding(name, "key");
    EXPECT_EQ(captured(button).bindingInfo, name + ":key");
  }
}

TEST_F(Capture, EarlierBindingWinsOverALaterOne)
{
  const std::vector<std::string> names = {"value",         "selectedIndex",  "selectedObject", "selectedTag",
                                          "contentValues", "contentObjects", "content",        "title",
                                          "image",         "enabled",        "hidden"};
  for (std::size_t i = 0; i + 1 < names.size(); ++i) {
    auto& button = content.addButton();
    button.setBinding(names[i], "first");
    button.setBinding(names[i + 1], "second");
    EXPECT_EQ(captured(button).bindingInfo, names[i] + ":first");
  }
}

TEST_F(Capture, BindingToAnEmptyKeyPathIsPassedOver)
{
  auto& button = content.addButton();
  button.setBinding("value", "");
  button.setBinding("enabled", "isOpen");
  EXPECT_EQ(captured(button).bindingInfo, "enabled:isOpen");
}

TEST_F(Capture, OtherBindingsAreNotTold)
{
  auto& button = content.addButton();
  button.setBinding("target", "controller");
  EXPECT_EQ(captured(button).bindingInfo, std::nullopt);
}

// Tool bar

class ToolbarCapture : public Capture {
protected:
  sim::View& bar = window->toolbarView();
};

TEST_F(ToolbarCapture, ViewOfAnItemTellsTheItem)
{
  auto& button = bar.addButton({.title = "Share"});
  window->addToolbarItem({.identifier = "tb.other", .view = &bar.addButton()});
  window->addToolbarItem({.identifier = "tb.share", .label = "Label", .view = &button});
  EXPECT_EQ(captured(button).toolbarItemIdentifier, "tb.share");
  EXPECT_EQ(captured(button).title, "Share");
}

TEST_F(ToolbarCapture, ViewInsideTheViewOfAnItemTellsTheItem)
{
  auto& group = bar.addView("NSView");
  window->addToolbarItem({.identifier = "tb.group", .view = &group});
  EXPECT_EQ(captured(group.addView("NSView").addButton()).toolbarItemIdentifier, "tb.group");
}

TEST_F(ToolbarCapture, FirstOfTwoItemsWithTheViewIsTold)
{
  auto& group = bar.addView("NSView");
  auto& button = group.addButton();
  window->addToolbarItem({.identifier = "tb.group", .view = &group});
  window->addToolbarItem({.identifier = "tb.button", .view = &button});
  EXPECT_EQ(captured(button).toolbarItemIdentifier, "tb.group");
}

TEST_F(ToolbarCapture, ViewOutsideOfTheToolBarTellsNoItem)
{
  window->addToolbarItem({.identifier = "tb.none"});
  window->addToolbarItem({.identifier = "tb.share", .label = "Share", .view = &bar.addButton()});
  EXPECT_EQ(captured(content.addButton()).toolbarItemIdentifier, std::nullopt);
  EXPECT_EQ(captured(content.addButton()).title, std::nullopt);
}

TEST_F(ToolbarCapture, UntitledButtonTakesTheLabelOfItsItem)
{
  const FixedTranslations tables({{"Share", {{"de", "Teilen"}}}});
  auto& button = bar.addButton();
  window->addToolbarItem({.identifier = "tb.share", .label = "Share", .view = &button});
  EXPECT_EQ(captured(button).title, "Share");
  EXPECT_EQ(captured(button).titleLocalizations, (LocalizationDictionary{{"de", "Teilen"}}));
}

TEST_F(ToolbarCapture, TitledButtonKeepsItsTitleWithoutTheItemsTranslations)
{
  const FixedTranslations tables({{"Label", {{"de", "Schild"}}}});
  auto& button = bar.addButton({.title = "Share"});
  window->addToolbarItem({.identifier = "tb.share", .label = "Label", .view = &button});
  EXPECT_EQ(captured(button).title, "Share");
  EXPECT_EQ(captured(button).titleLocalizations, std::nullopt);
}

TEST_F(ToolbarCapture, ButtonWithoutToolTipTakesTheItems)
{
  const FixedTranslations tables({{"Shares it", {{"de", "Teilt es"}}}});
  auto& button = bar.addButton();
  window->addToolbarItem({.identifier = "tb.share", .toolTip = "Shares it", .view = &button});
  EXPECT_EQ(captured(button).toolTip, "Shares it");
  EXPECT_EQ(captured(button).toolTipLocalizations, (LocalizationDictionary{{"de", "Teilt es"}}));
}

TEST_F(ToolbarCapture, ButtonWithAToolTipKeepsIt)
{
  auto& button = bar.addButton({.toolTip = "mine"});
  window->addToolbarItem({.identifier = "tb.share", .toolTip = "item's", .view = &button});
  EXPECT_EQ(captured(button).toolTip, "mine");
}

// Hostile texts and views that are gone

TEST_F(Capture, TextThatIsNoUtf8IsLeftOut)
{
  auto& button = content.addButton({.title = "Sa\xffve",
                                    .action = "\xc0\xaf",
                                    .accessibilityIdentifier = "\xed\xa0\x80",
                                    .toolTip = "\x80"});
  button.setBinding("value", "\xf5");
  window->setTitle("\xfe");
  const auto descriptor = captured(button);
  WVTargetDescriptor expected;
  expected.className = "NSButton";
  expected.hierarchyPath = "NSButton[0]";
  EXPECT_EQ(descriptor, expected);
}

TEST_F(Capture, TranslationsThatAreNoUtf8AreLeftOut)
{
  const FixedTranslations tables(
      {{"Save", {{"de", "Sichern"}, {"fr", "\xff"}, {"\xff", "x"}}}, {"tip", {{"de", "\xff"}}}});
  const auto descriptor = captured(content.addButton({.title = "Save", .toolTip = "tip"}));
  EXPECT_EQ(descriptor.titleLocalizations, (LocalizationDictionary{{"de", "Sichern"}}));
  EXPECT_EQ(descriptor.toolTipLocalizations, std::nullopt);
}

TEST_F(Capture, ZeroBytesAndVeryLongTextsAreKept)
{
  const std::string zero("a\0b", 3);
  const std::string megabyte(1'000'000, 'x');
  const auto descriptor = captured(content.addButton({.title = megabyte, .accessibilityIdentifier = zero}));
  EXPECT_EQ(descriptor.accessibilityIdentifier, zero);
  EXPECT_EQ(descriptor.title, megabyte);
}

TEST_F(Capture, DestroyedViewTellsNothing)
{
  auto& button = content.addButton({.title = "Save", .action = "save:"});
  const auto handle = button.handle();
  button.destroy();
  EXPECT_EQ(captured(*handle), WVTargetDescriptor());
  EXPECT_EQ(WVTargetDescriptor::descriptorForView(*handle, {1, 1}), WVTargetDescriptor());
}

TEST_F(Capture, ViewOfAClosedWindowTellsNothing)
{
  const auto handle = content.addButton({.title = "Save"}).handle();
  window->close();
  EXPECT_EQ(captured(*handle), WVTargetDescriptor());
}

TEST_F(Capture, ViewWhoseWindowLostItsContentIsStillDescribed)
{
  auto& button = window->toolbarView().addButton({.title = "Save"});
  window->removeContentView();
  EXPECT_EQ(captured(button).title, "Save");
}

TEST_F(Capture, VeryDeepViewIsDescribed)
{
  sim::View* view = &content;
  for (int level = 0; level < 5000; ++level)
    view = &view->addView("NSView");
  auto expected = repeated("NSView[0]/", 5000);
  expected.pop_back();
  EXPECT_EQ(captured(*view).hierarchyPath, expected);
}

} // namespace wayvane
