#include "Failures.h"

#include <cstdio>
#include <cstdlib>

namespace wayvane::sim {

FailureHandler& failureHandler()
{
  static FailureHandler handler;
  return handler;
}

void reportFailure(const std::string& what)
{
  if (const FailureHandler handler = failureHandler()) return handler(what);
  std::fprintf(stderr, "simulated desktop: %s\n", what.c_str());
  std::abort();
}

} // namespace wayvane::sim
