# SPDX-FileCopyrightText: 2026 The batchcore developers
# SPDX-License-Identifier: MIT

# batchcore_place_server(HOST): puts the programs of the server beside the executable HOST whenever that is built, because
# the library starts the server from the folder of the host's executable.
#
# The programs are those of this build if it has them, else those of the installed package. They come as symbolic links,
# on Windows as copies. Whoever installs HOST puts them, or links to them, beside it there as well.
function(batchcore_place_server host)
    foreach(program IN ITEMS VelkoraBatchProcessing VelkoraBatchWorker)
        if(TARGET ${program})
            set(file "$<TARGET_FILE:${program}>")
            add_dependencies(${host} ${program})
        else()
            find_program(BATCHCORE_${program} ${program} HINTS "${batchcore_BINDIR}" REQUIRED)
            set(file "${BATCHCORE_${program}}")
        endif()
        add_custom_command(TARGET ${host} POST_BUILD
            COMMAND ${CMAKE_COMMAND} -D "PROGRAM=${file}" -D "FOLDER=$<TARGET_FILE_DIR:${host}>"
                -P "${CMAKE_CURRENT_FUNCTION_LIST_DIR}/batchcorePlaceProgram.cmake"
            VERBATIM)
    endforeach()
endfunction()
