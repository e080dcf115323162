// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "ProxyConfiguration.h"

#include <QtCore/QElapsedTimer>
#include <QtCore/QObject>
#include <QtNetwork/QNetworkAccessManager>

class QNetworkReply;

namespace PYXRuntime {

/** Tries web sites through a proxy, all at the same time, and says of each how it went. */
class ProxyTester final : public QObject
{
    Q_OBJECT
    Q_DISABLE_COPY(ProxyTester)
public:
    explicit ProxyTester(const ProxyConfiguration &configuration, QObject *parent = nullptr);
    /** Ends what is under way, silently. */
    ~ProxyTester() override;

    /** @param index comes back with the result */
    void test(int index, const QString &site);

Q_SIGNALS:
    void si_finished(int a_index, bool a_reached, const QString &a_result);

private:
    void _finish(int index, QNetworkReply *reply, qint64 milliseconds);

    QNetworkAccessManager m_network;
};

} // namespace PYXRuntime
