#include <tests/conformance/Conformance.h>

namespace wayvane::conformance {

namespace {

class Views : public Conformance {
protected:
  [[nodiscard]] std::vector<ViewHandle> subviewsOf(const ViewHandle& view) const
  {
    std::vector<ViewHandle> subviews;
    view->visitSubviews([&](const platform::View& subview) {
      subviews.push_back(subview.handle());
      return true;
    });
    return subviews;
  }
};

TEST_F(Views, AnElementIsItselfAndNoOther)
{
  const auto first = stage().addPlain(window(), {.frame = {10, 10, 50, 50}});
  const auto second = stage().addPlain(window(), {.frame = {70, 10, 50, 50}});
  EXPECT_TRUE(first->isSame(*first));
  EXPECT_TRUE(first->isSame(*first->handle()));
  EXPECT_FALSE(first->isSame(*second));
}

TEST_F(Views, EveryElementNamesItsClass)
{
  const auto button = stage().addButton(window(), {}, {.title = "Plan"});
  EXPECT_NE(button->className(), "");
  EXPECT_TRUE(button->classNameEquals(button->className()));
  EXPECT_FALSE(button->classNameEquals(button->className() + "s"));
  EXPECT_FALSE(button->classNameEquals(""));
}

TEST_F(Views, AnElementIsOfItsClassAndOfTheOnesAbove)
{
  const auto button = stage().addButton(window(), {}, {.title = "Plan"});
  const auto base = platform().application.classNamed(stage().baseClassName());
  ASSERT_TRUE(base);
  EXPECT_TRUE(button->isOfClass(button->viewClass()));
  EXPECT_TRUE(button->isOfClass(*base));
  EXPECT_FALSE(stage().addPlain(window(), {})->isOfClass(button->viewClass()));
  EXPECT_FALSE(button->isOfClass({}));
}

TEST_F(Views, AClassOfTheHostsIsToldFromTheToolkits)
{
  const auto plain = stage().addPlain(window(), {});
  EXPECT_EQ(plain->className(), "HostCanvas");
  EXPECT_TRUE(plain->isOfHostClass());
  EXPECT_FALSE(stage().addButton(window(), {}, {})->isOfHostClass());
}

TEST_F(Views, SubviewsAreVisitedBackToFront)
{
  const auto parent = stage().addPlain(window(), {.frame = {0, 0, 300, 200}});
  const auto back = stage().addPlain(window(), {.frame = {10, 10, 50, 50}, .inside = parent});
  const auto middle = stage().addPlain(window(), {.frame = {20, 20, 50, 50}, .inside = parent});
  const auto front = stage().addPlain(window(), {.frame = {30, 30, 50, 50}, .inside = parent});
  EXPECT_THAT(subviewsOf(parent), ElementsAre(IsSameView(back), IsSameView(middle), IsSameView(front)));
}

TEST_F(Views, HiddenSubviewsAreVisitedToo)
{
  const auto parent = stage().addPlain(window(), {.frame = {0, 0, 300, 200}});
  const auto child = stage().addPlain(window(), {.frame = {10, 10, 50, 50}, .inside = parent});
  stage().hide(child);
  EXPECT_THAT(subviewsOf(parent), ElementsAre(IsSameView(child)));
}

TEST_F(Views, AVisitEndsWhenTheVisitorSaysSo)
{
  const auto parent = stage().addPlain(window(), {.frame = {0, 0, 300, 200}});
  for (int i = 0; i < 3; ++i)
    stage().addPlain(window(), {.frame = {10, 10, 50, 50}, .inside = parent});
  int visits = 0;
  EXPECT_FALSE(parent->visitSubviews([&](const platform::View&) { return ++visits < 2; }));
  EXPECT_EQ(visits, 2);
  EXPECT_TRUE(parent->visitSubviews([](const platform::View&) { return true; }));
}

TEST_F(Views, EveryElementKnowsItsWayUpToTheFrameView)
{
  const auto parent = stage().addPlain(window(), {.frame = {0, 0, 300, 200}});
  const auto child = stage().addPlain(window(), {.frame = {10, 10, 50, 50}, .inside = parent});
  EXPECT_THAT(child->superview(), IsSameView(parent));
  auto top = child;
  while (const auto above = top->superview())
    top = above;
  EXPECT_THAT(top, IsSameView(window()->frameView()));
}

TEST_F(Views, EveryElementIsFoundFromTheContentView)
{
  const auto parent = stage().addPlain(window(), {.frame = {0, 0, 300, 200}});
  const auto child = stage().addPlain(window(), {.frame = {10, 10, 50, 50}, .inside = parent});
  const auto content = window()->contentView();
  auto ancestor = child;
  while (ancestor && !isSameView(ancestor, content))
    ancestor = ancestor->superview();
  EXPECT_THAT(ancestor, IsSameView(content));
}

TEST_F(Views, AnElementKnowsItsWindow)
{
  const auto other = stage().makeWindow("Packing list", {300, 150, 300, 300});
  const auto here = stage().addPlain(window(), {});
  const auto there = stage().addPlain(other, {});
  EXPECT_THAT(here->window(), IsSameWindow(window()));
  EXPECT_THAT(there->window(), IsSameWindow(other));
}

TEST_F(Views, OneIdentifierServesBuildersAndAccessibility)
{
  const auto view = stage().addPlain(window(), {.identifier = "elevationProfile"});
  EXPECT_THAT(view->identifier(), Optional(std::string("elevationProfile")));
  EXPECT_THAT(view->accessibilityIdentifier(), Optional(std::string("elevationProfile")));
  EXPECT_TRUE(view->accessibilityIdentifierEquals(SearchText("elevationProfile")));
  EXPECT_FALSE(view->accessibilityIdentifierEquals(SearchText("elevationprofile")));
}

TEST_F(Views, TextsOfAnElementAreItsOwn)
{
  const auto view =
      stage().addPlain(window(), {.accessibilityLabel = "Höhenprofil", .toolTip = "Drag to zoom"});
  EXPECT_THAT(view->accessibilityLabel(), Optional(std::string("Höhenprofil")));
  EXPECT_TRUE(view->isTitled(SearchText("Höhenprofil")));
  EXPECT_THAT(view->toolTip(), Optional(std::string("Drag to zoom")));
}

TEST_F(Views, WhatAnElementWasNotGivenIsNothing)
{
  const auto view = stage().addPlain(window(), {});
  EXPECT_FALSE(view->identifier());
  EXPECT_FALSE(view->accessibilityIdentifier());
  EXPECT_FALSE(view->accessibilityIdentifierEquals(SearchText("")));
  EXPECT_FALSE(view->accessibilityLabel());
  EXPECT_FALSE(view->isTitled(SearchText("")));
  EXPECT_FALSE(view->toolTip());
  EXPECT_FALSE(view->observedKeyPathForBinding("value"));
}

TEST_F(Views, ABindingNamesTheKeyPathItObserves)
{
  const auto field = stage().addField(window(), {.valueBinding = "selection.name"}, {});
  EXPECT_THAT(field->observedKeyPathForBinding("value"), Optional(std::string("selection.name")));
  EXPECT_FALSE(field->observedKeyPathForBinding("enabled"));
}

TEST_F(Views, AHostAnswersForItsOwnElements)
{
  using platform::HostProperty;
  const auto view = stage().addPlain(window(), {.hostStrings = {{HostProperty::GuideIdentifier, "stage-3"}},
                                                .hostNumbers = {{HostProperty::GuidePadding, 7.5}}});
  EXPECT_THAT(view->hostString(HostProperty::GuideIdentifier), Optional(std::string("stage-3")));
  EXPECT_THAT(view->hostNumber(HostProperty::GuidePadding), Optional(7.5));
  EXPECT_FALSE(view->hostString(HostProperty::DisplayString));
  EXPECT_FALSE(view->hostNumber(HostProperty::GuideCornerRadius));
}

TEST_F(Views, AnElementHearsThatThePointerCameAndWent)
{
  using platform::HoverEvent;
  const auto view = stage().addPlain(window(), {.frame = {40, 40, 80, 80}});
  ASSERT_TRUE(view->respondsToHover());
  const double now = platform().mainQueue.uptime();
  view->sendHover({HoverEvent::Type::Entered, {60, 60}, now});
  view->sendHover({HoverEvent::Type::Exited, {60, 60}, now});
  EXPECT_THAT(stage().hoverReceived(view), ElementsAre("entered", "exited"));
}

TEST_F(Views, ATrackingAreaTellsItsOwner)
{
  using platform::HoverEvent;
  const auto view = stage().addPlain(window(), {.frame = {40, 40, 80, 80}});
  const auto areas = view->trackingAreas();
  ASSERT_EQ(areas.size(), 1U);
  EXPECT_TRUE(areas[0].reportsEnteringAndLeaving);
  EXPECT_TRUE(areas[0].ownerIsView);
  EXPECT_EQ(areas[0].rect, view->bounds());
  ASSERT_TRUE(areas[0].mouseEntered && areas[0].mouseExited);
  areas[0].mouseEntered({HoverEvent::Type::Entered, {60, 60}, 0});
  areas[0].mouseExited({HoverEvent::Type::Exited, {60, 60}, 0});
  EXPECT_THAT(stage().hoverReceived(view), ElementsAre("entered", "exited"));
}

TEST_F(Views, ATrackingAreaMayOutliveItsView)
{
  const auto view = stage().addPlain(window(), {.frame = {40, 40, 80, 80}});
  const auto areas = view->trackingAreas();
  stage().destroy(view);
  for (const auto& area : areas)
    area.mouseEntered({});
  EXPECT_FALSE(view->isAlive());
}

TEST_F(Views, TextComparisonsAgreeWithTheTextsAllOverAWindow)
{
  stage().addButton(window(),
                    {.frame = {10, 10, 90, 30}, .identifier = "plan", .accessibilityLabel = "Plan it"}, {});
  stage().addField(window(), {.frame = {10, 50, 90, 30}, .identifier = "näme"}, {.value = "Alps"});
  stage().addLabel(window(), {.frame = {10, 90, 90, 30}, .accessibilityLabel = "Länge"}, "12 km");
  stage().addPopUp(window(), {.frame = {10, 130, 90, 30}}, {.items = {"Easy", "Hard"}});
  stage().addGroupBox(window(), {.frame = {110, 10, 90, 90}}, "Weather");
  stage().addTable(window(), {.frame = {210, 10, 200, 200}},
                   {.columnIdentifiers = {"name"}, .texts = {{"Alps"}, {"Jura"}}});
  int compared = 0;
  const std::function<bool(const platform::View&)> compare = [&](const platform::View& view) {
    const auto identifier = view.accessibilityIdentifier();
    const auto label = view.accessibilityLabel();
    EXPECT_EQ(view.accessibilityIdentifierEquals(SearchText(identifier.value_or("plan"))),
              identifier.has_value())
        << view.className();
    EXPECT_EQ(view.isTitled(SearchText(label.value_or("Plan it"))), label.has_value()) << view.className();
    EXPECT_TRUE(view.classNameEquals(view.className()));
    EXPECT_TRUE(view.mayHave({platform::Feature::Identifier}) || !identifier) << view.className();
    EXPECT_TRUE(view.mayHave({platform::Feature::TitleOrLabel}) || !label) << view.className();
    const auto* control = view.as<platform::Control>();
    EXPECT_TRUE(view.mayHave({platform::Feature::Action}) || !control || !control->action());
    const bool isEmpty = view.visitSubviews([](const platform::View&) { return false; });
    EXPECT_TRUE(view.mayHave({platform::Feature::Subviews}) || isEmpty) << view.className();
    ++compared;
    return view.visitSubviews(compare);
  };
  compare(*window()->frameView());
  EXPECT_GE(compared, 8);
}

TEST_F(Views, AClassIsFoundByItsName)
{
  const auto button = stage().addButton(window(), {}, {});
  EXPECT_EQ(platform().application.classNamed(button->className()), button->viewClass());
  EXPECT_FALSE(platform().application.classNamed("NoSuchClassAnywhere"));
  EXPECT_FALSE(platform().application.classNamed(""));
}

TEST_F(Views, AClassOfTheHostsIsFoundByItsName)
{
  const auto plain = stage().addPlain(window(), {});
  EXPECT_EQ(platform().application.classNamed("HostCanvas"), plain->viewClass());
}

TEST_F(Views, AClassSaysWhatItsElementsAre)
{
  auto& application = platform().application;
  const auto button = stage().addButton(window(), {}, {})->viewClass();
  const auto plain = stage().addPlain(window(), {})->viewClass();
  EXPECT_TRUE(application.classIsKind(button, ViewKind::Button));
  EXPECT_TRUE(application.classIsKind(button, ViewKind::Control));
  EXPECT_FALSE(application.classIsKind(button, ViewKind::TextField));
  EXPECT_FALSE(application.classIsKind(plain, ViewKind::Control));
  EXPECT_FALSE(application.classIsKind({}, ViewKind::Control));
}

} // namespace

} // namespace wayvane::conformance
