#include <wayvane/manager/WVGuideManager.h>
#include <wayvane/playback/WVPlayer.h>
#include <wayvane/recording/WVRecorder.h>

namespace wayvane {

using platform::Platform;

WVGuideManager& WVGuideManager::sharedManager()
{
  static WVGuideManager& manager = *new WVGuideManager;
  return manager;
}

WVGuideManager::WVGuideManager()
  : WVGuideManager(WVPlayer::sharedPlayer(), WVRecorder::sharedRecorder())
{}

WVGuideManager::WVGuideManager(WVPlayer& player, WVRecorder& recorder)
  : player_(player)
  , recorder_(recorder)
  , self_(std::make_shared<WVGuideManager*>(this))
  , asDelegate_(this, [](WVRecorderDelegate*) {})
{
  TranslationSource::setCurrent(this);
}

WVGuideManager::~WVGuideManager()
{
  *self_ = nullptr;
}

std::string WVGuideManager::guidesDirectory() const
{
  const Platform* platform = Platform::current();
  const std::string support = platform ? platform->files.applicationSupportFolder() : std::string();
  if (support.empty()) return {};
  return support + "/" + platform->application.bundleIdentifier().value_or("com.unknown.app") + "/Guides";
}

void WVGuideManager::setStringsFileNames(std::vector<std::string> names)
{
  stringTables_.setNames(std::move(names));
}

std::optional<std::string> WVGuideManager::localizationKeyForString(std::string_view text) const
{
  return stringTables_.keyForText(text);
}

std::optional<LocalizationDictionary> WVGuideManager::allLocalizationsForKey(std::string_view key) const
{
  return stringTables_.localizationsForKey(key);
}

std::optional<LocalizationDictionary> WVGuideManager::allLocalizationsForString(std::string_view text) const
{
  return stringTables_.localizationsForText(text);
}

} // namespace wayvane
