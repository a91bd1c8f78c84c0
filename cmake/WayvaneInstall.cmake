# find_package(Wayvane) for hosts: Wayvane::Core, and Wayvane::Qt where it was built.
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
