#include <wayvane/manager/WVGuideManager.h>
#include <wayvane/model/WVLocalization.h>
#include <wayvane/playback/WVPlayer.h>
#include <wayvane/recording/WVRecorder.h>

namespace wayvane {

using platform::Menu;
using platform::MenuHandle;
using platform::MenuItemHandle;
using platform::MenuItemSpec;
using platform::Platform;
using platform::SymbolImage;

void WVGuideManager::install()
{
  Platform* platform = Platform::current();
  if (!platform) return;
  if (const std::string folder = guidesDirectory(); !folder.empty()) platform->files.createFolders(folder);
  const MenuHandle helpMenu = _helpMenu();
  if (!helpMenu) return;
  observedMenu_ = helpMenu;
  opening_ = helpMenu->observeOpening([self = self_] {
    if (*self) (*self)->menuNeedsUpdate((*self)->observedMenu_);
  });
  MenuItemSpec separator;
  separator.separator = true;
  separatorItem_ = helpMenu->insertItem(separator, -1);
  _addRecordItem(*helpMenu);
  reloadGuides();
  recorder_.setDelegate(asDelegate_);
}

void WVGuideManager::_addRecordItem(Menu& helpMenu)
{
  // The entry has to know itself before it exists.
  const auto sender = std::make_shared<MenuItemHandle>();
  MenuItemSpec spec;
  spec.title = wv_localizedWithDefault("WV.Menu.RecordGuide", "Record Guide…");
  spec.image = SymbolImage::Record;
  spec.action = "_toggleRecording:";
  spec.onChosen = [self = self_, sender = std::weak_ptr(sender)] {
    const auto item = sender.lock();
    if (*self && item) (*self)->_toggleRecording(*item);
  };
  *sender = helpMenu.insertItem(spec, -1);
  recordItems_.push_back(sender);
  recordItem_ = *sender;
}

MenuHandle WVGuideManager::_helpMenu() const
{
  const Platform* platform = Platform::current();
  if (!platform) return nullptr;
  if (MenuHandle declared = platform->application.helpMenu()) return declared;
  const MenuHandle main = platform->application.mainMenu();
  if (!main) return nullptr;
  const std::vector<MenuItemHandle> items = main->items();
  return items.empty() ? nullptr : items.back()->submenu();
}

void WVGuideManager::menuNeedsUpdate(const MenuHandle& menu)
{
  const MenuHandle helpMenu = _helpMenu();
  if (menu && helpMenu && menu->isSame(*helpMenu)) reloadGuides();
}

void WVGuideManager::_toggleRecording(const MenuItemHandle& sender)
{
  if (recorder_.isRecording()) {
    static_cast<void>(recorder_.stopRecording());
    return;
  }
  recorder_.startRecordingGuide("Untitled");
  sender->setTitle(wv_localizedWithDefault("WV.Menu.StopRecording", "Stop Recording"));
  sender->setImage(SymbolImage::Stop);
}

void WVGuideManager::_playGuide(const GuideHandle& guide)
{
  if (guide) player_.playGuide(guide);
}

} // namespace wayvane
