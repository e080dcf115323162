// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QString>

namespace BandMonitor {

class SampleSource;

/** Numbers as the user reads them: with a unit of fitting size, in the user's language. */
QString frequencyText(double hertz);
QString bandwidthText(double hertz);
QString levelText(double dbfs);
/** As minutes and seconds, "1:02.4". */
QString timeText(double seconds);
/** How a source is sampled: "48 kHz real, 16 bit". */
QString sourceText(const SampleSource &source);

} // namespace BandMonitor
