// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QSettings>
#include <QtCore/QString>

namespace PYXRuntime {

/**
 * The XML file format of all settings, for QSettings: one readable file per store, with the suffix
 * "PYXXml".
 *
 * A file that cannot be read makes QSettings::status() a FormatError; it is first copied aside as
 * "<name>.damaged-<UTC>", since the next write would replace it. A file that cannot be written
 * completely is left as it was, and the status is an AccessError. Problems inside a file are reported
 * through qWarning, values and files that are kept or left out through PYXTraceWrapper.
 *
 * All functions may be called from any thread. Values that hold pixmaps need a QGuiApplication.
 */
class PYXRUNTIME_EXPORT PYXXmlSettings final
{
public:
    PYXXmlSettings() = delete;

    /**
     * The format to pass to QSettings; the first call registers it.
     * @return QSettings::InvalidFormat where Qt has no room for another format.
     */
    static QSettings::Format format();

    /**
     * Tells whether a file is well-formed and has the root of this format, in whatever version.
     * @param fileName the file to look at; a missing or unreadable one is none.
     * @param version receives the version text of the file; untouched where the answer is no.
     */
    static bool isPYXXmlSettingsFile(const QString &fileName, QString &version);
};

} // namespace PYXRuntime
