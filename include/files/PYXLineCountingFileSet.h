// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "PYXCountingFileSet.h"

namespace PYXRuntime {

/** A set of files that moves on after a number of line ends. Threads as with PYXCountingFileSet. */
class PYXRUNTIME_EXPORT PYXLineCountingFileSet : public PYXCountingFileSet
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXLineCountingFileSet)
    Q_PROPERTY(quint64 numberOfLinesOfCurrentFile READ numberOfLinesOfCurrentFile)
    Q_PROPERTY(quint64 maximumNumberOfLinesPerFile READ maximumNumberOfLinesPerFile WRITE
                   setMaximumNumberOfLinesPerFile)
public:
    explicit PYXLineCountingFileSet(QObject *parent = nullptr);
    ~PYXLineCountingFileSet() override;

    quint64 numberOfLinesOfCurrentFile() const { return weightOfCurrentFile(); }
    quint64 maximumNumberOfLinesPerFile() const { return maximumWeightPerFile(); }
    void setMaximumNumberOfLinesPerFile(quint64 lines) { setMaximumWeightPerFile(lines); }

Q_SIGNALS:
    /** Comes with si_maximumWeightReached(). */
    void si_maximumNumberOfLinesReached();

protected:
    quint64 _getWeightOfData(const char *data, qint64 requestedSize, qint64 writtenSize) override;
};

} // namespace PYXRuntime
