// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QString>

class QWidget;

namespace BandMonitor {

/** Reports a failure to the user, without waiting for an answer, and its reason in the log. */
void complain(QWidget *parent, const QString &text, const QString &reason, const char *traceFile,
              quint16 line);

} // namespace BandMonitor
