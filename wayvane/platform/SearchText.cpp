#include <wayvane/platform/SearchText.h>
#include <wayvane/platform/Utf8.h>

namespace wayvane::platform {

SearchText::SearchText(std::string_view text)
  : utf8_(text)
{
  auto utf16 = utf16FromUtf8(text);
  valid_ = utf16.has_value();
  if (utf16) utf16_ = *std::move(utf16);
}

} // namespace wayvane::platform
