// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "InstanceMessage.h"

#include <QtCore/QDataStream>

namespace PYXRuntime::InstanceMessage {
namespace {

constexpr quint32 MessageMark = 0x50595849; // "PYXI"
constexpr quint32 AnswerMark = 0x50595841;  // "PYXA"
constexpr quint32 Version = 1;
constexpr int HeaderSize = 12;
constexpr int LengthOffset = 8;
constexpr QDataStream::Version StreamVersion = QDataStream::Qt_5_15;
// Its length alone.
constexpr quint32 SmallestText = 4;

bool decodeContent(const QByteArray &content, struMessage &message)
{
    QDataStream stream(content);
    stream.setVersion(StreamVersion);
    quint32 count = 0;
    stream >> count;
    if (count > quint32(content.size()) / SmallestText)
        return false;
    for (quint32 i = 0; i < count && stream.status() == QDataStream::Ok; ++i) {
        QString argument;
        stream >> argument;
        message.arguments += argument;
    }
    stream >> message.workingDirectory;
    return stream.status() == QDataStream::Ok && stream.atEnd();
}

} // namespace

QByteArray encoded(const struMessage &message)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(StreamVersion);
    stream << MessageMark << Version << quint32(0) << quint32(message.arguments.size());
    for (const QString &argument : message.arguments) {
        stream << argument;
        if (bytes.size() > LongestContent)
            return {};
    }
    stream << message.workingDirectory;
    const int length = bytes.size() - HeaderSize;
    stream.device()->seek(LengthOffset);
    stream << quint32(length);
    return length <= LongestContent ? bytes : QByteArray();
}

eState decode(const QByteArray &bytes, struMessage &message)
{
    QDataStream stream(bytes);
    quint32 mark = 0;
    quint32 version = 0;
    quint32 length = 0;
    stream >> mark >> version >> length;
    if (bytes.size() < HeaderSize)
        return ekIncomplete;
    if (mark != MessageMark || version != Version || length > quint32(LongestContent))
        return ekMalformed;
    const int missing = HeaderSize + int(length) - bytes.size();
    if (missing > 0)
        return ekIncomplete;
    return missing == 0 && decodeContent(bytes.mid(HeaderSize), message) ? ekComplete : ekMalformed;
}

QByteArray encoded(eAnswer answer)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream << AnswerMark << quint32(answer);
    return bytes;
}

eAnswer decodedAnswer(const QByteArray &bytes)
{
    return bytes == encoded(ekAnswer_Taken) ? ekAnswer_Taken : ekAnswer_Refused;
}

} // namespace PYXRuntime::InstanceMessage
