// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QObject>

class QAbstractItemModel;
class QWidget;

namespace BandMonitor {

/** Asks the user which recording to open, on disk or on a server, and where to save a table. */
class FileCommands final : public QObject
{
    Q_OBJECT
public:
    explicit FileCommands(QWidget *window);

    void openRecording();
    void openUrl();
    void save(const QAbstractItemModel &table);
    /** Gives the file dialogs the texts of the present language. */
    void retranslate();

Q_SIGNALS:
    void si_recordingChosen(const QString &a_path);

private:
    void _fetch(const QString &address);

    QWidget *m_window;
};

} // namespace BandMonitor
