// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QString>

class QAbstractItemModel;

namespace BandMonitor {

/** A table for people to read: a line for each row, headings first, the columns one below the other. */
QString alignedText(const QAbstractItemModel &model);
/** A table for spreadsheets: comma-separated as in RFC 4180, headings first. */
QString csvText(const QAbstractItemModel &model);

} // namespace BandMonitor
