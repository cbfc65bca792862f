# SPDX-License-Identifier: MIT
# The script behind dabcanvas_discover_suites(): writes OUTPUT, which registers PROGRAM's suites as tests NAME.<suite>.
cmake_minimum_required(VERSION 3.25)
set(most_cases 20)  # of one test

# As the tests run: no display is needed to say what there is.
set(ENV{QT_QPA_PLATFORM} offscreen)
execute_process(COMMAND ${PROGRAM} --gtest_list_tests
    OUTPUT_VARIABLE listing ERROR_VARIABLE errors RESULT_VARIABLE result TIMEOUT 60)
if(NOT result EQUAL 0)
    file(REMOVE ${OUTPUT} ${PROGRAM})  # or the next build would take the program for finished
    message(FATAL_ERROR "${PROGRAM} cannot list its tests: ${result}\n${errors}")
endif()

# Suites stand at the start of a line and end in a dot, their cases are indented; values may follow after a #.
# An instance of a parameterised or typed suite ("All/BlendTest.", "MapTest/0.") counts to its suite.
string(REGEX REPLACE "[][;\\]" "?" listing "${listing}")
string(REPLACE "\n" ";" lines "${listing}")
set(suites)
foreach(line IN LISTS lines)
    if(line MATCHES "^([A-Za-z0-9_/]+)[.]( *#.*)?$")
        set(full ${CMAKE_MATCH_1})
        string(REGEX REPLACE "/[0-9]+$" "" suite ${full})
        string(REGEX REPLACE "^.*/" "" suite ${suite})
        if(NOT suite IN_LIST suites)
            list(APPEND suites ${suite})
            set(${suite}_cases 0)
        endif()
        list(APPEND ${suite}_filters ${full}.*)
    elseif(line MATCHES "^  [^ ]" AND NOT line MATCHES "^  DISABLED_" AND NOT full MATCHES "(^|/)DISABLED_")
        math(EXPR ${suite}_cases "${${suite}_cases} + 1")
    endif()
endforeach()
if(NOT suites)
    file(REMOVE ${OUTPUT} ${PROGRAM})
    message(FATAL_ERROR "${PROGRAM} has no tests")
endif()

set(text "")
set(runs ${NAME})
if(ALSO)
    list(GET ALSO 0 suffix)
    list(GET ALSO 1 more)
    list(APPEND runs ${NAME}.${suffix})
    set(environment_of_${NAME}.${suffix} ${more})
endif()
foreach(run IN LISTS runs)
    foreach(suite IN LISTS suites)
        string(REPLACE ";" ":" filter "${${suite}_filters}")
        math(EXPR parts "(${${suite}_cases} + ${most_cases} - 1) / ${most_cases}")
        math(EXPR last "${parts} - 1")
        if(parts EQUAL 0)
            continue()
        endif()
        foreach(part RANGE ${last})
            set(test ${run}.${suite})
            set(environment ${ENVIRONMENT} ${environment_of_${run}})
            if(parts GREATER 1)
                math(EXPR number "${part} + 1")
                string(APPEND test ".${number}of${parts}")
                list(APPEND environment GTEST_TOTAL_SHARDS=${parts} GTEST_SHARD_INDEX=${part})
            endif()
            string(APPEND text
                "add_test([==[${test}]==] [==[${PROGRAM}]==] [==[--gtest_filter=${filter}]==])\n"
                "set_tests_properties([==[${test}]==] PROPERTIES ENVIRONMENT [==[${environment}]==]\n"
                "    TIMEOUT [==[${TIMEOUT}]==] FAIL_REGULAR_EXPRESSION [==[\\[  SKIPPED \\]]==])\n")
        endforeach()
    endforeach()
endforeach()
file(WRITE ${OUTPUT} "${text}")
