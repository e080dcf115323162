// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// Two channels: the trace for operators, and a runtime scope for developers, which is off until it is
// switched on.
#include <PYXRuntime.h>
#include <PYXRuntimeCenter.h>
#include <PYXTraceWrapper.h>

#include <QApplication>
#include <QStringList>
#include <QTextStream>

using PYXRuntime::PYXRuntimeCenter;
using PYXRuntime::PYXTracerBase;
using PYXRuntime::PYXTraceWrapper;

namespace {

// Registered while the program loads, so that a configuration file finds the scope.
const uint scope = PYXRuntimeCenter::registerRuntimeScope("Frontend", "antennas and gains");

/** Receives every trace, as a log window of the application would. */
class MessageList : public PYXTracerBase
{
public:
    QStringList messages() const { return m_messages; }

protected:
    void trace(const struTrace &trace) override
    {
        // In the thread that traces: a list that several threads fill needs a lock.
        m_messages +=
            (trace.severity() == ekLevel_Warn ? "operator sees: " : "developer sees: ") + trace.wholeText();
    }

private:
    QStringList m_messages;
};

void adjustGain(double gain)
{
    PYX_DEBUG(scope, QString("gain %1 dB").arg(gain)); // makes the text only if somebody wants it
    PYXTraceWrapper::staticTraceWarn("antenna 2 is silent", "source\\Frontend", __LINE__);
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("02 Diagnostics");
    PYXRuntime::initialize_PYXRuntime();

    MessageList list;
    PYXTraceWrapper::addTracer(&list);
    adjustGain(3.0); // the scope is off: nothing but the warning

    // What "Frontend:+d" and "*:+td" do in pyxRuntimeScopes.cfg.
    PYXRuntimeCenter::setEnabled_pyxDebug(scope, true);
    PYXRuntimeCenter::setEnabled_pyxDebugToTrace(true);
    adjustGain(12.5);
    PYXTraceWrapper::removeTracer(&list); // before it is destroyed

    QTextStream(stdout) << list.messages().join('\n') << '\n';
    PYXRuntime::uninitialize_PYXRuntime();
    return list.messages().size() == 3 ? 0 : 1;
}
