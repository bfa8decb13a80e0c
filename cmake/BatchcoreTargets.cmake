# SPDX-FileCopyrightText: 2026 The batchcore developers
# SPDX-License-Identifier: MIT

# The settings that every target of the project shares.

# lld links debug information in a fraction of the time. What is shipped is linked by the system's own linker.
if(CMAKE_BUILD_TYPE STREQUAL "Debug" AND UNIX AND NOT APPLE)
    include(CheckLinkerFlag)
    check_linker_flag(CXX -fuse-ld=lld BATCHCORE_HAS_LLD)
endif()

function(batchcore_target_defaults target)
    set_target_properties(${target} PROPERTIES
        AUTOMOC ON
        CXX_EXTENSIONS OFF
        CXX_VISIBILITY_PRESET hidden
        VISIBILITY_INLINES_HIDDEN ON
        POSITION_INDEPENDENT_CODE ON)
    target_compile_features(${target} PUBLIC cxx_std_17)
    target_compile_definitions(${target} PRIVATE
        QT_NO_KEYWORDS
        QT_NO_CAST_FROM_ASCII
        QT_NO_CAST_TO_ASCII
        QT_NO_URL_CAST_FROM_STRING
        QT_STRICT_ITERATORS)

    if(MSVC)
        target_compile_options(${target} PRIVATE /W4 /utf-8 /permissive- $<$<BOOL:${BATCHCORE_WARNINGS_AS_ERRORS}>:/WX>)
        return()
    endif()

    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic $<IF:$<CXX_COMPILER_ID:GNU>,-Wshadow=local,-Wshadow> -Wformat=2 -Wcast-align
        -Wnon-virtual-dtor -Woverloaded-virtual -Wold-style-cast
        -ffile-prefix-map=${PROJECT_SOURCE_DIR}/=
        $<$<BOOL:${BATCHCORE_WARNINGS_AS_ERRORS}>:-Werror>)
    if(BATCHCORE_HAS_LLD)
        target_link_options(${target} PRIVATE -fuse-ld=lld)
    endif()
    if(BATCHCORE_SANITIZERS)
        list(JOIN BATCHCORE_SANITIZERS "," sanitizers)
        target_compile_options(${target} PRIVATE
            -fsanitize=${sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer)
        target_link_options(${target} PUBLIC -fsanitize=${sanitizers})
    endif()
endfunction()

# What a program needs to find in `folder`, a folder below the prefix, wherever the prefix is moved.
function(batchcore_relative_rpath program folder)
    if(UNIX AND NOT APPLE)
        file(RELATIVE_PATH way "${CMAKE_INSTALL_FULL_BINDIR}" "${CMAKE_INSTALL_PREFIX}/${folder}")
        set_property(TARGET ${program} APPEND PROPERTY INSTALL_RPATH "$ORIGIN/${way}")
    endif()
endfunction()

# The component "product" is what a user needs to run it. scripts/package-windows installs that alone.

# A program of the product: installed, and linked with the libraries beside it.
function(batchcore_program target)
    batchcore_target_defaults(${target})
    if(BATCHCORE_RELOCATABLE)
        batchcore_relative_rpath(${target} "${CMAKE_INSTALL_LIBDIR}")
    endif()
    install(TARGETS ${target} RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT product)
    if(UNIX AND EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/${target}.1")
        install(FILES "${target}.1" DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
    endif()
endfunction()

# An exported shared library of the product: versioned, installed and part of the CMake package.
function(batchcore_shared_library target)
    batchcore_target_defaults(${target})
    add_library(Velkora::${target} ALIAS ${target})
    set_target_properties(${target} PROPERTIES
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR})
    install(TARGETS ${target} EXPORT batchcoreTargets
        RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT product
        LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR}
        ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR}
        INCLUDES DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/batchcore)
    if(WIN32)
        # The same name from every compiler.
        set_target_properties(${target} PROPERTIES PREFIX "")
    elseif(UNIX AND NOT APPLE AND BATCHCORE_RELOCATABLE)
        set_target_properties(${target} PROPERTIES INSTALL_RPATH "$ORIGIN")
    endif()
endfunction()
