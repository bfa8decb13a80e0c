# SPDX-FileCopyrightText: 2026 The batchcore developers
# SPDX-License-Identifier: MIT

# The target "apidocs": the API reference as HTML, with the pages of docs/ in it. It is not part of "all", and exists only
# with Doxygen and awk.
find_program(BATCHCORE_DOXYGEN doxygen)
find_program(BATCHCORE_AWK awk)
if(NOT BATCHCORE_DOXYGEN OR NOT BATCHCORE_AWK)
    return()
endif()

set(BATCHCORE_APIDOCS_DIR "${PROJECT_BINARY_DIR}/apidocs")
configure_file("${PROJECT_SOURCE_DIR}/docs/Doxyfile.in" "${PROJECT_BINARY_DIR}/Doxyfile" @ONLY)
add_custom_target(apidocs
    COMMAND ${CMAKE_COMMAND} -E rm -rf "${BATCHCORE_APIDOCS_DIR}"
    COMMAND ${CMAKE_COMMAND} -E make_directory "${BATCHCORE_APIDOCS_DIR}"
    COMMAND ${BATCHCORE_DOXYGEN} "${PROJECT_BINARY_DIR}/Doxyfile"
    COMMAND ${CMAKE_COMMAND} -D "SOURCE_DIR=${PROJECT_SOURCE_DIR}" -D "APIDOCS_DIR=${BATCHCORE_APIDOCS_DIR}/html"
        -P "${PROJECT_SOURCE_DIR}/cmake/check-apidocs.cmake"
    WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
    COMMENT "Writing the API reference to ${BATCHCORE_APIDOCS_DIR}/html"
    VERBATIM)
