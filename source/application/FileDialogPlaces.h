// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXIFileDialogPlaces.h"

#include <QtCore/QObject>

namespace PYXRuntime {

/** What the settings store tells of moved places reaches the file filters through this. */
class FileDialogPlaces final : public QObject, public PYXIFileDialogPlaces
{
    Q_OBJECT
    Q_DISABLE_COPY(FileDialogPlaces)
    Q_INTERFACES(PYXRuntime::PYXIFileDialogPlaces)
public:
    explicit FileDialogPlaces(QObject *parent);
    ~FileDialogPlaces() override;

    void resetLastFileOrDir(uint specialDir, const QString &directory) override;
};

} // namespace PYXRuntime
