// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "Enums.h"
#include "pyxruntime_export.h"
#include "PYXStatusHash.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QMetaType>
#include <QtNetwork/QNetworkProxy>

class QSettings;
class QXmlStreamWriter;

namespace Interfaces {
class IPYXEncryptionProvider;
}

namespace PYXRuntime {

/**
 * Which proxy the applications use, and how it knows them.
 *
 * The strings share their buffers with nobody: what goes in or out is copied deeply, and what is replaced or
 * dropped is wiped. A password from proxyPassword() is the caller's to wipe.
 *
 * Different objects may be used in different threads. What stores and restores belongs to the GUI thread,
 * as the encryption providers do.
 */
class PYXRUNTIME_EXPORT ProxyConfiguration final
{
    Q_DECLARE_TR_FUNCTIONS(PYXRuntime::ProxyConfiguration)
public:
    using IPYXEncryptionProvider = Interfaces::IPYXEncryptionProvider;

    /** No proxy. */
    ProxyConfiguration() = default;
    /** A manual configuration, in the second form with authentication. */
    ProxyConfiguration(const QString &host, quint16 port);
    ProxyConfiguration(const QString &host, quint16 port, const QString &user, const QString &password);
    ProxyConfiguration(const ProxyConfiguration &other);
    ProxyConfiguration &operator=(const ProxyConfiguration &other);
    ~ProxyConfiguration();

    Enums::eProxyType proxyType() const { return m_type; }
    /** Counts for a manual configuration. */
    Enums::eProxyVariant proxyVariant() const { return m_variant; }
    QString proxyTypeAsString() const;
    QString proxyVariantAsString() const;
    QString proxyHost() const;
    quint16 proxyPort() const { return m_port; }
    bool authenticationRequired() const { return m_bAuthenticationRequired; }
    QString proxyUsername() const;
    /** The plain password, also while it is held obfuscated. */
    QString proxyPassword() const;
    QString unobfuscatedProxyPassword() const;
    static quint16 defaultProxyPort() { return 8080; }

    void setProxyType(Enums::eProxyType type) { m_type = type; }
    void setProxyVariant(Enums::eProxyVariant variant) { m_variant = variant; }
    void setProxyHost(const QString &host);
    void setProxyPort(quint16 port) { m_port = port; }
    void setProxyDefaultPort() { m_port = defaultProxyPort(); }
    void setProxyAuthenticationRequired(bool required) { m_bAuthenticationRequired = required; }
    /** Requires it, with these credentials. */
    void setProxyAuthenticationRequired(const QString &user, const QString &password);
    void setProxyUsername(const QString &user);
    /** For configurations that are not obfuscated: in one that is, this must be an obfuscated text. */
    void setProxyPassword(const QString &password);
    void clearProxyPassword();
    /** Everything as in a new object, but for the variant, which stays. */
    void clear();

    /** Changes how the password is held, so that memory does not show it at a glance. */
    void obfuscateProxyPassword();
    void unobfuscateProxyPassword();

    /**
     * The form that is stored. The password is encrypted as it is held by @p provider (null: the manager's
     * default one), whose id is stored beside it.
     */
    PYXStatusHash serialize(IPYXEncryptionProvider *provider) const;
    /** @param useEffectiveProvider the one in effect, else the default one. */
    PYXStatusHash serialize(bool useEffectiveProvider) const;
    QByteArray toXml(IPYXEncryptionProvider *provider) const;
    QByteArray toXml(bool useEffectiveProvider) const;
    void toXmlStream(QXmlStreamWriter &writer, IPYXEncryptionProvider *provider) const;
    void toXmlStream(QXmlStreamWriter &writer, bool useEffectiveProvider) const;
    /** Sets the XML text as a QByteArray; null settings are ignored. */
    void save(QSettings *settings, const QString &key, IPYXEncryptionProvider *provider) const;
    void save(QSettings *settings, const QString &key, bool useEffectiveProvider) const;

    /**
     * Takes over what was stored. The password is decrypted by the provider that encrypted it, if that is
     * known, else by @p provider (null: the one in effect); one that does not decrypt becomes empty.
     * @return false for a hash that lacks a part: then nothing is changed.
     */
    bool restoreFrom(const PYXStatusHash &hash, IPYXEncryptionProvider *provider);
    /** Where this fails, it leaves a cleared configuration. */
    bool restoreFrom(const QByteArray &xml, IPYXEncryptionProvider *provider);
    /** A key that is not there fails silently, a value that is none with a warning; both change nothing. */
    bool restoreFrom(const QSettings *settings, const QString &key, IPYXEncryptionProvider *provider);
    /** A new configuration; the default one where restoring fails. */
    static ProxyConfiguration restoredFrom(const PYXStatusHash &hash, IPYXEncryptionProvider *provider);
    static ProxyConfiguration restoredFrom(const QByteArray &xml, IPYXEncryptionProvider *provider);
    static ProxyConfiguration restoredFrom(const QSettings *settings, const QString &key,
                                           IPYXEncryptionProvider *provider);

    /**
     * What Qt is to use for a connection. A manual proxy is left out for addresses in a network of this
     * host; a host name always uses it. What the system says is completed with the credentials.
     */
    QList<QNetworkProxy> toQNetworkProxies(const QNetworkProxyQuery &query, bool withoutCredentials) const;
    /** The first of them. */
    QNetworkProxy toQNetworkProxy(const QNetworkProxyQuery &query, bool withoutCredentials) const;

private:
    static IPYXEncryptionProvider *_providerFor(const QString &storedId, IPYXEncryptionProvider *supplied);
    QList<QNetworkProxy> _systemProxies(const QNetworkProxyQuery &query, bool withCredentials) const;
    QNetworkProxy _manualProxy(bool withCredentials) const;

    Enums::eProxyType m_type = Enums::ekProxy_Default;
    Enums::eProxyVariant m_variant = Enums::ekProxyVariant_Default;
    QString m_host;
    quint16 m_port = defaultProxyPort();
    bool m_bAuthenticationRequired = false;
    QString m_username;
    QString m_password;
    bool m_bPasswordObfuscated = false;
};

} // namespace PYXRuntime

Q_DECLARE_METATYPE(PYXRuntime::ProxyConfiguration)
