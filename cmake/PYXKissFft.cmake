# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later

# Provides kissfft::kissfft-float: from KissFFT's own package files, or from a plain library and
# header below CMAKE_PREFIX_PATH, as a cross-build has them.
find_package(kissfft CONFIG QUIET)
if(NOT TARGET kissfft::kissfft-float)
    find_library(PYX_KISSFFT_LIBRARY NAMES kissfft-float)
    find_path(PYX_KISSFFT_INCLUDE_DIR NAMES kissfft/kiss_fft.h)
    if(NOT PYX_KISSFFT_LIBRARY OR NOT PYX_KISSFFT_INCLUDE_DIR)
        message(FATAL_ERROR "KissFFT is missing: install libkissfft-dev, or name its prefix in CMAKE_PREFIX_PATH")
    endif()
    add_library(kissfft::kissfft-float UNKNOWN IMPORTED GLOBAL)
    set_target_properties(kissfft::kissfft-float PROPERTIES
        IMPORTED_LOCATION "${PYX_KISSFFT_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${PYX_KISSFFT_INCLUDE_DIR}/kissfft")
endif()
