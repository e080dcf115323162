// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "PYXNetworkProxyFactory.h"

#include "DataMutex.h"
#include "ProxyConfiguration.h"

#include <mutex>

namespace PYXRuntime {

/** The configuration in force, which nobody changes: another one takes its place. */
class PYXNetworkProxyFactory::Current final
{
public:
    using Configuration = std::shared_ptr<const ProxyConfiguration>;

    void set(Configuration configuration)
    {
        const std::lock_guard<DataMutex> locker(m_mutex);
        m_configuration.swap(configuration);
    }

    Configuration get()
    {
        const std::lock_guard<DataMutex> locker(m_mutex);
        return m_configuration;
    }

private:
    DataMutex m_mutex;
    Configuration m_configuration = std::make_shared<const ProxyConfiguration>();
};

PYXNetworkProxyFactory::PYXNetworkProxyFactory(QObject *parent)
    : QObject(parent)
    , m_current(std::make_unique<Current>())
{}

PYXNetworkProxyFactory::~PYXNetworkProxyFactory() = default;

void PYXNetworkProxyFactory::setCurrentProxyConfiguration(const ProxyConfiguration &configuration)
{
    auto copy = std::make_shared<ProxyConfiguration>(configuration);
    copy->obfuscateProxyPassword();
    m_current->set(std::move(copy));
}

QList<QNetworkProxy> PYXNetworkProxyFactory::queryProxy(const QNetworkProxyQuery &query)
{
    return m_current->get()->toQNetworkProxies(query, false);
}

} // namespace PYXRuntime
