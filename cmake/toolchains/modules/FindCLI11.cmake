# SPDX-FileCopyrightText: 2026 The batchcore developers
# SPDX-License-Identifier: MIT

# The headers of CLI11 as the building machine has them, in a folder of their own: beside them lie those of its system,
# which are not for this target.
find_path(CLI11_SYSTEM_INCLUDE_DIR CLI/CLI.hpp NO_CMAKE_FIND_ROOT_PATH PATHS /usr/include)
include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(CLI11 REQUIRED_VARS CLI11_SYSTEM_INCLUDE_DIR)
if(CLI11_FOUND AND NOT TARGET CLI11::CLI11)
    set(include_dir "${CMAKE_BINARY_DIR}/headers/cli11")
    file(MAKE_DIRECTORY "${include_dir}")
    file(CREATE_LINK "${CLI11_SYSTEM_INCLUDE_DIR}/CLI" "${include_dir}/CLI" SYMBOLIC)
    add_library(CLI11::CLI11 INTERFACE IMPORTED)
    target_include_directories(CLI11::CLI11 INTERFACE "${include_dir}")
endif()
