#include <wayvane/model/RecordErrors.h>
#include <wayvane/model/RecordReader.h>
#include <wayvane/model/RecordWriter.h>
#include <wayvane/model/Uuid.h>
#include <wayvane/model/WVGuide.h>
#include <wayvane/model/WVLocalization.h>
#include <wayvane/platform/Platform.h>

namespace wayvane {

using platform::Platform;

WVGuide::WVGuide(std::string nameOfGuide)
  : identifier(freshUuid())
  , name(std::move(nameOfGuide))
{}

void WVGuide::addStepWithAccessibilityIdentifier(std::string accessibilityIdentifier, std::string message)
{
  WVTargetDescriptor target;
  target.accessibilityIdentifier = std::move(accessibilityIdentifier);
  steps.push_back(WVStep::stepWithTarget(std::move(target), std::move(message)));
}

void WVGuide::addStepWithMenuPath(std::string menuPath, std::string message)
{
  steps.push_back(WVStep::stepWithTarget(WVTargetDescriptor::descriptorForMenuPath(std::move(menuPath)),
                                         std::move(message)));
}

std::optional<std::string> WVGuide::jsonDataWithError(Error* error) const
{
  return writtenRecord(*this, RecordForm::File, error);
}

bool WVGuide::writeToURL(const std::string& path, Error* error) const
{
  const auto bytes = jsonDataWithError(error);
  if (!bytes) return false;
  Platform* const platform = Platform::current();
  if (!platform) {
    platform::setError(error, noPlatformError());
    return false;
  }
  try {
    return platform->files.writeAtomically(path, *bytes, error);
  } catch (const std::exception& exception) {
    platform::setError(error, outOfMemoryError(exception));
    return false;
  }
}

std::shared_ptr<WVGuide> WVGuide::guideWithJSONData(std::string_view bytes, Error* error)
{
  try {
    auto guide = readRecord<WVGuide>(bytes, RecordForm::File, error);
    if (!guide) return nullptr;
    if (!guide->identifier) guide->identifier = freshUuid();
    if (!guide->name) guide->name = "";
    return std::make_shared<WVGuide>(std::move(*guide));
  } catch (const std::exception& exception) {
    platform::setError(error, outOfMemoryError(exception));
    return nullptr;
  }
}

std::shared_ptr<WVGuide> WVGuide::guideWithContentsOfURL(const std::string& path, Error* error)
{
  Platform* platform = Platform::current();
  if (!platform) {
    platform::setError(error, noPlatformError());
    return nullptr;
  }
  try {
    const auto bytes = platform->files.read(path, kFileSizeLimit, error);
    return bytes ? guideWithJSONData(*bytes, error) : nullptr;
  } catch (const std::exception& exception) {
    platform::setError(error, outOfMemoryError(exception));
    return nullptr;
  }
}

std::string WVGuide::localizedName() const
{
  return wv_localizedText(nameLocalizations, name).value_or(std::string());
}

std::string WVGuide::archivedData() const
{
  return writtenRecord(*this, RecordForm::Archive, nullptr).value_or(std::string());
}

std::shared_ptr<WVGuide> WVGuide::unarchived(std::string_view archive)
{
  auto guide = readRecord<WVGuide>(archive, RecordForm::Archive, nullptr);
  return guide ? std::make_shared<WVGuide>(std::move(*guide)) : nullptr;
}

} // namespace wayvane
