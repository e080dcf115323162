// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QRectF>
#include <QtGui/QColor>
#include <QtGui/QFont>

#include <vector>

class QPainter;

namespace BandMonitor {

/** The smallest of 1, 2, 5, 10, 20 ... (and 0.5, 0.2 ...) that divides a span into at most so many parts. */
double niceStep(double span, int maximumParts);
/** The multiples of a step from low to high. */
std::vector<double> ticks(double low, double high, double step);

/** A mixture of two colours; @p share of the second one, from 0 to 1. */
QColor mixed(const QColor &first, const QColor &second, double share);
/** For what stands beside the main thing: labels of axes, tables, logs. */
QFont smallerFont(QFont font);
/** The middle of the device pixel that a coordinate falls into, so that a thin line is drawn sharp. */
double sharp(const QPainter &painter, double coordinate);

} // namespace BandMonitor
