# SPDX-FileCopyrightText: 2026 The batchcore developers
# SPDX-License-Identifier: MIT

# Runs the tutorial's program as its user would, and compares its exit codes and what it leaves in the folder.
cmake_minimum_required(VERSION 3.25)

file(REMOVE_RECURSE "${WORK_DIR}")
file(MAKE_DIRECTORY "${WORK_DIR}")
set(ENV{XDG_CONFIG_HOME} "${WORK_DIR}/config")

function(run expected_code answers expected_files)
    file(WRITE "${WORK_DIR}/answers" "${answers}")
    execute_process(
        COMMAND ${EMULATOR} "${PROGRAM}" "${DRIVE}${WORK_DIR}/out" ${ARGN}
        INPUT_FILE "${WORK_DIR}/answers"
        RESULT_VARIABLE code
        OUTPUT_VARIABLE output
        ERROR_VARIABLE output)
    if(NOT code EQUAL expected_code)
        message(FATAL_ERROR "It ended with ${code} instead of ${expected_code} and said:\n${output}")
    endif()
    file(GLOB files RELATIVE "${WORK_DIR}/out" "${WORK_DIR}/out/*")
    list(SORT files)
    if(NOT files STREQUAL expected_files)
        message(FATAL_ERROR "The folder holds ${files} instead of ${expected_files}. The program said:\n${output}")
    endif()
    set(output "${output}" PARENT_SCOPE)
endfunction()

function(expect text)
    string(FIND "${output}" "${text}" position)
    if(position EQUAL -1)
        message(FATAL_ERROR "It did not say \"${text}\", but:\n${output}")
    endif()
endfunction()

set(blur "${DRIVE}${PICTURES}/blur.jpg")
set(sepia "${DRIVE}${PICTURES}/sepia.jpg")

run(0 "" "blur.jpg;sepia.jpg" "${blur}" "${sepia}")
expect("2 of 2")
expect("${blur} -> ${DRIVE}${WORK_DIR}/out/blur.jpg")

run(0 "rename\n" "blur (2).jpg;blur.jpg;sepia (2).jpg;sepia.jpg" "${blur}" "${sepia}")
expect("File name already exists.")

run(1 "skip\n" "blur (2).jpg;blur.jpg;sepia (2).jpg;sepia.jpg" "${blur}")
expect("0 written, 1 skipped, 0 failed")

run(0 "overwrite\n" "blur (2).jpg;blur.jpg;sepia (2).jpg;sepia.jpg" "${blur}")

run(4 "" "blur (2).jpg;blur.jpg;sepia (2).jpg;sepia.jpg" "${blur}")

run(1 "" "blur (2).jpg;blur.jpg;sepia (2).jpg;sepia.jpg" "${DRIVE}${PICTURES}/missing.jpg")
expect("Error reading file.")
