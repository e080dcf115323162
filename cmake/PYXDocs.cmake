# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later

# The target 'docs': the reference of the public headers and the pages in docs/, into build/<preset>/docs/html.
# Fails on every warning of Doxygen.
find_package(Doxygen 1.9 REQUIRED)
configure_file("${PROJECT_SOURCE_DIR}/docs/Doxyfile.in" "${PROJECT_BINARY_DIR}/docs/Doxyfile" @ONLY)
add_custom_target(docs
    COMMAND Doxygen::doxygen "${PROJECT_BINARY_DIR}/docs/Doxyfile"
    WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
    COMMENT "Making the documentation in ${PROJECT_BINARY_DIR}/docs/html"
    VERBATIM)
