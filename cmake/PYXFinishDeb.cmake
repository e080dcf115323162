# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later

# Run by cpack on the .deb files that it has made, for what it cannot say itself: the architectures that a package
# serves, what it takes on the disk (cpack follows links), a synopsis for each (the first line of its description), and that ldconfig is run by a trigger, not by
# scripts of the package.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    set(contents "${package}.contents")
    execute_process(COMMAND dpkg-deb --raw-extract "${package}" "${contents}" COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE "${contents}/DEBIAN/postinst" "${contents}/DEBIAN/postrm")
    file(GLOB_RECURSE files LIST_DIRECTORIES false "${contents}/usr/*")
    set(size 0)
    foreach(file IN LISTS files)
        if(NOT IS_SYMLINK "${file}")
            file(SIZE "${file}" bytes)
            math(EXPR size "${size} + (${bytes} + 1023) / 1024")
        endif()
    endforeach()
    file(READ "${contents}/DEBIAN/control" control)
    string(REGEX REPLACE "Installed-Size: [0-9]*" "Installed-Size: ${size}" control "${control}")
    string(REGEX REPLACE "Description: [^\n]*\n " "Description: " control "${control}")
    string(STRIP "${control}" control)
    if(control MATCHES "Architecture: all")
        string(APPEND control "\nMulti-Arch: foreign\n")
    else()
        string(APPEND control "\nMulti-Arch: same\n")
    endif()
    file(WRITE "${contents}/DEBIAN/control" "${control}")
    execute_process(COMMAND dpkg-deb --root-owner-group --build "${contents}" "${package}"
        OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE_RECURSE "${contents}")
endforeach()
