#pragma once

#include <string>
#include <string_view>

namespace wayvane::platform {

/// A text to look for, kept in the two encodings that toolkits use, so that comparing it with the text of
/// ten thousand views converts nothing. Invalid UTF-8 matches nothing in a UTF-16 toolkit.
class SearchText {
public:
  explicit SearchText(std::string_view text);

  [[nodiscard]] std::string_view utf8() const { return utf8_; }

  [[nodiscard]] std::u16string_view utf16() const { return utf16_; }

  /// False when the text was not valid UTF-8.
  [[nodiscard]] bool isValid() const { return valid_; }

private:
  std::string utf8_;
  std::u16string utf16_;
  bool valid_ = true;
};

} // namespace wayvane::platform
