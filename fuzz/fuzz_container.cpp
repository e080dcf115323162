// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Bytes are decrypted as they are and, in Base64, as the record of a container; then they are encrypted with
// the algorithm of their first byte and must come back.

#include "PYXTraceWrapper.h"
#include "RecordingTracer.h"
#include "SimpleEncryptionProvider.h"

#include <cstdint>
#include <cstdlib>

using PYXRuntime::SimpleEncryptionProvider;

namespace {

RecordingTracer traces;

void require(bool condition)
{
    if (!condition)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int *, char ***)
{
    PYXRuntime::PYXTraceWrapper::addTracer(&traces); // so that nothing is printed
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    require(SimpleEncryptionProvider::staticDecrypt(bytes).size() <= bytes.size());
    traces.calls.clear();
    require(SimpleEncryptionProvider::staticDecrypt(bytes.toBase64()).size() <= bytes.size());
    require(traces.calls.size() <= 1);
    if (size == 0)
        return 0;
    const QByteArray container = SimpleEncryptionProvider::staticEncrypt(bytes, data[0]);
    require(SimpleEncryptionProvider::staticDecrypt(container) == bytes);
    return 0;
}
