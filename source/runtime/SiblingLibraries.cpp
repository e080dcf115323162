// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "Platform.h"
#include "PYXRuntime.h"

#include <memory>

namespace PYXRuntime {
namespace {

const QLatin1String QtLibraryPrefix("Qt5");
const QLatin1String PrivateBuildInfix("Wend");
constexpr const char *InfixVariable = "BUILD_QT_INFIX";

/** Loads a library; @p version is part of the file name on systems whose names have one (-1: none). */
QLibrary *load(const QString &baseName, int version)
{
    auto library = std::make_unique<QLibrary>();
    library->setFileNameAndVersion(Platform::libraryFileName(baseName), version);
    library->setLoadHints(QLibrary::ResolveAllSymbolsHint);
    return library->load() ? library.release() : nullptr;
}

} // namespace

QLibrary *getReferenceOnProjectDLL(const QString &name)
{
    return load(name, -1);
}

QLibrary *getReferenceOnQtDLL(const QString &module)
{
    const QString baseName = QtLibraryPrefix + module;
    QLibrary *library = load(baseName, QT_VERSION_MAJOR);
    if (library == nullptr)
        library = load(baseName + PrivateBuildInfix, QT_VERSION_MAJOR);
    const QString infix = qEnvironmentVariable(InfixVariable);
    if (library == nullptr && !infix.isEmpty())
        library = load(baseName + infix, QT_VERSION_MAJOR);
    return library;
}

} // namespace PYXRuntime
