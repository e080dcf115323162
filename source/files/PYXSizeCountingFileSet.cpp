// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXSizeCountingFileSet.h"

namespace PYXRuntime {

PYXSizeCountingFileSet::PYXSizeCountingFileSet(QObject *parent)
    : PYXCountingFileSet(parent)
{}

PYXSizeCountingFileSet::~PYXSizeCountingFileSet() = default;

quint64 PYXSizeCountingFileSet::_getWeightOfData(const char *, qint64, qint64 writtenSize)
{
    return static_cast<quint64>(qMax<qint64>(writtenSize, 0));
}

} // namespace PYXRuntime
