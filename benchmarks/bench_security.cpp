// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// The Simple provider beside what one would write to store a scrambled value: digest and XOR, streamed, in
// Base64. That has neither the checksums nor the wiping of the provider.

#include "SimpleEncryptionProvider.h"

#include <QtCore/QCryptographicHash>
#include <QtCore/QDataStream>

#include <benchmark/benchmark.h>

using PYXRuntime::SimpleEncryptionProvider;

namespace {

constexpr int Short = 16;
constexpr int Long = 1 << 20;

QByteArray secret(const benchmark::State &state)
{
    QByteArray bytes(int(state.range(0)), '\0');
    for (int index = 0; index < bytes.size(); ++index)
        bytes[index] = char(index * 31);
    return bytes;
}

QByteArray xored(QByteArray bytes, const QByteArray &key)
{
    char *const data = bytes.data();
    const int size = bytes.size();
    for (int start = 0; start < size; start += key.size()) {
        const int part = qMin(key.size(), size - start);
        for (int index = 0; index < part; ++index)
            data[start + index] = char(data[start + index] ^ key.constData()[index]);
    }
    return bytes;
}

QByteArray encryptedByHand(const QByteArray &plain)
{
    const QByteArray key = QCryptographicHash::hash(plain, QCryptographicHash::Md5);
    QByteArray record;
    QDataStream stream(&record, QIODevice::WriteOnly);
    stream << key << xored(plain, key);
    return record.toBase64();
}

QByteArray decryptedByHand(const QByteArray &stored)
{
    QDataStream stream(QByteArray::fromBase64(stored));
    QByteArray key;
    QByteArray data;
    stream >> key >> data;
    return xored(data, key);
}

void encrypt(benchmark::State &state)
{
    const QByteArray plain = secret(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(SimpleEncryptionProvider::staticEncrypt(plain));
}

void encryptByHand(benchmark::State &state)
{
    const QByteArray plain = secret(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(encryptedByHand(plain));
}

void decrypt(benchmark::State &state)
{
    const QByteArray plain = secret(state);
    const QByteArray stored = SimpleEncryptionProvider::staticEncrypt(plain);
    if (SimpleEncryptionProvider::staticDecrypt(stored) != plain)
        state.SkipWithError("not decrypted");
    for (auto _ : state)
        benchmark::DoNotOptimize(SimpleEncryptionProvider::staticDecrypt(stored));
}

void decryptByHand(benchmark::State &state)
{
    const QByteArray plain = secret(state);
    const QByteArray stored = encryptedByHand(plain);
    if (decryptedByHand(stored) != plain)
        state.SkipWithError("not decrypted");
    for (auto _ : state)
        benchmark::DoNotOptimize(decryptedByHand(stored));
}

void digestAlone(benchmark::State &state)
{
    const QByteArray plain = secret(state);
    for (auto _ : state)
        benchmark::DoNotOptimize(QCryptographicHash::hash(plain, QCryptographicHash::Md5));
}

void base64Alone(benchmark::State &state)
{
    const QByteArray stored = SimpleEncryptionProvider::staticEncrypt(secret(state));
    for (auto _ : state)
        benchmark::DoNotOptimize(QByteArray::fromBase64(stored));
}

} // namespace

BENCHMARK(encrypt)->Name("security/encrypt 16 bytes/PYX")->Arg(Short);
BENCHMARK(encryptByHand)->Name("security/encrypt 16 bytes/by hand")->Arg(Short);
BENCHMARK(digestAlone)->Name("security/encrypt 16 bytes/floor")->Arg(Short);
BENCHMARK(encrypt)->Name("security/encrypt 1 MB/PYX")->Arg(Long);
BENCHMARK(encryptByHand)->Name("security/encrypt 1 MB/by hand")->Arg(Long);
BENCHMARK(digestAlone)->Name("security/encrypt 1 MB/floor")->Arg(Long);
BENCHMARK(decrypt)->Name("security/decrypt 16 bytes/PYX")->Arg(Short);
BENCHMARK(decryptByHand)->Name("security/decrypt 16 bytes/by hand")->Arg(Short);
BENCHMARK(base64Alone)->Name("security/decrypt 16 bytes/floor")->Arg(Short);
BENCHMARK(decrypt)->Name("security/decrypt 1 MB/PYX")->Arg(Long);
BENCHMARK(decryptByHand)->Name("security/decrypt 1 MB/by hand")->Arg(Long);
BENCHMARK(base64Alone)->Name("security/decrypt 1 MB/floor")->Arg(Long);
BENCHMARK_MAIN();
