#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace wayvane::platform {

/// One argument of `format`.
class FormatArgument {
public:
  FormatArgument(std::string_view text)
    : text_(text)
  {} // NOLINT(google-explicit-constructor)

  FormatArgument(const std::string& text)
    : text_(text)
  {} // NOLINT(google-explicit-constructor)

  FormatArgument(const char* text)
    : text_(text ? text : "(null)")
  {} // NOLINT(google-explicit-constructor)

  /// An absent text prints as "(null)".
  FormatArgument(const std::optional<std::string>& text) // NOLINT(google-explicit-constructor)
    : text_(text ? *text : "(null)")
  {}

  FormatArgument(int number)
    : text_(std::to_string(number))
  {} // NOLINT(google-explicit-constructor)

  FormatArgument(std::int64_t number)
    : text_(std::to_string(number))
  {} // NOLINT(google-explicit-constructor)

  FormatArgument(std::uint64_t number)
    : text_(std::to_string(number))
  {} // NOLINT(google-explicit-constructor)

  FormatArgument(bool flag)
    : text_(flag ? "1" : "0")
  {} // NOLINT(google-explicit-constructor)

  [[nodiscard]] const std::string& text() const { return text_; }

private:
  std::string text_;
};

/// Fills "%@", "%lu", "%ld" and "%d" in their order, or by number ("%1$@"), as translators may write them.
/// "%%" is a per cent sign. Any other sequence, and a placeholder without an argument, stays as it stands:
/// translated texts come from outside and must not be able to do harm.
[[nodiscard]] std::string format(std::string_view pattern, std::initializer_list<FormatArgument> arguments);

} // namespace wayvane::platform
