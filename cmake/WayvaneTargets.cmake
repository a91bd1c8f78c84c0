# Helpers that make a target of every folder. New source files need no change here: folders are globbed at build time.

function(wayvane_add_subdirectory_if_present folder)
  if(EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/CMakeLists.txt")
    add_subdirectory(${folder})
  endif()
endfunction()

# wayvane_sources(out pattern...): the files that match, watched for additions.
function(wayvane_sources out)
  file(GLOB found CONFIGURE_DEPENDS LIST_DIRECTORIES false ${ARGN})
  set(${out} ${found} PARENT_SCOPE)
endfunction()

# wayvane_folders(out): the folders of the current one, by name.
function(wayvane_folders out)
  file(GLOB entries CONFIGURE_DEPENDS LIST_DIRECTORIES true RELATIVE "${CMAKE_CURRENT_SOURCE_DIR}"
       "${CMAKE_CURRENT_SOURCE_DIR}/*")
  set(folders)
  foreach(entry IN LISTS entries)
    if(IS_DIRECTORY "${CMAKE_CURRENT_SOURCE_DIR}/${entry}")
      list(APPEND folders ${entry})
    endif()
  endforeach()
  set(${out} ${folders} PARENT_SCOPE)
endfunction()

# wayvane_static_library(name SOURCES file... [LINKS target...] [PRIVATE_LINKS target...])
# A static library, or an interface one as long as there are only headers.
function(wayvane_static_library name)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINKS;PRIVATE_LINKS")
  if(arg_SOURCES)
    add_library(${name} STATIC ${arg_SOURCES})
    set(reach PUBLIC)
    target_link_libraries(${name} PRIVATE $<BUILD_INTERFACE:wayvane_warnings> ${arg_PRIVATE_LINKS})
  else()
    add_library(${name} INTERFACE)
    set(reach INTERFACE)
  endif()
  target_compile_features(${name} ${reach} cxx_std_20)
  target_include_directories(${name} ${reach}
    $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}> $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>)
  target_link_libraries(${name} ${reach} ${arg_LINKS})
endfunction()

# wayvane_core_library(folder [LINKS folder...] [PRIVATE_LINKS target...])
# The library of one folder of the core, wayvane_<folder>, made of the .cpp files right in it.
function(wayvane_core_library folder)
  cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LINKS;PRIVATE_LINKS")
  wayvane_sources(sources "${CMAKE_CURRENT_SOURCE_DIR}/*.cpp")
  list(TRANSFORM arg_LINKS PREPEND wayvane_)
  wayvane_static_library(wayvane_${folder} SOURCES ${sources} LINKS ${arg_LINKS} PRIVATE_LINKS ${arg_PRIVATE_LINKS})
endfunction()
