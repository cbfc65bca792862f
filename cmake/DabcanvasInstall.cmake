# SPDX-License-Identifier: MIT
# What find_package(Dabcanvas) reads. The libraries, their headers and resources are installed where they are made.
include(CMakePackageConfigHelpers)

# Each stands on those before it, but for View and Quick, which both stand on Canvas.
set(all_components Stroke Shapes Dabs Processor Brushes Render Canvas Recording View Quick)
set(components "")
foreach(component IN LISTS all_components)
    string(TOUPPER ${component} upper)
    if(NOT DEFINED DABCANVAS_HAS_${upper} OR DABCANVAS_HAS_${upper})
        list(APPEND components ${component})
    endif()
endforeach()
list(JOIN all_components " " DABCANVAS_ALL_COMPONENTS)
list(JOIN components " " DABCANVAS_COMPONENTS)
set(package_folder ${CMAKE_INSTALL_LIBDIR}/cmake/Dabcanvas)
set(DABCANVAS_NEEDS_THREADS OFF)
set(DABCANVAS_NEEDS_LZ4 OFF)
set(DABCANVAS_NEEDS_ZLIB OFF)
set(DABCANVAS_NEEDS_HIGHWAY OFF)
if(NOT DABCANVAS_BUILD_SHARED)
    set(DABCANVAS_NEEDS_THREADS ON)
    set(DABCANVAS_NEEDS_LZ4 ${lz4_FOUND})
    set(DABCANVAS_NEEDS_ZLIB ${zlib_FOUND})
    set(DABCANVAS_NEEDS_HIGHWAY ${hwy_FOUND})
endif()
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/DabcanvasConfig.cmake.in
    ${PROJECT_BINARY_DIR}/DabcanvasConfig.cmake INSTALL_DESTINATION ${package_folder})
# Before 1.0 a minor version may change the interface.
write_basic_package_version_file(${PROJECT_BINARY_DIR}/DabcanvasConfigVersion.cmake COMPATIBILITY SameMinorVersion)

foreach(component IN LISTS components)
    install(EXPORT Dabcanvas${component}Targets NAMESPACE Dabcanvas:: DESTINATION ${package_folder})
endforeach()
install(FILES ${PROJECT_BINARY_DIR}/DabcanvasConfig.cmake ${PROJECT_BINARY_DIR}/DabcanvasConfigVersion.cmake
    DESTINATION ${package_folder})
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE ${PROJECT_SOURCE_DIR}/CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR} COMPONENT Documents)
if(DABCANVAS_HAS_CANVAS)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/samples/brushes ${PROJECT_SOURCE_DIR}/samples/palettes DESTINATION ${CMAKE_INSTALL_DATADIR}/dabcanvas COMPONENT Brushes)
endif()
