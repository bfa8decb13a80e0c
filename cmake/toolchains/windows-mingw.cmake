# SPDX-FileCopyrightText: 2026 The batchcore developers
# SPDX-License-Identifier: MIT

# Windows on x86-64, built on Debian with mingw-w64 and run under Wine. BATCHCORE_QT_MINGW is the folder of a Qt for that
# target; scripts/windows puts one in place and uses the preset "windows-release", which names it. BATCHCORE_IMAGING_MINGW is
# that of the libraries of the picture worker; without it no worker can be built.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(triple x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${triple}-g++-posix)
set(CMAKE_RC_COMPILER ${triple}-windres)

if(NOT EXISTS "${BATCHCORE_QT_MINGW}/lib/cmake/Qt5Core")
    message(FATAL_ERROR "BATCHCORE_QT_MINGW is \"${BATCHCORE_QT_MINGW}\", which holds no Qt 5 for Windows. "
        "scripts/windows gets one.")
endif()
list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES BATCHCORE_QT_MINGW BATCHCORE_IMAGING_MINGW)

# Programs are the building machine's, all else is the target's.
set(CMAKE_FIND_ROOT_PATH "${BATCHCORE_QT_MINGW}" ${BATCHCORE_IMAGING_MINGW} "/usr/${triple}")
list(APPEND CMAKE_PREFIX_PATH "${BATCHCORE_QT_MINGW}")
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

# Nothing of the building machine's.
set(ENV{PKG_CONFIG_LIBDIR} "${BATCHCORE_IMAGING_MINGW}/lib/pkgconfig")
set(ENV{PKG_CONFIG_PATH} "")

# A package of nothing but programs, so it is the building machine's too.
file(GLOB Qt5LinguistTools_DIR "/usr/lib/*-linux-gnu/cmake/Qt5LinguistTools")
# For packages of nothing but headers, which serve every target.
list(APPEND CMAKE_MODULE_PATH "${CMAKE_CURRENT_LIST_DIR}/modules")

set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../../scripts/run-in-wine"
    "${BATCHCORE_QT_MINGW}:${BATCHCORE_IMAGING_MINGW}")
