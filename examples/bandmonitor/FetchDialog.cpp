// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
#include "FetchDialog.h"

#include <PYXBroker.h>
#include <PYXIApplicationInfo.h>

#include <QtCore/QEvent>

namespace BandMonitor {
namespace {

const QLatin1String CacheName("/recordings");
constexpr int Steps = 1000;
constexpr int UrlWidth = 400;

QString cacheDirectory()
{
    using PYXRuntime::PYXIApplicationInfo;
    auto *const info = PYXRuntime::PYXBroker::getInstance()->topObject<PYXIApplicationInfo>();
    return info->getSpecialDirPath(PYXIApplicationInfo::eApplicationUserDiskCacheBaseDir, false) + CacheName;
}

} // namespace

FetchDialog::FetchDialog(const QUrl &url, QWidget *parent)
    : QProgressDialog(parent)
    , m_url(url)
    , m_fetcher(cacheDirectory())
{
    setAttribute(Qt::WA_DeleteOnClose);
    _retranslate();
    setRange(0, 0);
    setMinimumDuration(0);
    setAutoReset(false);
    setMinimumWidth(420);
    connect(this, &QProgressDialog::canceled, this, [this] {
        m_fetcher.cancel();
        close();
    });
    connect(&m_fetcher, &RecordingFetcher::si_progress, this, &FetchDialog::_sl_fetcher_progress);
    connect(&m_fetcher, &RecordingFetcher::si_fetched, this, [this](const QString &path) {
        Q_EMIT si_fetched(path);
        close();
    });
    connect(&m_fetcher, &RecordingFetcher::si_failed, this, [this](const QString &reason) {
        Q_EMIT si_failed(reason);
        close();
    });
    m_fetcher.fetch(url);
    show();
}

void FetchDialog::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LanguageChange)
        _retranslate();
    QProgressDialog::changeEvent(event);
}

void FetchDialog::_retranslate()
{
    setWindowTitle(tr("Open URL"));
    // The password that a URL may have is not for the screen.
    const QString url = m_url.toDisplayString(QUrl::RemoveUserInfo);
    setLabelText(tr("Fetching %1").arg(fontMetrics().elidedText(url, Qt::ElideMiddle, UrlWidth)));
}

void FetchDialog::_sl_fetcher_progress(qint64 a_received, qint64 a_total)
{
    if (a_total <= 0)
        return;
    setMaximum(Steps);
    setValue(int(a_received * Steps / a_total));
}

} // namespace BandMonitor
