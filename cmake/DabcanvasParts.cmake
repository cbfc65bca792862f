# SPDX-License-Identifier: MIT
# The parts that can be built or left out, and what each stands on. Stroke is always there; so are those that need
# nothing else.

# Looks for everything; what is not there only costs the parts that need it.
set(DABCANVAS_QT_VERSION 6.4)
find_package(Qt6 ${DABCANVAS_QT_VERSION} QUIET COMPONENTS Core Gui)
if(TARGET Qt6::Gui)
    find_package(Qt6 ${DABCANVAS_QT_VERSION} QUIET COMPONENTS Widgets)
endif()
find_package(Eigen3 3.3 QUIET NO_MODULE)
find_package(Threads)
find_package(CLI11 2.1 QUIET)
find_package(nlohmann_json 3.9 QUIET)
find_package(PkgConfig)
if(PkgConfig_FOUND)
    pkg_check_modules(epoxy QUIET IMPORTED_TARGET epoxy)
    pkg_check_modules(hwy QUIET IMPORTED_TARGET libhwy)
    pkg_check_modules(xxhash QUIET IMPORTED_TARGET libxxhash)  # its header alone, compiled in
    if(DABCANVAS_WITH_LZ4)
        pkg_check_modules(lz4 IMPORTED_TARGET liblz4)
    endif()
endif()

# Where Highway is not packed for the machine that is built for, its headers do. They are linked to from a folder of their
# own, as beside them there may be another machine's.
if(DABCANVAS_HIGHWAY_HEADERS)
    file(MAKE_DIRECTORY ${PROJECT_BINARY_DIR}/highway)
    file(CREATE_LINK ${DABCANVAS_HIGHWAY_HEADERS}/hwy ${PROJECT_BINARY_DIR}/highway/hwy SYMBOLIC COPY_ON_ERROR)
    add_library(dabcanvas_highway INTERFACE)
    target_include_directories(dabcanvas_highway SYSTEM INTERFACE ${PROJECT_BINARY_DIR}/highway)
    target_compile_definitions(dabcanvas_highway INTERFACE HWY_COMPILE_ONLY_STATIC)
    set(highway dabcanvas_highway)
else()
    set(highway PkgConfig::hwy)
endif()

# A part is ON, OFF, or AUTO: built where all that it stands on is to be had. DABCANVAS_HAS_... says what came of it.
#   ONLY_WITH  the option without which AUTO is OFF
#   PARTS      other parts that it stands on
#   TARGETS    what find_package() or pkg-config must have found
function(dabcanvas_part part about)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "ONLY_WITH" "PARTS;TARGETS")
    set(DABCANVAS_BUILD_${part} AUTO CACHE STRING "Build ${about}: ON, OFF, or AUTO, where it can be")
    set_property(CACHE DABCANVAS_BUILD_${part} PROPERTY STRINGS AUTO ON OFF)
    set(wanted ${DABCANVAS_BUILD_${part}})
    set(missing "")
    foreach(below IN LISTS arg_PARTS)
        if(NOT DABCANVAS_HAS_${below})
            list(APPEND missing DABCANVAS_BUILD_${below})
        endif()
    endforeach()
    foreach(target IN LISTS arg_TARGETS)
        if(NOT TARGET ${target})
            list(APPEND missing ${target})
        endif()
    endforeach()
    list(JOIN missing ", " missing)
    set(has OFF)
    if(wanted STREQUAL "AUTO")
        if(arg_ONLY_WITH AND NOT ${arg_ONLY_WITH})
            # which is nothing to be told
        elseif(missing)
            message(STATUS "Dabcanvas without ${about}, for want of ${missing}")
        else()
            set(has ON)
        endif()
    elseif(wanted)
        if(missing)
            message(FATAL_ERROR "DABCANVAS_BUILD_${part} is ON, but ${about} needs ${missing}")
        endif()
        set(has ON)
    endif()
    set(DABCANVAS_HAS_${part} ${has} PARENT_SCOPE)
endfunction()

dabcanvas_part(SHAPES "shapes" TARGETS Eigen3::Eigen)
dabcanvas_part(PROCESSOR "painting by the processor" TARGETS ${highway} Threads::Threads)
dabcanvas_part(RENDER "painting by OpenGL" TARGETS Qt6::Gui PkgConfig::epoxy)
set(DABCANVAS_HAS_BRUSHES ${DABCANVAS_HAS_RENDER})
dabcanvas_part(CANVAS "the canvas" PARTS SHAPES PROCESSOR RENDER TARGETS PkgConfig::xxhash)
dabcanvas_part(VIEW "the widget" PARTS CANVAS TARGETS Qt6::Widgets)
dabcanvas_part(TOOL "dabpaint, the command-line tool" ONLY_WITH DABCANVAS_BUILD_APPS
    PARTS CANVAS TARGETS CLI11::CLI11 nlohmann_json::nlohmann_json)
dabcanvas_part(PAINTER "dabpainter, the painting application" ONLY_WITH DABCANVAS_BUILD_APPS PARTS VIEW)

if(DABCANVAS_HAS_CANVAS AND NOT lz4_FOUND)
    message(STATUS "Without liblz4: undo steps stay uncompressed in memory")
endif()
