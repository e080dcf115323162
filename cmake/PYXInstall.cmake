# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later
include(CMakePackageConfigHelpers)

get_property(public_headers GLOBAL PROPERTY PYX_PUBLIC_HEADERS)
install(FILES ${public_headers} "${CMAKE_CURRENT_BINARY_DIR}/include/pyxruntime_export.h"
        DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}/PYXRuntime")
install(TARGETS PYXRuntime EXPORT PYXRuntimeTargets)
set(package_dir "${CMAKE_INSTALL_LIBDIR}/cmake/PYXRuntime")
install(EXPORT PYXRuntimeTargets NAMESPACE PYXRuntime:: DESTINATION "${package_dir}")
set(PYX_INSTALLED_TRANSLATIONS_DIR "${CMAKE_INSTALL_DATADIR}/PYXRuntime/translations")
configure_package_config_file(cmake/PYXRuntimeConfig.cmake.in
    "${CMAKE_CURRENT_BINARY_DIR}/PYXRuntimeConfig.cmake" INSTALL_DESTINATION "${package_dir}"
    PATH_VARS PYX_INSTALLED_TRANSLATIONS_DIR)
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/PYXRuntimeConfigVersion.cmake"
    COMPATIBILITY SameMinorVersion)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/PYXRuntimeConfig.cmake"
              "${CMAKE_CURRENT_BINARY_DIR}/PYXRuntimeConfigVersion.cmake"
        DESTINATION "${package_dir}")
