#include <wayvane/manager/GuideFileName.h>
#include <wayvane/manager/ManagerLog.h>
#include <wayvane/manager/WVGuideManager.h>
#include <wayvane/model/WVLocalization.h>

namespace wayvane {

using platform::AlertAnswer;
using platform::AlertSpec;
using platform::Platform;

namespace {

AlertSpec saveAlert(const WVGuide& guide)
{
  AlertSpec alert;
  alert.messageText = "Save Guide";
  alert.informativeText =
      platform::format("Recorded %lu steps. Enter a name:", {std::uint64_t{guide.steps.size()}});
  alert.buttons = {"Save", "Cancel"};
  alert.field = platform::AlertField{{260, 24}, guide.name.value_or(""), "Guide name"};
  return alert;
}

/// The name that the author gives the guide; nothing when they cancel.
std::optional<std::string> askForName(const WVGuide& guide)
{
  Platform* platform = Platform::current();
  if (!platform) return std::nullopt;
  const AlertAnswer answer = platform->panels.runAlert(saveAlert(guide));
  if (answer.button != 0) return std::nullopt;
  return answer.fieldText.empty() ? "Untitled Guide" : answer.fieldText;
}

} // namespace

void WVGuideManager::recorderDidCaptureStep(std::uint64_t) {}

void WVGuideManager::recorderDidFinishWithGuide(const std::shared_ptr<WVGuide>& guide)
{
  if (recordItem_) {
    recordItem_->setTitle(wv_localizedWithDefault("WV.Menu.RecordGuide", "Record Guide…"));
    recordItem_->setImage(platform::SymbolImage::Record);
  }
  if (!guide || guide->steps.empty()) return;
  const auto self = self_;
  const std::shared_ptr<WVGuide> recorded = guide;
  const auto name = askForName(*recorded);
  if (!name || !*self) return;
  recorded->name = *name;
  Error error;
  if (_saveGuide(*recorded, &error))
    reloadGuides();
  else
    logManager("WVGuideManager: save failed: %@", {error.description});
}

bool WVGuideManager::_saveGuide(const WVGuide& guide, Error* error) const
{
  const std::string folder = guidesDirectory();
  if (folder.empty()) {
    platform::setError(error, {"wayvane.saving", 2, "There is no folder for guides", {}});
    return false;
  }
  const auto fileName = guideFileName(guide.name.value_or(""), error);
  return fileName && guide.writeToURL(folder + "/" + *fileName, error);
}

} // namespace wayvane
