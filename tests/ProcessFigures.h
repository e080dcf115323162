// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <malloc.h>
#ifdef __SANITIZE_ADDRESS__
// GCC does not install the header.
extern "C" std::size_t __sanitizer_get_current_allocated_bytes();
#endif

/** What the system says of this process (Linux). */
namespace ProcessFigures {

struct struMemory
{
    double residentKiB = 0;
    double privateDirtyKiB = 0; ///< what would not be there without this process
};

inline struMemory memory()
{
    struMemory memory;
    QFile file(QStringLiteral("/proc/self/smaps_rollup"));
    if (!file.open(QIODevice::ReadOnly))
        return memory;
    const QList<QByteArray> lines = file.readAll().split('\n');
    for (const QByteArray &line : lines) {
        const double value = line.simplified().split(' ').value(1).toDouble();
        if (line.startsWith("Rss:"))
            memory.residentKiB = value;
        else if (line.startsWith("Private_Dirty:"))
            memory.privateDirtyKiB = value;
    }
    return memory;
}

/** What the heap has handed out and not got back, in KiB. */
inline double heapInUse()
{
    constexpr double KiB = 1024;
#ifdef __SANITIZE_ADDRESS__
    return double(__sanitizer_get_current_allocated_bytes()) / KiB;
#else
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks + info.hblkhd) / KiB;
#endif
}

inline int entriesOf(const QString &directory)
{
    return QDir(directory)
        .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot)
        .size();
}

inline int descriptors()
{
    // Without the one that the list itself takes.
    return entriesOf(QStringLiteral("/proc/self/fd")) - 1;
}

inline int threads()
{
    return entriesOf(QStringLiteral("/proc/self/task"));
}

} // namespace ProcessFigures
