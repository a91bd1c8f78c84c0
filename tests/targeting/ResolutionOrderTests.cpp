#include <tests/targeting/Support.h>

#include <array>

namespace wayvane {

namespace {

/// The strategies in the order in which they are tried.
enum class Strategy { Toolbar, TableRow, Identifier, Path, Binding, Action, Title, Class };

constexpr std::array kStrategies = {Strategy::Toolbar, Strategy::TableRow, Strategy::Identifier,
                                    Strategy::Path,    Strategy::Binding,  Strategy::Action,
                                    Strategy::Title,   Strategy::Class};
constexpr std::array kNames = {"Toolbar", "TableRow", "Identifier", "Path",
                               "Binding", "Action",   "Title",      "Class"};

std::string nameOf(Strategy strategy)
{
  return kNames.at(static_cast<std::size_t>(strategy));
}

/// Fills in the one clue that the strategy goes by: one that leads to its element, or one that leads nowhere.
void give(WVTargetDescriptor& descriptor, Strategy strategy, bool leadsSomewhere)
{
  const auto clue = [leadsSomewhere](const char* good) { return leadsSomewhere ? good : "gone:gone"; };
  switch (strategy) {
  case Strategy::Toolbar:
    descriptor.toolbarItemIdentifier = clue("tb");
    break;
  case Strategy::TableRow:
    descriptor.tableRow = leadsSomewhere ? 0 : 7;
    break;
  case Strategy::Identifier:
    descriptor.accessibilityIdentifier = clue("byIdentifier");
    break;
  case Strategy::Path:
    descriptor.hierarchyPath = clue("NSSplitView[0]");
    break;
  case Strategy::Binding:
    descriptor.bindingInfo = clue("value:name");
    break;
  case Strategy::Action:
    descriptor.action = clue("go:");
    break;
  case Strategy::Title:
    descriptor.title = clue("Titled");
    break;
  case Strategy::Class:
    descriptor.className = clue("GaugeView");
    break;
  }
}

} // namespace

/// A window in which each strategy has an element of its own.
class ResolutionOrder : public Targeting, public ::testing::WithParamInterface<Strategy> {
protected:
  ResolutionOrder()
  {
    desktop.defineClass("GaugeView");
    auto& inToolbar = window->toolbarView().addButton();
    window->addToolbarItem({.identifier = "tb", .view = &inToolbar});
    elements[Strategy::Toolbar] = &inToolbar;
    // Later strategies stand first in the tree, so that the tree's order cannot stand in for theirs.
    elements[Strategy::Class] = &content.addView("GaugeView");
    elements[Strategy::Title] = &content.addButton({.title = "Titled"});
    elements[Strategy::Action] = &content.addButton({.action = "go:"});
    elements[Strategy::Binding] = &content.addView("NSView");
    elements[Strategy::Binding]->setBinding("value", "name");
    elements[Strategy::Path] = &content.addView("NSSplitView");
    elements[Strategy::Identifier] = &content.addView("NSView", {.accessibilityIdentifier = "byIdentifier"});
    auto& table = content.addTableView({.columns = {{.identifier = "name"}}});
    table.addRow({"Eiger"});
    elements[Strategy::TableRow] = table.cellAt(0, 0);
  }

  std::map<Strategy, sim::View*> elements;
};

INSTANTIATE_TEST_SUITE_P(Each, ResolutionOrder, ::testing::ValuesIn(kStrategies),
                         [](const auto& strategy) { return nameOf(strategy.param); });

TEST_P(ResolutionOrder, StrategyFindsItsElement)
{
  WVTargetDescriptor descriptor;
  give(descriptor, GetParam(), true);
  EXPECT_TRUE(isView(descriptor.resolveInWindow(nullptr), *elements[GetParam()]));
}

TEST_P(ResolutionOrder, StrategyWhoseClueLeadsNowhereFindsNothing)
{
  WVTargetDescriptor descriptor;
  give(descriptor, GetParam(), false);
  EXPECT_TRUE(isNothing(descriptor.resolveInWindow(nullptr)));
}

TEST_P(ResolutionOrder, StrategyWinsOverAllThatFollow)
{
  WVTargetDescriptor descriptor;
  for (const auto strategy : kStrategies) {
    if (strategy >= GetParam() && strategy != Strategy::Class) give(descriptor, strategy, true);
  }
  if (GetParam() == Strategy::Class) give(descriptor, Strategy::Class, true);
  EXPECT_TRUE(isView(descriptor.resolveInWindow(nullptr), *elements[GetParam()]));
}

TEST_P(ResolutionOrder, StrategyWinsOverTheClass)
{
  WVTargetDescriptor descriptor;
  give(descriptor, GetParam(), true);
  give(descriptor, Strategy::Class, true);
  EXPECT_TRUE(isView(descriptor.resolveInWindow(nullptr), *elements[GetParam()]));
}

TEST_P(ResolutionOrder, StrategyServesWhenAllBeforeItLeadNowhere)
{
  WVTargetDescriptor descriptor;
  for (const auto strategy : kStrategies) {
    if (strategy < GetParam()) give(descriptor, strategy, false);
  }
  give(descriptor, GetParam(), true);
  EXPECT_TRUE(isView(descriptor.resolveInWindow(nullptr), *elements[GetParam()]));
}

} // namespace wayvane
