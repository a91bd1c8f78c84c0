#include <tests/targeting/Support.h>

namespace wayvane {

class Resolution : public Targeting {
protected:
  [[nodiscard]] platform::ViewHandle found() const { return descriptor.resolveInWindow(nullptr); }

  /// A window of that class, in front.
  std::shared_ptr<sim::Window> addWindowOfClass(const std::string& className)
  {
    auto added = std::make_shared<sim::Window>(desktop, className, "Main", platform::Rect{0, 0, 300, 200});
    added->buildViews();
    desktop.application().made.push_back(added);
    added->orderFront();
    return added;
  }

  WVTargetDescriptor descriptor;
};

// Windows

TEST_F(Resolution, WindowsAreSearchedFrontToBack)
{
  content.addButton({.title = "Save"});
  auto& front = desktop.addWindow("Front")->content().addButton({.title = "Save"});
  descriptor.title = "Save";
  EXPECT_TRUE(isView(found(), front));
}

TEST_F(Resolution, WindowBehindIsSearchedWhenTheFrontOneHasNothing)
{
  auto& save = content.addButton({.title = "Save"});
  desktop.addWindow("Front");
  descriptor.title = "Save";
  EXPECT_TRUE(isView(found(), save));
}

TEST_F(Resolution, WindowWithTheRecordedTitleIsSearchedFirst)
{
  auto inspector = desktop.addWindow("Inspector");
  auto& inside = inspector->content().addButton({.title = "Save"});
  content.addButton({.title = "Save"});
  window->orderFront();
  descriptor.title = "Save";
  descriptor.windowTitle = "Inspector";
  EXPECT_TRUE(isView(found(), inside));
}

TEST_F(Resolution, WindowsWithTheRecordedTitleAreSearchedFrontToBack)
{
  desktop.addWindow("Inspector")->content().addButton({.title = "Save"});
  auto& front = desktop.addWindow("Inspector")->content().addButton({.title = "Save"});
  desktop.addWindow("Other");
  descriptor.title = "Save";
  descriptor.windowTitle = "Inspector";
  EXPECT_TRUE(isView(found(), front));
}

TEST_F(Resolution, OtherWindowsFollowFrontToBack)
{
  content.addButton({.title = "Save"});
  auto& front = desktop.addWindow("Front")->content().addButton({.title = "Save"});
  desktop.addWindow("Inspector");
  descriptor.title = "Save";
  descriptor.windowTitle = "Inspector";
  EXPECT_TRUE(isView(found(), front));
}

TEST_F(Resolution, EveryStrategyIsTriedInOneWindowBeforeTheNext)
{
  content.addButton({.accessibilityIdentifier = "save"});
  auto& titled = desktop.addWindow("Front")->content().addButton({.title = "Save"});
  descriptor.accessibilityIdentifier = "save";
  descriptor.title = "Save";
  EXPECT_TRUE(isView(found(), titled));
}

TEST_F(Resolution, PanelsOfOursAreNotSearched)
{
  auto& save = content.addButton({.title = "Save"});
  addWindowOfClass("WVRecordingBadge")->content().addButton({.title = "Save"});
  descriptor.title = "Save";
  EXPECT_TRUE(isView(found(), save));
}

TEST_F(Resolution, PanelsOfTheHostAreSearched)
{
  content.addButton({.title = "Save"});
  auto& save = addWindowOfClass("MyWVPanel")->content().addButton({.title = "Save"});
  descriptor.title = "Save";
  EXPECT_TRUE(isView(found(), save));
}

TEST_F(Resolution, WindowsWithoutContentArePassedOver)
{
  auto& save = content.addButton({.title = "Save"});
  desktop.addWindow("Empty")->removeContentView();
  descriptor.title = "Save";
  EXPECT_TRUE(isView(found(), save));
}

TEST_F(Resolution, GivenWindowIsTheOnlyOneSearched)
{
  auto other = desktop.addWindow("Other");
  auto& save = content.addButton({.title = "Save"});
  descriptor.title = "Save";
  EXPECT_TRUE(isNothing(descriptor.resolveInWindow(other)));
  EXPECT_TRUE(isView(descriptor.resolveInWindow(window), save));
}

TEST_F(Resolution, GivenWindowIsSearchedEvenWhenItsTitleIsAnother)
{
  auto& save = content.addButton({.title = "Save"});
  descriptor.title = "Save";
  descriptor.windowTitle = "Inspector";
  EXPECT_TRUE(isView(descriptor.resolveInWindow(window), save));
}

TEST_F(Resolution, EmptyDescriptorFindsNothing)
{
  content.addButton({.title = "Save"});
  EXPECT_TRUE(isNothing(found()));
}

TEST_F(Resolution, WithoutPlatformNothingIsFound)
{
  descriptor.title = "Save";
  platform::Platform::setCurrent(nullptr);
  EXPECT_TRUE(isNothing(found()));
  EXPECT_EQ(descriptor.resolvedScreenRect(), platform::Rect());
  EXPECT_EQ(descriptor.resolveMenuItem(), nullptr);
  platform::Platform::setCurrent(&desktop.platform());
}

// Tool bar items

TEST_F(Resolution, ToolbarItemIsFoundByItsIdentifier)
{
  auto& share = window->toolbarView().addButton();
  window->addToolbarItem({.identifier = "tb.other", .view = &window->toolbarView().addButton()});
  window->addToolbarItem({.identifier = "tb.share", .view = &share});
  descriptor.toolbarItemIdentifier = "tb.share";
  EXPECT_TRUE(isView(found(), share));
}

TEST_F(Resolution, ToolbarItemWithoutViewIsPassedOverForALaterOne)
{
  auto& share = window->toolbarView().addButton();
  window->addToolbarItem({.identifier = "tb.share"});
  window->addToolbarItem({.identifier = "tb.share", .view = &share});
  descriptor.toolbarItemIdentifier = "tb.share";
  EXPECT_TRUE(isView(found(), share));
}

TEST_F(Resolution, ToolbarItemWithoutViewLeavesTheOtherStrategies)
{
  window->addToolbarItem({.identifier = "tb.share"});
  auto& titled = content.addButton({.title = "Share"});
  descriptor.toolbarItemIdentifier = "tb.share";
  descriptor.title = "Share";
  EXPECT_TRUE(isView(found(), titled));
}

// Bindings

TEST_F(Resolution, ViewIsFoundByItsBinding)
{
  content.addButton().setBinding("value", "selection.other");
  auto& bound = content.addView("NSView").addButton();
  bound.setBinding("value", "selection.name");
  descriptor.bindingInfo = "value:selection.name";
  EXPECT_TRUE(isView(found(), bound));
}

TEST_F(Resolution, BindingOfAnotherNameDoesNotMatch)
{
  content.addButton().setBinding("enabled", "selection.name");
  descriptor.bindingInfo = "value:selection.name";
  EXPECT_TRUE(isNothing(found()));
}

TEST_F(Resolution, KeyPathMayContainColons)
{
  auto& bound = content.addButton();
  bound.setBinding("value", "a:b");
  descriptor.bindingInfo = "value:a:b";
  EXPECT_TRUE(isView(found(), bound));
}

TEST_F(Resolution, BindingWithoutColonFindsNothing)
{
  content.addButton().setBinding("value", "");
  descriptor.bindingInfo = "value";
  EXPECT_TRUE(isNothing(found()));
}

// Actions

TEST_F(Resolution, ClassDecidesBetweenTwoControlsWithOneAction)
{
  content.addButton({.action = "go:"});
  auto& popUp = content.addPopUpButton({.action = "go:"});
  content.addPopUpButton({.action = "go:"});
  descriptor.action = "go:";
  descriptor.className = "NSPopUpButton";
  EXPECT_TRUE(isView(found(), popUp));
}

TEST_F(Resolution, ControlOfASubclassServesTheClass)
{
  content.addTextField({.action = "go:"});
  auto& popUp = content.addPopUpButton({.action = "go:"});
  descriptor.action = "go:";
  descriptor.className = "NSButton";
  EXPECT_TRUE(isView(found(), popUp));
}

TEST_F(Resolution, FirstControlServesWhenNoneIsOfTheClass)
{
  auto& field = content.addTextField({.action = "go:"});
  content.addButton({.action = "go:"});
  content.addPopUpButton();
  descriptor.action = "go:";
  descriptor.className = "NSPopUpButton";
  EXPECT_TRUE(isView(found(), field));
}

TEST_F(Resolution, FirstControlServesWhenTheProgramHasNoSuchClass)
{
  auto& field = content.addTextField({.action = "go:"});
  content.addButton({.action = "go:"});
  descriptor.action = "go:";
  descriptor.className = "MyOldButton";
  EXPECT_TRUE(isView(found(), field));
}

TEST_F(Resolution, ControlOfTheClassInTheToolbarWinsOverAnotherInTheContent)
{
  content.addTextField({.action = "go:"});
  auto& group = window->toolbarView().addView("NSView");
  auto& button = group.addButton({.action = "go:"});
  window->addToolbarItem({.identifier = "tb", .view = &group});
  descriptor.action = "go:";
  descriptor.className = "NSButton";
  EXPECT_TRUE(isView(found(), button));
}

TEST_F(Resolution, ActionIsFoundInTheToolbarAfterTheContent)
{
  auto& first = window->toolbarView().addButton({.action = "go:"});
  auto& second = window->toolbarView().addButton({.action = "go:"});
  window->addToolbarItem({.identifier = "none"});
  window->addToolbarItem({.identifier = "second", .view = &second});
  window->addToolbarItem({.identifier = "first", .view = &first});
  descriptor.action = "go:";
  EXPECT_TRUE(isView(found(), second));
  auto& inContent = content.addButton({.action = "go:"});
  EXPECT_TRUE(isView(found(), inContent));
}

// Titles

class TitleResolution : public Resolution {
protected:
  TitleResolution()
  {
    for (const auto* title : {"Open", "Ouvrir", "Öffnen", "Abrir"}) {
      content.addButton({.title = title});
    }
  }

  std::string titleFoundIn(const std::string& language)
  {
    desktop.setLanguage(language);
    const auto view = found();
    const auto* button = view ? view->as<platform::Button>() : nullptr;
    return button ? button->title() : "nothing";
  }
};

TEST_F(TitleResolution, CurrentLanguageWinsOverBase)
{
  descriptor.titleLocalizations = LocalizationDictionary{{"Base", "Open"}, {"fr", "Ouvrir"}};
  EXPECT_EQ(titleFoundIn("fr"), "Ouvrir");
}

TEST_F(TitleResolution, BaseServesALanguageWithoutEntry)
{
  descriptor.titleLocalizations = LocalizationDictionary{{"Base", "Open"}, {"fr", "Ouvrir"}};
  EXPECT_EQ(titleFoundIn("de"), "Open");
}

TEST_F(TitleResolution, BaseWinsOverEnglish)
{
  descriptor.titleLocalizations = LocalizationDictionary{{"Base", "Öffnen"}, {"en", "Open"}};
  EXPECT_EQ(titleFoundIn("ja"), "Öffnen");
}

TEST_F(TitleResolution, EnglishServesWithoutBase)
{
  descriptor.titleLocalizations = LocalizationDictionary{{"de", "Öffnen"}, {"en", "Open"}};
  EXPECT_EQ(titleFoundIn("ja"), "Open");
}

TEST_F(TitleResolution, AnyEntryServesWithoutBaseAndEnglish)
{
  descriptor.titleLocalizations = LocalizationDictionary{{"de", "Öffnen"}};
  EXPECT_EQ(titleFoundIn("ja"), "Öffnen");
}

TEST_F(TitleResolution, FirstEntryServesWithoutKnownLanguage)
{
  descriptor.titleLocalizations = LocalizationDictionary{{"de", "Öffnen"}, {"fr", "Ouvrir"}};
  desktop.setLanguage(std::nullopt);
  EXPECT_TRUE(isView(found(), *content.children()[2]));
}

TEST_F(TitleResolution, TranslationsWinOverTheTitle)
{
  descriptor.title = "Abrir";
  descriptor.titleLocalizations = LocalizationDictionary{{"en", "Open"}};
  EXPECT_EQ(titleFoundIn("en"), "Open");
}

TEST_F(TitleResolution, TitleServesWithoutTranslations)
{
  descriptor.title = "Abrir";
  EXPECT_EQ(titleFoundIn("en"), "Abrir");
  descriptor.titleLocalizations = LocalizationDictionary{};
  EXPECT_EQ(titleFoundIn("en"), "Abrir");
}

// Classes

TEST_F(Resolution, FirstViewOfTheClassIsTheLastResort)
{
  content.addTextField();
  auto& button = content.addView("NSView").addButton();
  content.addButton();
  descriptor.className = "NSButton";
  EXPECT_TRUE(isView(found(), button));
}

TEST_F(Resolution, ClassThatTheProgramDoesNotHaveFindsNothing)
{
  content.addView("MyOldView");
  descriptor.className = "MyOldView";
  EXPECT_TRUE(isNothing(found()));
}

TEST_F(Resolution, PathIsTolerantOfAChangedTop)
{
  content.addView("NSView");
  auto& button = content.addView("NSView").addButton();
  descriptor.hierarchyPath = "NSSplitView[0]/NSView[1]/NSButton[0]";
  EXPECT_TRUE(isView(found(), button));
}

// Views that are gone

TEST_F(Resolution, DestroyedElementIsNotFound)
{
  auto& save = content.addButton({.title = "Save"});
  descriptor.title = "Save";
  save.destroy();
  EXPECT_TRUE(isNothing(found()));
}

TEST_F(Resolution, ClosedWindowFindsNothing)
{
  content.addButton({.title = "Save"});
  descriptor.title = "Save";
  descriptor.action = "save:";
  descriptor.toolbarItemIdentifier = "tb";
  window->close();
  EXPECT_TRUE(isNothing(descriptor.resolveInWindow(window)));
  EXPECT_TRUE(isNothing(found()));
}

TEST_F(Resolution, HostileCluesFindNothing)
{
  content.addView("NSView").addButton({.title = "Save", .action = "save:"});
  for (const auto& text : {std::string("["), std::string("]"), std::string("a//b"), std::string("\xff\xfe"),
                           std::string("NSView[99999999999999999999]"), std::string("\0", 1),
                           std::string(1'000'000, 'x'), repeated("x[0]/", 200'000)}) {
    WVTargetDescriptor hostile;
    hostile.accessibilityIdentifier = hostile.className = hostile.hierarchyPath = text;
    hostile.title = hostile.action = hostile.bindingInfo = hostile.toolbarItemIdentifier = text;
    hostile.tableIdentifier = hostile.tableColumnIdentifier = hostile.objectIdentifier = text;
    hostile.tableRow = 0;
    EXPECT_TRUE(isNothing(hostile.resolveInWindow(nullptr)));
  }
}

} // namespace wayvane
