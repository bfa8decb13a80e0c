# SPDX-FileCopyrightText: 2026 The batchcore developers
# SPDX-License-Identifier: MIT

# Puts PROGRAM into FOLDER, unless it is there already.
cmake_minimum_required(VERSION 3.25)

get_filename_component(name "${PROGRAM}" NAME)
cmake_path(IS_PREFIX FOLDER "${PROGRAM}" NORMALIZE is_there)
if(is_there)
    return()
endif()
if(CMAKE_HOST_WIN32)
    file(COPY "${PROGRAM}" DESTINATION "${FOLDER}")
else()
    file(CREATE_LINK "${PROGRAM}" "${FOLDER}/${name}" SYMBOLIC)
endif()
