#include <tests/conformance/Stage.h>

#include <gmock/gmock.h>

#include <iostream>

namespace {

void leaveOut(const std::vector<wayvane::conformance::NotOnThisToolkit>& cases)
{
  if (cases.empty()) return;
  std::string filter = testing::GTEST_FLAG(filter);
  filter += filter.find('-') == std::string::npos ? "-" : ":";
  for (const auto& left : cases) {
    std::cout << "not on this toolkit: " << left.test << " (" << left.reason << ")\n";
    filter += left.test + ":";
  }
  testing::GTEST_FLAG(filter) = filter;
}

} // namespace

int main(int argc, char** argv)
{
  testing::InitGoogleMock(&argc, argv);
  const auto toolkit = wayvane::conformance::startToolkit(argc, argv);
  leaveOut(wayvane::conformance::kNotOnThisToolkit);
  return RUN_ALL_TESTS();
}
