// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QVector>
#include <QtGui/QColor>

namespace BandMonitor {

/** The levels that the views show, in dBFS. */
struct struLevelRange
{
    double low = -120;
    double high = 0;

    bool operator==(const struLevelRange &other) const { return low == other.low && high == other.high; }
    bool operator!=(const struLevelRange &other) const { return !(*this == other); }
    /** Where a level lies in the range: from 0 to 1, and beyond for one outside. */
    double share(double level) const { return (level - low) / (high - low); }
};

/** The colour of a share from 0 to 1: from black over red to light yellow, in even steps of lightness. */
QColor levelColour(double share);

/** A level in one byte, in steps of 0.6 dB from -150 dBFS. */
quint8 levelByte(double level);
/** The colours of all level bytes. */
QVector<QRgb> colourTable(const struLevelRange &range);

} // namespace BandMonitor
