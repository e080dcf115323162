# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later

# Language level and warnings of every target of this project.
function(pyx_configure_target target)
    target_compile_features(${target} PRIVATE cxx_std_17)
    set_target_properties(${target} PROPERTIES CXX_EXTENSIONS OFF)
    target_compile_options(${target} PRIVATE
        $<$<CXX_COMPILER_ID:GNU,Clang>:-Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion
        -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-align -Wcast-qual -Wundef>
        $<$<CXX_COMPILER_ID:MSVC>:/W4 /permissive- /utf-8>)
endfunction()

# Adds the files of one room to the library: its public headers (installed flat), its sources, and
# the room's include directories.
#   pyx_add_room(ROOM name [HEADERS file...] SOURCES file...)
function(pyx_add_room)
    cmake_parse_arguments(PARSE_ARGV 0 ARG "" "ROOM" "HEADERS;SOURCES")
    set(public_dir "${PROJECT_SOURCE_DIR}/include/${ARG_ROOM}")
    list(TRANSFORM ARG_HEADERS PREPEND "${public_dir}/")
    target_sources(PYXRuntime PRIVATE ${ARG_SOURCES} ${ARG_HEADERS})
    if(ARG_HEADERS)
        target_include_directories(PYXRuntime PUBLIC "$<BUILD_INTERFACE:${public_dir}>")
        set_property(GLOBAL APPEND PROPERTY PYX_PUBLIC_HEADERS ${ARG_HEADERS})
    endif()
    target_include_directories(PYXRuntime PRIVATE "${CMAKE_CURRENT_SOURCE_DIR}")
endfunction()

# Of every program that is run by the tests: no display, and what the sanitizers need.
set(PYX_TEST_ENVIRONMENT
    "QT_QPA_PLATFORM=offscreen;LSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/lsan.supp;ASAN_OPTIONS=allocator_may_return_null=1;TSAN_OPTIONS=suppressions=${PROJECT_SOURCE_DIR}/tests/tsan.supp halt_on_error=0 allocator_may_return_null=1;UBSAN_OPTIONS=halt_on_error=1 print_stacktrace=1")

# Registers the test program tst_<name>.cpp of a room.
#   pyx_add_test(name [THREADS] [SOURCES internal sources under test...] [INCLUDES their directories...]
#                [LIBRARIES lib...] [TIMEOUT s])
# THREADS marks a test whose promises about threads are checked by the thread sanitizer; the target
# thread_tests builds these only.
function(pyx_add_test name)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "THREADS" "TIMEOUT" "SOURCES;INCLUDES;LIBRARIES")
    find_package(Qt5 5.15 REQUIRED COMPONENTS Test)
    add_executable(tst_${name} tst_${name}.cpp ${ARG_SOURCES})
    pyx_configure_target(tst_${name})
    # QSKIP of a text alone, which Clang says is an extension.
    target_compile_options(tst_${name} PRIVATE
        $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>)
    target_link_libraries(tst_${name} PRIVATE PYXRuntime::PYXRuntime Qt5::Test ${ARG_LIBRARIES})
    target_include_directories(tst_${name} PRIVATE "${PROJECT_SOURCE_DIR}/tests" ${ARG_INCLUDES})
    add_test(NAME ${name} COMMAND tst_${name})
    if(NOT ARG_TIMEOUT)
        set(ARG_TIMEOUT 120)
    endif()
    set_tests_properties(${name} PROPERTIES TIMEOUT ${ARG_TIMEOUT} ENVIRONMENT "${PYX_TEST_ENVIRONMENT}")
    if(ARG_THREADS)
        set_property(TEST ${name} APPEND PROPERTY LABELS threads)
        if(NOT TARGET thread_tests)
            add_custom_target(thread_tests)
        endif()
        add_dependencies(thread_tests tst_${name})
    endif()
endfunction()
