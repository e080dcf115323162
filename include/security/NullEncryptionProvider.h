// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "IPYXEncryptionProvider.h"
#include "pyxruntime_export.h"

namespace PYXRuntime {

/** The encryption provider "Null": stores secrets as they are. Results are deep copies. Any thread. */
class PYXRUNTIME_EXPORT NullEncryptionProvider : public QObject, public Interfaces::IPYXEncryptionProvider
{
    Q_OBJECT
    Q_DISABLE_COPY(NullEncryptionProvider)
    Q_INTERFACES(Interfaces::IPYXEncryptionProvider)
public:
    explicit NullEncryptionProvider(QObject *parent = nullptr);
    ~NullEncryptionProvider() override;

    static QString nullEncryptionProviderId();
    static QString nullEncryptionProviderName();
    static QByteArray staticEncrypt(const QByteArray &plain);
    static QByteArray staticEncrypt(const QString &plain);
    static QByteArray staticDecrypt(const QByteArray &cipher);
    static QString staticDecryptToQString(const QByteArray &cipher);

    QString encryptionProviderId() const override;
    QString encryptionProviderName() const override;
    QByteArray encrypt(const QString &plain) override;
    QByteArray encrypt(const QByteArray &plain) override;
    QByteArray decrypt(const QByteArray &cipher) override;
    QString decryptToQString(const QByteArray &cipher) override;
};

} // namespace PYXRuntime
