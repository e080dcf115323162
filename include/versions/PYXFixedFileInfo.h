// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

/**
 * The fixed part of a version resource, VS_FIXEDFILEINFO: the system's own where it has one, else the same
 * structure under the same names. Only who reads its fields needs this header; on Windows it brings
 * windows.h.
 */
#if __has_include(<winver.h>)
#include <QtCore/qt_windows.h>
#else

#include <QtCore/QtGlobal>

struct tagVS_FIXEDFILEINFO
{
    quint32 dwSignature;        ///< 0xFEEF04BD
    quint32 dwStrucVersion;     ///< of this structure
    quint32 dwFileVersionMS;    ///< major, minor
    quint32 dwFileVersionLS;    ///< build, private
    quint32 dwProductVersionMS; ///< major, minor
    quint32 dwProductVersionLS; ///< build, private
    quint32 dwFileFlagsMask;    ///< the valid bits of dwFileFlags
    quint32 dwFileFlags;
    quint32 dwFileOS;
    quint32 dwFileType;
    quint32 dwFileSubtype;
    quint32 dwFileDateMS;
    quint32 dwFileDateLS;
};
using VS_FIXEDFILEINFO = tagVS_FIXEDFILEINFO;

#endif
