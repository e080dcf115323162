// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "pyxruntime_export.h"

#include <QtCore/QObject>
#include <QtNetwork/QNetworkProxy>

#include <memory>

namespace PYXRuntime {

class ProxyConfiguration;

/**
 * Answers Qt's questions for a proxy from a proxy configuration; PYXProxyManager installs it. At first there
 * is no proxy. Any thread may query, also while another one sets the configuration.
 */
class PYXRUNTIME_EXPORT PYXNetworkProxyFactory : public QObject, public QNetworkProxyFactory
{
    Q_OBJECT
    Q_DISABLE_COPY(PYXNetworkProxyFactory)
public:
    explicit PYXNetworkProxyFactory(QObject *parent = nullptr);
    ~PYXNetworkProxyFactory() override;

    /** Keeps a copy with the password obfuscated. */
    void setCurrentProxyConfiguration(const ProxyConfiguration &configuration);
    /** With credentials. */
    QList<QNetworkProxy> queryProxy(const QNetworkProxyQuery &query = QNetworkProxyQuery()) override;

private:
    class Current;
    const std::unique_ptr<Current> m_current;
};

} // namespace PYXRuntime
