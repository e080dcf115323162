// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "Complaint.h"

#include <PYXTraceWrapper.h>

#include <QtGui/QTextDocument>
#include <QtWidgets/QApplication>
#include <QtWidgets/QMessageBox>

namespace BandMonitor {

void complain(QWidget *parent, const QString &text, const QString &reason, const char *traceFile,
              quint16 line)
{
    PYXRuntime::PYXTraceWrapper::staticTraceError(reason, traceFile, line);
    auto *const box =
        new QMessageBox(QMessageBox::Warning, QApplication::applicationName(), text, QMessageBox::Ok, parent);
    // It may quote a server, and is no rich text.
    box->setInformativeText(Qt::convertFromPlainText(reason));
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

} // namespace BandMonitor
