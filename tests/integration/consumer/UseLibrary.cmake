# SPDX-FileCopyrightText: 2026 The batchcore developers
# SPDX-License-Identifier: MIT

# Builds the project in project/ with the library, in the way that WAY names, and runs its program.

function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGV}\n${output}\nended with ${result}")
    endif()
endfunction()

# Private classes must not be exported, because they change without notice. The names are mangled: "7Private" is the
# nested class Private, "4Send" the method Send.
set(private_names "7Private|ZTFrameReader|ZTDiagnostics|ZTHandOver|ZTSocketMove")

function(check_exports prefix)
    file(GLOB_RECURSE library "${prefix}/*/libbatchcore.so")
    if(NOT library)
        return()
    endif()
    execute_process(COMMAND "${NM}" --dynamic --defined-only ${library}
        OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "[^\n]*(${private_names})[^\n]*" leaks "${symbols}")
    if(leaks OR NOT symbols MATCHES "13ZTPipeSession4Send")
        message(FATAL_ERROR "Exported from ${library}: ${leaks}")
    endif()
endfunction()

# The command finds the presets that are installed with it.
function(check_presets prefix)
    file(GLOB_RECURSE library "${prefix}/*/libbatchcore.so")
    get_filename_component(libraries "${library}" DIRECTORY)
    execute_process(
        COMMAND ${CMAKE_COMMAND} -E env "LD_LIBRARY_PATH=${libraries}"
            "${prefix}/${PROGRAM_FOLDER}/velkora-batch" presets --settings "${prefix}/none" --json
        OUTPUT_VARIABLE presets COMMAND_ERROR_IS_FATAL ANY)
    if(NOT presets MATCHES "\"${prefix}/share/velkora-batch/presets/web.xml\"")
        message(FATAL_ERROR "The presets are: ${presets}")
    endif()
endfunction()

# On Windows a library exports only what is marked: every exported name belongs to a public class.
function(check_dll_exports library expected)
    execute_process(COMMAND "${OBJDUMP}" -p "${library}" OUTPUT_VARIABLE description COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX REPLACE ".*Name Pointer\\] Table\n" "" table "${description}")
    string(REGEX REPLACE "\n\n.*" "" table "${table}")
    string(REGEX MATCHALL "_Z[A-Za-z0-9_]+" symbols "${table}")
    set(strangers "${symbols}")
    list(FILTER strangers EXCLUDE REGEX "[0-9](BatchNodeData|TreeNode|Z[TV][A-Z])")
    set(leaks "${symbols}")
    list(FILTER leaks INCLUDE REGEX "(${private_names})")
    if(strangers OR leaks OR NOT "${symbols}" MATCHES "${expected}")
        message(FATAL_ERROR "Exported from ${library}: ${strangers} ${leaks} of ${symbols}")
    endif()
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
set(options
    -G "${GENERATOR}"
    -D CMAKE_BUILD_TYPE=Debug
    -D CMAKE_CXX_COMPILER_LAUNCHER=${CXX_COMPILER_LAUNCHER})
if(TOOLCHAIN_FILE)
    list(APPEND options -D CMAKE_TOOLCHAIN_FILE=${TOOLCHAIN_FILE} -D BATCHCORE_QT_MINGW=${QT_MINGW})
    # The folder of its libraries, as a native path.
    string(REPLACE "/" "\\" libraries "Z:${WORK_DIR}/installed/${PROGRAM_FOLDER};Z:${WORK_DIR}/build/batchcore/bin")
    set(ENV{WINEPATH} "${libraries}")
else()
    list(APPEND options -D CMAKE_CXX_COMPILER=${CXX_COMPILER})
endif()
if(WAY STREQUAL "package")
    run(${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${WORK_DIR}/installed")
    list(APPEND options -D CMAKE_PREFIX_PATH=${WORK_DIR}/installed)
    if(TOOLCHAIN_FILE)
        list(APPEND options -D batchcore_DIR=${WORK_DIR}/installed/lib/cmake/batchcore)
        check_dll_exports("${WORK_DIR}/installed/${PROGRAM_FOLDER}/batchcore.dll" "13ZTPipeSession4Send")
        check_dll_exports("${WORK_DIR}/installed/${PROGRAM_FOLDER}/velkoracore.dll" "14ZVFileBookmark")
        check_dll_exports("${WORK_DIR}/installed/${PROGRAM_FOLDER}/velkorastylecore.dll" "7ZTStyle12AppendEffect")
        check_dll_exports("${WORK_DIR}/installed/${PROGRAM_FOLDER}/velkorautils.dll" "13ZTIDContainer12UnregisterID")
    else()
        check_exports("${WORK_DIR}/installed")
        check_presets("${WORK_DIR}/installed")
    endif()
else()
    list(APPEND options -D BATCHCORE_SOURCE_DIR=${SOURCE_DIR} "-D BATCHCORE_SANITIZERS=${SANITIZERS}")
endif()
if(WAY STREQUAL "replacement")
    list(APPEND options -D WITH_OWN_LIBRARIES=ON)
endif()
if(SANITIZERS)
    list(JOIN SANITIZERS "," sanitizers)
    list(APPEND options -D CMAKE_CXX_FLAGS=-fsanitize=${sanitizers})
endif()

run(${CMAKE_COMMAND} -S "${SOURCE_DIR}/tests/integration/consumer/project" -B "${WORK_DIR}/build" ${options})
run(${CMAKE_COMMAND} --build "${WORK_DIR}/build" --target consumer)
find_program(consumer NAMES consumer consumer.exe PATHS "${WORK_DIR}/build" "${WORK_DIR}/build/bin" NO_DEFAULT_PATH
    REQUIRED)
run(${EMULATOR} "${consumer}")
