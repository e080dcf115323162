// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "KeychainVault.h"

#include "KeychainEntry.h"
#include "PYXByteArrayHelpers.h"
#include "WipedValue.h"

#include <QtCore/QDir>
#include <QtCore/QLockFile>
#include <QtCore/QScopedValueRollback>
#include <QtCore/QStandardPaths>

#include <sodium.h>

namespace PYXRuntime {
namespace {

const QLatin1String EntryName("EncryptionKey");
const QLatin1String LockName("PYXRuntime-keychain.lock");

// A record: this header, a random number, and what the encryption makes of the plain text.
constexpr char Header[] = "PYXK\x01";
constexpr int HeaderSize = sizeof Header - 1;
constexpr int NonceSize = crypto_aead_xchacha20poly1305_ietf_NPUBBYTES;
constexpr int TagSize = crypto_aead_xchacha20poly1305_ietf_ABYTES;
// Nobody takes longer to unlock the store, and no lock of a living program is older.
constexpr int LongestAnswerMs = 10 * 60 * 1000;

constexpr int KeySize = crypto_aead_xchacha20poly1305_ietf_KEYBYTES;

uchar *bytesOf(QByteArray &array, int offset = 0)
{
    return reinterpret_cast<uchar *>(array.data()) + offset;
}

const uchar *bytesOf(const QByteArray &array, int offset = 0)
{
    return reinterpret_cast<const uchar *>(array.constData()) + offset;
}

QString lockPath()
{
    const QString directory = QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation);
    return QDir(directory.isEmpty() ? QDir::tempPath() : directory).filePath(LockName);
}

/** Asks for the key, and makes one where there is none. @return why there is no key; else empty */
QString fetchKey(const KeychainEntry &entry, QByteArray &key)
{
    // Asking runs events, and what asks again in one of them would wait for a lock that it holds up itself.
    static bool bAsking = false;
    if (bAsking)
        return KeychainVault::tr("The key is being fetched from the system's secret store already.");
    const QScopedValueRollback<bool> asking(bAsking, true);
    // Two programs that start for the first time would otherwise each make one.
    QLockFile lock(lockPath());
    lock.setStaleLockTime(LongestAnswerMs);
    if (!lock.tryLock(entry.timeoutMs()))
        return KeychainVault::tr("Another program is holding the key in the system's secret store.");
    QString error;
    switch (entry.read(key, error)) {
    case KeychainEntry::ekAnswer_Found:
        return key.size() == KeySize ? QString()
                                     : KeychainVault::tr("The key in the system's secret store is damaged.");
    case KeychainEntry::ekAnswer_Failed:
        return error;
    default:
        key.resize(KeySize);
        crypto_aead_xchacha20poly1305_ietf_keygen(bytesOf(key));
        return entry.write(key, error) == KeychainEntry::ekAnswer_Failed ? error : QString();
    }
}

} // namespace

/** In memory that is locked, guarded, left out of core dumps, and wiped at the end. */
class KeychainVault::Key final
{
    Q_DISABLE_COPY(Key)
public:
    explicit Key(const QByteArray &key)
        : m_bytes(static_cast<uchar *>(sodium_malloc(KeySize)))
    {
        Q_CHECK_PTR(m_bytes);
        std::copy_n(bytesOf(key), KeySize, m_bytes);
        sodium_mprotect_readonly(m_bytes);
    }
    ~Key() { sodium_free(m_bytes); }

    const uchar *bytes() const { return m_bytes; }

private:
    uchar *const m_bytes;
};

KeychainVault::KeychainVault() = default;

KeychainVault::~KeychainVault() = default;

bool KeychainVault::isSupported()
{
    return true;
}

QString KeychainVault::open(const QString &service, int timeoutMs)
{
    if (isOpen())
        return {};
    if (sodium_init() < 0)
        return tr("The encryption library does not work on this system.");
    WipedBytes key;
    QString error = fetchKey(KeychainEntry(service, EntryName, timeoutMs), key.value);
    if (error.isEmpty())
        m_key = std::make_unique<Key>(key.value);
    return error;
}

bool KeychainVault::isOpen() const
{
    return m_key != nullptr;
}

void KeychainVault::close()
{
    m_key.reset();
}

QByteArray KeychainVault::encrypted(const QByteArray &plain) const
{
    QByteArray record(HeaderSize + NonceSize + plain.size() + TagSize, Qt::Uninitialized);
    std::copy_n(Header, HeaderSize, record.data());
    uchar *const nonce = bytesOf(record, HeaderSize);
    randombytes_buf(nonce, NonceSize);
    crypto_aead_xchacha20poly1305_ietf_encrypt(nonce + NonceSize, nullptr, bytesOf(plain),
                                               quint64(plain.size()), bytesOf(record), HeaderSize, nullptr,
                                               nonce, m_key->bytes());
    return record;
}

QByteArray KeychainVault::decrypted(const QByteArray &record, const char **reason) const
{
    const int overhead = HeaderSize + NonceSize + TagSize;
    if (record.size() <= overhead || !record.startsWith(Header)) {
        *reason = "not encrypted by this provider";
        return {};
    }
    QByteArray plain(record.size() - overhead, Qt::Uninitialized);
    const uchar *const nonce = bytesOf(record, HeaderSize);
    const int status = crypto_aead_xchacha20poly1305_ietf_decrypt(
        bytesOf(plain), nullptr, nullptr, nonce + NonceSize, quint64(plain.size()) + TagSize, bytesOf(record),
        HeaderSize, nonce, m_key->bytes());
    if (status != 0) {
        *reason = "damaged, or encrypted with another key";
        return {};
    }
    return plain;
}

} // namespace PYXRuntime
