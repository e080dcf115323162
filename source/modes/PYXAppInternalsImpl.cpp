// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXAppInternalsImpl.h"

#include "PYXAppInternalsImpl_private.h"
#include "PYXBroker.h"
#include "PYXRuntimeCenter.h"
#include "PYXTraceWrapper.h"

#include <QtCore/QCoreApplication>

#include <algorithm>
#include <utility>

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\PYXAppInternalsImpl";
constexpr const char *TextContext = "PYXRuntime::PYXAppInternalsImpl";
constexpr uint BrokerName = 0;

const uint s_runtimeScope =
    PYXRuntimeCenter::registerRuntimeScope(QStringLiteral("PYXRuntime"), QStringLiteral("PYXRuntime"));

struct struSwitch
{
    const char *shortForm;
    const char *longForm;
    quint64 mode;
    bool bOn;
    const char *message;
};

constexpr struSwitch StandardSwitches[] = {
    {"+e", "++expert", PYXIAppInternals::ekAppMode_Expert, true, " found: switching expert mode ON"},
    {"-e", "--expert", PYXIAppInternals::ekAppMode_Expert, false, " found: switching expert mode OFF"},
    {"+d", "++debug", PYXIAppInternals::ekAppMode_Debug, true, " found: switching debug mode ON"},
    {"-d", "--debug", PYXIAppInternals::ekAppMode_Debug, false, " found: switching debug mode OFF"},
};

const char *appModesSignal()
{
    return SIGNAL(si_appModesChanged(quint64, quint64));
}

const char *internalFlagsSignal()
{
    return SIGNAL(si_internalFlagsChanged(quint64, quint64));
}

const char *specialModeFlagsSignal()
{
    return SIGNAL(si_specialModeFlagsChanged(quint64, quint64));
}

/** @return null for an argument, in small letters, that is no switch. */
const struSwitch *standardSwitch(const QString &argument)
{
    const auto *const found =
        std::find_if(std::begin(StandardSwitches), std::end(StandardSwitches), [&](const struSwitch &entry) {
            return argument == QLatin1String(entry.shortForm) || argument == QLatin1String(entry.longForm);
        });
    return found != std::end(StandardSwitches) ? found : nullptr;
}

void traceMode(const char *text, ushort line)
{
    PYXTraceWrapper::staticTraceInfo(QCoreApplication::translate(TextContext, text), TraceFile, line);
}

} // namespace

PYXAppInternalsImpl::PYXAppInternalsImpl(QObject *owner)
    : m_private(std::make_unique<PYXAppInternalsImpl_private>(this))
    , m_owner(owner)
{
    _takeArguments(QCoreApplication::arguments());
}

PYXAppInternalsImpl::~PYXAppInternalsImpl()
{
    cleanup_PYXAppInternalsImpl();
}

void PYXAppInternalsImpl::initialize_PYXAppInternalsImpl()
{
    m_bRegistered = true;
    m_private->checkInterfaceSoon();
    PYXBroker::getInstance()->registerObject(InterfaceIdentifiers::appInternals(), BrokerName, m_owner);
}

void PYXAppInternalsImpl::cleanup_PYXAppInternalsImpl()
{
    if (std::exchange(m_bRegistered, false))
        PYXBroker::getInstance()->unregisterObject(InterfaceIdentifiers::appInternals(), BrokerName, m_owner);
}

void PYXAppInternalsImpl::overrideAppModes(quint64 value)
{
    if (value == m_appModes)
        return;
    const quint64 oldValue = std::exchange(m_appModes, value);
    Q_EMIT m_private->si_appModesChanged(oldValue, value);
}

void PYXAppInternalsImpl::overrideInternalFlags(quint64 value)
{
    if (value == m_internalFlags)
        return;
    const quint64 oldValue = std::exchange(m_internalFlags, value);
    Q_EMIT m_private->si_internalFlagsChanged(oldValue, value);
}

void PYXAppInternalsImpl::overrideSpecialModeFlags(quint64 value)
{
    if (value == m_specialModeFlags)
        return;
    const quint64 oldValue = std::exchange(m_specialModeFlags, value);
    Q_EMIT m_private->si_specialModeFlagsChanged(oldValue, value);
}

bool PYXAppInternalsImpl::connectSignal_appModesChanged(QObject *receiver, const char *method,
                                                        Qt::ConnectionType type)
{
    return QObject::connect(m_private.get(), appModesSignal(), receiver, method, type);
}

bool PYXAppInternalsImpl::connectSignal_internalFlagsChanged(QObject *receiver, const char *method,
                                                             Qt::ConnectionType type)
{
    return QObject::connect(m_private.get(), internalFlagsSignal(), receiver, method, type);
}

bool PYXAppInternalsImpl::connectSignal_specialModeFlagsChanged(QObject *receiver, const char *method,
                                                                Qt::ConnectionType type)
{
    return QObject::connect(m_private.get(), specialModeFlagsSignal(), receiver, method, type);
}

void PYXAppInternalsImpl::disconnectSignal_appModesChanged(QObject *receiver, const char *method)
{
    if (receiver != nullptr)
        QObject::disconnect(m_private.get(), appModesSignal(), receiver, method);
}

void PYXAppInternalsImpl::disconnectSignal_internalFlagsChanged(QObject *receiver, const char *method)
{
    if (receiver != nullptr)
        QObject::disconnect(m_private.get(), internalFlagsSignal(), receiver, method);
}

void PYXAppInternalsImpl::disconnectSignal_specialModeFlagsChanged(QObject *receiver, const char *method)
{
    if (receiver != nullptr)
        QObject::disconnect(m_private.get(), specialModeFlagsSignal(), receiver, method);
}

void PYXAppInternalsImpl::disconnectSignals(QObject *receiver)
{
    disconnectSignal_appModesChanged(receiver, nullptr);
    disconnectSignal_internalFlagsChanged(receiver, nullptr);
    disconnectSignal_specialModeFlagsChanged(receiver, nullptr);
}

void PYXAppInternalsImpl::installShortcuts_AppModes(QWidget *widget)
{
    m_private->installShortcuts(widget);
}

void PYXAppInternalsImpl::uninstallShortcuts_AppModes(QWidget *widget)
{
    m_private->uninstallShortcuts(widget);
}

void PYXAppInternalsImpl::logAppMode() const
{
    if (appIsInExpertMode())
        traceMode(
            QT_TRANSLATE_NOOP("PYXRuntime::PYXAppInternalsImpl", "Application is running in EXPERT MODE"),
            __LINE__);
    if (appIsInDebugMode())
        traceMode(
            QT_TRANSLATE_NOOP("PYXRuntime::PYXAppInternalsImpl", "Application is running in DEBUG MODE"),
            __LINE__);
}

void PYXAppInternalsImpl::_handleCmdLineArgsFromRunningApp(const QStringList &arguments)
{
    _takeArguments(arguments);
}

void PYXAppInternalsImpl::_takeArguments(QStringList arguments)
{
    QStringList switches;
    QStringList others;
    for (const QString &argument : qAsConst(arguments)) {
        const QString lowered = argument.toLower();
        if (standardSwitch(lowered) != nullptr)
            switches += lowered;
        else
            others += argument;
    }
    // Both lists are complete before the first listener hears of a mode.
    m_cmdLineArgs = std::move(arguments);
    m_cmdLineArgs_withoutStandard = std::move(others);
    const QPointer<QObject> guard(m_private.get());
    for (const QString &argument : qAsConst(switches)) {
        const struSwitch &found = *standardSwitch(argument);
        const bool isOn = (m_appModes & found.mode) != 0;
        if (isOn == found.bOn)
            continue;
        PYX_DEBUG(s_runtimeScope, argument + QLatin1String(found.message));
        overrideAppModes(m_appModes ^ found.mode);
        if (guard.isNull())
            return;
    }
}

} // namespace PYXRuntime
