#include <wayvane/manager/ManagerLog.h>
#include <wayvane/manager/Versions.h>
#include <wayvane/manager/WVGuideManager.h>

#include <algorithm>

namespace wayvane {

using platform::Menu;
using platform::MenuHandle;
using platform::MenuItemHandle;
using platform::MenuItemSpec;
using platform::Platform;

namespace {

constexpr std::string_view kExtension = ".wayvane";
constexpr std::size_t kVersionParts = 4;

/// The running program, as guides name it.
struct Identity {
  std::optional<std::string> bundleIdentifier;
  std::optional<std::string> version;
};

Identity identityOf(const platform::Application& application)
{
  auto version = application.shortVersion();
  return {application.bundleIdentifier(), version ? std::move(version) : application.bundleVersion()};
}

bool isNewer(std::string_view version, std::string_view than)
{
  return std::is_gt(compareNumerically(normalizedVersion(version, kVersionParts),
                                       normalizedVersion(than, kVersionParts)));
}

bool isForProgram(const WVGuide& guide, const Identity& program)
{
  const auto& bundle = guide.appBundleIdentifier;
  if (bundle && bundle != program.bundleIdentifier) {
    logManager("WVGuideManager: Skipping guide '%@' (bundle mismatch: %@ != %@)",
               {guide.name, bundle, program.bundleIdentifier});
    return false;
  }
  const auto& version = guide.appBundleVersion;
  if (version && program.version && isNewer(*version, *program.version)) {
    logManager("WVGuideManager: Skipping guide '%@' (version too new: %@ > %@)",
               {guide.name, version, program.version});
    return false;
  }
  return true;
}

bool isGuideFile(std::string_view name)
{
  return name.size() > kExtension.size() && name.ends_with(kExtension);
}

} // namespace

void WVGuideManager::reloadGuides()
{
  const Platform* platform = Platform::current();
  if (!platform) return;
  guides_ = _loadGuides(*platform);
  _showGuides(_helpMenu());
}

std::vector<GuideHandle> WVGuideManager::_loadGuides(const Platform& platform)
{
  cache_.beginPass();
  const std::string folder = guidesDirectory();
  const auto entries = folder.empty() ? std::nullopt : platform.files.list(folder);
  if (!entries) return {};
  const Identity program = identityOf(platform.application);
  std::vector<GuideHandle> guides;
  for (const platform::DirectoryEntry& entry : *entries) {
    if (!isGuideFile(entry.name)) continue;
    GuideHandle guide = cache_.guideAt(folder + "/" + entry.name, entry.stamp);
    if (guide && isForProgram(*guide, program)) guides.push_back(std::move(guide));
  }
  return guides;
}

void WVGuideManager::_showGuides(const MenuHandle& helpMenu)
{
  std::vector<GuideEntry> entries;
  for (const GuideHandle& guide : guides_) {
    GuideEntry entry{guide, guide->localizedName(), std::nullopt};
    if (guide->appBundleVersion) entry.toolTip = platform::format("Version %@", {guide->appBundleVersion});
    entries.push_back(std::move(entry));
  }
  // The menu is about to open: leave it alone when it already shows what it should.
  if (helpMenu && entries == shownGuides_ && _guideItemsAreInPlace(*helpMenu)) return;
  _removeGuideItems(helpMenu);
  if (!helpMenu) return;
  shownGuides_ = std::move(entries);
  _insertGuideItems(*helpMenu);
  _insertGuideSeparator(*helpMenu);
}

bool WVGuideManager::_guideItemsAreInPlace(const Menu& helpMenu) const
{
  if (guideMenuItems_.size() != shownGuides_.size()) return false;
  if (guideMenuItems_.empty()) return true;
  if (!recordItem_ || !guideSeparatorItem_) return false;
  std::vector<MenuItemHandle> expected = guideMenuItems_;
  expected.push_back(guideSeparatorItem_);
  expected.push_back(recordItem_);
  const auto isSame = [](const MenuItemHandle& a, const MenuItemHandle& b) { return a->isSame(*b); };
  const std::vector<MenuItemHandle> items = helpMenu.items();
  return std::search(items.begin(), items.end(), expected.begin(), expected.end(), isSame) != items.end();
}

void WVGuideManager::_removeGuideItems(const MenuHandle& helpMenu)
{
  if (guideSeparatorItem_) guideMenuItems_.push_back(std::exchange(guideSeparatorItem_, nullptr));
  for (const MenuItemHandle& item : guideMenuItems_) {
    const MenuHandle holder = item->menu();
    if (const MenuHandle& menu = holder ? holder : helpMenu) menu->removeItem(*item);
  }
  guideMenuItems_.clear();
  shownGuides_.clear();
}

void WVGuideManager::_insertGuideItems(Menu& helpMenu)
{
  int index = recordItem_ ? helpMenu.indexOfItem(*recordItem_) : -1;
  for (const GuideEntry& entry : shownGuides_) {
    MenuItemSpec spec;
    spec.title = entry.title;
    spec.toolTip = entry.toolTip;
    spec.image = platform::SymbolImage::Play;
    spec.action = "_playGuide:";
    spec.onChosen = [self = self_, guide = entry.guide] {
      if (*self) (*self)->_playGuide(guide);
    };
    if (auto item = helpMenu.insertItem(spec, index < 0 ? -1 : index++))
      guideMenuItems_.push_back(std::move(item));
  }
}

void WVGuideManager::_insertGuideSeparator(Menu& helpMenu)
{
  if (guides_.empty() || !recordItem_) return;
  const int index = helpMenu.indexOfItem(*recordItem_);
  if (index <= 0 || helpMenu.items()[static_cast<std::size_t>(index) - 1]->isSeparator()) return;
  MenuItemSpec separator;
  separator.separator = true;
  guideSeparatorItem_ = helpMenu.insertItem(separator, index);
}

} // namespace wayvane
