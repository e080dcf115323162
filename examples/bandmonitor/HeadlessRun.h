// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "DetectorParameters.h"
#include "SampleSource.h"

#include <QtCore/QString>

#include <memory>

namespace BandMonitor {

/** How much of a source without an end is processed where nobody is watching, in seconds. */
constexpr double UnattendedTime = 20;

/** Processes the whole source as fast as it goes. @return the detected signals as a table of text. */
QString detectionReport(std::unique_ptr<SampleSource> source, const struDetectorParameters &parameters = {});

} // namespace BandMonitor
