#include <wayvane/manager/GuideCache.h>

namespace wayvane {

void GuideCache::beginPass()
{
  previous_ = std::exchange(current_, {});
}

GuideHandle GuideCache::guideAt(const std::string& path, const std::optional<platform::FileStamp>& stamp)
{
  if (!stamp) return WVGuide::guideWithContentsOfURL(path);
  if (auto known = previous_.extract(path); known && known.mapped().stamp == *stamp)
    return current_.insert(std::move(known)).position->second.guide;
  Error error;
  GuideHandle guide = WVGuide::guideWithContentsOfURL(path, &error);
  // What could not even be read may become readable without becoming another file.
  if (guide || error.domain == "json") current_.insert_or_assign(path, Entry{*stamp, guide});
  return guide;
}

} // namespace wayvane
