#include <wayvane/model/RecordReader.h>
#include <wayvane/model/RecordWriter.h>
#include <wayvane/model/WVLocalization.h>
#include <wayvane/model/WVStep.h>

namespace wayvane {

WVStep WVStep::stepWithTarget(WVTargetDescriptor target, std::optional<std::string> message)
{
  WVStep step;
  step.target = std::move(target);
  step.message = std::move(message);
  return step;
}

std::optional<std::string> WVStep::localizedTitle() const
{
  return wv_localizedText(titleLocalizations, title);
}

std::optional<std::string> WVStep::localizedMessage() const
{
  return wv_localizedText(messageLocalizations, message);
}

std::string WVStep::archivedData() const
{
  return writtenRecord(*this, RecordForm::Archive, nullptr).value_or(std::string());
}

std::optional<WVStep> WVStep::unarchived(std::string_view archive)
{
  return readRecord<WVStep>(archive, RecordForm::Archive, nullptr);
}

} // namespace wayvane
