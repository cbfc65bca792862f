# SPDX-License-Identifier: MIT
# Pages for man, of the help that a program prints: where it can be run, and the tools are there.
function(dabcanvas_man_pages program component)
    find_program(DABCANVAS_AWK awk)
    find_program(DABCANVAS_GZIP gzip)
    mark_as_advanced(DABCANVAS_AWK DABCANVAS_GZIP)
    if(NOT DABCANVAS_INSTALL OR CMAKE_CROSSCOMPILING OR DABCANVAS_SANITIZE OR DABCANVAS_SANITIZE_THREADS
            OR NOT UNIX OR NOT DABCANVAS_AWK OR NOT DABCANVAS_GZIP)
        return()
    endif()
    set(folder ${PROJECT_BINARY_DIR}/man/${program})
    set(script ${PROJECT_SOURCE_DIR}/packaging/man_pages.sh)
    add_custom_command(OUTPUT ${folder}/${program}.1.gz
        COMMAND ${script} $<TARGET_FILE:${program}> ${folder}
        DEPENDS ${program} ${script} ${PROJECT_SOURCE_DIR}/packaging/man_page.awk
        VERBATIM)
    add_custom_target(${program}_man ALL DEPENDS ${folder}/${program}.1.gz)
    install(DIRECTORY ${folder}/ DESTINATION ${CMAKE_INSTALL_MANDIR}/man1 COMPONENT ${component})
endfunction()
