#pragma once

#include <functional>
#include <string>

#ifdef WAYVANE_TESTS_DIR
#include <gtest/gtest.h>
#endif

namespace wayvane::sim {

using FailureHandler = std::function<void(const std::string&)>;

/// Told what a test forgot, such as the answer to an alert. Outside of tests it ends the program.
FailureHandler& failureHandler();
void reportFailure(const std::string& what);

#ifdef WAYVANE_TESTS_DIR
inline const bool failsTheRunningTest = [] {
  failureHandler() = [](const std::string& what) { ADD_FAILURE() << what; };
  return true;
}();
#endif

} // namespace wayvane::sim
