# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later

# What cpack makes: .deb files of a build for /usr on Debian, else one archive to unpack anywhere, which
# CMAKE_PREFIX_PATH then names. scripts/package.sh makes all of them.
set(PYX_PACKAGE_CONTACT "The PYXRuntime developers <pyxruntime@example.org>" CACHE STRING
    "Who answers for the packages, with an address")
set(PYX_PACKAGE_REVISION 0pyx1 CACHE STRING
    "Debian revision: counts how often this version has been packaged, below any of Debian's own")

set(CPACK_PACKAGE_NAME PYXRuntime)
set(CPACK_PACKAGE_VENDOR "The PYXRuntime developers")
set(CPACK_PACKAGE_CONTACT "${PYX_PACKAGE_CONTACT}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_COMPONENTS_ALL Runtime Translations Development)
set(CPACK_STRIP_FILES ON)
set(CPACK_VERBATIM_VARIABLES ON)
# Whatever the umask is.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
    OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

string(TOLOWER "${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}" system)
set(CPACK_PACKAGE_FILE_NAME "PYXRuntime-${PROJECT_VERSION}-${system}")
set(CPACK_ARCHIVE_COMPONENT_INSTALL OFF)
set(CPACK_GENERATOR TGZ)
if(WIN32)
    set(CPACK_GENERATOR ZIP)
elseif(PYX_DEBIAN)
    set(CPACK_GENERATOR DEB)
    include(PYXDebian)
endif()
include(CPack)
