#include <wayvane/platform/Platform.h>
#include <wayvane/recording/WVAnnotationPopover.h>
#include <wayvane/recording/WVHoverHUD.h>
#include <wayvane/recording/WVRecorder.h>

#include <algorithm>
#include <vector>

namespace wayvane {

using platform::MenuHandle;
using platform::MenuItemHandle;

namespace {

/// The framework's own entry that begins and ends a recording.
constexpr const char* kOwnAction = "_toggleRecording:";
/// Far more than any menu has: a program whose menus contain themselves must not hold us up.
constexpr std::size_t kDeepestMenu = 64;

MenuItemHandle itemThatOpens(const MenuHandle& menu, const MenuHandle& supermenu)
{
  for (const MenuItemHandle& item : supermenu->items()) {
    const MenuHandle submenu = item ? item->submenu() : nullptr;
    if (submenu && submenu->isSame(*menu)) return item;
  }
  return nullptr;
}

std::vector<std::string> titlesLeadingTo(MenuItemHandle item)
{
  std::vector<std::string> titles;
  while (item && titles.size() < kDeepestMenu) {
    titles.push_back(item->title());
    const MenuHandle menu = item->menu();
    const MenuHandle supermenu = menu ? menu->supermenu() : nullptr;
    item = supermenu ? itemThatOpens(menu, supermenu) : nullptr;
  }
  std::reverse(titles.begin(), titles.end());
  return titles;
}

std::string joined(const std::vector<std::string>& titles)
{
  std::string path = titles.front();
  for (std::size_t i = 1; i < titles.size(); ++i)
    path += " > " + titles[i];
  return path;
}

/// A strip below the menu bar, near the top left of the screen.
platform::Rect placeForMenuCommands(const platform::Screen& screen)
{
  const platform::Rect frame = screen.mainScreenFrame().value_or(platform::Rect{});
  return {100, frame.y + frame.height - 30, 200, 22};
}

} // namespace

void WVRecorder::_handleMenuCommand(const MenuItemHandle& item)
{
  if (!recording_ || capturingAnnotation_ || !item) return;
  const std::vector<std::string> titles = titlesLeadingTo(item);
  const std::optional<std::string> action = item->action();
  if (titles.size() < 2 || action == kOwnAction || !guide_) return;
  WVTargetDescriptor target = WVTargetDescriptor::descriptorForMenuPath(joined(titles));
  target.menuAction = action;
  WVStep step = WVStep::stepWithTarget(std::move(target), "");
  step.title = item->title();
  capturingAnnotation_ = true;
  _annotateMenuCommand(step);
}

void WVRecorder::_annotateMenuCommand(const WVStep& step)
{
  const platform::Platform* const platform = platform::Platform::current();
  if (!platform) return;
  WVHoverHUD::shared().orderOut();
  const platform::WindowHandle key = platform->application.keyWindow();
  WVAnnotationPopover::showAtScreenRect(placeForMenuCommands(platform->screen),
                                        key ? key : platform->application.mainWindow(),
                                        [mine = ticket(), step](const std::optional<std::string>& title,
                                                                const std::optional<std::string>& message) {
                                          if (WVRecorder* const recorder = mine.recorderIfSameRecording())
                                            recorder->_finishMenuCommand(step, {title, message});
                                        });
}

// Unlike a click, a command counts also when the recording ended before the author answered.
void WVRecorder::_finishMenuCommand(WVStep step, const Annotation& annotation)
{
  capturingAnnotation_ = false;
  if (annotation.isCancelled()) return;
  if (annotation.title) step.title = annotation.title;
  step.message = annotation.message.value_or("");
  _appendStep(std::move(step));
}

} // namespace wayvane
