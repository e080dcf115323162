// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXLineCountingFileSet.h"

#include "LineEnds.h"

namespace PYXRuntime {

PYXLineCountingFileSet::PYXLineCountingFileSet(QObject *parent)
    : PYXCountingFileSet(parent)
{
    connect(this, &PYXCountingFileSet::si_maximumWeightReached, this,
            &PYXLineCountingFileSet::si_maximumNumberOfLinesReached);
}

PYXLineCountingFileSet::~PYXLineCountingFileSet() = default;

quint64 PYXLineCountingFileSet::_getWeightOfData(const char *data, qint64, qint64 writtenSize)
{
    return countLineEnds(data, writtenSize);
}

} // namespace PYXRuntime
