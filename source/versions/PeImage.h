// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QVector>

class QIODevice;

namespace PYXRuntime {

/**
 * What of an executable or library file for Windows (PE32, PE32+) leads to its resources.
 *
 * Only the parts needed are read, none larger than the file itself. Offsets and counts in the file are not
 * trusted: what points out of it is not there.
 */
class PeImage final
{
public:
    /** Reads the headers. @p device is open, allows random access and lives longer. */
    explicit PeImage(QIODevice &device);

    /** Whether the headers are those of a PE file and complete. */
    bool isValid() const { return m_bValid; }

    /**
     * The first @p limit bytes at most of the resource of this type and number, in one of the @p languages
     * (the earlier, the better), else in the first of the file. Empty where there is none or where its bytes
     * are not all there.
     */
    QByteArray resource(quint32 type, quint32 id, const QVector<quint16> &languages, quint32 limit) const;

private:
    struct struSection
    {
        quint32 address; // when loaded
        quint32 size;    // in the file
        quint32 offset;  // in the file
    };
    /** An entry of a resource directory that has a number, not a name. */
    struct struEntry
    {
        quint32 id;
        quint32 target;
    };

    QByteArray _read(quint64 offset, quint32 size) const;
    QByteArray _readAddress(quint64 address, quint32 size) const;
    bool _readHeaders();
    bool _readOptionalHeader(quint64 offset, quint32 size);
    bool _readSections(quint64 offset, quint32 count);
    QVector<struEntry> _directory(quint32 offset) const;
    QVector<struEntry> _subDirectory(const QVector<struEntry> &directory, quint32 id) const;

    QIODevice &m_device;
    bool m_bValid = false;
    quint32 m_headersSize = 0;
    quint32 m_resourcesAddress = 0; // of the root directory; 0 if there are no resources
    QVector<struSection> m_sections;
};

} // namespace PYXRuntime
