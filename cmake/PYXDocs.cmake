# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later

# The target 'docs': the reference of the public headers and the pages in docs/, into build/<preset>/docs/html, and
# the same as Qt help, build/<preset>/docs/PYXRuntime.qch. Fails on every warning of Doxygen, and where the Qt help
# lacks a page or the keyword of a class.
find_package(Doxygen 1.9 REQUIRED)
find_package(Python3 REQUIRED COMPONENTS Interpreter)
# Qt's own, before Debian's program of that name in the PATH that chooses among versions of Qt.
find_program(PYX_QHELPGENERATOR NAMES qhelpgenerator qhelpgenerator-qt5
    HINTS /usr/lib/qt5/bin "${_qt5Core_install_prefix}/bin" NO_CMAKE_FIND_ROOT_PATH REQUIRED)
configure_file("${PROJECT_SOURCE_DIR}/docs/Doxyfile.in" "${PROJECT_BINARY_DIR}/docs/Doxyfile" @ONLY)
set(PYX_QT_HELP "${PROJECT_BINARY_DIR}/docs/PYXRuntime.qch")
# Only there where the target has been built.
install(FILES "${PYX_QT_HELP}" DESTINATION "${doc_dir}" COMPONENT Development OPTIONAL)
add_custom_target(docs
    COMMAND "${CMAKE_COMMAND}" -E rm -rf "${PROJECT_BINARY_DIR}/docs/html" "${PYX_QT_HELP}"
    COMMAND Doxygen::doxygen "${PROJECT_BINARY_DIR}/docs/Doxyfile"
    COMMAND Python3::Interpreter "${PROJECT_SOURCE_DIR}/scripts/make-qt-help.py" "${PYX_QHELPGENERATOR}"
            "${PROJECT_BINARY_DIR}/docs/html/index.qhp" "${PYX_QT_HELP}"
    WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
    COMMENT "Making the documentation in ${PROJECT_BINARY_DIR}/docs"
    VERBATIM)

# Only where the target has been built before.
install(FILES "${PYX_QT_HELP}" DESTINATION "${doc_dir}" COMPONENT Development OPTIONAL)
