# SPDX-FileCopyrightText: 2026 The PYXRuntime developers
# SPDX-License-Identifier: LGPL-3.0-or-later

# Qt's own tools, those of the build machine also in a cross-build. Before the PATH: Debian's program of that
# name there chooses among several versions of Qt, of which none may be the default.
foreach(tool IN ITEMS lupdate lrelease lconvert)
    string(TOUPPER "PYX_${tool}" variable)
    find_program(${variable} NAMES ${tool} ${tool}-qt5 HINTS /usr/lib/qt5/bin "${_qt5Core_install_prefix}/bin" REQUIRED)
endforeach()
find_path(PYX_QT_TRANSLATIONS_DIR NAMES qtbase_de.qm NO_CMAKE_FIND_ROOT_PATH REQUIRED
    HINTS "${_qt5Core_install_prefix}/translations" /usr/share/qt5/translations
    DOC "Directory that holds the translations of Qt's modules")

# Where programs of this build look for translations.
set(PYX_TRANSLATIONS_OUTPUT_DIR "${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/translations")
add_custom_target(translations ALL)
add_custom_target(translations_update)

# Translations of one library or program: <stem>_<locale>.ts beside the calling file, one per locale, or in a
# directory there. The .qm files are called after the name, where that is another one.
#   pyx_add_translations(stem [NAME name] [DIRECTORY directory] LOCALES locale... SOURCES directory...)
# The target translations makes the .qm files, translations_update takes the texts of the sources into the .ts
# files. English has its plural forms only.
function(pyx_add_translations stem)
    cmake_parse_arguments(PARSE_ARGV 1 ARG "" "NAME;DIRECTORY" "LOCALES;SOURCES")
    if(NOT ARG_NAME)
        set(ARG_NAME "${stem}")
    endif()
    set(qm_files)
    set(updates)
    foreach(locale IN LISTS ARG_LOCALES)
        set(ts "${CMAKE_CURRENT_SOURCE_DIR}/${ARG_DIRECTORY}/${stem}_${locale}.ts")
        set(qm "${PYX_TRANSLATIONS_OUTPUT_DIR}/${ARG_NAME}_${locale}.qm")
        add_custom_command(OUTPUT "${qm}"
            COMMAND "${CMAKE_COMMAND}" -E make_directory "${PYX_TRANSLATIONS_OUTPUT_DIR}"
            COMMAND "${PYX_LRELEASE}" -silent -nounfinished "${ts}" -qm "${qm}"
            DEPENDS "${ts}" VERBATIM)
        list(APPEND qm_files "${qm}")
        set(plurals)
        if(locale STREQUAL "en")
            set(plurals -pluralonly)
        endif()
        list(APPEND updates COMMAND "${PYX_LUPDATE}" -silent -no-obsolete -locations none ${plurals}
            -source-language en -target-language ${locale} ${ARG_SOURCES} -ts "${ts}")
    endforeach()
    add_custom_target(translations_${stem} DEPENDS ${qm_files})
    add_dependencies(translations translations_${stem})
    add_custom_target(translations_update_${stem} ${updates} VERBATIM)
    add_dependencies(translations_update translations_update_${stem})
    set_property(GLOBAL APPEND PROPERTY PYX_TRANSLATION_FILES ${qm_files})
endfunction()

# qt_<locale>.qm: the texts of the Qt modules that applications of the family use, in one file. Qt's own file of
# that name only refers to those of its modules, and does not load where one of them is missing.
#   pyx_add_qt_translations(locale...)
function(pyx_add_qt_translations)
    set(qm_files)
    foreach(locale IN LISTS ARGN)
        set(parts)
        foreach(module IN ITEMS qtbase qtmultimedia qtserialport)
            if(EXISTS "${PYX_QT_TRANSLATIONS_DIR}/${module}_${locale}.qm")
                list(APPEND parts "${PYX_QT_TRANSLATIONS_DIR}/${module}_${locale}.qm")
            endif()
        endforeach()
        set(qm "${PYX_TRANSLATIONS_OUTPUT_DIR}/qt_${locale}.qm")
        add_custom_command(OUTPUT "${qm}"
            COMMAND "${CMAKE_COMMAND}" -E make_directory "${PYX_TRANSLATIONS_OUTPUT_DIR}"
            COMMAND "${PYX_LCONVERT}" -o "${qm}" ${parts}
            DEPENDS ${parts} VERBATIM)
        list(APPEND qm_files "${qm}")
    endforeach()
    add_custom_target(translations_qt DEPENDS ${qm_files})
    add_dependencies(translations translations_qt)
    set_property(GLOBAL APPEND PROPERTY PYX_TRANSLATION_FILES ${qm_files})
endfunction()
