// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <PYXTracerBase.h>

#include <QtCore/QObject>
#include <QtCore/QString>
#include <QtCore/QVector>

#include <mutex>

namespace BandMonitor {

/**
 * A tracer for a log that is shown in a window. Traces come in any thread and wait here until the log
 * takes them in its own; where they come faster than that, the oldest are dropped.
 */
class LogTracer final : public QObject, public PYXRuntime::PYXTracerBase
{
    Q_OBJECT
    Q_INTERFACES(Interfaces::IPYXTracer2 : Interfaces::IPYXTracer)
public:
    struct struLine
    {
        eLevel severity = ekLevel_Debug;
        qint64 time = 0; ///< in milliseconds since 1970, UTC
        QString origin;  ///< a module, or a runtime scope
        QString text;
    };

    /** As many lines as wait at most. */
    static constexpr int MaximumLines = 1000;

    using QObject::QObject;

    /** The lines that came since the last call. Any thread. */
    QVector<struLine> takeLines();

Q_SIGNALS:
    /** Emitted in the thread that traces, once for all lines that then wait. */
    void si_linesWaiting();

protected:
    void trace(const struTrace &trace) override;

private:
    std::mutex m_mutex;
    QVector<struLine> m_lines;
};

} // namespace BandMonitor
