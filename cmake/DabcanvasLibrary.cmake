# SPDX-License-Identifier: MIT
include(${CMAKE_CURRENT_LIST_DIR}/DabcanvasPkgConfig.cmake)

# A library of rooms. Its objects are compiled once, for three who link them: the library itself, whose names are hidden
# but for what Maths/Export.h marks; and NAMEInside, a static library for the tests, which reach everything.
# Headers that match INSIDE are the library's own business: they are not installed. VARIABLES are what it exports that is
# no function: programs may have a copy of them, so that the library must look them up as programs do. HEADERS of rooms
# further up are installed with it.
function(dabcanvas_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "EXPORT;INSIDE" "ROOMS;HEADERS;PUBLIC;PRIVATE;VARIABLES")
    string(TOUPPER ${arg_EXPORT} upper)
    if(DEFINED DABCANVAS_HAS_${upper} AND NOT DABCANVAS_HAS_${upper})
        return()
    endif()
    set(sources)
    foreach(room IN LISTS arg_ROOMS)
        file(GLOB room_sources CONFIGURE_DEPENDS ${room}/*.cpp)
        file(GLOB room_headers CONFIGURE_DEPENDS ${room}/*.h)
        list(APPEND sources ${room_sources} ${room_headers})
        if(arg_INSIDE)
            list(FILTER room_headers EXCLUDE REGEX ${arg_INSIDE})
        endif()
        if(DABCANVAS_INSTALL)
            install(FILES ${room_headers} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/Dabcanvas/${room})
        endif()
    endforeach()
    foreach(header IN LISTS arg_HEADERS)
        if(DABCANVAS_INSTALL)
            cmake_path(GET header PARENT_PATH room)
            install(FILES ${header} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/Dabcanvas/${room})
        endif()
    endforeach()

    add_library(${name}Objects OBJECT ${sources})
    target_compile_definitions(${name}Objects PRIVATE DABCANVAS_BUILDING_${upper})
    target_include_directories(${name}Objects PRIVATE ${CMAKE_CURRENT_SOURCE_DIR})
    target_compile_features(${name}Objects PUBLIC cxx_std_20)
    target_link_libraries(${name}Objects PRIVATE ${arg_PUBLIC} ${arg_PRIVATE} dabcanvas_options)

    set(public ${arg_PUBLIC})
    if(DABCANVAS_BUILD_SHARED)
        dabcanvas_library_of_objects(${name} SHARED "${arg_PUBLIC}" "${arg_PRIVATE}")
        list(TRANSFORM arg_PUBLIC REPLACE "^Dabcanvas.*" "\\0Inside")
        dabcanvas_library_of_objects(${name}Inside STATIC "${arg_PUBLIC}" "${arg_PRIVATE}")
        set_target_properties(${name}Inside PROPERTIES EXCLUDE_FROM_ALL ON)
        dabcanvas_bind_inside(${name} "${arg_VARIABLES}")
    else()
        target_compile_definitions(${name}Objects PRIVATE DABCANVAS_STATIC)
        dabcanvas_library_of_objects(${name} STATIC "${arg_PUBLIC}" "${arg_PRIVATE}")
        add_library(${name}Inside ALIAS ${name})
    endif()

    add_library(Dabcanvas::${arg_EXPORT} ALIAS ${name})
    set_target_properties(${name} PROPERTIES EXPORT_NAME ${arg_EXPORT}
        VERSION ${DABCANVAS_ABI}.${PROJECT_VERSION_MINOR}.${PROJECT_VERSION_PATCH} SOVERSION ${DABCANVAS_ABI}
        INSTALL_RPATH "$<IF:$<PLATFORM_ID:Darwin>,@loader_path,$ORIGIN>")
    # Those that stand on Qt name it, so that they can stand beside ones that stand on another.
    foreach(below IN LISTS public)
        set(name_below "")
        if(TARGET ${below})
            get_target_property(name_below ${below} OUTPUT_NAME)
        endif()
        if(below MATCHES "^Qt6::" OR name_below MATCHES "-qt6$")
            set_target_properties(${name} PROPERTIES OUTPUT_NAME ${name}-qt6)
        endif()
    endforeach()
    if(DABCANVAS_INSTALL)
        install(TARGETS ${name} EXPORT Dabcanvas${arg_EXPORT}Targets
            RUNTIME DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT Runtime
            LIBRARY DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Runtime NAMELINK_COMPONENT Development
            ARCHIVE DESTINATION ${CMAKE_INSTALL_LIBDIR} COMPONENT Development)
        dabcanvas_pkg_config(${name} ${arg_EXPORT} PUBLIC ${public} PRIVATE ${arg_PRIVATE})
    endif()
endfunction()

function(dabcanvas_library_of_objects name kind public private)
    string(REGEX REPLACE "Inside$" "" objects ${name})
    add_library(${name} ${kind} $<TARGET_OBJECTS:${objects}Objects>)
    set_target_properties(${name} PROPERTIES LINKER_LANGUAGE CXX)
    target_compile_features(${name} PUBLIC cxx_std_20)
    target_include_directories(${name} PUBLIC $<BUILD_INTERFACE:${CMAKE_CURRENT_SOURCE_DIR}>)
    if(DABCANVAS_INSTALL)
        target_include_directories(${name} INTERFACE $<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}/Dabcanvas>)
    endif()
    target_link_libraries(${name} PUBLIC ${public} PRIVATE ${private} $<BUILD_INTERFACE:dabcanvas_options>)
    if(kind STREQUAL "STATIC")
        target_compile_definitions(${name} INTERFACE DABCANVAS_STATIC)
    endif()
endfunction()

# Binds the library's calls of its own functions when it is linked: a host's class of the same name stays the host's.
function(dabcanvas_bind_inside name variables)
    if(NOT UNIX OR APPLE)
        return()  # where libraries do so by themselves
    endif()
    set(list ${CMAKE_CURRENT_BINARY_DIR}/${name}.list)
    list(APPEND variables none_else)
    list(JOIN variables "; " text)
    file(CONFIGURE OUTPUT ${list} CONTENT "{ ${text}; };\n" @ONLY)
    target_link_options(${name} PRIVATE LINKER:--dynamic-list=${list})
    set_property(TARGET ${name} APPEND PROPERTY LINK_DEPENDS ${list})
endfunction()
