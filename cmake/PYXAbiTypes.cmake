# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later

# Given as CMAKE_PROJECT_PYXRuntime_INCLUDE by scripts/check-abi.sh, to this and to older sources. GCC describes a
# class with virtual functions only where its table is, so that an interface which applications implement is not
# described in the library at all. One more source, compiled for that, describes every class of the public headers.
function(pyx_add_abi_types)
    get_property(headers GLOBAL PROPERTY PYX_PUBLIC_HEADERS)
    list(TRANSFORM headers PREPEND "#include \"")
    list(TRANSFORM headers APPEND "\"")
    list(JOIN headers "\n" includes)
    set(source "${PROJECT_BINARY_DIR}/abi_types.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "${includes}\n" @ONLY)
    target_sources(PYXRuntime PRIVATE "${source}")
    set_source_files_properties("${source}" TARGET_DIRECTORY PYXRuntime PROPERTIES SKIP_AUTOGEN ON
        COMPILE_OPTIONS "-femit-class-debug-always;-fno-eliminate-unused-debug-types")
endfunction()
cmake_language(DEFER CALL pyx_add_abi_types)
