// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "TraceLines.h"

#include "SecretMask.h"

#include <QtCore/QDateTime>

#include <charconv>
#include <cstring>
#include <iterator>

namespace PYXRuntime {
namespace {

constexpr qint64 MsPerSecond = 1000;
constexpr char CutMark[] = " ...\n";

const char *nameOf(PYXTracerBase::eLevel level)
{
    switch (level) {
    case PYXTracerBase::ekLevel_Debug:
        return "DEBUG";
    case PYXTracerBase::ekLevel_Info:
        return "INFO";
    case PYXTracerBase::ekLevel_Warn:
        return "WARN";
    case PYXTracerBase::ekLevel_Error:
        return "ERROR";
    case PYXTracerBase::ekLevel_DebugInfo:
        return "DEBUG_INFO";
    case PYXTracerBase::ekLevel_DebugWarn:
        return "DEBUG_WARN";
    case PYXTracerBase::ekLevel_DebugError:
        return "DEBUG_ERROR";
    }
    return "";
}

/** A text cannot pass a part of itself off as another trace. */
QByteArray indented(QByteArray text)
{
    text.replace("\r\n", "\n").replace('\r', '\n');
    while (text.endsWith('\n'))
        text.chop(1);
    return text.replace("\n", "\n\t");
}

bool hasLineEnd(const QByteArray &text)
{
    const auto size = static_cast<std::size_t>(text.size());
    return std::memchr(text.constData(), '\n', size) != nullptr ||
           std::memchr(text.constData(), '\r', size) != nullptr;
}

} // namespace

QByteArray traceLine(PYXTracerBase::eLevel level, const QString &text, const char *file, ushort line)
{
    QByteArray utf8 = withoutSecrets(text).toUtf8();
    if (hasLineEnd(utf8))
        utf8 = indented(utf8);
    const char *const levelName = nameOf(level);
    const char *const fileName = file == nullptr ? "" : file;
    char number[8];
    const auto numberEnd = std::to_chars(std::begin(number), std::end(number), line).ptr;
    QByteArray result;
    result.reserve(static_cast<int>(std::strlen(levelName) + std::strlen(fileName)) + utf8.size() + 16);
    result.append(levelName).append(' ').append(fileName).append('(');
    result.append(number, static_cast<int>(numberEnd - number)).append("): ").append(utf8).append('\n');
    return result;
}

void TimePrefix::appendTo(QByteArray &line, qint64 now)
{
    const qint64 second = now / MsPerSecond;
    if (second != m_second) {
        m_second = second;
        m_secondText = QDateTime::fromMSecsSinceEpoch(second * MsPerSecond, Qt::UTC)
                           .toString(QStringLiteral("yyyy-MM-dd HH:mm:ss."))
                           .toLatin1();
    }
    const int ms = static_cast<int>(now % MsPerSecond);
    const char digits[] = {static_cast<char>('0' + ms / 100), static_cast<char>('0' + ms / 10 % 10),
                           static_cast<char>('0' + ms % 10), ' '};
    line.append(m_secondText).append(digits, sizeof digits);
}

void LastLines::add(const QByteArray &line)
{
    if (m_lines.size() == MaximumLines)
        m_lines.pop_front();
    if (line.size() <= MaximumLineSize) {
        m_lines.push_back(line);
        return;
    }
    int size = MaximumLineSize - static_cast<int>(std::strlen(CutMark));
    // Not within a character.
    while (size > 0 && (static_cast<uchar>(line.at(size)) & 0xC0U) == 0x80U)
        --size;
    m_lines.push_back(line.left(size) + CutMark);
}

QByteArray LastLines::takeOldest()
{
    QByteArray line = m_lines.front();
    m_lines.pop_front();
    return line;
}

} // namespace PYXRuntime
