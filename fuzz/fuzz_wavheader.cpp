// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Bytes are a recording: what its header promises must lie in the file.

#include "WavHeader.h"

#include <QtCore/QBuffer>

#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace {

void require(bool condition)
{
    if (!condition)
        std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    QByteArray bytes(reinterpret_cast<const char *>(data), int(size));
    QBuffer file(&bytes);
    file.open(QIODevice::ReadOnly);
    BandMonitor::WavHeader header;
    if (!header.read(file)) {
        require(!header.errorString().isEmpty());
        return 0;
    }
    require(header.channels() == 1 || header.channels() == 2);
    require(std::isfinite(header.sampleRate()) && header.sampleRate() > 0);
    require(header.bytesPerFrame() > 0 && header.frames() >= 0 && header.dataStart() >= 0);
    require(header.dataStart() + header.frames() * header.bytesPerFrame() <= file.size());
    return 0;
}
