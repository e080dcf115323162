// SPDX-FileCopyrightText: 2026 The PYXRuntime developers
// SPDX-License-Identifier: LGPL-3.0-or-later
#include "ProgramPaths.h"

#include <QtCore/QDir>

namespace PYXRuntime::ProgramPaths {
namespace {

constexpr QLatin1Char Separator('/');

QString withSlashes(const QString &path)
{
    return QString(path).replace(QLatin1Char('\\'), Separator);
}

} // namespace

bool hasDriveLetter(const QString &path)
{
    if (path.size() < 2 || path.at(1) != QLatin1Char(':'))
        return false;
    const ushort letter = path.at(0).toUpper().unicode();
    const bool bRooted = path.size() == 2 || path.at(2) == Separator || path.at(2) == QLatin1Char('\\');
    return letter >= 'A' && letter <= 'Z' && bRooted;
}

QString withoutSeparator(const QString &path)
{
    return path.endsWith(Separator) ? path.chopped(1) : path;
}

QString joined(std::initializer_list<QString> parts)
{
    QString path;
    for (const QString &part : parts) {
        if (part.isEmpty())
            continue;
        if (!path.isEmpty() && !path.endsWith(Separator))
            path += Separator;
        path += part;
    }
    return path;
}

QString aboveBin(const QString &directory)
{
    QString path = QDir::cleanPath(directory);
    const int separator = path.lastIndexOf(Separator);
    if (path.mid(separator + 1).compare(QLatin1String("bin"), Qt::CaseInsensitive) != 0 || separator < 0)
        return path;
    const QString parent = path.left(separator);
    // The root keeps its separator.
    return parent.isEmpty() || (hasDriveLetter(parent) && parent.size() == 2) ? parent + Separator : parent;
}

QString absolute(const QString &path)
{
    if (hasDriveLetter(path))
        return QDir::cleanPath(withSlashes(path));
    return QDir::cleanPath(QDir(path).absolutePath());
}

} // namespace PYXRuntime::ProgramPaths
