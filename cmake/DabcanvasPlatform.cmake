# SPDX-License-Identifier: MIT
# What compilers and systems differ in, as far as the build has to know. What the sources have to: Maths/Export.h (what a
# library exports), LineProcess/SystemRandom.h, ESContext/HostEGL.h, and what Q_OS_UNIX and _WIN32 choose between in History.

set(DABCANVAS_NEAR_THREAD_LOCALS "")
if(MSVC)
    set(DABCANVAS_WARNINGS /W4 /utf-8 $<$<BOOL:${DABCANVAS_WERROR}>:/WX>)
    set(DABCANVAS_EXACT_FLOATS /fp:strict)
else()
    set(DABCANVAS_WARNINGS -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Wimplicit-fallthrough
        $<$<BOOL:${DABCANVAS_WERROR}>:-Werror>)
    set(DABCANVAS_EXACT_FLOATS -ffp-contract=off)
    if(UNIX AND NOT APPLE)
        set(DABCANVAS_NEAR_THREAD_LOCALS -ftls-model=initial-exec)
    endif()
endif()

# The line process has variables that each thread has of its own, which hosts read: no DLL can export such.
if(WIN32 AND DABCANVAS_BUILD_SHARED)
    message(FATAL_ERROR "On Windows the libraries are static: configure with -DDABCANVAS_BUILD_SHARED=OFF")
endif()
