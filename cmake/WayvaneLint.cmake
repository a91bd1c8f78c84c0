# Targets "format" and "format-check", and the ground for clang-tidy (preset "tidy").
if(NOT PROJECT_IS_TOP_LEVEL)
  return()
endif()

# What moc and rcc write into the build folder is not ours to tidy; clang-tidy wants at least one check, though.
file(WRITE "${PROJECT_BINARY_DIR}/.clang-tidy" "Checks: '-*,misc-definitions-in-headers'\n")

find_program(WAYVANE_CLANG_FORMAT NAMES clang-format-14 clang-format)
if(WAYVANE_CLANG_FORMAT)
  foreach(way "format -i" "format-check --dry-run -Werror")
    separate_arguments(way)
    list(POP_FRONT way name)
    add_custom_target(${name}
      COMMAND sh -c "git ls-files -z '*.h' '*.cpp' | xargs -0 \"$@\"" -- ${WAYVANE_CLANG_FORMAT} ${way}
      WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}" VERBATIM)
  endforeach()
endif()
