// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: BSD-3-Clause
//
// A password is stored so that others cannot read it, read again, and wiped from memory.
#include <KeychainEncryptionProvider.h>
#include <PYXByteArrayHelpers.h>
#include <PYXEncryptionManager.h>
#include <PYXRuntime.h>
#include <PYXSettings.h>
#include <PYXStringHelpers.h>

#include <QApplication>
#include <QTextStream>

using namespace PYXRuntime;

namespace {

/** Once, at the start of the program. Without it "Simple" is in effect, which only obfuscates. */
void protectSecrets(KeychainEncryptionProvider &keychain)
{
    QString error;
    if (keychain.open(&error)) // may ask the user to unlock the system's secret store
        PYXEncryptionManager::staticRegisterAndSetEncryptionProvider(&keychain);
    else
        QTextStream(stdout) << "passwords are only obfuscated: " << error << '\n';
}

void store(const QString &password)
{
    PYXSettings settings(PYXSettings::eUserApplicationSettings);
    settings.setValue("Server/Password", PYXEncryptionManager::staticEncrypt(password));
    settings.setValue("Server/PasswordProvider", PYXEncryptionManager::staticEncryptionProviderId());
}

/** The password is the caller's to wipe. */
QString storedPassword()
{
    const PYXSettings settings(PYXSettings::eUserApplicationSettings);
    const QString id = settings.stringValue("Server/PasswordProvider");
    // It need not be the one that is in effect now.
    auto *provider = PYXEncryptionManager::staticGetEncryptionProviderForId(id);
    if (provider == nullptr)
        return QString();
    return provider->decryptToQString(settings.byteArrayValue("Server/Password"));
}

} // namespace

int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    QApplication::setOrganizationName("Example");
    QApplication::setApplicationName("06 Security");
    initialize_PYXRuntime();

    KeychainEncryptionProvider keychain("Example 06 Security");
    protectSecrets(keychain);
    QString typed = PYXStringHelpers::trueCopy("correct horse"); // in earnest from a line edit
    store(typed);
    QTextStream out(stdout);
    out << "stored by " << PYXEncryptionManager::staticEncryptionProviderId() << '\n';

    QString password = storedPassword();
    const bool isSame = password == typed;
    PYXStringHelpers::safeOverwriteAndClear(password); // where it lies: also in every text that shares it
    PYXStringHelpers::safeOverwriteAndClear(typed);
    out << "read again: " << (isSame ? "yes" : "no") << '\n'
        << "wiped: " << (password.isEmpty() && typed.isEmpty() ? "yes" : "no") << '\n';

    PYXEncryptionManager::staticUnregisterEncryptionProvider(&keychain);
    uninitialize_PYXRuntime();
    return isSame ? 0 : 1;
}
