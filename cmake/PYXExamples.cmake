# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later

# Adds a small example: the program <name>.cpp of the calling directory, which shows what a room is for, prints what
# came of it, and ends by itself. The target and the test are called "example_<directory>", and those of another
# program than main.cpp "example_<directory>_<name>".
#   pyx_add_example(name EXPECT regex [ARGUMENTS argument...] [SOURCES file...])
# The test passes where the program succeeds and its standard output matches EXPECT. A program with windows is given
# "--quit", so that it does what its user would do.
function(pyx_add_example name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "EXPECT" "ARGUMENTS;SOURCES")
    get_filename_component(target "${CMAKE_CURRENT_SOURCE_DIR}" NAME)
    string(PREPEND target "example_")
    if(NOT name STREQUAL "main")
        string(APPEND target "_${name}")
    endif()
    add_executable(${target} ${name}.cpp ${ARG_SOURCES})
    pyx_configure_target(${target})
    target_link_libraries(${target} PRIVATE PYXRuntime::PYXRuntime)
    add_test(NAME ${target} COMMAND "${CMAKE_COMMAND}"
        -D "EMULATOR=${CMAKE_CROSSCOMPILING_EMULATOR}"
        -D "PROGRAM=$<TARGET_FILE:${target}>;${ARG_ARGUMENTS}"
        -D "EXPECT=${ARG_EXPECT}"
        -P "${PROJECT_SOURCE_DIR}/cmake/PYXRunExample.cmake")
    set_tests_properties(${target} PROPERTIES TIMEOUT 120 ENVIRONMENT "${PYX_TEST_ENVIRONMENT}"
        SKIP_REGULAR_EXPRESSION "cannot be shown here")
endfunction()
