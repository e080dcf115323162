// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "QmFile.h"

#include <QtCore/QDataStream>
#include <QtCore/QMap>
#include <QtCore/QtEndian>

#include <algorithm>
#include <vector>

namespace PYXRuntime {
namespace {

constexpr char MagicBytes[] = "\x3c\xb8\x64\x18\xca\xef\x9c\x95\xcd\x21\x1c\xbf\x60\xa1\xbd\xdd";
constexpr qint64 SectionHeadSize = 5;
constexpr qint64 HashEntrySize = 8;
// Messages of a real file do not overlap; where they do, following them all may take forever.
constexpr qint64 MaximumOverlap = 4;
constexpr quint32 NoText = 0xFFFFFFFF;

enum eSection : quint8 {
    ekSection_Contexts = 0x2f,
    ekSection_Hashes = 0x42,
    ekSection_Messages = 0x69,
    ekSection_NumerusRules = 0x88,
    ekSection_Dependencies = 0x96,
    ekSection_Language = 0xa7
};

enum eTag : quint8 {
    ekTag_End = 1,
    ekTag_Translation = 3,
    ekTag_Obsolete = 5,
    ekTag_SourceText = 6,
    ekTag_Context = 7,
    ekTag_Comment = 8
};

QByteArray magic()
{
    return QByteArray::fromRawData(MagicBytes, int(sizeof MagicBytes) - 1);
}

using Sections = QMap<quint8, QByteArray>;

quint8 byteAt(const QByteArray &bytes, qint64 position)
{
    return quint8(bytes.at(int(position)));
}

template <typename Number>
Number numberAt(const QByteArray &bytes, qint64 position)
{
    return qFromBigEndian<Number>(bytes.constData() + position);
}

/** What follows an empty section is not read, as QTranslator does not read it. */
std::optional<Sections> sectionsOf(const QByteArray &bytes)
{
    if (!bytes.startsWith(magic()))
        return std::nullopt;
    Sections sections;
    qint64 position = magic().size();
    while (position + SectionHeadSize < bytes.size()) {
        const quint8 tag = byteAt(bytes, position);
        const qint64 length = numberAt<quint32>(bytes, position + 1);
        position += SectionHeadSize;
        if (tag == 0 || length == 0)
            break;
        if (length > bytes.size() - position || sections.contains(tag))
            return std::nullopt;
        sections.insert(tag, bytes.mid(int(position), int(length)));
        position += length;
    }
    return sections;
}

/** The length of the field at a position; -1 where it is longer than the messages, 0 and the end for none. */
qint64 fieldSize(const QByteArray &messages, qint64 position, quint8 tag)
{
    constexpr qint64 LengthSize = 4;
    if (position + LengthSize > messages.size())
        return -1;
    if (tag == ekTag_Obsolete)
        return LengthSize;
    const quint32 length = numberAt<quint32>(messages, position);
    if (length == NoText)
        return tag == ekTag_Translation ? 0 : -1;
    const qint64 size = LengthSize + length;
    // A comment's first byte is read even where it is empty.
    const qint64 readAhead = tag == ekTag_Comment ? 1 : 0;
    return position + size + readAhead <= messages.size() ? size : -1;
}

/** How many bytes the message takes; -1 where it does not end within the messages. */
qint64 messageSize(const QByteArray &messages, qint64 begin)
{
    qint64 position = begin;
    while (position < messages.size()) {
        const quint8 tag = byteAt(messages, position++);
        if (tag == ekTag_End)
            return position - begin;
        if (tag != ekTag_Translation && tag != ekTag_Obsolete && tag != ekTag_SourceText &&
            tag != ekTag_Context && tag != ekTag_Comment)
            return -1;
        const qint64 size = fieldSize(messages, position, tag);
        if (size < 0)
            return -1;
        if (size == 0) // QTranslator gives up on a message at a translation that is none
            return position - begin;
        position += size;
    }
    return -1;
}

bool areMessagesSound(const QByteArray &hashes, const QByteArray &messages)
{
    if (hashes.size() % HashEntrySize != 0)
        return false;
    std::vector<quint32> offsets;
    offsets.reserve(size_t(hashes.size() / HashEntrySize));
    for (qint64 entry = 0; entry < hashes.size(); entry += HashEntrySize)
        offsets.push_back(numberAt<quint32>(hashes, entry + HashEntrySize / 2));
    std::sort(offsets.begin(), offsets.end());
    offsets.erase(std::unique(offsets.begin(), offsets.end()), offsets.end());
    qint64 followed = 0;
    for (const quint32 offset : offsets) {
        const qint64 size = messageSize(messages, offset);
        followed += size;
        if (size < 0 || followed > MaximumOverlap * messages.size())
            return false;
    }
    return true;
}

/** A hash table of offsets, in units of two bytes, to chains of names with their length before them. */
bool areContextsSound(const QByteArray &contexts)
{
    constexpr qint64 Unit = 2;
    if (contexts.isEmpty())
        return true;
    const qint64 tableSize = contexts.size() >= Unit ? numberAt<quint16>(contexts, 0) : 0;
    const qint64 chains = Unit + tableSize * Unit;
    if (tableSize == 0 || chains > contexts.size())
        return false;
    std::vector<bool> bSound(size_t(contexts.size()), false);
    for (qint64 entry = 0; entry < tableSize; ++entry) {
        const qint64 offset = numberAt<quint16>(contexts, Unit + entry * Unit);
        qint64 position = chains + offset * Unit;
        while (offset != 0) {
            if (position >= contexts.size())
                return false;
            if (bSound[size_t(position)] || byteAt(contexts, position) == 0)
                break;
            bSound[size_t(position)] = true;
            position += 1 + byteAt(contexts, position);
        }
    }
    return true;
}

bool readDependencies(const QByteArray &bytes, QStringList &dependencies)
{
    QDataStream stream(bytes);
    while (!stream.atEnd()) {
        QString name;
        stream >> name;
        if (stream.status() != QDataStream::Ok)
            return false;
        dependencies += name;
    }
    return true;
}

void appendSection(QByteArray &content, quint8 tag, const QByteArray &section)
{
    char length[sizeof(quint32)];
    qToBigEndian(quint32(section.size()), length);
    content += char(tag);
    content.append(length, sizeof length);
    content += section;
}

} // namespace

std::optional<struQmFile> checkedQmFile(const QByteArray &bytes)
{
    const std::optional<Sections> sections = sectionsOf(bytes);
    struQmFile file;
    if (!sections ||
        !areMessagesSound(sections->value(ekSection_Hashes), sections->value(ekSection_Messages)) ||
        !areContextsSound(sections->value(ekSection_Contexts)) ||
        !readDependencies(sections->value(ekSection_Dependencies), file.dependencies))
        return std::nullopt;
    file.bHasMessages = sections->contains(ekSection_Messages);
    file.content.reserve(bytes.size());
    file.content = magic();
    for (const quint8 tag : {ekSection_Contexts, ekSection_Hashes, ekSection_Messages, ekSection_NumerusRules,
                             ekSection_Language}) {
        const QByteArray section = sections->value(tag);
        if (!section.isEmpty())
            appendSection(file.content, tag, section);
    }
    return file;
}

} // namespace PYXRuntime
