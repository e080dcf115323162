// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ProcessFigures.h"

#include <QtCore/QDir>
#include <QtCore/QFile>

#include <malloc.h>

namespace {

constexpr double KiB = 1024;

int entriesOf(const QString &directory)
{
    return QDir(directory)
        .entryList(QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot)
        .size();
}

} // namespace

ProcessFigures::struMemory ProcessFigures::memory()
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

double ProcessFigures::heapInUse()
{
    const struct mallinfo2 info = mallinfo2();
    return double(info.uordblks + info.hblkhd) / KiB;
}

int ProcessFigures::descriptors()
{
    // Without the one that the list itself takes.
    return entriesOf(QStringLiteral("/proc/self/fd")) - 1;
}

int ProcessFigures::threads()
{
    return entriesOf(QStringLiteral("/proc/self/task"));
}
