// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "FileDialogPlaces.h"

#include "PYXBroker.h"
#include "PYXFileFilter.h"

namespace PYXRuntime {
namespace {

bool registerPlaces()
{
    const QUuid id = PYXBrokerInterface<PYXIFileDialogPlaces>::id();
    PYXBroker *const broker = PYXBroker::getInstance();
    broker->declareInterface(id, QStringLiteral("PYXRuntime::PYXIFileDialogPlaces"));
    broker->registerObject(id, 0, new FileDialogPlaces(broker));
    return true;
}

// Runs while the library loads.
[[maybe_unused]] const bool s_bRegistered = registerPlaces();

} // namespace

FileDialogPlaces::FileDialogPlaces(QObject *parent)
    : QObject(parent)
{
    setObjectName(QStringLiteral("PYXFileFilter:places"));
}

FileDialogPlaces::~FileDialogPlaces() = default;

void FileDialogPlaces::resetLastFileOrDir(uint specialDir, const QString &directory)
{
    PYXFileFilter::resetLastFileOrDir(specialDir, directory);
}

} // namespace PYXRuntime
