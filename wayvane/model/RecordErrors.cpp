#include <wayvane/model/RecordErrors.h>
#include <wayvane/platform/Format.h>

namespace wayvane {
namespace {

platform::Error jsonError(std::int64_t code, std::string description)
{
  return {"json", code, std::move(description), {}};
}

} // namespace

platform::Error notAnObjectError()
{
  return jsonError(-1, "The document is not a JSON object");
}

platform::Error nestedTooDeeplyError()
{
  return jsonError(-2, "The document is nested too deeply");
}

platform::Error invalidUtf8Error(std::string_view field)
{
  return jsonError(-3, platform::format("The text of \"%@\" is not valid UTF-8", {field}));
}

platform::Error notFiniteError(std::string_view field)
{
  return jsonError(-4, platform::format("The number of \"%@\" is not finite", {field}));
}

platform::Error tooManyStepsError()
{
  return jsonError(-6, "The guide has too many steps");
}

platform::Error outOfMemoryError(const std::exception& exception)
{
  return jsonError(-5, platform::format("The document could not be held: %@", {exception.what()}));
}

platform::Error noPlatformError()
{
  return {"WVGuide", 1, "No platform is installed", {}};
}

} // namespace wayvane
