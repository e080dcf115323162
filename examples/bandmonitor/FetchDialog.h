// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include "RecordingFetcher.h"

#include <QtCore/QUrl>
#include <QtWidgets/QProgressDialog>

namespace BandMonitor {

/** Fetches a recording while its user watches, or cancels. Deletes itself at the end. */
class FetchDialog final : public QProgressDialog
{
    Q_OBJECT
public:
    explicit FetchDialog(const QUrl &url, QWidget *parent = nullptr);

Q_SIGNALS:
    void si_fetched(const QString &a_path);
    void si_failed(const QString &a_reason);

protected:
    void changeEvent(QEvent *event) override;

private:
    void _retranslate();
    void _sl_fetcher_progress(qint64 a_received, qint64 a_total);

    const QUrl m_url;
    RecordingFetcher m_fetcher;
};

} // namespace BandMonitor
