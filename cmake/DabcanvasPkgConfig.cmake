# SPDX-License-Identifier: MIT
# A library's file for pkg-config, which names it by its component: dabcanvas-stroke. PUBLIC and PRIVATE are what
# the library links, as dabcanvas_library() has it; users of a static one link both.
function(dabcanvas_pkg_config name component)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "" "PUBLIC;PRIVATE")
    set(links ${arg_PUBLIC})
    set(definitions "")
    if(NOT DABCANVAS_BUILD_SHARED)
        list(APPEND links ${arg_PRIVATE})
        set(definitions " -DDABCANVAS_STATIC")
    endif()

    set(requires "")
    set(others "")
    foreach(link IN LISTS links)
        if(link MATCHES "^Dabcanvas([A-Z].*)$")
            string(TOLOWER ${CMAKE_MATCH_1} below)
            list(APPEND requires "dabcanvas-${below} = ${PROJECT_VERSION}")
        elseif(link MATCHES "^Qt6::(.*)$")
            list(APPEND requires "Qt6${CMAKE_MATCH_1} >= ${DABCANVAS_QT_VERSION}")
        elseif(link MATCHES "^PkgConfig::(.*)$")
            list(APPEND requires ${${CMAKE_MATCH_1}_MODULE_NAME})
        elseif(link STREQUAL "Threads::Threads")
            string(APPEND others " -pthread")
        elseif(NOT link MATCHES "^[$]<BUILD_INTERFACE:")
            string(APPEND others " -l${link}")
        endif()
    endforeach()
    list(JOIN requires ", " requires)

    # The prefix is where the file is found, so that what was installed may be moved.
    set(prefix ${CMAKE_INSTALL_PREFIX})
    set(libdir ${CMAKE_INSTALL_LIBDIR})
    if(NOT IS_ABSOLUTE ${libdir})
        file(RELATIVE_PATH up "/${libdir}/pkgconfig" "/")
        string(REGEX REPLACE "/$" "" up ${up})
        set(prefix "\${pcfiledir}/${up}")
        set(libdir "\${prefix}/${libdir}")
    endif()
    set(includedir ${CMAKE_INSTALL_INCLUDEDIR})
    if(NOT IS_ABSOLUTE ${includedir})
        set(includedir "\${prefix}/${includedir}")
    endif()
    string(TOLOWER ${component} file)
    set(file ${PROJECT_BINARY_DIR}/pkgconfig/dabcanvas-${file}.pc)
    file(GENERATE OUTPUT ${file} CONTENT "prefix=${prefix}
libdir=${libdir}
includedir=${includedir}

Name: Dabcanvas ${component}
Description: ${PROJECT_DESCRIPTION}
Version: ${PROJECT_VERSION}
Requires: ${requires}
Libs: -L\${libdir} -l$<TARGET_FILE_BASE_NAME:${name}>${others}
Cflags: -I\${includedir}/Dabcanvas${definitions}
")
    install(FILES ${file} DESTINATION ${CMAKE_INSTALL_LIBDIR}/pkgconfig)
endfunction()
