# SPDX-FileCopyrightText: 2026 The batchcore developers
# SPDX-License-Identifier: MIT

# Follows the guide: begins with an empty folder, brings in the sources as they are after each step, and builds them with
# the installed package. Fails when a step does not compile.
cmake_minimum_required(VERSION 3.25)
include("${CMAKE_CURRENT_LIST_DIR}/../documents/GuideSteps.cmake")

function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGV}\n${output}\nended with ${result}")
    endif()
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
run(${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${WORK_DIR}/prefix")
set(options
    -G "${GENERATOR}"
    -D CMAKE_BUILD_TYPE=Debug
    -D CMAKE_PREFIX_PATH=${WORK_DIR}/prefix
    -D CMAKE_CXX_COMPILER=${CXX_COMPILER}
    -D CMAKE_CXX_COMPILER_LAUNCHER=${CXX_COMPILER_LAUNCHER})
set(flags -Wall -Wextra -Werror)
if(SANITIZERS)
    list(JOIN SANITIZERS "," sanitizers)
    list(APPEND flags -fsanitize=${sanitizers})
endif()
list(JOIN flags " " flags)

guide_last_step("${SOURCE_DIR}" last_step)
if(last_step LESS 2)
    message(FATAL_ERROR "${SOURCE_DIR} has no steps: this test does not work.")
endif()
foreach(step RANGE 1 ${last_step})
    guide_files("${SOURCE_DIR}" ${step} files)
    foreach(file IN LISTS files)
        guide_read_step("${SOURCE_DIR}/${file}" ${step} text)
        guide_restore("${text}" text)
        # Only what changes is built anew.
        file(CONFIGURE OUTPUT "${WORK_DIR}/host-window/${file}" CONTENT "${text}" @ONLY)
    endforeach()
    run(${CMAKE_COMMAND} -S "${WORK_DIR}/host-window" -B "${WORK_DIR}/build" ${options} "-DCMAKE_CXX_FLAGS=${flags}")
    run(${CMAKE_COMMAND} --build "${WORK_DIR}/build")
    foreach(program IN ITEMS host-window VelkoraBatchProcessing VelkoraBatchWorker)
        if(NOT EXISTS "${WORK_DIR}/build/${program}")
            message(FATAL_ERROR "After step ${step} there is no ${program}.")
        endif()
    endforeach()
    message(STATUS "Step ${step} is built.")
endforeach()
