# SPDX-FileCopyrightText: 2026 The batchcore developers
# SPDX-License-Identifier: MIT

# The CMake package: find_package(batchcore) gives Velkora::batchcore and what it stands on.

# It can name what it stands on when that is a part of it or comes from a package. A product that builds its own sibling
# libraries in the same tree gets no package; it installs the whole in its own way.
foreach(sibling IN ITEMS "${BATCHCORE_CORE_TARGET}" "${BATCHCORE_STYLECORE_TARGET}" "${BATCHCORE_UTILS_TARGET}")
    get_target_property(is_imported "${sibling}" IMPORTED)
    if(NOT is_imported AND NOT sibling MATCHES "^Velkora::(core|stylecore|utils)$")
        return()
    endif()
endforeach()

include(CMakePackageConfigHelpers)

set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/batchcore")

configure_package_config_file(
    "${CMAKE_CURRENT_LIST_DIR}/batchcoreConfig.cmake.in"
    "${PROJECT_BINARY_DIR}/batchcoreConfig.cmake"
    INSTALL_DESTINATION "${package_dir}"
    PATH_VARS CMAKE_INSTALL_BINDIR)
write_basic_package_version_file(
    "${PROJECT_BINARY_DIR}/batchcoreConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion)

install(FILES
    "${PROJECT_BINARY_DIR}/batchcoreConfig.cmake"
    "${PROJECT_BINARY_DIR}/batchcoreConfigVersion.cmake"
    "${CMAKE_CURRENT_LIST_DIR}/batchcorePlaceProgram.cmake"
    "${CMAKE_CURRENT_LIST_DIR}/batchcoreServer.cmake"
    DESTINATION "${package_dir}")
# For hosts that are built without CMake.
set(pkgconfig_dir "${CMAKE_INSTALL_LIBDIR}/pkgconfig")
file(RELATIVE_PATH pc_prefix "${CMAKE_INSTALL_PREFIX}/${pkgconfig_dir}" "${CMAKE_INSTALL_PREFIX}")
configure_file("${CMAKE_CURRENT_LIST_DIR}/batchcore.pc.in" "${PROJECT_BINARY_DIR}/batchcore.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/batchcore.pc" DESTINATION "${pkgconfig_dir}")

install(EXPORT batchcoreTargets NAMESPACE Velkora:: DESTINATION "${package_dir}")
