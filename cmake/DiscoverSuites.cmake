# SPDX-License-Identifier: MIT
# dabcanvas_discover_suites(target [TIMEOUT seconds] [ENVIRONMENT name=value ...] [ALSO suffix name=value])
#
# Registers a GoogleTest program with ctest by test suite, asking the program for its suites once it is built. A
# suite of many cases becomes several tests, so that they spread over the cores. For programs whose start costs
# more than most of their cases do, as that of an OpenGL driver; a failing case is named in the test's output.
#
# ALSO registers all of them once more, as target.suffix.suite, with one more variable in their environment.
# A skipped case makes its test fail: ctest could not show it beside the others of its suite that ran.
set(DABCANVAS_LIST_SUITES ${CMAKE_CURRENT_LIST_DIR}/ListSuites.cmake)

function(dabcanvas_discover_suites target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "TIMEOUT" "ENVIRONMENT;ALSO")
    set(listed ${CMAKE_CURRENT_BINARY_DIR}/${target}_suites.cmake)
    set(included ${CMAKE_CURRENT_BINARY_DIR}/${target}_include.cmake)
    add_custom_command(TARGET ${target} POST_BUILD VERBATIM BYPRODUCTS ${listed}
        COMMAND ${CMAKE_COMMAND} -D "PROGRAM=$<TARGET_FILE:${target}>" -D "NAME=${target}" -D "OUTPUT=${listed}"
            -D "TIMEOUT=${arg_TIMEOUT}" -D "ENVIRONMENT=${arg_ENVIRONMENT}" -D "ALSO=${arg_ALSO}" -P ${DABCANVAS_LIST_SUITES})
    file(WRITE ${included}
        "if(EXISTS \"${listed}\")\n  include(\"${listed}\")\nelse()\n  add_test(${target}_NOT_BUILT ${target}_NOT_BUILT)\nendif()\n")
    set_property(DIRECTORY APPEND PROPERTY TEST_INCLUDE_FILES ${included})
endfunction()
