# The CMake package: find_package(batchcore) gives Velkora::batchcore and what it stands on.

include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/batchcore")

configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/batchcoreConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/batchcoreConfig.cmake"
    INSTALL_DESTINATION "${package_dir}")
write_basic_package_version_file(
    "${PROJECT_BINARY_DIR}/batchcoreConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)

install(FILES
    "${PROJECT_BINARY_DIR}/batchcoreConfig.cmake"
    "${PROJECT_BINARY_DIR}/batchcoreConfigVersion.cmake"
    DESTINATION "${package_dir}")
install(EXPORT batchcoreTargets NAMESPACE Velkora:: DESTINATION "${package_dir}")
