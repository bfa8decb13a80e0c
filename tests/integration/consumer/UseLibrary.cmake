# Builds the project in project/ against the library, in the way that WAY names, and runs what comes out.

function(run)
    execute_process(COMMAND ${ARGV} RESULT_VARIABLE result OUTPUT_VARIABLE output ERROR_VARIABLE output)
    if(NOT result EQUAL 0)
        message(FATAL_ERROR "${ARGV}\n${output}\nended with ${result}")
    endif()
endfunction()

# What is private is not for others to link against: it changes without notice.
function(check_exports prefix)
    file(GLOB_RECURSE library "${prefix}/*/libbatchcore.so")
    if(NOT library)
        return()
    endif()
    execute_process(COMMAND "${NM}" --dynamic --defined-only --demangle ${library}
        OUTPUT_VARIABLE symbols COMMAND_ERROR_IS_FATAL ANY)
    string(REGEX MATCHALL "[^\n]*(::Private|ZTFrameReader|ZTDiagnostics|ZTHandOver)[^\n]*" leaks "${symbols}")
    if(leaks OR NOT symbols MATCHES "ZTPipeSession::Send")
        message(FATAL_ERROR "Exported from ${library}: ${leaks}")
    endif()
endfunction()

file(REMOVE_RECURSE "${WORK_DIR}")
set(options
    -G "${GENERATOR}"
    -D CMAKE_BUILD_TYPE=Debug
    -D CMAKE_CXX_COMPILER=${CXX_COMPILER}
    -D CMAKE_CXX_COMPILER_LAUNCHER=${CXX_COMPILER_LAUNCHER})
if(WAY STREQUAL "package")
    run(${CMAKE_COMMAND} --install "${BUILD_DIR}" --prefix "${WORK_DIR}/installed")
    list(APPEND options -D CMAKE_PREFIX_PATH=${WORK_DIR}/installed)
    check_exports("${WORK_DIR}/installed")
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
find_program(consumer consumer PATHS "${WORK_DIR}/build" "${WORK_DIR}/build/bin" NO_DEFAULT_PATH REQUIRED)
run("${consumer}")
