// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QDataStream>
#include <QtCore/QFile>
#include <QtCore/QMap>
#include <QtCore/QStringList>

/** Writes compiled translation files, so that tests need no tool of Qt's. */
class QmBytes final
{
public:
    void add(const char *context, const char *source, const QString &translation, const char *comment = "")
    {
        m_offsets.insert(hash(QByteArray(source) + comment), quint32(m_messages.size()));
        QDataStream stream(&m_messages, QIODevice::Append);
        stream << quint8(3) << translation;
        for (const auto &[tag, text] : {std::pair(8, comment), std::pair(6, source), std::pair(7, context)}) {
            stream << quint8(tag) << quint32(qstrlen(text));
            stream.writeRawData(text, int(qstrlen(text)));
        }
        stream << quint8(1);
    }
    void dependOn(const QStringList &files)
    {
        QDataStream stream(&m_dependencies, QIODevice::Append);
        for (const QString &file : files)
            stream << file;
    }

    QByteArray bytes() const
    {
        QByteArray hashes;
        QDataStream stream(&hashes, QIODevice::WriteOnly);
        for (auto offset = m_offsets.cbegin(); offset != m_offsets.cend(); ++offset)
            stream << offset.key() << offset.value();
        return QByteArray::fromHex("3cb86418caef9c95cd211cbf60a1bddd") + section(0x96, m_dependencies) +
               section(0x42, hashes) + section(0x69, m_messages);
    }
    void write(const QString &path) const
    {
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes()) < 0)
            qFatal("%s cannot be written", qPrintable(path));
    }

    static QByteArray section(quint8 tag, const QByteArray &content)
    {
        QByteArray bytes;
        QDataStream stream(&bytes, QIODevice::WriteOnly);
        if (!content.isEmpty())
            stream << tag << content;
        return bytes;
    }

private:
    static quint32 hash(const QByteArray &text)
    {
        quint32 sum = 0;
        for (const char letter : text) {
            sum = (sum << 4) + uchar(letter);
            const quint32 high = sum & 0xf0000000U;
            sum = (sum ^ (high >> 24)) & ~high;
        }
        return sum == 0 ? 1 : sum;
    }

    QMultiMap<quint32, quint32> m_offsets;
    QByteArray m_messages;
    QByteArray m_dependencies;
};
