// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXRuntimeCenter.h"

#include "PYXMessageOutput.h"
#include "PYXStringHelpers.h"
#include "PYXTraceWrapper.h"
#include "SingletonHolder.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QTextStream>

#include <mutex>

namespace PYXRuntime {
namespace {

using Holder = SingletonHolder<PYXRuntimeCenter>;
using ReadLocker = std::shared_lock<std::shared_mutex>;
using WriteLocker = std::unique_lock<std::shared_mutex>;

const QLatin1String ConfigFileName("pyxRuntimeScopes.cfg");
const QLatin1String ConfigDirectory("/config/");
const QLatin1String AllScopes("*");
const QLatin1String ConfigFilePurpose("created from config file");

bool s_bConfigFilesHandled = false;

/** The switch that "+x" or "-x" asks for, where @p option is that for @p letters. */
bool isSwitch(const QString &option, QLatin1String letters, bool &on)
{
    if (option.size() != letters.size() + 1 || !option.endsWith(letters))
        return false;
    on = option.at(0) == QLatin1Char('+');
    return on || option.at(0) == QLatin1Char('-');
}

} // namespace

std::array<std::atomic<int>, 1024> PYXRuntimeCenter::s_debugGate{};

PYXRuntimeCenter::PYXRuntimeCenter()
{
    // Waits in the queue until there is an application with an event loop.
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

PYXRuntimeCenter::~PYXRuntimeCenter()
{
    for (auto &gate : s_debugGate)
        gate = 0;
}

PYXRuntimeCenter *PYXRuntimeCenter::getInstance()
{
    return Holder::instance([] { return new PYXRuntimeCenter; });
}

bool PYXRuntimeCenter::hasInstance()
{
    return Holder::existing() != nullptr;
}

void PYXRuntimeCenter::destroyInstance()
{
    Holder::destroy();
}

uint PYXRuntimeCenter::registerRuntimeScope(const QString &name, const QString &purpose)
{
    // Literals of a plug-in are gone when it is unloaded.
    const QString kept = PYXStringHelpers::trueCopy(name);
    PYXRuntimeCenter *const center = getInstance();
    const WriteLocker locker(center->m_lock);
    const uint token = qHash(name, 0);
    const bool bKnown = center->m_tokens.contains(name);
    center->m_tokens.insert(kept, token);
    RuntimeScope &scope = center->m_scopes[token];
    scope.name = kept;
    scope.latin1Name = name.toLatin1();
    scope.purpose = PYXStringHelpers::trueCopy(purpose);
    if (!bKnown) {
        _switchDebug(token, scope, center->m_bDebugDefault);
        scope.warningEnabled = center->m_bWarningDefault;
    }
    return token;
}

uint PYXRuntimeCenter::runtimeScopeToken(const QString &name)
{
    const PYXRuntimeCenter *const center = getInstance();
    const ReadLocker locker(center->m_lock);
    return center->m_tokens.value(name, 0);
}

QString PYXRuntimeCenter::runtimeScopeName(uint token)
{
    return getInstance()->_scope(token).name;
}

QHash<uint, PYXRuntimeCenter::RuntimeScope> PYXRuntimeCenter::runtimeScopes()
{
    const PYXRuntimeCenter *const center = getInstance();
    const ReadLocker locker(center->m_lock);
    return center->m_scopes;
}

PYXRuntimeCenter::RuntimeScope PYXRuntimeCenter::_scope(uint token) const
{
    const ReadLocker locker(m_lock);
    return m_scopes.value(token);
}

bool PYXRuntimeCenter::_isDebugEnabled(uint token)
{
    return getInstance()->_scope(token).debugEnabled;
}

void PYXRuntimeCenter::_writeDebug(uint token, const QString &text)
{
    const RuntimeScope scope = getInstance()->_scope(token);
    if (!scope.debugEnabled)
        return;
    pyx_message_debug_output(text);
    if (isEnabled_pyxDebugToTrace())
        PYXTraceWrapper::staticTraceDebug(text, scope.latin1Name.constData(), 0);
}

void PYXRuntimeCenter::pyxWarning(uint token, const QString &text)
{
    const RuntimeScope scope = getInstance()->_scope(token);
    if (!scope.warningEnabled)
        return;
    pyx_message_debug_output(text);
    if (isEnabled_pyxWarningToTrace())
        PYXTraceWrapper::staticTraceWarn(text, scope.latin1Name.constData(), 0);
}

bool PYXRuntimeCenter::isEnabled_pyxDebug(const QString &name)
{
    return isEnabled_pyxDebug(runtimeScopeToken(name));
}

bool PYXRuntimeCenter::isEnabled_pyxWarning(uint token)
{
    return getInstance()->_scope(token).warningEnabled;
}

bool PYXRuntimeCenter::isEnabled_pyxWarning(const QString &name)
{
    return isEnabled_pyxWarning(runtimeScopeToken(name));
}

void PYXRuntimeCenter::setEnabled_pyxDebug(uint token, bool enabled)
{
    PYXRuntimeCenter *const center = getInstance();
    const WriteLocker locker(center->m_lock);
    _switchDebug(token, center->m_scopes[token], enabled);
}

void PYXRuntimeCenter::setEnabled_pyxDebug(const QString &name, bool enabled)
{
    setEnabled_pyxDebug(runtimeScopeToken(name), enabled);
}

void PYXRuntimeCenter::setEnabled_pyxWarning(uint token, bool enabled)
{
    PYXRuntimeCenter *const center = getInstance();
    const WriteLocker locker(center->m_lock);
    center->m_scopes[token].warningEnabled = enabled;
}

void PYXRuntimeCenter::setEnabled_pyxWarning(const QString &name, bool enabled)
{
    setEnabled_pyxWarning(runtimeScopeToken(name), enabled);
}

void PYXRuntimeCenter::setEnabled_pyxDebug(bool enabled)
{
    PYXRuntimeCenter *const center = getInstance();
    const WriteLocker locker(center->m_lock);
    center->m_bDebugDefault = enabled;
    for (auto scope = center->m_scopes.begin(); scope != center->m_scopes.end(); ++scope)
        _switchDebug(scope.key(), *scope, enabled);
}

void PYXRuntimeCenter::setEnabled_pyxWarning(bool enabled)
{
    PYXRuntimeCenter *const center = getInstance();
    const WriteLocker locker(center->m_lock);
    center->m_bWarningDefault = enabled;
    for (RuntimeScope &scope : center->m_scopes)
        scope.warningEnabled = enabled;
}

void PYXRuntimeCenter::_switchDebug(uint token, RuntimeScope &scope, bool enabled)
{
    if (scope.debugEnabled == enabled)
        return;
    scope.debugEnabled = enabled;
    s_debugGate[token % s_debugGate.size()].fetch_add(enabled ? 1 : -1, std::memory_order_relaxed);
}

bool PYXRuntimeCenter::isEnabled_pyxDebugToTrace()
{
    return getInstance()->m_bDebugToTrace;
}

bool PYXRuntimeCenter::isEnabled_pyxWarningToTrace()
{
    return getInstance()->m_bWarningToTrace;
}

void PYXRuntimeCenter::setEnabled_pyxDebugToTrace(bool enabled)
{
    getInstance()->m_bDebugToTrace = enabled;
}

void PYXRuntimeCenter::setEnabled_pyxWarningToTrace(bool enabled)
{
    getInstance()->m_bWarningToTrace = enabled;
}

bool PYXRuntimeCenter::event(QEvent *event)
{
    if (event->type() != QEvent::User)
        return false;
    handleConfigFiles();
    return true;
}

void PYXRuntimeCenter::_sl_qapp_aboutToQuit() {}

void PYXRuntimeCenter::handleConfigFiles()
{
    if (s_bConfigFilesHandled || QCoreApplication::instance() == nullptr)
        return;
    s_bConfigFilesHandled = true;
    const QString directory = QCoreApplication::applicationDirPath();
    if (!_readConfigFile(directory + ConfigDirectory + ConfigFileName))
        _readConfigFile(directory + QLatin1Char('/') + ConfigFileName);
    connect(QCoreApplication::instance(), &QCoreApplication::aboutToQuit, getInstance(),
            &PYXRuntimeCenter::_sl_qapp_aboutToQuit);
}

bool PYXRuntimeCenter::_readConfigFile(const QString &path)
{
    QFile file(path);
    // Opening a pipe would wait for its writer.
    if (!QFileInfo(file).isFile() || !file.open(QIODevice::ReadOnly | QIODevice::Text))
        return false;
    pyx_message_debug_output(QLatin1String("PYXRuntime::PYXRuntimeCenter::_readConfigFile('") + path +
                             QLatin1String("')"));
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    stream.setAutoDetectUnicode(false);
    QString line;
    while (stream.readLineInto(&line)) {
        line = line.simplified();
        if (!line.isEmpty() && !line.startsWith(QLatin1Char('#')))
            _applyConfigLine(line);
    }
    return true;
}

void PYXRuntimeCenter::_applyConfigLine(const QString &line)
{
    const QStringList parts = line.split(QLatin1Char(':'), Qt::KeepEmptyParts);
    const QString name = parts.first().trimmed();
    pyx_message_debug_output(QLatin1String("  found runtime scope '") + name + QLatin1Char('\''));
    PYXRuntimeCenter *const center = getInstance();
    const auto isRegistered = [&] {
        const ReadLocker locker(center->m_lock);
        return center->m_tokens.contains(name);
    };
    const bool bRegistered = isRegistered();
    const bool bGlobal = name == AllScopes && !bRegistered;
    if (!bRegistered && !bGlobal) {
        pyx_message_debug_output(QStringLiteral(" -> yet unknown, creating"));
        registerRuntimeScope(name, ConfigFilePurpose);
    }
    const uint token = bGlobal ? 0 : runtimeScopeToken(name);
    if (!bGlobal && token == 0) {
        pyx_message_debug_output(QStringLiteral(" -> invalid token, skipping"));
        return;
    }
    for (int part = 1; part < parts.size(); ++part) {
        const QString option = parts.at(part).toLower().trimmed();
        if (bGlobal ? _applyGlobalOption(option) : _applyScopeOption(token, option))
            pyx_message_debug_output(QLatin1Char(' ') + option);
        else
            pyx_message_debug_output(QLatin1String(" unknown option '") + option + QLatin1Char('\''));
    }
}

bool PYXRuntimeCenter::_applyGlobalOption(const QString &option)
{
    bool on = false;
    if (isSwitch(option, QLatin1String("d"), on))
        setEnabled_pyxDebug(on);
    else if (isSwitch(option, QLatin1String("w"), on))
        setEnabled_pyxWarning(on);
    else if (isSwitch(option, QLatin1String("td"), on))
        setEnabled_pyxDebugToTrace(on);
    else if (isSwitch(option, QLatin1String("tw"), on))
        setEnabled_pyxWarningToTrace(on);
    else
        return false;
    return true;
}

bool PYXRuntimeCenter::_applyScopeOption(uint token, const QString &option)
{
    bool on = false;
    if (isSwitch(option, QLatin1String("d"), on))
        setEnabled_pyxDebug(token, on);
    else if (isSwitch(option, QLatin1String("w"), on))
        setEnabled_pyxWarning(token, on);
    else
        return false;
    return true;
}

} // namespace PYXRuntime
