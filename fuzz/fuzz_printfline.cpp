// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Bytes are a trace text that printf mode takes as a format. Without a conversion the text stays as it is,
// and no conversion prints more than printf's own limit allows.

#include "PrintfLine.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    constexpr int LongestField = 4095 + 16; // a sign, a prefix, an exponent
    const QByteArray format(reinterpret_cast<const char *>(data), int(size));
    const QByteArray line = PYXRuntime::printfLine(format);
    const int conversions = format.count('%');
    if (conversions == 0 ? line != format : line.size() > format.size() + conversions * LongestField)
        std::abort();
    return 0;
}
