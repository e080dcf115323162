// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXTracerBase.h"

#include <QtCore/QByteArray>

#include <deque>

namespace PYXRuntime {

/** "<level> <file>(<line>): <text>" and a line end, without secrets; further lines begin with a tab. */
QByteArray traceLine(PYXTracerBase::eLevel level, const QString &text, const char *file, ushort line);

/** Puts the time in front of lines: "2026-11-21 07:20:00.125 ". */
class TimePrefix final
{
public:
    /** @param now in ms since 1970-01-01 00:00 UTC */
    void appendTo(QByteArray &line, qint64 now);

private:
    qint64 m_second = -1;
    QByteArray m_secondText;
};

/** The last lines that were added; long ones are cut, so that the memory they take is bounded. */
class LastLines final
{
public:
    static constexpr std::size_t MaximumLines = 1000;
    static constexpr int MaximumLineSize = 4096;

    void add(const QByteArray &line);
    bool isEmpty() const { return m_lines.empty(); }
    std::size_t size() const { return m_lines.size(); }
    /** The oldest line, which is taken off. */
    QByteArray takeOldest();

private:
    std::deque<QByteArray> m_lines;
};

} // namespace PYXRuntime
