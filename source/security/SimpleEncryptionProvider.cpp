// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "SimpleEncryptionProvider.h"

#include "PYXTraceWrapper.h"
#include "SimpleContainer.h"
#include "WipedValue.h"

#include <algorithm>
#include <cstring>

namespace PYXRuntime {
namespace {

constexpr const char *TraceFile = "source\\SimpleEncryptionProvider";
const QLatin1String DecryptPrefix("SimpleEncryptionProvider:staticDecrypt: ");

constexpr int LastAlgorithm = QCryptographicHash::Keccak_512;
int s_defaultAlgorithm = QCryptographicHash::Md5;

QByteArray refused(const char *reason, ushort line)
{
    PYXTraceWrapper::staticTraceDebug(DecryptPrefix + QLatin1String(reason), TraceFile, line);
    return {};
}

/** Why a container is refused; null for a sound one. */
const char *fault(const SimpleContainer &container)
{
    if (container.magic != SimpleContainer::Magic)
        return "magic number is wrong";
    if (container.key.isEmpty())
        return "unpacked hash was empty";
    if (container.data.isEmpty())
        return "unpacked encrypted data was empty";
    if (SimpleContainer::checksum(container.key) != container.keyChecksum)
        return "checksums for unpacked hash do not match";
    if (SimpleContainer::checksum(container.data) != container.dataChecksum)
        return "checksums for unpacked encrypted data do not match";
    return nullptr;
}

void copyRepeatedly(char *bytes, int size, const QByteArray &pattern)
{
    for (int start = 0; start < size; start += pattern.size())
        std::memcpy(bytes + start, pattern.constData(), std::size_t(qMin(pattern.size(), size - start)));
}

/** XORs the bytes with a pattern that begins anew where it ends. */
void xorRepeatedly(char *bytes, int size, const QByteArray &pattern)
{
    const char *const other = pattern.constData();
    for (int start = 0; start < size; start += pattern.size()) {
        const int part = qMin(pattern.size(), size - start);
        for (int index = 0; index < part; ++index)
            bytes[start + index] = char(bytes[start + index] ^ other[index]);
    }
}

} // namespace

SimpleEncryptionProvider::SimpleEncryptionProvider(QObject *parent)
    : QObject(parent)
{}

SimpleEncryptionProvider::~SimpleEncryptionProvider() = default;

QString SimpleEncryptionProvider::simpleEncryptionProviderId()
{
    return QStringLiteral("Simple");
}

QString SimpleEncryptionProvider::simpleEncryptionProviderName()
{
    //: It does not protect anything, it only obfuscates; the translation must not promise more.
    return tr("Simple Encryption Provider");
}

QByteArray SimpleEncryptionProvider::staticEncrypt(const QByteArray &plain)
{
    return staticEncrypt(plain, s_defaultAlgorithm);
}

QByteArray SimpleEncryptionProvider::staticEncrypt(const QByteArray &plain, int algorithm)
{
    if (plain.isEmpty())
        return {};
    int usedAlgorithm = 0;
    const WipedBytes key(_hash(plain, algorithm, usedAlgorithm));
    const WipedBytes scrambled(_encrypt(plain, key.value));
    SimpleContainer container;
    container.marker = _algorithmMarker(usedAlgorithm);
    container.plainLength = plain.size();
    container.keyChecksum = SimpleContainer::checksum(key.value);
    container.key = key.value;
    container.dataChecksum = SimpleContainer::checksum(scrambled.value);
    container.data = scrambled.value;
    const WipedBytes record(container.toRecord());
    return record.value.toBase64();
}

QByteArray SimpleEncryptionProvider::staticEncrypt(const QString &plain)
{
    const WipedBytes utf8(plain.toUtf8());
    return staticEncrypt(utf8.value);
}

QByteArray SimpleEncryptionProvider::staticDecrypt(const QByteArray &container)
{
    if (container.isEmpty())
        return {};
    const WipedBytes record(QByteArray::fromBase64(container));
    if (record.value.isEmpty())
        return refused("fromBase64 was empty", __LINE__);
    const SimpleContainer unpacked = SimpleContainer::fromRecord(record.value);
    if (const char *const reason = fault(unpacked))
        return refused(reason, __LINE__);
    QByteArray plain = _decrypt(unpacked.data, unpacked.key);
    if (plain.isEmpty())
        return refused("decryption failed", __LINE__);
    // A short plain text was repeated up to the length of the key.
    const int length = qBound(0, unpacked.plainLength, plain.size());
    std::fill(plain.begin() + length, plain.end(), '\0');
    plain.truncate(length);
    return plain;
}

QString SimpleEncryptionProvider::staticDecryptToQString(const QByteArray &container)
{
    const WipedBytes plain(staticDecrypt(container));
    return QString::fromUtf8(plain.value.constData(), plain.value.size());
}

int SimpleEncryptionProvider::staticDefaultAlgorithm()
{
    return s_defaultAlgorithm;
}

void SimpleEncryptionProvider::staticSetDefaultAlgorithm(int algorithm)
{
    s_defaultAlgorithm = algorithm;
}

QString SimpleEncryptionProvider::encryptionProviderId() const
{
    return simpleEncryptionProviderId();
}

QString SimpleEncryptionProvider::encryptionProviderName() const
{
    return simpleEncryptionProviderName();
}

QByteArray SimpleEncryptionProvider::encrypt(const QString &plain)
{
    return staticEncrypt(plain);
}

QByteArray SimpleEncryptionProvider::encrypt(const QByteArray &plain)
{
    return staticEncrypt(plain);
}

QByteArray SimpleEncryptionProvider::decrypt(const QByteArray &cipher)
{
    return staticDecrypt(cipher);
}

QString SimpleEncryptionProvider::decryptToQString(const QByteArray &cipher)
{
    return staticDecryptToQString(cipher);
}

unsigned char SimpleEncryptionProvider::_algorithmMarker(int algorithm)
{
    return static_cast<unsigned char>(algorithm);
}

int SimpleEncryptionProvider::_decideAlgorithm(int algorithm)
{
    return algorithm >= 0 && algorithm <= LastAlgorithm ? algorithm : s_defaultAlgorithm;
}

QCryptographicHash::Algorithm SimpleEncryptionProvider::_toQt(int algorithm)
{
    if (algorithm < 0 || algorithm > LastAlgorithm)
        return QCryptographicHash::Md5;
    return static_cast<QCryptographicHash::Algorithm>(algorithm);
}

QByteArray SimpleEncryptionProvider::_hash(const QByteArray &data, int algorithm, int &usedAlgorithm)
{
    usedAlgorithm = _decideAlgorithm(algorithm);
    return QCryptographicHash::hash(data, _toQt(usedAlgorithm));
}

QByteArray SimpleEncryptionProvider::_encrypt(const QByteArray &data, const QByteArray &key)
{
    QByteArray result(qMax(data.size(), key.size()), Qt::Uninitialized);
    copyRepeatedly(result.data(), result.size(), data);
    xorRepeatedly(result.data(), result.size(), key);
    return result;
}

QByteArray SimpleEncryptionProvider::_decrypt(const QByteArray &data, const QByteArray &key)
{
    return _encrypt(data, key);
}

} // namespace PYXRuntime
