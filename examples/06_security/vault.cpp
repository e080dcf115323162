// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// An encryption provider of one's own; here it asks a vault of the organisation, which is played by XOR.
#include <IPYXEncryptionProvider.h>
#include <PYXByteArrayHelpers.h>
#include <PYXEncryptionManager.h>
#include <PYXRuntime.h>

#include <QApplication>
#include <QTextStream>

#include <algorithm>

using namespace PYXRuntime;

class Vault : public QObject, public Interfaces::IPYXEncryptionProvider
{
    Q_OBJECT
    Q_INTERFACES(Interfaces::IPYXEncryptionProvider)
public:
    QString encryptionProviderId() const override { return "Vault"; } // stands beside each secret: for ever
    QString encryptionProviderName() const override { return tr("Vault of the organisation"); }

    QByteArray encrypt(const QByteArray &plain) override { return askVault(plain); }
    QByteArray encrypt(const QString &plain) override
    {
        QByteArray bytes = plain.toUtf8();
        QByteArray cipher = askVault(bytes);
        PYXByteArrayHelpers::safeOverwriteAndClear(bytes); // of a plain text nothing stays behind
        return cipher;
    }
    QByteArray decrypt(const QByteArray &cipher) override { return askVault(cipher); }
    QString decryptToQString(const QByteArray &cipher) override
    {
        QByteArray bytes = askVault(cipher);
        QString plain = QString::fromUtf8(bytes);
        PYXByteArrayHelpers::safeOverwriteAndClear(bytes);
        return plain;
    }

private:
    static QByteArray askVault(const QByteArray &text)
    {
        QByteArray answer = PYXByteArrayHelpers::trueCopy(text); // callers wipe both
        std::transform(answer.begin(), answer.end(), answer.begin(), [](char c) { return char(c ^ 0x2a); });
        return answer;
    }
};

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("06 Vault");
    initialize_PYXRuntime();
    QTextStream out(stdout);

    Vault vault; // stays the application's
    PYXEncryptionManager::staticRegisterAndSetEncryptionProvider(&vault);
    out << "in effect: " << PYXEncryptionManager::staticEncryptionProviderId() << '\n';
    const QByteArray stored = PYXEncryptionManager::staticEncrypt(QString("correct horse"));
    const bool isSame = PYXEncryptionManager::staticDecryptToQString(stored) == "correct horse";
    out << "read again: " << (isSame ? "yes" : "no") << '\n';

    PYXEncryptionManager::staticUnsetEncryptionProvider(); // unregistering alone would leave it in effect
    PYXEncryptionManager::staticUnregisterEncryptionProvider(&vault);
    out << "in effect: " << PYXEncryptionManager::staticEncryptionProviderId() << '\n';

    uninitialize_PYXRuntime();
    return isSame ? 0 : 1;
}

#include "vault.moc"
