# A stranger's way to a first program: installs what was built, builds the minimal host against that, once with CMake
# and once with nothing but a compiler and pkg-config, and runs both.
set(place "${BUILT}/package")
file(REMOVE_RECURSE "${place}")

function(run)
  execute_process(COMMAND ${ARGV} COMMAND_ERROR_IS_FATAL ANY OUTPUT_QUIET)
endfunction()

# A host that was let in has made the folder for its guides; it runs until it is stopped.
function(expect_guides_folder_of program)
  get_filename_component(name "${program}" NAME)
  set(home "${place}/home-of-${name}")
  file(MAKE_DIRECTORY "${home}")
  execute_process(COMMAND ${CMAKE_COMMAND} -E env QT_QPA_PLATFORM=offscreen "HOME=${home}" "XDG_DATA_HOME=${home}"
      DBUS_SESSION_BUS_ADDRESS=unix:path=/dev/null timeout 4 "${place}/${program}"
    RESULT_VARIABLE result ERROR_VARIABLE errors)
  if(NOT result EQUAL 124)
    message(FATAL_ERROR "${program} ended by itself: ${result} ${errors}")
  endif()
  file(GLOB guides LIST_DIRECTORIES true "${home}/*/Guides")
  if(NOT guides)
    message(FATAL_ERROR "${program} has no folder for guides: ${errors}")
  endif()
endfunction()

run(${CMAKE_COMMAND} --install "${BUILT}" --prefix "${place}/installed")

run(${CMAKE_COMMAND} -S "${HOST}" -B "${place}/host" -G Ninja -DCMAKE_CXX_COMPILER=${COMPILER}
  -DCMAKE_PREFIX_PATH=${place}/installed)
run(${CMAKE_COMMAND} --build "${place}/host")
expect_guides_folder_of(host/minimal)

file(GLOB_RECURSE described "${place}/installed/*/wayvane-qt.pc")
get_filename_component(folder "${described}" DIRECTORY)
set(ENV{PKG_CONFIG_PATH} "${folder}")
find_program(PKG_CONFIG pkg-config REQUIRED)
execute_process(COMMAND "${PKG_CONFIG}" --cflags --libs wayvane-qt
  OUTPUT_VARIABLE flags OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
separate_arguments(flags UNIX_COMMAND "${flags}")
run(${COMPILER} -std=c++20 -fPIC "${HOST}/main.cpp" ${flags} -o "${place}/minimal-by-pkg-config")
expect_guides_folder_of(minimal-by-pkg-config)
