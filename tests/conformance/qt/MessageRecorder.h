#pragma once

#include <string>
#include <vector>

namespace wayvane::conformance {

/// What the framework logs, and what the toolkit complains of.
struct Messages {
  std::vector<std::string> logged;
  std::vector<std::string> complaints;
};

/// From now on messages are kept; to be called once.
void recordMessages();
/// Copies; safe from any thread.
[[nodiscard]] Messages recordedMessages();
void forgetMessages();

} // namespace wayvane::conformance
