# SPDX-FileCopyrightText: 2026 The batchcore developers
# SPDX-License-Identifier: MIT

# batchcore_windows_resources(TARGET DESCRIPTION [ICON FILE]): what Windows reads from a program or a library: its version
# and what it is, of a program also its icon and what it asks of the system. The file has no time of its making. Nothing elsewhere.
#
# The texts are those of the file's properties; the task manager shows the description as the program's name.
function(batchcore_windows_resources target description)
    if(NOT WIN32)
        return()
    endif()
    cmake_parse_arguments(arg "" "ICON" "" ${ARGN})
    set(parts "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/windows")
    get_target_property(type ${target} TYPE)
    set(more_resources "")
    if(type STREQUAL "EXECUTABLE")
        set(file_type VFT_APP)
        set(extension ".exe")
        # 1 as the number of a manifest is that of a program, and 24 the kind of a manifest.
        string(APPEND more_resources "1 24 \"${parts}/program.manifest\"\n")
    else()
        set(file_type VFT_DLL)
        set(extension ".dll")
    endif()
    if(arg_ICON)
        string(APPEND more_resources "1 ICON \"${arg_ICON}\"\n")
    endif()
    get_target_property(file_name ${target} OUTPUT_NAME)
    if(NOT file_name)
        set(file_name ${target})
    endif()
    string(APPEND file_name "${extension}")
    set(resources "${CMAKE_CURRENT_BINARY_DIR}/${target}.rc")
    configure_file("${parts}/resources.rc.in" "${resources}" @ONLY)
    set_property(SOURCE "${resources}" PROPERTY OBJECT_DEPENDS
        "${parts}/program.manifest" ${arg_ICON})
    target_sources(${target} PRIVATE "${resources}")
    if(NOT MSVC)
        # The same build makes the same file.
        target_link_options(${target} PRIVATE LINKER:--no-insert-timestamp)
    endif()
endfunction()
