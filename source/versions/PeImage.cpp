// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PeImage.h"

#include "LittleEndian.h"

#include <QtCore/QIODevice>

#include <algorithm>

namespace PYXRuntime {
namespace {

const quint16 DosSignature = 0x5A4D;    // "MZ"
const quint32 PeSignature = 0x00004550; // "PE\0\0"
const quint16 Pe32 = 0x010B;            // with addresses of 32 bits
const quint16 Pe32Plus = 0x020B;        // and of 64 bits
const quint32 ResourceDirectory = 2;    // among the data directories
const quint32 Flag = 0x80000000;        // a name instead of a number; a directory instead of data

const quint32 DosHeaderSize = 64;
const quint32 FileHeaderSize = 24; // with the signature
const quint32 SectionSize = 40;
const quint32 DirectorySize = 16;
const quint32 EntrySize = 8;
const quint32 DataEntrySize = 16;

} // namespace

PeImage::PeImage(QIODevice &device)
    : m_device(device)
{
    m_bValid = _readHeaders();
}

QByteArray PeImage::_read(quint64 offset, quint32 size) const
{
    const auto fileSize = quint64(std::max<qint64>(0, m_device.size()));
    if (size == 0 || offset > fileSize || size > fileSize - offset || size > quint32(INT_MAX))
        return QByteArray();
    if (!m_device.seek(qint64(offset)))
        return QByteArray();
    const QByteArray bytes = m_device.read(size);
    return quint32(bytes.size()) == size ? bytes : QByteArray();
}

// As the system finds it in a file that is not loaded for running.
QByteArray PeImage::_readAddress(quint64 address, quint32 size) const
{
    if (address < m_headersSize)
        return _read(address, size);
    const auto section =
        std::find_if(m_sections.cbegin(), m_sections.cend(), [address](const struSection &candidate) {
            return address >= candidate.address && address - candidate.address < candidate.size;
        });
    if (section == m_sections.cend() || size > section->size - (address - section->address))
        return QByteArray();
    return _read(section->offset + (address - section->address), size);
}

bool PeImage::_readHeaders()
{
    const QByteArray dosHeader = _read(0, DosHeaderSize);
    if (littleEndian<quint16>(dosHeader, 0) != DosSignature)
        return false;
    const quint64 offset = littleEndian<quint32>(dosHeader, 60);
    const QByteArray header = _read(offset, FileHeaderSize);
    if (littleEndian<quint32>(header, 0) != PeSignature)
        return false;
    const quint16 sections = littleEndian<quint16>(header, 6);
    const quint16 optionalSize = littleEndian<quint16>(header, 20);
    return _readOptionalHeader(offset + FileHeaderSize, optionalSize) &&
           _readSections(offset + FileHeaderSize + optionalSize, sections);
}

bool PeImage::_readOptionalHeader(quint64 offset, quint32 size)
{
    const QByteArray header = _read(offset, size);
    const quint16 magic = littleEndian<quint16>(header, 0);
    if (magic != Pe32 && magic != Pe32Plus)
        return false;
    m_headersSize = littleEndian<quint32>(header, 60);
    const int countOffset = magic == Pe32 ? 92 : 108;
    if (littleEndian<quint32>(header, countOffset) > ResourceDirectory)
        m_resourcesAddress = littleEndian<quint32>(header, countOffset + 4 + 8 * int(ResourceDirectory));
    return true;
}

bool PeImage::_readSections(quint64 offset, quint32 count)
{
    const QByteArray table = _read(offset, count * SectionSize);
    if (table.isEmpty())
        return count == 0;
    m_sections.reserve(int(count));
    for (int section = 0; section < table.size(); section += int(SectionSize)) {
        m_sections.append({littleEndian<quint32>(table, section + 12),
                           littleEndian<quint32>(table, section + 16),
                           littleEndian<quint32>(table, section + 20)});
    }
    return true;
}

QVector<PeImage::struEntry> PeImage::_directory(quint32 offset) const
{
    const quint64 address = quint64(m_resourcesAddress) + offset;
    const QByteArray header = _readAddress(address, DirectorySize);
    const quint64 names = littleEndian<quint16>(header, 12);
    const quint32 ids = littleEndian<quint16>(header, 14);
    const QByteArray table = _readAddress(address + DirectorySize + names * EntrySize, ids * EntrySize);
    QVector<struEntry> entries;
    entries.reserve(table.size() / int(EntrySize));
    for (int entry = 0; entry < table.size(); entry += int(EntrySize))
        entries.append({littleEndian<quint32>(table, entry), littleEndian<quint32>(table, entry + 4)});
    return entries;
}

QVector<PeImage::struEntry> PeImage::_subDirectory(const QVector<struEntry> &directory, quint32 id) const
{
    const auto entry = std::find_if(directory.cbegin(), directory.cend(),
                                    [id](const struEntry &candidate) { return candidate.id == id; });
    if (entry == directory.cend() || (entry->target & Flag) == 0)
        return {};
    return _directory(entry->target & ~Flag);
}

QByteArray PeImage::resource(quint32 type, quint32 id, const QVector<quint16> &languages, quint32 limit) const
{
    if (!m_bValid || m_resourcesAddress == 0)
        return QByteArray();
    // Three levels, whatever the file says: type, number, language.
    const QVector<struEntry> found = _subDirectory(_subDirectory(_directory(0), type), id);
    if (found.isEmpty())
        return QByteArray();
    struEntry chosen = found.first();
    for (const quint16 language : languages) {
        const auto entry = std::find_if(found.cbegin(), found.cend(), [language](const struEntry &candidate) {
            return candidate.id == language;
        });
        if (entry != found.cend()) {
            chosen = *entry;
            break;
        }
    }
    const QByteArray data = _readAddress(quint64(m_resourcesAddress) + chosen.target, DataEntrySize);
    return _readAddress(littleEndian<quint32>(data, 0), std::min(limit, littleEndian<quint32>(data, 4)));
}

} // namespace PYXRuntime
