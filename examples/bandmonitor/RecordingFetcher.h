// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#pragma once

#include <QtCore/QSaveFile>
#include <QtCore/QUrl>
#include <QtNetwork/QNetworkAccessManager>

class QAuthenticator;
class QNetworkReply;

namespace BandMonitor {

/** Fetches one file at a time, through the proxy that is in force. */
class RecordingFetcher final : public QObject
{
    Q_OBJECT
public:
    /** @param directory where the files go; made where it is missing */
    explicit RecordingFetcher(const QString &directory, QObject *parent = nullptr);
    ~RecordingFetcher() override;

    /** Gives up what is being fetched. Ends with one of the last two signals, not before it returns. */
    void fetch(const QUrl &url);
    /** Nothing is left of the file; no signal comes. */
    void cancel();

Q_SIGNALS:
    /** In bytes; a_total is -1 where it is not known. */
    void si_progress(qint64 a_received, qint64 a_total);
    void si_fetched(const QString &a_path);
    void si_failed(const QString &a_reason);

private:
    QString _pathFor(const QUrl &url) const;
    bool _isComplete() const;
    bool _store();
    void _fail(const QString &reason);
    void _sl_network_authenticationRequired(QNetworkReply *a_reply, QAuthenticator *a_authenticator);
    void _sl_reply_readyRead();
    void _sl_reply_finished();

    const QString m_directory;
    QNetworkAccessManager m_network;
    QUrl m_url; ///< with the user's name and password, if it has them
    QNetworkReply *m_reply = nullptr;
    std::unique_ptr<QSaveFile> m_file;
};

} // namespace BandMonitor
