// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXCountingFileSet.h"

namespace PYXRuntime {

/** A set of files that moves on after a number of bytes (as they were handed over, in text mode too). Threads
 * as with PYXCountingFileSet. */
class PYXRUNTIME_EXPORT PYXSizeCountingFileSet : public PYXCountingFileSet
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXSizeCountingFileSet)
public:
    explicit PYXSizeCountingFileSet(QObject *parent = nullptr);
    ~PYXSizeCountingFileSet() override;

protected:
    quint64 _getWeightOfData(const char *data, qint64 requestedSize, qint64 writtenSize) override;
};

} // namespace PYXRuntime
