# The warnings that all our own code is compiled with. Headers of others are system headers and stay quiet.
add_library(wayvane_warnings INTERFACE)

target_compile_options(wayvane_warnings INTERFACE
  -Wall -Wextra -Wpedantic
  -Wcast-align -Wconversion -Wdouble-promotion -Wextra-semi -Wformat=2 -Wimplicit-fallthrough
  -Wnon-virtual-dtor -Wold-style-cast -Woverloaded-virtual -Wshadow -Wsuggest-override -Wundef
  -Wno-sign-conversion  # part of -Wconversion for clang only: both compilers are to agree
  $<$<CXX_COMPILER_ID:GNU>:-Wduplicated-branches -Wduplicated-cond -Wlogical-op>
  # GCC 12 reports overlapping copies inside std::string's operator+ where there are none.
  $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>
  $<$<BOOL:${WAYVANE_WERROR}>:-Werror>)

if(WAYVANE_SANITIZE AND CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
  # Sanitized, it loses track of which member of a std::variant is there.
  target_compile_options(wayvane_warnings INTERFACE -Wno-maybe-uninitialized)
endif()
