// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "RecordingFetcher.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDir>
#include <QtCore/QRegularExpression>
#include <QtNetwork/QAuthenticator>
#include <QtNetwork/QNetworkReply>

#include <memory>

namespace BandMonitor {
namespace {

constexpr int TimeoutMs = 30'000;            // without a single byte
constexpr qint64 BufferSize = 1024LL * 1024; // in bytes: a slow disk slows the network down

} // namespace

RecordingFetcher::RecordingFetcher(const QString &directory, QObject *parent)
    : QObject(parent)
    , m_directory(directory)
{
    m_network.setRedirectPolicy(QNetworkRequest::NoLessSafeRedirectPolicy);
    m_network.setTransferTimeout(TimeoutMs);
    connect(&m_network, &QNetworkAccessManager::authenticationRequired, this,
            &RecordingFetcher::_sl_network_authenticationRequired);
}

RecordingFetcher::~RecordingFetcher()
{
    cancel();
}

/** Two files of the same name from different places do not get into each other's way. */
QString RecordingFetcher::_pathFor(const QUrl &url) const
{
    const QByteArray place = QCryptographicHash::hash(url.toEncoded(), QCryptographicHash::Sha1).toHex();
    static const QRegularExpression unusual(QStringLiteral("[^\\w. -]"));
    const QString name = url.fileName().replace(unusual, QStringLiteral("_"));
    return QDir(m_directory).filePath(QString::fromLatin1(place.left(8)) + QLatin1Char('-') + name);
}

void RecordingFetcher::fetch(const QUrl &url)
{
    cancel();
    const QString path = _pathFor(url);
    QDir().mkpath(m_directory);
    m_file = std::make_unique<QSaveFile>(path);
    const bool bOpened = m_file->open(QIODevice::WriteOnly);
    m_url = url;
    // Without the password, which messages of the network would show.
    QNetworkRequest request(url.adjusted(QUrl::RemoveUserInfo));
    request.setRawHeader("Accept-Encoding", "identity"); // so that the announced length is that of the file
    m_reply = m_network.get(request);
    m_reply->setParent(this);
    m_reply->setReadBufferSize(BufferSize);
    connect(m_reply, &QNetworkReply::downloadProgress, this, &RecordingFetcher::si_progress);
    connect(m_reply, &QNetworkReply::readyRead, this, &RecordingFetcher::_sl_reply_readyRead);
    connect(m_reply, &QNetworkReply::finished, this, &RecordingFetcher::_sl_reply_finished,
            Qt::QueuedConnection);
    if (!bOpened)
        m_reply->abort(); // reported like every other end
}

void RecordingFetcher::cancel()
{
    if (m_reply != nullptr) {
        m_reply->disconnect(this);
        m_reply->abort();
        m_reply->deleteLater();
        m_reply = nullptr;
    }
    m_file.reset();
}

/** A connection that is closed in the middle is not always reported as an error. */
bool RecordingFetcher::_isComplete() const
{
    const QVariant length = m_reply->header(QNetworkRequest::ContentLengthHeader);
    return !length.isValid() || length.toLongLong() == m_file->size();
}

bool RecordingFetcher::_store()
{
    const QByteArray bytes = m_reply->readAll();
    return m_file->write(bytes) == bytes.size();
}

void RecordingFetcher::_fail(const QString &reason)
{
    cancel();
    Q_EMIT si_failed(reason);
}

void RecordingFetcher::_sl_network_authenticationRequired(QNetworkReply *a_reply,
                                                          QAuthenticator *a_authenticator)
{
    // Only there: it may have been led to another server since. Asked again, what we have was wrong.
    const QUrl url = a_reply->url();
    if (a_reply != m_reply || m_url.userName().isEmpty() || url.host() != m_url.host() ||
        url.port() != m_url.port() || a_authenticator->user() == m_url.userName())
        return;
    a_authenticator->setUser(m_url.userName());
    a_authenticator->setPassword(m_url.password());
}

void RecordingFetcher::_sl_reply_readyRead()
{
    if (!_store())
        _fail(m_file->fileName() + QLatin1String(": ") + m_file->errorString());
}

void RecordingFetcher::_sl_reply_finished()
{
    // The end of one that was given up may still be on its way.
    if (m_reply == nullptr || !m_reply->isFinished())
        return;
    const QString path = m_file->fileName();
    if (!m_file->isOpen())
        return _fail(path + QLatin1String(": ") + m_file->errorString());
    if (m_reply->error() != QNetworkReply::NoError)
        return _fail(m_reply->errorString());
    const bool bStored = _store();
    if (bStored && !_isComplete())
        return _fail(tr("The connection was closed before the end of the file."));
    if (!bStored || !m_file->commit())
        return _fail(path + QLatin1String(": ") + m_file->errorString());
    cancel();
    Q_EMIT si_fetched(path);
}

} // namespace BandMonitor
