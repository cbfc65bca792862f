# SPDX-License-Identifier: MIT
# Builds for 64-bit Windows with Debian's MinGW; what it makes runs under Wine where there is one.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(CMAKE_C_COMPILER x86_64-w64-mingw32-gcc-posix)  # for what others have sources in C of
set(CMAKE_CXX_COMPILER x86_64-w64-mingw32-g++-posix)
set(CMAKE_RC_COMPILER x86_64-w64-mingw32-windres)
# Nothing is taken from the machine that builds but what is headers alone, which is named below and on the command line.
set(CMAKE_FIND_ROOT_PATH /usr/x86_64-w64-mingw32)
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
set(CMAKE_DISABLE_FIND_PACKAGE_PkgConfig ON)
# One file that needs no library of the compiler's beside it.
set(CMAKE_EXE_LINKER_FLAGS_INIT -static)
find_program(DABCANVAS_WINE NAMES wine64 wine)
if(DABCANVAS_WINE)
    set(CMAKE_CROSSCOMPILING_EMULATOR ${DABCANVAS_WINE})
endif()
