// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later

// Whatever the check lets through, QTranslator must be able to look texts up in.
#include "QmFile.h"

#include <QtCore/QTranslator>

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const auto file = PYXRuntime::checkedQmFile(QByteArray(reinterpret_cast<const char *>(data), int(size)));
    if (!file)
        return 0;
    QTranslator translator;
    if (!translator.load(reinterpret_cast<const uchar *>(file->content.constData()), file->content.size()))
        return 0;
    for (const char *context : {"Context", "Other"}) {
        for (const char *source : {"Open", "%n file(s)", ""}) {
            for (const int count : {-1, 1, 2})
                translator.translate(context, source, "comment", count);
        }
    }
    return 0;
}
