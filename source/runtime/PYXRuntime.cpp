// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXRuntime.h"

#include "EmbeddedFonts.h"
#include "Enums.h"
#include "EnumTables.h"
#include "Flags.h"
#include "InitializationCount.h"
#include "NewIntegrationVersionChecker.h"
#include "PYXEncryptionManager.h"
#include "PYXFileListImpl.h"
#include "PYXHelpConnectorImpl.h"
#include "PYXIconLoader.h"
#include "PYXNetworkEntry.h"
#include "PYXPopupNotification.h"
#include "PYXProxyManager.h"
#include "PYXRuntimeCenter.h"
#include "PYXStandardIcons.h"
#include "PYXStatusHash.h"
#include "PYXStringPool.h"
#include "PYXStyleHints.h"
#include "PYXThisRunOnlySettings.h"
#include "PYXTraceWrapper.h"
#include "PYXTransConnectorImpl.h"
#include "PYXXmlSettings.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QSettings>

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\PYXRuntime";
const QLatin1String MissingName("QCoreApplication::applicationName MUST be set before PYXRuntime "
                                "initialization! => reorder code");

const uint s_runtimeScope =
    PYXRuntimeCenter::registerRuntimeScope(QStringLiteral("PYXRuntime"), QStringLiteral("PYXRuntime"));

ePYXInitializeFlags s_initializationFlags;
bool s_bInitializationResult = false;

EmbeddedFonts &embeddedFonts()
{
    static auto *const fonts = new EmbeddedFonts;
    return *fonts;
}

void reportMissingApplicationName()
{
    if (!QCoreApplication::applicationName().isEmpty())
        return;
    PYXRuntimeCenter::pyxWarning(s_runtimeScope, MissingName);
    PYXTraceWrapper::staticTraceWarn(MissingName, TraceFile, __LINE__);
}

void setUpFonts(ePYXInitializeFlags flags)
{
    EmbeddedFonts &fonts = embeddedFonts();
    fonts.load();
    if (!flags.testFlag(ekInitialize_NoFontSubstitution))
        fonts.insertSubstitutions(flags.testFlag(ekInitialize_CondensedFont));
    if (!flags.testFlag(ekInitialize_KeepApplicationFont))
        fonts.applyToApplicationFont();
}

void tearDownFonts()
{
    EmbeddedFonts &fonts = embeddedFonts();
    fonts.restoreApplicationFont();
    fonts.removeSubstitutions();
    fonts.unload();
}

} // namespace

bool initialize_PYXRuntime(ePYXInitializeFlags flags)
{
    const int count = ++initializationCount;
    if (count != 1) {
        PYXTraceWrapper::staticTraceDebug(
            QStringLiteral("initialize_PYXRuntime called multiple times (%1)").arg(count), TraceFile,
            __LINE__);
        return s_bInitializationResult;
    }
    PYXTraceWrapper::staticTraceDebug(QStringLiteral("initialize_PYXRuntime: first call => initializing"),
                                      TraceFile, __LINE__);
    reportMissingApplicationName();
    PYXStringPool::populate();
    QSettings::setDefaultFormat(PYXXmlSettings::format());
    PYXThisRunOnlySettings::makeSureInitialized();
    Enums::makeSureInitialized();
    Flags::makeSureInitialized();
    fillEnumTables();
    PYXStyleHints::makeSureInitialized();
    PYXPopupNotification::makeSureInitialized();
    PYXEncryptionManager::makeSureInitialized();
    PYXProxyManager::makeSureInitialized();
    PYXStatusHash::registerMetaType();
    PYXNetworkEntry::registerMetaTypes();
    // Found through the broker by whoever writes files or shows texts.
    PYXFileListImpl::makeSureInitialized();
    PYXTransConnectorImpl::makeSureInitialized();
    if (!flags.testFlag(ekInitialize_NoFonts))
        setUpFonts(flags);
    s_initializationFlags = flags;
    s_bInitializationResult = true;
    return true;
}

void uninitialize_PYXRuntime()
{
    const int count = --initializationCount;
    if (count != 0) {
        PYXTraceWrapper::staticTraceDebug(
            QStringLiteral("uninitialize_PYXRuntime: references still open (%1)").arg(count), TraceFile,
            __LINE__);
        return;
    }
    PYXTraceWrapper::staticTraceDebug(
        QStringLiteral("uninitialize_PYXRuntime: last reference gone => cleaning up"), TraceFile, __LINE__);
    tearDownFonts();
    PYXProxyManager::destroyInstance();
    PYXEncryptionManager::destroyInstance();
    PYXPopupNotification::destroyInstance();
    PYXStyleHints::destroyInstance();
    Flags::destroyInstance();
    Enums::destroyInstance();
    PYXThisRunOnlySettings::destroyInstance();
    if (QSettings::defaultFormat() == PYXXmlSettings::format())
        QSettings::setDefaultFormat(QSettings::NativeFormat);
    PYXIconLoader::destroyInstance();
    PYXStandardIcons::destroyInstance();
    NewIntegrationVersionChecker::destroyInstance();
    PYXHelpConnectorImpl::destroyInstance();
    PYXTransConnectorImpl::destroyInstance();
    PYXFileListImpl::destroyInstance();
}

bool isInitialized_PYXRuntime()
{
    return initializationCount != 0;
}

int initializitationCount_PYXRuntime()
{
    return initializationCount;
}

ePYXInitializeFlags initializationFlags_PYXRuntime()
{
    return s_initializationFlags;
}

bool initializationResult_PYXRuntime()
{
    return s_bInitializationResult;
}

void makeEmbeddedFontsAvailable()
{
    embeddedFonts().loadOnDemand();
}

void makeEmbeddedFontsUnavailable()
{
    embeddedFonts().unloadIfOnDemand();
}

QString htmlEscape(const QString &text)
{
    return text.toHtmlEscaped();
}

} // namespace PYXRuntime
