# SPDX-License-Identifier: MIT
# Debian packages of what is installed, one a component:
#     cmake --preset packages && cmake --build --preset packages && cpack --preset packages
# Resources are not among them, as the libraries have them inside; a package made this way stands beside other versions'.
set(DABCANVAS_PACKAGE_MAINTAINER "The Dabcanvas authors <dabcanvas@localhost>" CACHE STRING
    "Who is named in packages: Name <address>")

set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME dabcanvas)
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "")  # each package has its own
set(CPACK_PACKAGE_CONTACT ${DABCANVAS_PACKAGE_MAINTAINER})
set(CPACK_OUTPUT_FILE_PREFIX packages)
set(CPACK_STRIP_FILES ON)
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY >=)
set(CPACK_DEBIAN_ENABLE_COMPONENT_DEPENDS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
    WORLD_READ WORLD_EXECUTE)
set(CPACK_PRE_BUILD_SCRIPTS ${CMAKE_CURRENT_LIST_DIR}/DebianDocuments.cmake)
set(CPACK_DABCANVAS_SOURCES ${PROJECT_SOURCE_DIR})
set(CPACK_COMPONENTS_ALL "")

# A package of one component, where anything is installed of it. ON are components that it depends on; ABOUT is laid out as
# lines of at most 78 columns.
get_cmake_property(installed COMPONENTS)
macro(dabcanvas_package component package section)
    cmake_parse_arguments(arg "FOR_EVERY_MACHINE" "SUMMARY;ABOUT;NEEDS;RECOMMENDS" "ON" ${ARGN})
    if(${component} IN_LIST installed)
        list(APPEND CPACK_COMPONENTS_ALL ${component})
        string(TOUPPER ${component} upper)
        set(CPACK_DEBIAN_${upper}_PACKAGE_NAME ${package})
        set(CPACK_DEBIAN_${upper}_PACKAGE_SECTION ${section})
        set(CPACK_COMPONENT_${upper}_DESCRIPTION "${arg_SUMMARY}\n${arg_ABOUT}")
        set(CPACK_COMPONENT_${upper}_DEPENDS ${arg_ON})
        set(CPACK_DEBIAN_${upper}_PACKAGE_DEPENDS "${arg_NEEDS}")
        set(CPACK_DEBIAN_${upper}_PACKAGE_RECOMMENDS "${arg_RECOMMENDS}")
        if(arg_FOR_EVERY_MACHINE)
            set(CPACK_DEBIAN_${upper}_PACKAGE_ARCHITECTURE all)
        endif()
    endif()
endmacro()

set(canvas "drawing canvas with natural-media brushes")
set(about "Dabcanvas is a drawing canvas that an application embeds so that its users
can paint with natural-media brushes: pencils, charcoal, pastels, watercolours
and oils.\n")
set(headers_of "")
if(DABCANVAS_HAS_RENDER)
    set(headers_of "qt6-base-dev (>= ${DABCANVAS_QT_VERSION}), libepoxy-dev")
endif()
dabcanvas_package(Runtime libdabcanvas${DABCANVAS_ABI} libs
    SUMMARY "${canvas} - libraries" ABOUT "${about}These are its shared libraries.")
file(WRITE ${PROJECT_BINARY_DIR}/debian/triggers "activate-noawait ldconfig\n")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA ${PROJECT_BINARY_DIR}/debian/triggers)
dabcanvas_package(Development libdabcanvas-dev libdevel ON Runtime NEEDS "${headers_of}"
    SUMMARY "${canvas} - headers"
    ABOUT "${about}These are its headers, and what CMake and pkg-config find it by.")
dabcanvas_package(Tools dabcanvas-tools graphics ON Runtime RECOMMENDS dabcanvas-brushes
    SUMMARY "paint recorded strokes into pictures"
    ABOUT "dabpaint paints recordings of pen strokes without a display, tells the shapes
that strokes were meant as, and makes, shows and imports presets of brushes.")
dabcanvas_package(Painter dabpainter graphics ON Runtime RECOMMENDS dabcanvas-brushes
    SUMMARY "paint with natural-media brushes"
    ABOUT "A painting application for mouse, pen and finger. A pen's pressure and tilt
shape every stroke, paper fills under pressure, watercolours dry with a dark
rim, and oils take up the colours below and carry them along.")
dabcanvas_package(Brushes dabcanvas-brushes graphics FOR_EVERY_MACHINE
    SUMMARY "natural-media brushes for Dabcanvas"
    ABOUT "Presets of pencils, charcoal, chalk, pastels, crayons, inks, watercolours,
gouache, oils and airbrushes for whatever paints with Dabcanvas.")
dabcanvas_package(Qml qml6-module-dabcanvas libs ON Runtime NEEDS qml6-module-qtquick
    SUMMARY "${canvas} - QML module" ABOUT "${about}This is its module for QML.")
dabcanvas_package(Designer dabcanvas-designer libdevel ON Runtime
    SUMMARY "${canvas} - Qt Designer" ABOUT "${about}This is its plug-in for Qt Designer.")
include(CPack)
