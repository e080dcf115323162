// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "LogTracer.h"

#include <QtCore/QDateTime>

namespace BandMonitor {

QVector<LogTracer::struLine> LogTracer::takeLines()
{
    const std::lock_guard<std::mutex> locker(m_mutex);
    QVector<struLine> lines;
    lines.swap(m_lines);
    return lines;
}

void LogTracer::trace(const struTrace &trace)
{
    const struLine line{trace.severity(), QDateTime::currentMSecsSinceEpoch(),
                        QString::fromLatin1(trace.file), trace.wholeText()};
    bool bFirst = false;
    {
        const std::lock_guard<std::mutex> locker(m_mutex);
        bFirst = m_lines.isEmpty();
        if (m_lines.size() == MaximumLines)
            m_lines.removeFirst();
        m_lines += line;
    }
    if (bFirst)
        Q_EMIT si_linesWaiting();
}

} // namespace BandMonitor
