// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QPair>
#include <QtCore/QString>
#include <QtCore/QtEndian>
#include <QtCore/QVector>

/** Makes executable files for Windows that hold version resources and nothing else. */
namespace PeBytes {

template <typename T>
QByteArray number(T value)
{
    QByteArray bytes(int(sizeof(T)), '\0');
    qToLittleEndian(value, bytes.data());
    return bytes;
}

inline QByteArray numbers16(const QVector<int> &values)
{
    QByteArray bytes;
    for (const int value : values)
        bytes += number(quint16(value));
    return bytes;
}

inline QByteArray numbers32(const QVector<quint32> &values)
{
    QByteArray bytes;
    for (const quint32 value : values)
        bytes += number(value);
    return bytes;
}

inline QByteArray aligned(const QByteArray &bytes, int unit = 4)
{
    return bytes + QByteArray((unit - bytes.size() % unit) % unit, '\0');
}

/** With its NUL. */
inline QByteArray wide(const QString &text)
{
    QByteArray bytes;
    for (const QChar character : text)
        bytes += number(character.unicode());
    return bytes + number(quint16(0));
}

inline QByteArray node(const QString &key, bool bText, int valueLength, const QByteArray &value,
                       const QByteArray &children = {})
{
    QByteArray bytes = aligned(QByteArray(6, '\0') + wide(key)) + value;
    if (!children.isEmpty())
        bytes = aligned(bytes) + children;
    return aligned(bytes.replace(0, 6, numbers16({bytes.size(), valueLength, bText ? 1 : 0})));
}

inline QByteArray string(const QString &name, const QString &text)
{
    return node(name, true, text.size() + 1, wide(text));
}

/** The fixed part, with these two versions. */
inline QByteArray fixedInfo(const QVector<quint32> &versions)
{
    return numbers32({0xFEEF04BD, 0x10000}) + numbers32(versions) +
           numbers32({0x3F, 0x1, 0x40004, 2, 3, 4, 5});
}

inline QByteArray versionInfo(const QByteArray &fixedPart, const QByteArray &stringTables,
                              const QByteArray &translations)
{
    return node(
        "VS_VERSION_INFO", false, fixedPart.size(), fixedPart,
        node("StringFileInfo", true, 0, {}, stringTables) +
            node("VarFileInfo", true, 0, {}, node("Translation", false, translations.size(), translations)));
}

inline QByteArray directory(int names, const QByteArray &entries)
{
    return QByteArray(12, '\0') + numbers16({names, entries.size() / 8 - names}) + entries;
}

const quint32 Child = 0x80000000;
const int SectionAddress = 0x1000;
const int SectionOffset = 0x200; // in the file

/** The resource section: one version resource in the languages, the offsets of the directories first. */
inline QByteArray resources(const QVector<QPair<int, QByteArray>> &versions)
{
    QByteArray languages;
    QByteArray data;
    QByteArray blocks;
    const int count = versions.size();
    for (int index = 0; index < count; ++index) {
        const QByteArray &block = versions[index].second;
        languages += numbers32({quint32(versions[index].first), quint32(72 + 8 * count + 16 * index)});
        data += numbers32(
            {quint32(SectionAddress + 72 + 24 * count + blocks.size()), quint32(block.size()), 0, 0});
        blocks += aligned(block);
    }
    return directory(1, numbers32({Child | 0x40, Child | 0, 16, Child | 32})) +
           directory(0, numbers32({1, Child | 56})) + directory(0, languages) + data + blocks;
}

/** PE32, or PE32+, with one section. */
inline QByteArray file(bool bPlus, const QByteArray &section)
{
    QByteArray optional(bPlus ? 240 : 224, '\0');
    const int tableEnd = bPlus ? 112 : 96;
    optional.replace(0, 2, number(quint16(bPlus ? 0x20B : 0x10B)));
    optional.replace(60, 4, number(quint32(SectionOffset)));
    optional.replace(tableEnd - 4, 4, number(quint32(16)));
    optional.replace(tableEnd + 16, 8, numbers32({quint32(SectionAddress), quint32(section.size())}));
    const QByteArray header = "MZ" + QByteArray(58, '\0') + number(quint32(64)) + QByteArray("PE\0\0", 4) +
                              numbers16({bPlus ? 0x8664 : 0x14C, 1}) + QByteArray(12, '\0') +
                              numbers16({optional.size(), 0x2002}) + optional + QByteArray(".rsrc\0\0\0", 8) +
                              numbers32({quint32(section.size()), quint32(SectionAddress),
                                         quint32(section.size()), quint32(SectionOffset)}) +
                              QByteArray(16, '\0');
    return aligned(header, SectionOffset) + section;
}

} // namespace PeBytes
