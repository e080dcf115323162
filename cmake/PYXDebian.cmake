# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later

# The .deb files: the shared library, named after its SONAME so that two of them can be installed; its
# translations, which these two share; and what is needed to compile against it.
set(debian_version "${PROJECT_VERSION}-${PYX_PACKAGE_REVISION}")
set(runtime_package "libpyxruntime${PROJECT_VERSION_MAJOR}")
set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SOURCE pyxruntime)
set(CPACK_DEBIAN_PACKAGE_RELEASE "${PYX_PACKAGE_REVISION}")
set(CPACK_DEBIAN_PACKAGE_PRIORITY optional)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS_POLICY ">=")
set(CPACK_POST_BUILD_SCRIPTS "${PROJECT_SOURCE_DIR}/cmake/PYXFinishDeb.cmake")

set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "${runtime_package}")
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SECTION libs)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_RECOMMENDS libpyxruntime-l10n)
set(CPACK_DEBIAN_RUNTIME_PACKAGE_CONTROL_EXTRA "${PROJECT_SOURCE_DIR}/packaging/triggers")
set(CPACK_DEBIAN_RUNTIME_DESCRIPTION "runtime of applications for signal monitoring
Trace channel, diagnostics, interface broker, settings in a readable XML
format and a dialog for them, secrets, networks, files, memory, icons,
messages and languages for desktop applications that run day and night,
on top of Qt 5.
.
This package holds the shared library.")

set(CPACK_DEBIAN_TRANSLATIONS_PACKAGE_NAME libpyxruntime-l10n)
set(CPACK_DEBIAN_TRANSLATIONS_PACKAGE_ARCHITECTURE all)
set(CPACK_DEBIAN_TRANSLATIONS_PACKAGE_SECTION localization)
set(CPACK_DEBIAN_TRANSLATIONS_DESCRIPTION "translations of the PYXRuntime library
German and French texts of the library that applications for signal
monitoring share, and of the Qt modules that these use.")

# What PYXRuntimeConfig.cmake asks for.
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME libpyxruntime-dev)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION libdevel)
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "${runtime_package} (= ${debian_version}), \
libpyxruntime-l10n (= ${debian_version}), qtbase5-dev (>= 5.15), libqt5svg5-dev (>= 5.15)")
set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SUGGESTS cmake)
set(CPACK_DEBIAN_DEVELOPMENT_DESCRIPTION "development files of the PYXRuntime library
Headers, CMake package, guides, Qt help and examples of the library that
desktop applications for signal monitoring share.")

# Without a date in the environment that of the last commit or, in an unpacked archive, now.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(COMMAND git log -1 --format=%ct WORKING_DIRECTORY "${PROJECT_SOURCE_DIR}"
        OUTPUT_VARIABLE commit_time OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET)
    if(commit_time)
        set(ENV{SOURCE_DATE_EPOCH} "${commit_time}")
    endif()
endif()
string(TIMESTAMP date "%a, %d %b %Y %H:%M:%S +0000" UTC)

# Both change logs, compressed without a time stamp.
find_program(PYX_GZIP gzip REQUIRED)
set(doc_build_dir "${PROJECT_BINARY_DIR}/packaging")
configure_file(packaging/changelog.in "${doc_build_dir}/changelog.Debian" @ONLY)
configure_file(CHANGELOG.md "${doc_build_dir}/changelog" COPYONLY)
execute_process(COMMAND "${PYX_GZIP}" -9nkf changelog.Debian changelog
    WORKING_DIRECTORY "${doc_build_dir}" COMMAND_ERROR_IS_FATAL ANY)
foreach(component IN ITEMS Runtime Translations Development)
    string(TOUPPER "CPACK_DEBIAN_${component}_PACKAGE_NAME" name)
    install(FILES packaging/copyright "${doc_build_dir}/changelog.gz" "${doc_build_dir}/changelog.Debian.gz"
            DESTINATION "${CMAKE_INSTALL_DATADIR}/doc/${${name}}" COMPONENT ${component})
endforeach()
