// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QSettings>
#include <QtCore/QStringList>
#include <QtCore/QXmlStreamReader>

class QIODevice;

namespace PYXRuntime {

/**
 * Reads settings files. Elements that are nested too deeply and internal document types (which could
 * declare entities that multiply) are errors like any other text that is no XML. A file is read to its end
 * before anything is reported: where it is no XML, nothing else counts.
 */
class XmlSettingsReader final
{
public:
    /**
     * Reads a whole file into a map. Warnings go to qWarning.
     * @return false where the file as a whole is refused; the map is unchanged then.
     */
    static bool read(QIODevice &device, QSettings::SettingsMap &map);

    /** The same for the bytes of a file, without the short cut for files in the writer's own form. */
    static bool readAnyXml(const QByteArray &file, QSettings::SettingsMap &map);

    /** The file check: root and version only. */
    static bool readVersion(QIODevice &device, QString &version);

private:
    enum eOwner { ekRoot, ekArray, ekGroup, ekItem };

    explicit XmlSettingsReader(const QByteArray &file);

    bool _nextIsElement();
    void _advance();
    bool _findRoot();
    void _finish();
    bool _readRoot();
    bool _readChildren(eOwner owner, const QString &key);
    bool _readChild(eOwner owner, const QString &tag, const QString &key);
    bool _readEntry(const QString &parentKey);
    bool _readArray(const QString &parentKey);
    bool _readGroup(const QString &parentKey);
    bool _readItem(const QString &parentKey);
    QString _readText();
    void _skipElement();
    QString _tag() const;
    void _store(const QString &key, const QString &text);

    QXmlStreamReader m_xml;
    int m_level = 0;
    QString m_version;
    QSettings::SettingsMap m_map;
    QStringList m_warnings;
};

} // namespace PYXRuntime
