// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>
#include <QtGui/QIcon>

namespace IconSheet {

/** What one cell of the sheet shows. */
struct struIconEntry
{
    QString name;
    QIcon icon;
    QIcon::State state;
};

/** All icons by their ids; those of switches twice, for the states off and on. */
QVector<struIconEntry> standardIconEntries();

/** Those whose name contains all words of the filter, whatever their case. */
QVector<struIconEntry> filtered(const QVector<struIconEntry> &entries, const QString &filter);

} // namespace IconSheet
