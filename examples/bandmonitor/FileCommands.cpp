// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "FileCommands.h"

#include "Complaint.h"
#include "FetchDialog.h"
#include "TableText.h"

#include <PYXFileFilter.h>

#include <QtCore/QSaveFile>
#include <QtWidgets/QInputDialog>

using PYXRuntime::PYXFileFilter;

namespace BandMonitor {
namespace {

const char TraceFile[] = "bandmonitor\\FileCommands";

const QLatin1String RecordingsFilter("Recordings");
const QLatin1String TablesFilter("Tables");

constexpr int UrlQuestionWidth = 480;

} // namespace

FileCommands::FileCommands(QWidget *window)
    : QObject(window)
    , m_window(window)
{
    retranslate();
}

void FileCommands::retranslate()
{
    PYXFileFilter::registerFilter(RecordingsFilter, tr("Recordings"), {QStringLiteral("*.wav")});
    PYXFileFilter::registerFilter(TablesFilter, tr("Comma-separated tables"), {QStringLiteral("*.csv")});
}

void FileCommands::openRecording()
{
    const PYXFileFilter filter(QStringLiteral("OpenRecording"), {RecordingsFilter});
    const QString path = filter.getOpenFileName(m_window, tr("Open Recording"));
    if (!path.isEmpty())
        Q_EMIT si_recordingChosen(path);
}

void FileCommands::openUrl()
{
    auto *const question = new QInputDialog(m_window);
    question->setAttribute(Qt::WA_DeleteOnClose);
    question->setWindowTitle(tr("Open URL"));
    question->setLabelText(tr("Address of the recording:"));
    question->setTextValue(QStringLiteral("https://"));
    question->resize(UrlQuestionWidth, question->sizeHint().height());
    connect(question, &QInputDialog::textValueSelected, this, &FileCommands::_fetch);
    question->open();
}

void FileCommands::_fetch(const QString &address)
{
    const QUrl url = QUrl::fromUserInput(address.trimmed());
    if (!url.isValid())
        return;
    auto *const dialog = new FetchDialog(url, m_window);
    connect(dialog, &FetchDialog::si_fetched, this, &FileCommands::si_recordingChosen);
    connect(dialog, &FetchDialog::si_failed, this, [this](const QString &reason) {
        complain(m_window, tr("This recording cannot be fetched."), reason, TraceFile, __LINE__);
    });
}

void FileCommands::save(const QAbstractItemModel &table)
{
    const PYXFileFilter filter(QStringLiteral("SaveSignals"), {TablesFilter});
    const QString path = filter.getSaveFileName(m_window, tr("Save Signals"));
    if (path.isEmpty())
        return;
    QSaveFile file(path);
    const QByteArray text = csvText(table).toUtf8();
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        complain(m_window, tr("The signals cannot be saved."),
                 path + QLatin1String(": ") + file.errorString(), TraceFile, __LINE__);
}

} // namespace BandMonitor
