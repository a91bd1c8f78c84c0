find_package(GTest REQUIRED)

# ccache does better without.
set(pch ON)
if(CMAKE_CXX_COMPILER_LAUNCHER OR CMAKE_CXX_CLANG_TIDY)
  set(pch OFF)
endif()
option(WAYVANE_TEST_PCH "Precompile the headers of GoogleTest for the tests" ${pch})

set(wayvane_test_timeout 300)

# Where programs under test find their screen: one large enough for a main window and its neighbours.
set(wayvane_offscreen_config "${PROJECT_BINARY_DIR}/offscreen.json")
file(CONFIGURE OUTPUT "${wayvane_offscreen_config}" CONTENT [=[
{
  "synchronousWindowSystemEvents": false,
  "windowFrameMargins": true,
  "screens": [
    { "name": "main", "x": 0, "y": 0, "width": 1920, "height": 1200, "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1 }
  ]
}
]=] @ONLY)

# wayvane_test_environment(test [XCB]): the same surroundings for a test that opens real windows, whoever runs it
# and wherever: its own home, no session bus, no desktop settings, and a screen of a known size.
function(wayvane_test_environment test)
  set(platform "offscreen:configfile=${wayvane_offscreen_config}")
  if("XCB" IN_LIST ARGN)
    set(platform xcb)
  endif()
  set(home "${PROJECT_BINARY_DIR}/test-homes/${test}")
  set(environment
    QT_QPA_PLATFORM=set:${platform} QT_STYLE_OVERRIDE=set:fusion QT_ACCESSIBILITY=set:1
    LC_ALL=set:C.UTF-8 LANG=set:C.UTF-8 TZ=set:UTC
    DBUS_SESSION_BUS_ADDRESS=set:unix:path=/dev/null
    HOME=set:${home} XDG_CONFIG_HOME=set:${home}/config XDG_DATA_HOME=set:${home}/data
    XDG_CACHE_HOME=set:${home}/cache XDG_STATE_HOME=set:${home}/state XDG_RUNTIME_DIR=set:${home}/runtime
    # The toolkit and the libraries below it keep memory until the end; a run by hand that looks for leaks
    # all the same passes over those.
    ASAN_OPTIONS=set:detect_leaks=0
    LSAN_OPTIONS=set:suppressions=${PROJECT_SOURCE_DIR}/tests/leaks-of-others.txt)
  foreach(variable QT_QPA_PLATFORMTHEME QT_SCALE_FACTOR QT_FONT_DPI QT_PLUGIN_PATH QT_LOGGING_RULES QT_IM_MODULE
                   WAYLAND_DISPLAY XDG_CURRENT_DESKTOP XDG_SESSION_TYPE XMODIFIERS LANGUAGE)
    list(APPEND environment ${variable}=unset:)
  endforeach()
  set_tests_properties(${test} PROPERTIES TIMEOUT ${wayvane_test_timeout} ENVIRONMENT_MODIFICATION "${environment}")
endfunction()

# wayvane_add_test(name target label [XCB]): one executable is one test. Live ones see their environment fresh in every
# run, and under xcb an X server of their own.
function(wayvane_add_test name target label)
  set(command $<TARGET_FILE:${target}>)
  if("XCB" IN_LIST ARGN)
    list(PREPEND command xvfb-run -a -s "-screen 0 1920x1200x24")
  endif()
  if(label STREQUAL "live")
    list(PREPEND command "${PROJECT_SOURCE_DIR}/tests/support/in-fresh-home")
  endif()
  add_test(NAME ${name} COMMAND ${command})
  set_tests_properties(${name} PROPERTIES LABELS ${label} TIMEOUT ${wayvane_test_timeout})
  if(label STREQUAL "live")
    wayvane_test_environment(${name} ${ARGN})
    # Real time passes in these: they get the machine to themselves.
    set_tests_properties(${name} PROPERTIES RUN_SERIAL ON)
  endif()
endfunction()

# Compiling a test takes far longer than running it, so what is only test code is not optimized.
function(wayvane_test_compile_options target)
  if(WAYVANE_SANITIZE OR CMAKE_BUILD_TYPE MATCHES "^Rel")
    target_compile_options(${target} PRIVATE -O0)
  endif()
  target_compile_definitions(${target} PRIVATE WAYVANE_TESTS_DIR="${PROJECT_SOURCE_DIR}/tests")
  # One way of addressing for all of them, or they could not share a precompiled header.
  set_target_properties(${target} PROPERTIES POSITION_INDEPENDENT_CODE OFF)
endfunction()

# wayvane_use_test_pch(target [LINKS target...]): the precompiled headers that suit what the target links.
function(wayvane_use_test_pch target)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS")
  if(NOT WAYVANE_TEST_PCH)
    return()
  endif()
  if(NOT arg_LINKS MATCHES "Qt|live")
    target_precompile_headers(${target} REUSE_FROM wayvane_test_support)
  elseif(arg_LINKS MATCHES "wayvane_live_support")
    target_precompile_headers(${target} REUSE_FROM wayvane_live_pch)
  endif()
endfunction()

# wayvane_test_executable(name SOURCES file... LINKS target...)
function(wayvane_test_executable name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_executable(${name} ${arg_SOURCES})
  # The folder's own libraries come first: a main() of theirs wins over the plain one of the test support.
  target_link_libraries(${name} PRIVATE ${arg_LINKS} wayvane_test_support GTest::gmock wayvane_warnings)
  wayvane_test_compile_options(${name})
  wayvane_use_test_pch(${name} LINKS ${arg_LINKS})
endfunction()
