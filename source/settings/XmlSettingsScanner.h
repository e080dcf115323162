// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QSettings>

#include <vector>

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
    /** A text that means itself in XML. */
    struct struText
    {
        QLatin1String text;
        bool bPlain = false; ///< nothing to unescape
        bool bList = false;

        bool isLiteral() const; ///< as a value: stands for itself
    };

    /** A value that is only decoded at the end: keys that lie together in memory are compared faster. */
    struct struFound
    {
        QString key;
        struText text;
        bool bSize = false; ///< an array's size
    };

    explicit XmlSettingsScanner(const QByteArray &file);

    template <std::size_t Size>
    bool _sees(const char (&expected)[Size]) const;
    template <std::size_t Size>
    bool _take(const char (&expected)[Size]);
    struText _takeText();
    bool _takeName(struText &name);
    bool _takeValue(struText &value);
    void _skipBlanks();
    template <std::size_t Size>
    bool _readBody(const char (&closing)[Size], int level);
    bool _readChild(int level);
    bool _readEntry();
    template <std::size_t Size>
    bool _readNested(const QString &key, const char (&closing)[Size], bool bIsArray, int level);
    bool _readArray(int level);
    void _fill(QSettings::SettingsMap &map) const;
    QString _key(const struText &segment) const;

    const char *m_at;
    const char *const m_end;
    QString m_parentKey; ///< null at the root
    bool m_bInArray = false;
    std::vector<struFound> m_found;
};

} // namespace PYXRuntime
