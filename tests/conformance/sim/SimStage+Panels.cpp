#include <tests/conformance/sim/SimStage.h>

#include <algorithm>

namespace wayvane::conformance {

using platform::PopoverButton;
using platform::WindowHandle;

namespace {

sim::Menu& menuAt(sim::Menu& bar, const MenuPath& path, std::size_t depth)
{
  sim::Menu* menu = &bar;
  for (std::size_t level = 0; level < depth; ++level)
    menu = &menu->menu(path[level]);
  return *menu;
}

} // namespace

void SimStage::addMenuEntry(const WindowHandle& /*window*/, const MenuPath& path, const std::string& action)
{
  sim::Menu& bar = desktop_.mainMenu();
  sim::Menu& menu = menuAt(bar, path, path.size() - 1);
  if (path.back() == "-")
    menu.separator();
  else
    menu.item(path.back(), action);
  if (path.front() == "Help") desktop_.setHelpMenu(bar.menu("Help"));
}

std::vector<std::string> SimStage::openMenu(const MenuPath& path)
{
  sim::Menu& menu = menuAt(desktop_.mainMenu(), path, path.size());
  desktop_.openMenu(menu);
  return menu.titles();
}

void SimStage::chooseMenuEntry(const MenuPath& path)
{
  sim::Menu& menu = menuAt(desktop_.mainMenu(), path, path.size() - 1);
  desktop_.openMenu(menu);
  if (desktop_.pressInMenu({1000, 600}) == platform::EventVerdict::Swallow) return;
  if (sim::MenuItem* item = menu.find(path.back())) desktop_.chooseItem(*item);
}

void SimStage::removeMenu(const MenuPath& path)
{
  sim::Menu& menu = menuAt(desktop_.mainMenu(), path, path.size() - 1);
  if (const sim::MenuItem* item = menu.find(path.back())) menu.removeHostItem(*item);
}

void SimStage::answerNextAlert(const Text& buttonTitle, const Text& fieldText,
                               std::function<void()> meanwhile)
{
  desktop_.setOnAlert([this, buttonTitle, fieldText, meanwhile](const platform::AlertSpec& spec) {
    if (meanwhile) meanwhile();
    const auto chosen = std::find(spec.buttons.begin(), spec.buttons.end(), buttonTitle.value_or(""));
    const bool isThere = chosen != spec.buttons.end();
    desktop_.answerNextAlert(isThere ? static_cast<int>(chosen - spec.buttons.begin()) : -1, fieldText);
  });
}

void SimStage::typeIntoPopover(platform::Popover& popover, const std::string& field, const std::string& text)
{
  dynamic_cast<sim::Popover&>(popover).typeText(field, text);
}

void SimStage::clickPopoverButton(platform::Popover& popover, const std::string& title)
{
  dynamic_cast<sim::Popover&>(popover).pressButton(title);
}

void SimStage::pressKeyInPopover(platform::Popover& popover, PopoverButton::Key key)
{
  dynamic_cast<sim::Popover&>(popover).pressKey(key);
}

Text SimStage::spokenAlert(platform::OverlayPanel& overlay)
{
  const auto& alert = dynamic_cast<sim::OverlayPanel&>(overlay).accessibleAlert();
  return alert ? Text(alert->title + ". " + alert->message + ". " + alert->counter) : std::nullopt;
}

} // namespace wayvane::conformance
