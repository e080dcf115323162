# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
include("${SETTINGS}")
set(prefix "${SCRATCH}/prefix")
file(REMOVE_RECURSE "${SCRATCH}")

execute_process(COMMAND "${CMAKE_COMMAND}" --install "${LIBRARY_BUILD}" --prefix "${prefix}"
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)

# Every name has to be found in the installed prefix, none in this source tree.
set(arguments -G "${CMAKE_GENERATOR}" -D "CMAKE_MAKE_PROGRAM=${CMAKE_MAKE_PROGRAM}"
    -D "CMAKE_BUILD_TYPE=${CMAKE_BUILD_TYPE}" -D "PYXRuntime_ROOT=${prefix}"
    -D "CMAKE_INSTALL_PREFIX=${prefix}")
if(CMAKE_TOOLCHAIN_FILE)
    list(APPEND arguments --toolchain "${CMAKE_TOOLCHAIN_FILE}" -D "WINQT_PREFIX=${WINQT_PREFIX}"
        -D CMAKE_FIND_ROOT_PATH_MODE_PACKAGE=BOTH)
else()
    list(APPEND arguments -D "CMAKE_CXX_COMPILER=${CMAKE_CXX_COMPILER}")
endif()
if(PYX_SANITIZE)
    list(APPEND arguments -D "CMAKE_CXX_FLAGS=-fsanitize=${PYX_SANITIZE}")
endif()
execute_process(COMMAND "${CMAKE_COMMAND}" -S "${CONSUMER}" -B "${SCRATCH}/build" ${arguments}
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${SCRATCH}/build" --target install
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND "${CMAKE_COMMAND}" --build "${SCRATCH}/build" --target run_consumer
    COMMAND_ERROR_IS_FATAL ANY OUTPUT_VARIABLE output ECHO_OUTPUT_VARIABLE)
if(NOT output MATCHES "source.consumer.1. : TRACE_INFO : reached [0-9.]+, Bandbreite")
    message(FATAL_ERROR "The consumer did not say in German that it reached the library.")
endif()
