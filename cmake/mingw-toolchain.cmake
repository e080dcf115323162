# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later

# Windows x86_64 with mingw-w64 (posix threads) on Debian 12, against a Qt 5.15 that
# scripts/windows/build-qt-windows.sh made. Both prefixes come with -D or from the environment:
#   WINQT_PREFIX       the Qt
#   WINKISSFFT_PREFIX  KissFFT (scripts/windows/build-kissfft.sh), which only the examples need
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(_triple x86_64-w64-mingw32)
set(CMAKE_C_COMPILER ${_triple}-gcc-posix)
set(CMAKE_CXX_COMPILER ${_triple}-g++-posix)
set(CMAKE_RC_COMPILER ${_triple}-windres)

foreach(_prefix IN ITEMS WINQT_PREFIX WINKISSFFT_PREFIX)
    if(NOT ${_prefix} AND DEFINED ENV{${_prefix}})
        set(${_prefix} "$ENV{${_prefix}}")
    endif()
    set(${_prefix} "${${_prefix}}" CACHE PATH "Prefix of libraries for Windows")
    # try_compile reads this file again in a project of its own.
    list(APPEND CMAKE_TRY_COMPILE_PLATFORM_VARIABLES ${_prefix})
endforeach()
if(NOT WINQT_PREFIX)
    message(FATAL_ERROR "WINQT_PREFIX must name a Qt for Windows; scripts/test-windows.sh finds or makes one.")
endif()

# After what the project itself names, as where it has unpacked this library.
list(APPEND CMAKE_PREFIX_PATH "${WINQT_PREFIX}")
if(WINKISSFFT_PREFIX)
    list(APPEND CMAKE_PREFIX_PATH "${WINKISSFFT_PREFIX}")
endif()
list(REMOVE_DUPLICATES CMAKE_PREFIX_PATH)
set(CMAKE_FIND_ROOT_PATH /usr/${_triple} ${CMAKE_PREFIX_PATH})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
# A project that uses packages outside of these prefixes says BOTH.
if(NOT DEFINED CMAKE_FIND_ROOT_PATH_MODE_PACKAGE)
    set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
endif()

# What is built here runs under Wine: tests and programs that the build itself starts.
get_filename_component(_runner "${CMAKE_CURRENT_LIST_DIR}/../scripts/windows/run-wine.sh" ABSOLUTE)
set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_COMMAND};-E;env;WINQT_PREFIX=${WINQT_PREFIX};${_runner}")
