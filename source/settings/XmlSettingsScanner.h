// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QSettings>

namespace PYXRuntime {

/**
 * Reads the files that XmlSettingsWriter writes, several times as fast as a reader of any XML could. It
 * knows that form only and leaves everything else to XmlSettingsReader: whatever it accepts has the same
 * meaning there.
 */
class XmlSettingsScanner final
{
public:
    /** @return false where the file is not exactly in the writer's form; the map is unchanged then. */
    static bool read(const QByteArray &file, QSettings::SettingsMap &map);

private:
    explicit XmlSettingsScanner(const QByteArray &file);

    bool _take(QLatin1String expected);
    bool _takeText(char end, QLatin1String &text);
    bool _takeElement(QLatin1String opening, QLatin1String closing, QLatin1String &text);
    void _skipBlanks();
    bool _readBody(QLatin1String closing, int level);
    bool _readChild(int level);
    bool _readEntry();
    bool _readNested(const QString &key, QLatin1String closing, int level);
    bool _readArray(int level);
    void _store(const QString &key, QLatin1String text);
    QString _key(QLatin1String segment) const;

    const char *m_at;
    const char *const m_end;
    QString m_parentKey; ///< null at the root
    bool m_bInArray = false;
    QSettings::SettingsMap m_map;
};

} // namespace PYXRuntime
