// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "Complaint.h"

#include <PYXTraceWrapper.h>

#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

namespace BandMonitor {

void complain(QWidget *parent, const QString &text, const QString &reason, const char *traceFile,
              quint16 line)
{
    PYXRuntime::PYXTraceWrapper::staticTraceError(reason, traceFile, line);
    auto *const box =
        new QMessageBox(QMessageBox::Warning, QApplication::applicationName(), text, QMessageBox::Ok, parent);
    box->setInformativeText(reason);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

} // namespace BandMonitor
