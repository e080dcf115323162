# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
include(CMakePackageConfigHelpers)

# Installed below /usr on Debian, the files lie as its packages have them.
set(PYX_DEBIAN OFF)
set(doc_dir "${CMAKE_INSTALL_DOCDIR}")
if(CMAKE_INSTALL_PREFIX STREQUAL "/usr" AND EXISTS /etc/debian_version AND NOT WIN32)
    set(PYX_DEBIAN ON)
    set(doc_dir "${CMAKE_INSTALL_DATADIR}/doc/libpyxruntime-dev")
endif()

# Three components: Runtime, what programs load; Translations (see resources/translations), whose names are the
# same in every version of the interface; Development, what compiling needs, with guides, Qt help and examples.
get_property(public_headers GLOBAL PROPERTY PYX_PUBLIC_HEADERS)
install(FILES ${public_headers} "${CMAKE_CURRENT_BINARY_DIR}/include/pyxruntime_export.h"
              "${CMAKE_CURRENT_BINARY_DIR}/include/pyxruntime_version.h"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/PYXRuntime" COMPONENT Development)
install(TARGETS PYXRuntime EXPORT PYXRuntimeTargets
        RUNTIME COMPONENT Runtime
        LIBRARY COMPONENT Runtime NAMELINK_COMPONENT Development
        ARCHIVE COMPONENT Development)
set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/PYXRuntime")
install(EXPORT PYXRuntimeTargets NAMESPACE PYXRuntime:: DESTINATION "${package_dir}" COMPONENT Development)
set(PYX_INSTALLED_TRANSLATIONS_DIR "${CMAKE_INSTALL_DATADIR}/PYXRuntime/translations")
configure_package_config_file(cmake/PYXRuntimeConfig.cmake.in
    "${CMAKE_CURRENT_BINARY_DIR}/PYXRuntimeConfig.cmake" INSTALL_DESTINATION "${package_dir}"
    PATH_VARS PYX_INSTALLED_TRANSLATIONS_DIR)
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/PYXRuntimeConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/PYXRuntimeConfig.cmake"
              "${CMAKE_CURRENT_BINARY_DIR}/PYXRuntimeConfigVersion.cmake"
        DESTINATION "${package_dir}" COMPONENT Development)

# README.md and the guides refer to each other as they do in the sources.
install(FILES README.md DESTINATION "${doc_dir}" COMPONENT Development)
install(DIRECTORY docs examples DESTINATION "${doc_dir}" COMPONENT Development
        FILES_MATCHING PATTERN "*.md" PATTERN "*.png" PATTERN "*.cpp" PATTERN "*.h" PATTERN "*.ui"
        PATTERN "*.qrc" PATTERN "*.svg" PATTERN "*.ts" PATTERN "CMakeLists.txt")
if(NOT PYX_DEBIAN)
    install(FILES CHANGELOG.md DESTINATION "${doc_dir}" COMPONENT Development)
    install(DIRECTORY LICENSES DESTINATION "${doc_dir}" COMPONENT Runtime)
endif()
