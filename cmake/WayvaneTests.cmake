find_package(GTest REQUIRED)
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

# wayvane_test_environment(test... [XCB]): the same surroundings for every test that opens real windows, whoever runs it.
function(wayvane_test_environment)
  cmake_parse_arguments(PARSE_ARGV 0 arg "XCB" "" "")
  set(home "${PROJECT_BINARY_DIR}/home")
  file(MAKE_DIRECTORY ${home}/config ${home}/data ${home}/cache ${home}/state ${home}/runtime)
  file(CHMOD ${home}/runtime PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE)
  set(platform "offscreen:configfile=${wayvane_offscreen_config}")
  if(arg_XCB)
    set(platform xcb)
  endif()
  set_tests_properties(${arg_UNPARSED_ARGUMENTS} PROPERTIES
    TIMEOUT ${wayvane_test_timeout}
    ENVIRONMENT_MODIFICATION "QT_QPA_PLATFORM=set:${platform};QT_QPA_PLATFORMTHEME=unset:;QT_STYLE_OVERRIDE=set:fusion;\
QT_ACCESSIBILITY=set:1;QT_SCALE_FACTOR=unset:;QT_PLUGIN_PATH=unset:;QT_LOGGING_RULES=unset:;\
WAYLAND_DISPLAY=unset:;XDG_CURRENT_DESKTOP=unset:;DBUS_SESSION_BUS_ADDRESS=set:unix:path=/dev/null;\
LC_ALL=set:C.UTF-8;LANG=set:C.UTF-8;LANGUAGE=unset:;TZ=set:UTC;\
XDG_CONFIG_HOME=set:${home}/config;XDG_DATA_HOME=set:${home}/data;XDG_CACHE_HOME=set:${home}/cache;\
XDG_STATE_HOME=set:${home}/state;XDG_RUNTIME_DIR=set:${home}/runtime;\
LSAN_OPTIONS=set:suppressions=${PROJECT_SOURCE_DIR}/tests/leaks-of-others.txt")
endfunction()

# wayvane_add_test(name target label [XCB]): one executable, one test. Under xcb it gets an X server of its own.
function(wayvane_add_test name target label)
  set(command $<TARGET_FILE:${target}>)
  if("XCB" IN_LIST ARGN)
    add_test(NAME ${name} COMMAND xvfb-run -a -s "-screen 0 1920x1200x24" ${command})
  else()
    add_test(NAME ${name} COMMAND ${command})
  endif()
  set_tests_properties(${name} PROPERTIES LABELS ${label} TIMEOUT ${wayvane_test_timeout})
  if(label STREQUAL "live")
    # Real time passes in these: they get the machine to themselves.
    wayvane_test_environment(${name} ${ARGN})
    set_tests_properties(${name} PROPERTIES RUN_SERIAL ON)
  endif()
endfunction()

# wayvane_test_executable(name SOURCES file... LINKS target...)
function(wayvane_test_executable name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS")
  add_executable(${name} ${arg_SOURCES})
  # The folder's own libraries come first: a main() of theirs wins over the plain one of the test support.
  target_link_libraries(${name} PRIVATE ${arg_LINKS} wayvane_test_support GTest::gmock wayvane_warnings)
  target_compile_definitions(${name} PRIVATE WAYVANE_TESTS_DIR="${PROJECT_SOURCE_DIR}/tests")
endfunction()
