# For hosts: find_package(Wayvane) with Wayvane::Core, and Wayvane::Qt where it was built; for those without CMake
# the same two as the pkg-config packages wayvane-core and wayvane-qt.
include(CMakePackageConfigHelpers)

set(destination "${CMAKE_INSTALL_LIBDIR}/cmake/Wayvane")
set(targets wayvane_core)
if(WAYVANE_QT)
  list(APPEND targets wayvane_qt)
endif()

install(TARGETS ${targets} EXPORT WayvaneTargets)
install(EXPORT WayvaneTargets NAMESPACE Wayvane:: DESTINATION "${destination}")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/wayvane" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
  FILES_MATCHING PATTERN "*.h" PATTERN "macos" EXCLUDE)

configure_package_config_file("${PROJECT_SOURCE_DIR}/cmake/WayvaneConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/WayvaneConfig.cmake" INSTALL_DESTINATION "${destination}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/WayvaneConfigVersion.cmake" COMPATIBILITY SameMinorVersion)
install(FILES "${PROJECT_BINARY_DIR}/WayvaneConfig.cmake" "${PROJECT_BINARY_DIR}/WayvaneConfigVersion.cmake"
  DESTINATION "${destination}")

# The .pc files find the rest from where they lie, so that an installed tree may be moved.
set(packages core)
if(WAYVANE_QT)
  list(APPEND packages qt)
endif()
file(RELATIVE_PATH up_to_prefix "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
foreach(package IN LISTS packages)
  configure_file("${PROJECT_SOURCE_DIR}/cmake/wayvane-${package}.pc.in" "${PROJECT_BINARY_DIR}/wayvane-${package}.pc" @ONLY)
  install(FILES "${PROJECT_BINARY_DIR}/wayvane-${package}.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
endforeach()
